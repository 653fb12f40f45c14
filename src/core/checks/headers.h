#pragma once

// The walks over procedures that several checks share: headers, parameters, local declarations.

#include "core/declarations/procedure_declarations.h"
#include "core/scanning/find_walk.h"
#include "core/scanning/logical_lines.h"
#include "core/scanning/parameters.h"

namespace zentlor::checks {

/// A procedure's header as a logical line, with the number of its physical lines.
struct HeaderText {
    LogicalText text;
    int lineCount = 0;
};
inline HeaderText ReadHeader(const VBComponent& vbc, const Procedure& procedure) {
    HeaderText header;
    header.text = GibGanzeZeile(vbc, procedure.bodyLine, header.lineCount);
    return header;
}

/// Calls `visit` with every procedure of a procedure walk and each of its parameters.
template <class Visit>
void ForEachParameter(const VBComponent& vbc, Visit visit) {
    ForEachProcedure(vbc.CodeModule(), [&](const Procedure& procedure) {
        const HeaderText header = ReadHeader(vbc, procedure);
        for (const typParameter& parameter : GetParameters(header.text)) visit(procedure, parameter);
    });
}

/// Calls `visit` with every procedure that declares something and each of its records.
template <class Visit>
void ForEachLocal(const ProcedureTables& tables, Visit visit) {
    for (const ProcedureTables::Table& table : tables.All()) {
        ForEachRecord(table.records, [&](const typProcDeclaration& record) { visit(*table.procedure, record); });
    }
}

}  // namespace zentlor::checks
