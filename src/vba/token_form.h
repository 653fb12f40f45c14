#pragma once

// The form in which the editor stores the tokens that are no words: operators, numbers, dates, directives,
// continuations.

#include "core/utilities/text.h"
#include "vba/token.h"

namespace zentlor::vba {

/// "<=" for `LessEqual` and so on. "?" is stored as "Print".
TextView FormOf(Operator op);

/// True if `present`, the text of `token`, is in the stored form. `token` is no word, operator or string.
bool HasForm(const Token& token, TextView present);

/// The stored form of such a token.
Text FormOf(const Token& token, TextView present);

}  // namespace zentlor::vba
