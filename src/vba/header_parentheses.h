#pragma once

// The editor completes the header of a procedure without parameters: `Sub Foo` is stored as `Sub Foo()`.

#include <cstddef>

#include "core/utilities/text.h"
#include "vba/token.h"

namespace zentlor::vba {

struct MissingParentheses {
    std::size_t behind;  ///< The token behind which they belong, or `kNoToken` where none are missing.
    TextView text;       ///< "()", or " ()" behind the string of a `Declare` statement.
};

/// What is missing in the logical line of the tokens `first` to `end`, the `EndOfLine`.
MissingParentheses FindMissingParentheses(const Tokens& tokens, std::size_t first, std::size_t end);

}  // namespace zentlor::vba
