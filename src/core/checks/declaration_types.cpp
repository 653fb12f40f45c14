// How declarations state their data type. The tables have decided all that is to be decided; these checks filter.

#include "core/checks/checks.h"
#include "core/checks/headers.h"

namespace zentlor::checks {

namespace {

bool LacksType(int lngArt, bool blnDatentyp, int wanted) {
    return lngArt == wanted && !blnDatentyp;
}
bool HasTypeCharacter(int lngArt, bool blnKennzeichen) {
    return (lngArt == kVariable || lngArt == kConstant) && blnKennzeichen;
}

// Message 239 "Variable" or 240 "Konstante", the word for the kind in a hint about a type character.
Text KindWord(int lngArt, Hints& hints) {
    return hints.Message(lngArt == kVariable ? 239 : 240);
}

void ReportUntyped(const ModDeclarations& table, int kind, Hints& hints) {
    ForEachRecord(table, [&](const typModDeclaration& record) {
        if (!LacksType(record.lngArt, record.blnDatentyp, kind)) return;
        hints.Add(hints.Deklarationen(), record.lngDeklZeile, record.strName);
    });
}

void ReportUntyped(const ProcedureTables& tables, int kind, Hints& hints) {
    ForEachLocal(tables, [&](const Procedure& procedure, const typProcDeclaration& record) {
        if (!LacksType(record.lngArt, record.blnDatentyp, kind)) return;
        hints.Add(procedure.name, record.lngDeklZeile, record.strName);
    });
}

}  // namespace

void ModVariableOhneDatentypDeklariert(const VBComponent&, const ModDeclarations& arrModDeclarations, Hints& hints) {
    ReportUntyped(arrModDeclarations, kVariable, hints);
}

void ModKonstanteOhneDatentypDeklariert(const VBComponent&, const ModDeclarations& arrModDeclarations, Hints& hints) {
    ReportUntyped(arrModDeclarations, kConstant, hints);
}

void ProcVariableOhneDatentypDeklariert(const ProcedureTables& tables, Hints& hints) {
    ReportUntyped(tables, kVariable, hints);
}

void ProcKonstanteOhneDatentypDeklariert(const ProcedureTables& tables, Hints& hints) {
    ReportUntyped(tables, kConstant, hints);
}

void ModImplizitesDatentypenKennzeichen(const VBComponent&, const ModDeclarations& arrModDeclarations, Hints& hints) {
    ForEachRecord(arrModDeclarations, [&](const typModDeclaration& record) {
        if (!HasTypeCharacter(record.lngArt, record.blnKennzeichen)) return;
        hints.Add(hints.Deklarationen(), record.lngDeklZeile, KindWord(record.lngArt, hints), record.strName);
    });
}

void ProcImplizitesDatentypenKennzeichen(const ProcedureTables& tables, Hints& hints) {
    ForEachLocal(tables, [&](const Procedure& procedure, const typProcDeclaration& record) {
        if (!HasTypeCharacter(record.lngArt, record.blnKennzeichen)) return;
        hints.Add(procedure.name, record.lngDeklZeile, KindWord(record.lngArt, hints), record.strName);
    });
}

void ProcParamImplizitesDatentypenKennzeichen(const ProcedureTables& tables, Hints& hints) {
    ForEachParameter(tables, [&](const Procedure& procedure, const typParameter& parameter) {
        if (parameter.blnKennzeichen) hints.Add(procedure.name, procedure.firstLine, parameter.strName);
    });
}

}  // namespace zentlor::checks
