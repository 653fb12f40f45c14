#pragma once

// The result list: where a hint ends up. Its rows are the only store of hints; jump, sort and export read them back.

#include <cstddef>
#include <cstdint>
#include <vector>

#include "core/results/hint_sequence.h"

namespace zentlor {

/// Sort keys as the list's columns have them: 0 module, 1 procedure, 2 hint, 3 the line as plain text (no header leads
/// to it), 4 the line as a sort text.
inline constexpr int kSortModule = 0;
inline constexpr int kSortLine = 4;
/// Headers that a click can reach, counted from 1.
inline constexpr int kVisibleColumns = 4;

class ResultList {
  public:
    /// Puts a hint behind all others in order of emission; the sort decides its place among the rows.
    void Add(const Hint& hint) { hints_.Add(hint); }
    void Clear();

    std::size_t Count() const { return hints_.size(); }
    /// Hints in order of emission.
    const HintSequence& Emitted() const { return hints_; }
    /// The hint in row `row` of the list, counted from 0. The rows are put in order when they are asked for.
    Hint Row(std::size_t row) const { return hints_[Order()[row]]; }
    /// For each row the number of its hint in order of emission.
    const std::vector<std::uint32_t>& Order() const;

    int SortKey() const { return sortKey_; }
    bool Ascending() const { return ascending_; }
    /// A click on the header of `column` (1 to kVisibleColumns): sorts by it ascending, or reverses the order if the
    /// list is sorted by it already. "Zeile" sorts by the hidden sort text.
    void lvwErgebnis_ColumnClick(int column);

  private:
    void ForgetOrder();
    void ReadCells() const;
    void Sort(std::size_t sorted) const;
    bool InFront(std::uint32_t a, std::uint32_t b) const;

    HintSequence hints_;
    int sortKey_ = kSortModule;
    bool ascending_ = true;
    mutable std::vector<std::uint32_t> order_;
    // By number of the hint, as far as the rows were put in order: the place of its cell of the sort key in `cells_`.
    // Hints in a row that have the same one share it.
    mutable std::vector<std::uint32_t> cellOf_;
    mutable std::vector<Text> cells_;
};

/// The text of column `column` (1 to 5) of a row; the fifth is the hidden sort text.
Text CellText(const Hint& hint, int column);

/// The last five characters of five blanks followed by the line number, so that text order is numeric order.
Text SortText(int lngZeile);

/// Order of two cells: letters without regard to case, accented letters beside their plain form (ä as a, ß as ss), as a
/// German dictionary has it. Negative, 0 or positive. Texts that differ in nothing else are equal.
int CompareCells(TextView a, TextView b);

}  // namespace zentlor
