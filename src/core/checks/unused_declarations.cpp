// What is declared and never used. Each check takes names out of a table, searches for them, and turns the search's
// answer into a hint. They differ in where the search starts.

#include "core/checks/checks.h"
#include "core/checks/headers.h"
#include "core/scanning/use_search.h"

namespace zentlor::checks {

namespace {

// Declarations that other declarations can use are searched for behind their own place and in the whole of every other
// module; for the rest only the code of the procedures counts.
enum class Start { Procedures, BehindDeclaration };

TextView SearchName(const typModDeclaration& record) {
    const bool canHaveCharacter = record.lngArt == kVariable || record.lngArt == kConstant;
    return canHaveCharacter ? WithoutTypeCharacter(record.strName) : TextView(record.strName);
}

int UseIn(const VBComponent& searched, HitFilter& filter, const VBComponent& declaring, const typModDeclaration& record,
          Start start) {
    const TextView name = SearchName(record);
    if (start == Start::Procedures) return WirdAusdruckInModulVerwendet(searched, filter, name, 0, 0);
    if (searched.Name() != declaring.Name()) return WirdAusdruckInModulVerwendet(searched, filter, name, 1, 1);
    return WirdAusdruckInModulVerwendet(searched, filter, name, record.lngDeklZeile, record.lngDeklSpalte + 1);
}

void ReportUnused(const VBComponent& vbc, const ModDeclarations& table, int kind, Start start, Hints& hints) {
    HitFilter own(vbc.CodeModule());
    ForEachRecord(table, [&](const typModDeclaration& record) {
        if (record.lngArt != kind || record.lngScope == kGlobal) return;
        const auto useIn = [&](const VBComponent& searched) {
            if (&searched == &vbc) return UseIn(searched, own, vbc, record, start);
            HitFilter filter(searched.CodeModule());
            return UseIn(searched, filter, vbc, record, start);
        };
        const int use =
            record.lngScope == kPrivate ? useIn(vbc) : SweepProject(vbc.Project(), SearchName(record), useIn);
        hints.AddUnlessUsed(use, hints.Deklarationen(), record.lngDeklZeile, record.strName);
    });
}

void ReportUnused(const ProcedureTables& tables, int kind, Hints& hints) {
    HitFilter filter(tables.Component().CodeModule());
    ForEachLocal(tables, [&](const Procedure& procedure, const typProcDeclaration& record) {
        if (record.lngArt != kind) return;
        const int use =
            WirdAusdruckInProzedurVerwendet(tables.Component(), filter, WithoutTypeCharacter(record.strName),
                                            record.lngDeklZeile, record.lngDeklSpalte, procedure.lastLine);
        hints.AddUnlessUsed(use, procedure.name, record.lngDeklZeile, record.strName);
    });
}

}  // namespace

void ModDeklariertesEventNichtGefeuert(const VBComponent& vbc, const ModDeclarations& arrModDeclarations,
                                       Hints& hints) {
    // Only the declaring class can raise its event.
    if (vbc.Type() != vbext_ct_ClassModule) return;
    HitFilter filter(vbc.CodeModule());
    ForEachRecord(arrModDeclarations, [&](const typModDeclaration& record) {
        if (record.lngArt != kEvent) return;
        const int use = WirdAusdruckInModulVerwendet(vbc, filter, u"RaiseEvent " + record.strName, 0, 0);
        hints.AddUnlessUsed(use, hints.Deklarationen(), record.lngDeklZeile, record.strName);
    });
}

void ModDeklarierteAPINichtGenutzt(const VBComponent& vbc, const ModDeclarations& arrModDeclarations, Hints& hints) {
    ReportUnused(vbc, arrModDeclarations, kApi, Start::Procedures, hints);
}

void ModDeklarierteEnumNichtGenutzt(const VBComponent& vbc, const ModDeclarations& arrModDeclarations, Hints& hints) {
    ReportUnused(vbc, arrModDeclarations, kEnumeration, Start::BehindDeclaration, hints);
}

void ModDeklarierterTypeNichtGenutzt(const VBComponent& vbc, const ModDeclarations& arrModDeclarations, Hints& hints) {
    ReportUnused(vbc, arrModDeclarations, kType, Start::BehindDeclaration, hints);
}

void ModDeklarierteKonstanteNichtGenutzt(const VBComponent& vbc, const ModDeclarations& arrModDeclarations,
                                         Hints& hints) {
    ReportUnused(vbc, arrModDeclarations, kConstant, Start::BehindDeclaration, hints);
}

void ModDeklarierteVariableNichtGenutzt(const VBComponent& vbc, const ModDeclarations& arrModDeclarations,
                                        Hints& hints) {
    ReportUnused(vbc, arrModDeclarations, kVariable, Start::Procedures, hints);
}

void ProcDeklarierteKonstanteNichtGenutzt(const ProcedureTables& tables, Hints& hints) {
    ReportUnused(tables, kConstant, hints);
}

void ProcDeklarierteVariableNichtGenutzt(const ProcedureTables& tables, Hints& hints) {
    ReportUnused(tables, kVariable, hints);
}

}  // namespace zentlor::checks
