#pragma once

// Takes the directives of conditional compilation out of a run of tokens ([MS-VBAL] 3.4), and on request the branches
// that don't count.

#include "core/utilities/text.h"
#include "vba/parser_condition.h"
#include "vba/parser_faults.h"
#include "vba/token.h"

namespace zentlor::vba {

enum class Branches : std::uint8_t {
    All,     ///< Every branch, one behind the other.
    Active,  ///< The branch of each `#If` whose condition is the first to hold.
};

/// The tokens without directives. Offsets still point into `text`. Notes directives that don't fit together. `settings`
/// play a part for the active branches.
Tokens SelectBranches(TextView text, const Tokens& tokens, Branches branches, const ConditionSettings& settings,
                      FoundFaults& faults);

}  // namespace zentlor::vba
