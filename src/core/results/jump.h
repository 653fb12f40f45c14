#pragma once

#include "core/analysis/session.h"

namespace zentlor {

/// The double click on a row: shows the hint's code line in the editor, or the editor's options for the hint about its
/// settings. `row` is a row of the list, counted from 0. No row, a component that is gone and a line that is gone give
/// the failure report.
void lvwErgebnis_DblClick(Session& session, std::size_t row);

}  // namespace zentlor
