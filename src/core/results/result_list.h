#pragma once

// The result list: where a hint ends up. Its rows are the only store of hints; jump, sort and export read them back.

#include <cstddef>
#include <cstdint>
#include <deque>
#include <iterator>
#include <vector>

#include "core/checks/catalogue.h"
#include "core/utilities/shared_text.h"

namespace zentlor {

/// What a check hands over, and what a row shows. The text is finished, in the language of its moment.
struct Hint {
    SharedText strNameVBC;
    SharedText strProzedur;
    SharedText strHinweis;
    int lngZeile = 0;  ///< 0: the hint belongs to no line
    CheckId check{};
    /// Position of the component in the project, counted from 0; -1 for a hint about the editor. No row shows it.
    int component : 24 = -1;

    friend bool operator==(const Hint&, const Hint&) = default;
};

/// Hints in order of emission. Equal ones in a row take the memory of one: a line that holds the same thing a hundred
/// thousand times gives so many hints.
class HintSequence {
  public:
    std::size_t size() const { return runs_.empty() ? 0 : runs_.back().end; }
    bool empty() const { return runs_.empty(); }
    /// `index` is below size(). The first questions behind an Add take time in what was added.
    const Hint& operator[](std::size_t index) const;
    const Hint& back() const { return runs_.back().hint; }

    void Add(Hint hint);
    void Clear();

  private:
    struct Run {
        Hint hint;
        std::uint32_t end = 0;  ///< the number of the hint behind the run
    };

  public:
    class Iterator {
      public:
        using difference_type = std::ptrdiff_t;
        using value_type = Hint;
        using pointer = const Hint*;
        using reference = const Hint&;
        using iterator_category = std::forward_iterator_tag;

        Iterator() = default;
        Iterator(std::deque<Run>::const_iterator run, std::size_t index) : run_(run), index_(index) {}
        const Hint& operator*() const { return run_->hint; }
        const Hint* operator->() const { return &run_->hint; }
        Iterator& operator++() {
            if (++index_ == run_->end) ++run_;
            return *this;
        }
        Iterator operator++(int) {
            Iterator before = *this;
            ++*this;
            return before;
        }
        friend bool operator==(const Iterator& a, const Iterator& b) { return a.index_ == b.index_; }

      private:
        std::deque<Run>::const_iterator run_;
        std::size_t index_ = 0;
    };

    Iterator begin() const { return {runs_.begin(), 0}; }
    Iterator end() const { return {runs_.end(), size()}; }

  private:
    std::deque<Run> runs_;                      // grows without a second copy of a million hints
    mutable std::vector<std::uint32_t> runOf_;  // by number of the hint, as far as was asked
};

/// Sort keys as the list's columns have them: 0 module, 1 procedure, 2 hint, 3 the line as plain text (no header leads
/// to it), 4 the line as a sort text.
inline constexpr int kSortModule = 0;
inline constexpr int kSortLine = 4;
/// Headers that a click can reach, counted from 1.
inline constexpr int kVisibleColumns = 4;

class ResultList {
  public:
    /// Puts a hint behind all others in order of emission; the sort decides its place among the rows. Texts that are
    /// those of the hint before, as most are, take no memory of their own.
    void Add(Hint hint);
    void Clear();

    std::size_t Count() const { return hints_.size(); }
    /// Hints in order of emission.
    const HintSequence& Emitted() const { return hints_; }
    /// The hint in row `row` of the list, counted from 0. The rows are put in order when they are asked for.
    const Hint& Row(std::size_t row) const { return hints_[Order()[row]]; }
    /// For each row the number of its hint in order of emission.
    const std::vector<std::uint32_t>& Order() const;

    int SortKey() const { return sortKey_; }
    bool Ascending() const { return ascending_; }
    /// A click on the header of `column` (1 to kVisibleColumns): sorts by it ascending, or reverses the order if the
    /// list is sorted by it already. "Zeile" sorts by the hidden sort text.
    void lvwErgebnis_ColumnClick(int column);

  private:
    void Sort(std::size_t sorted) const;
    bool InFront(std::size_t a, std::size_t b) const;

    HintSequence hints_;
    int sortKey_ = kSortModule;
    bool ascending_ = true;
    mutable std::vector<std::uint32_t> order_;
};

/// The text of column `column` (1 to 5) of a row; the fifth is the hidden sort text.
Text CellText(const Hint& hint, int column);

/// The last five characters of five blanks followed by the line number, so that text order is numeric order.
Text SortText(int lngZeile);

/// Order of two cells: letters without regard to case, accented letters beside their plain form (ä as a, ß as ss), as a
/// German dictionary has it. Negative, 0 or positive. Texts that differ in nothing else are equal.
int CompareCells(TextView a, TextView b);

}  // namespace zentlor
