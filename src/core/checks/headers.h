#pragma once

// The walks over procedures that several checks share: parameters, local declarations.

#include "core/declarations/procedure_declarations.h"

namespace zentlor::checks {

/// Calls `visit` with every procedure of a procedure walk and each of its parameters.
template <class Visit>
void ForEachParameter(const ProcedureTables& tables, Visit visit) {
    for (const ProcedureTables::Header& header : tables.Headers()) {
        for (const typParameter& parameter : header.parameters) visit(*header.procedure, parameter);
    }
}

/// Calls `visit` with every procedure that declares something and each of its records.
template <class Visit>
void ForEachLocal(const ProcedureTables& tables, Visit visit) {
    for (const ProcedureTables::Table& table : tables.All()) {
        ForEachRecord(table.records, [&](const typProcDeclaration& record) { visit(*table.procedure, record); });
    }
}

}  // namespace zentlor::checks
