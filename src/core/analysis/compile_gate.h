#pragma once

#include "core/analysis/session.h"

namespace zentlor {

/// Whether a run may go on: the editor's compile command is disabled. If it is enabled the user is told to compile, in
/// a box and in the status bar, and the answer is False; it is False too if the command cannot be asked.
bool IstCodeKompiliert(Session& session);

}  // namespace zentlor
