#pragma once

// Whether a contextual word (`Name`, `Line`, `Access`) is a keyword at its place, or a name.

#include <cstddef>

#include "vba/token.h"

namespace zentlor::vba {

/// True if token `index`, whose word is a contextual keyword, stands where the language wants this keyword. `statement`
/// is the first token of its statement.
bool StandsAsKeyword(const Tokens& tokens, std::size_t index, std::size_t statement);

}  // namespace zentlor::vba
