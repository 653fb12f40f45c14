#pragma once

// The routines of the checks, made from the catalogue. A check reads one component and reports what it dislikes; it
// changes nothing and keeps nothing from one call to the next. The driver puts the failure frame around each.

#include "core/checks/hints.h"
#include "core/declarations/module_declarations.h"
#include "core/declarations/procedure_declarations.h"

namespace zentlor {

namespace checks {

#define ZENTLOR_PerRun(key)
#define ZENTLOR_PerComponent(key) void key(const VBComponent& vbc, Hints& hints);
#define ZENTLOR_PerTable(key) void key(const VBComponent& vbc, const ModDeclarations& arrModDeclarations, Hints& hints);
#define ZENTLOR_PerProcTable(key) void key(const ProcedureTables& tables, Hints& hints);
#define CHECK(key, group, box, label, hint, twin, input) ZENTLOR_##input(key)
#include "core/checks/catalogue.def"
#undef CHECK
#undef ZENTLOR_PerRun
#undef ZENTLOR_PerComponent
#undef ZENTLOR_PerTable
#undef ZENTLOR_PerProcTable

}  // namespace checks

/// What a check may ask for besides the component.
struct CheckInputs {
    const VBComponent& vbc;
    const ModDeclarations& arrModDeclarations;
    const ProcedureTables& tables;
};

/// Runs one check of kind PerComponent, PerTable or PerProcTable, within its failure frame.
void RunCheck(Session& session, CheckId id, const CheckInputs& inputs);

/// The check of the editor's own setting, kind PerRun: at most one hint, under the name "Allgemein".
void OptionExplicitAutomatisch(Session& session);

/// The module name that reports of the checks carry, with its trailing blank.
inline constexpr TextView kCheckModule = u"mdl_Prüfungen ";

}  // namespace zentlor
