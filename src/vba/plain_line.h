#pragma once

// Tells at a glance that a line stands in the editor's form, as nearly all lines do that come out of an editor.

#include <cstddef>

#include "core/utilities/text.h"
#include "vba/statement_head.h"
#include "vba/token.h"

namespace zentlor::vba {

/// The `EndOfLine` of the logical line that begins with token `first`, if the line needs no change but perhaps in the
/// capitalisation of names. `kNoToken` where it needs one, and where the rules for its form have to be asked.
std::size_t FindEndOfPlainLine(const Tokens& tokens, TextView text, std::size_t first);

}  // namespace zentlor::vba
