// The bridge from the catalogue to the routines: one table of calls, and the frame that they all stand in.

#include <array>

#include "core/checks/checks.h"

namespace zentlor {

namespace {

using Call = void (*)(const CheckInputs&, Hints&);

#define ZENTLOR_PerRun(key) nullptr
#define ZENTLOR_PerComponent(key) [](const CheckInputs& in, Hints& hints) { checks::key(in.vbc, hints); }
#define ZENTLOR_PerTable(key) \
    [](const CheckInputs& in, Hints& hints) { checks::key(in.vbc, in.arrModDeclarations, hints); }
#define ZENTLOR_PerProcTable(key) [](const CheckInputs& in, Hints& hints) { checks::key(in.tables, hints); }
constexpr std::array<Call, kCheckCount> kCalls = {
#define CHECK(key, group, box, label, hint, twin, input) ZENTLOR_##input(key),
#include "core/checks/catalogue.def"
#undef CHECK
};

// The boxes of these two end with the error's description.
bool ReportsNameComponent(CheckId id) {
    return id != CheckId::ModGlobalWirdVerwendet && id != CheckId::CmdLeerStringStattVBNullString;
}

}  // namespace

void RunCheck(Session& session, CheckId id, const CheckInputs& inputs) {
    Routine routine{kCheckModule, InfoOf(id).key};
    if (ReportsNameComponent(id)) routine.component = inputs.vbc.Name();
    Frame(session, routine, [&] {
        Hints hints(session, id, inputs.vbc);
        kCalls[IndexOf(id)](inputs, hints);
    });
}

}  // namespace zentlor
