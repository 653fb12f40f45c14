// Most modules are read once. One with conditional compilation is first read with all its branches; only if they don't
// go together, as when each branch has a header for the same procedure, the active branches alone decide.

#include "vba/syntax.h"

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

FoundFaults FaultsOf(TextView text, const Tokens& tokens, Branches branches) {
    FoundFaults faults;
    const Tokens selected = SelectBranches(text, tokens, branches, faults);
    ModuleParser(text, selected, faults).Parse();
    return faults;
}

}  // namespace

std::vector<SyntaxError> CheckSyntax(TextView text, const Tokens& tokens) {
    if (!HasDirectives(tokens)) return Describe(text, FaultsOf(text, tokens));
    if (FaultsOf(text, tokens, Branches::All).empty()) return {};
    return Describe(text, FaultsOf(text, tokens, Branches::Active));
}

}  // namespace zentlor::vba
