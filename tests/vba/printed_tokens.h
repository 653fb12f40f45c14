#pragma once

#include <string>

#include "core/utilities/text.h"

namespace zentlor::test {

/// The tokens of `code` on one line: operators as they stand, every other token with a letter for its kind in front
/// (`K:Dim N:x`), marks of its flags behind it, a continuation as "~" and a line's end as "/".
std::string PrintedTokens(TextView code);

}  // namespace zentlor::test
