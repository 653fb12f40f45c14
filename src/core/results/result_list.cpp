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
            return hint.strNameVBC;
        case 2:
            return hint.strProzedur;
        case 3:
            return hint.strHinweis;
        case 4:
            return ToText(hint.lngZeile);
        default:
            return SortText(hint.lngZeile);
    }
}

void ResultList::Clear() {
    hints_.Clear();
    ForgetOrder();
}

void ResultList::ForgetOrder() {
    order_.clear();
    cellOf_.clear();
    cells_.clear();
}

void ResultList::ReadCells() const {
    if (cellOf_.size() == hints_.size()) return;
    HintSequence::Iterator hint = hints_.At(cellOf_.size());
    for (; hint != hints_.end(); ++hint) {
        Text cell = CellText(*hint, sortKey_ + 1);
        if (cells_.empty() || cells_.back() != cell) cells_.push_back(std::move(cell));
        cellOf_.push_back(static_cast<std::uint32_t>(cells_.size() - 1));
    }
}

bool ResultList::InFront(std::uint32_t a, std::uint32_t b) const {
    const std::uint32_t x = cellOf_[ascending_ ? a : b];
    const std::uint32_t y = cellOf_[ascending_ ? b : a];
    return x != y && CompareCells(cells_[x], cells_[y]) < 0;
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
    ReadCells();
    order_.resize(hints_.size());
    std::iota(order_.begin() + static_cast<std::ptrdiff_t>(sorted), order_.end(), static_cast<std::uint32_t>(sorted));
    Sort(sorted);
    return order_;
}

void ResultList::lvwErgebnis_ColumnClick(int column) {
    const int key = column == kVisibleColumns ? kSortLine : column - 1;
    ascending_ = key != sortKey_ || !ascending_;
    sortKey_ = key;
    ForgetOrder();
}

}  // namespace zentlor
