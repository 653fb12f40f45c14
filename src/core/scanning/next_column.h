#pragma once

#include "core/utilities/text.h"

namespace zentlor {

/// First occurrences of a character or of a text, `Wanted`, in a text. As long as the columns grow, each part is
/// searched once.
template <class Wanted>
class NextColumn {
  public:
    NextColumn(TextView text, Wanted wanted) : text_(text), wanted_(wanted) {}

    /// As InStr(column, text, wanted): the column of the first one at or behind `column`, or 0.
    int From(int column) {
        const bool isKnown = column >= asked_ && (found_ == 0 || found_ >= column);
        if (!isKnown) found_ = InStr(column, text_, wanted_);
        asked_ = column;
        return found_;
    }

  private:
    TextView text_;
    Wanted wanted_;
    int asked_ = 0;
    int found_ = -1;
};

}  // namespace zentlor
