#include "core/results/result_list.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace zentlor {

namespace {

// Plain letters of U+00E0 to U+00FF, the small letters of Latin-1; a blank where there is none.
constexpr TextView kPlainLetters = u"aaaaaaaceeeeiiii nooooo ouuuuy y";

// One character of a text in collation order; ß is two.
class Collation {
  public:
    explicit Collation(TextView text) : text_(text) {}

    int Next() {
        if (pending_ != 0) return std::exchange(pending_, 0);
        if (position_ == text_.size()) return -1;
        const char16_t c = FoldCase(text_[position_++]);
        if (c == 0x00DF) return pending_ = u's';
        if (c < 0x00E0 || c > 0x00FF) return c;
        const char16_t plain = kPlainLetters[c - 0x00E0];
        return plain == u' ' ? c : plain;
    }

  private:
    TextView text_;
    std::size_t position_ = 0;
    int pending_ = 0;
};

}  // namespace

int CompareCells(TextView a, TextView b) {
    if (a.data() == b.data() && a.size() == b.size()) return 0;  // rows share the texts that they have in common
    Collation left(a);
    Collation right(b);
    for (;;) {
        const int x = left.Next();
        const int y = right.Next();
        if (x != y) return x - y;
        if (x == -1) return 0;
    }
}

Text SortText(int lngZeile) {
    const Text padded = u"     " + ToText(lngZeile);
    return padded.substr(padded.size() - 5);
}

Text CellText(const Hint& hint, int column) {
    switch (column) {
        case 1:
            return Text(TextView(hint.strNameVBC));
        case 2:
            return Text(TextView(hint.strProzedur));
        case 3:
            return Text(TextView(hint.strHinweis));
        case 4:
            return ToText(hint.lngZeile);
        default:
            return SortText(hint.lngZeile);
    }
}

const Hint& HintSequence::operator[](std::size_t index) const {
    while (runOf_.size() <= index) {
        std::uint32_t run = runOf_.empty() ? 0 : runOf_.back();
        if (runs_[run].end == runOf_.size()) ++run;
        runOf_.push_back(run);
    }
    return runs_[runOf_[index]].hint;
}

void HintSequence::Clear() {
    runs_.clear();
    runOf_.clear();
}

void HintSequence::Add(Hint hint) {
    if (!runs_.empty()) {
        Run& last = runs_.back();
        hint.strNameVBC.ShareWith(last.hint.strNameVBC);
        hint.strProzedur.ShareWith(last.hint.strProzedur);
        hint.strHinweis.ShareWith(last.hint.strHinweis);
        if (hint == last.hint) {
            ++last.end;
            return;
        }
    }
    runs_.push_back({std::move(hint), static_cast<std::uint32_t>(size()) + 1});
}

void ResultList::Add(Hint hint) {
    hints_.Add(std::move(hint));
}

void ResultList::Clear() {
    hints_.Clear();
    order_.clear();
}

bool ResultList::InFront(std::size_t a, std::size_t b) const {
    const Hint& x = hints_[ascending_ ? a : b];
    const Hint& y = hints_[ascending_ ? b : a];
    switch (sortKey_) {
        case 0:
            return CompareCells(x.strNameVBC, y.strNameVBC) < 0;
        case 1:
            return CompareCells(x.strProzedur, y.strProzedur) < 0;
        case 2:
            return CompareCells(x.strHinweis, y.strHinweis) < 0;
        default:
            return SortText(x.lngZeile) < SortText(y.lngZeile);
    }
}

// Rows behind `sorted` are new: they are sorted by themselves and merged in, so that a list that grows during a run is
// never sorted from the beginning. Equal rows keep the order of emission.
void ResultList::Sort(std::size_t sorted) const {
    const auto middle = order_.begin() + static_cast<std::ptrdiff_t>(sorted);
    const auto inFront = [this](std::uint32_t a, std::uint32_t b) { return InFront(a, b); };
    std::stable_sort(middle, order_.end(), inFront);
    std::inplace_merge(order_.begin(), middle, order_.end(), inFront);
}

const std::vector<std::uint32_t>& ResultList::Order() const {
    const std::size_t sorted = order_.size();
    if (sorted == hints_.size()) return order_;
    order_.resize(hints_.size());
    std::iota(order_.begin() + static_cast<std::ptrdiff_t>(sorted), order_.end(), static_cast<std::uint32_t>(sorted));
    Sort(sorted);
    return order_;
}

void ResultList::lvwErgebnis_ColumnClick(int column) {
    const int key = column == kVisibleColumns ? kSortLine : column - 1;
    ascending_ = key != sortKey_ || !ascending_;
    sortKey_ = key;
    order_.clear();
}

}  // namespace zentlor
