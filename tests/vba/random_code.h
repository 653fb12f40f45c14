#pragma once

// Random statements in canonical form, and the disorder that an editor would clear up again.

#include <random>
#include <vector>

#include "core/utilities/text.h"

namespace zentlor::test {

using Random = std::mt19937;

/// The names that `RandomProcedure` uses, in the capitalisation in which it writes them.
const std::vector<TextView>& RandomNames();

/// A procedure of `statements` random statements in canonical form.
Text RandomProcedure(Random& random, int statements);

/// `canonical` with the case of words and the blanks and tabs between tokens changed at random wherever canonical text
/// can be won back: not in strings and comments, not in front of "As", not at a line's start, not around "." and "!".
Text Scramble(TextView canonical, Random& random);

}  // namespace zentlor::test
