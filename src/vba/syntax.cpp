// Most modules are read once. One with conditional compilation is first read with all its branches; only if they don't
// go together, as when each branch has a header for the same procedure, the active branches alone decide. Which ones
// these are hangs on the editor and on constants that the project's settings define, so a module that fits any of the
// usual ones is taken.

#include "vba/syntax.h"

#include <utility>

#include "vba/parser_branches.h"
#include "vba/parser_faults.h"
#include "vba/parser_module.h"

namespace zentlor::vba {
namespace {

FoundFaults FaultsOf(TextView text, const Tokens& tokens) {
    FoundFaults faults;
    ModuleParser(text, tokens, faults).Parse();
    return faults;
}

FoundFaults FaultsOf(TextView text, const Tokens& tokens, Branches branches, const ConditionSettings& settings) {
    FoundFaults faults;
    const Tokens selected = SelectBranches(text, tokens, branches, settings, faults);
    ModuleParser(text, selected, faults).Parse();
    return faults;
}

// The first settings are the ones whose faults are reported.
constexpr ConditionSettings kUsualSettings[] = {{true, 0}, {false, 0}, {true, -1}, {true, 1}};

FoundFaults FaultsOfBranches(TextView text, const Tokens& tokens) {
    if (FaultsOf(text, tokens, Branches::All, kUsualSettings[0]).empty()) return {};
    FoundFaults first;
    for (const ConditionSettings& settings : kUsualSettings) {
        FoundFaults faults = FaultsOf(text, tokens, Branches::Active, settings);
        if (faults.empty()) return faults;
        if (first.empty()) first = std::move(faults);
    }
    return first;
}

bool IsTooLong(const Token& token, TextView text) {
    return token.kind == TokenKind::Name && token.length > kLongestName && !token.Has(kBracketed) &&
           NameOf(token, text).size() > kLongestName;
}

}  // namespace

std::vector<SyntaxError> CheckSyntax(TextView text, const Tokens& tokens) {
    FoundFaults faults = tokens.HasDirective() ? FaultsOfBranches(text, tokens) : FaultsOf(text, tokens);
    if (tokens.HasLongToken()) {
        for (const Token& token : tokens) {
            if (IsTooLong(token, text)) faults.push_back({token.offset, Fault::NameTooLong, {}});
        }
    }
    return Describe(text, std::move(faults));
}

}  // namespace zentlor::vba
