// What a procedure should have: error handling, content, an access word, a type, parameters that are used and typed,
// and data access objects that name their library.

#include <algorithm>
#include <array>

#include "core/checks/checks.h"
#include "core/checks/headers.h"
#include "core/scanning/use_search.h"

namespace zentlor::checks {

namespace {

bool StandsBehindAnyOn(const CodeModule& cm, const Hit& hit) {
    constexpr std::array<TextView, 2> kWords = {u"On ", u"On Local "};
    return std::any_of(kWords.begin(), kWords.end(),
                       [&](TextView words) { return StandsBehind(cm, hit.line, hit.column, words, Len(words)); });
}

// Whether a procedure has error handling, in code or in a comment only. The text decides: "On Error GoTo 0" counts. The
// procedure's last line is not looked at.
int HatProzedurFehlerbehandlung(const VBComponent& vbc, const Procedure& procedure) {
    int result = kNotUsed;
    Frame(vbc.Project().Failures(), {kCheckModule, u"HatProzedurFehlerbehandlung", vbc.Name()}, [&] {
        const CodeModule& cm = vbc.CodeModule();
        HitFilter filter(cm);
        LogicalLineQuotes quotes(cm);
        FindRange range{procedure.firstLine, 0, procedure.lastLine, 0};
        while (result != kUsed && cm.Find(u"Error", range, {.wholeWord = true, .matchCase = true})) {
            const Hit hit{range.startLine, range.startColumn};
            if (hit.line >= procedure.lastLine) return;
            // The words hold no quotation mark, so the hit lies in a string if they do.
            if (StandsBehindAnyOn(cm, hit) && !quotes.IsQuoted(hit.line, hit.column)) {
                result = filter.IsInComment(hit.line, hit.column) ? kUsedInComments : kUsed;
            }
            range = {hit.line, hit.column + 1, procedure.lastLine, 0};
        }
    });
    return result;
}

bool HasContent(TextView logicalLine) {
    return !logicalLine.empty() && !logicalLine.starts_with(u"'") && !logicalLine.starts_with(u"Rem ") &&
           !logicalLine.starts_with(u"End ");
}

// Walks the logical lines behind the header. Behind a header of several lines the first of them is the header itself.
bool IsEmpty(const VBComponent& vbc, const Procedure& procedure) {
    for (int line = procedure.bodyLine + 1; line <= procedure.lastLine;) {
        int count = 0;
        if (HasContent(GibGanzeZeile(vbc, line, count))) return false;
        line += count;
    }
    return true;
}

bool IsUsedBehindHeader(const CodeModule& cm, HitFilter& filter, const Procedure& procedure, int headerLines,
                        TextView name) {
    FindRange range{procedure.bodyLine + headerLines, 0, procedure.lastLine, -1};
    while (cm.FindWord(name, range, IstWortFortsetzungsZeichen)) {
        const Hit hit{range.startLine, range.startColumn};
        if (filter.IsInCode(hit)) return true;
        range = {hit.line, hit.column + 1, procedure.lastLine, -1};
    }
    return false;
}

bool StartsFunctionHeader(TextView header) {
    return header.starts_with(u"Private Function ") || header.starts_with(u"Public Function ") ||
           header.starts_with(u"Function ");
}

}  // namespace

void ProcFehlerbehandlungFehlt(const VBComponent& vbc, Hints& hints) {
    ForEachProcedure(vbc.CodeModule(), [&](const Procedure& procedure) {
        hints.AddUnlessUsed(HatProzedurFehlerbehandlung(vbc, procedure), procedure.name, procedure.firstLine);
    });
}

void ProcLeer(const VBComponent& vbc, Hints& hints) {
    ForEachProcedure(vbc.CodeModule(), [&](const Procedure& procedure) {
        if (IsEmpty(vbc, procedure)) hints.Add(procedure.name, procedure.firstLine);
    });
}

void ProcDatenzugriffselementOhneBibliothekDeklariert(const VBComponent& vbc, Hints& hints) {
    constexpr std::array<TextView, 10> kTargets = {
        u"As Field",        u"As New Field", u"As TableDef",      u"As New TableDef", u"As QueryDef",
        u"As New QueryDef", u"As Recordset", u"As New Recordset", u"As Database",     u"As New Database"};
    for (const TextView target : kTargets) {
        ForEachHit(vbc.CodeModule(), KeywordWalk(vbc.CodeModule(), target), [&](const Hit& hit) { hints.Add(hit); });
    }
}

void ProcScopeNotExplicit(const VBComponent& vbc, Hints& hints) {
    const CodeModule& cm = vbc.CodeModule();
    ForEachProcedure(cm, [&](const Procedure& procedure) {
        const TextView header = Trim(cm.Lines(procedure.bodyLine));
        const bool stated =
            header.starts_with(u"Private") || header.starts_with(u"Public") || header.starts_with(u"Friend");
        if (!stated) hints.Add(procedure.name, procedure.firstLine);
    });
}

void ProcFunktionOhneDatentypDeklariert(const ProcedureTables& tables, Hints& hints) {
    for (const auto& [procedure, header, lineCount, parameters] : tables.Headers()) {
        if (!StartsFunctionHeader(header)) continue;
        if (PosEndeParameter(header) == Len(header)) hints.Add(procedure->name, procedure->firstLine);
    }
}

void ProcParameterNichtGenutzt(const ProcedureTables& tables, Hints& hints) {
    const CodeModule& cm = tables.Component().CodeModule();
    for (const auto& [procedure, header, lineCount, parameters] : tables.Headers()) {
        if (IstEreignisProzedur(procedure->name)) continue;
        HitFilter filter(cm);
        for (const typParameter& parameter : parameters) {
            const TextView name = WithoutTypeCharacter(parameter.strName);
            if (IsUsedBehindHeader(cm, filter, *procedure, lineCount, name)) continue;
            hints.Add(procedure->name, procedure->firstLine, parameter.strName);
        }
    }
}

void ProcParameterDatentypNichtExplizitDeklariert(const ProcedureTables& tables, Hints& hints) {
    ForEachParameter(tables, [&](const Procedure& procedure, const typParameter& parameter) {
        if (!parameter.blnDatentyp) hints.Add(procedure.name, procedure.firstLine, parameter.strName);
    });
}

void ProcParamNichtExplByValByRefDeklariert(const ProcedureTables& tables, Hints& hints) {
    ForEachParameter(tables, [&](const Procedure& procedure, const typParameter& parameter) {
        if (parameter.blnByValByRef || IstEreignisProzedur(procedure.name)) return;
        hints.Add(procedure.name, procedure.firstLine, parameter.strName);
    });
}

}  // namespace zentlor::checks
