#pragma once

// The two file forms of the result list, as text with CR LF at the end of every line. The words of the columns come in
// the current language.

#include <functional>

#include "core/analysis/session.h"

namespace zentlor {

enum class RecordForm {
    Txt,  ///< A readable text, four lines a row: module, procedure, hint with line, and an empty line.
    Csv,  ///< A table: one header line, then four fields a line, separated by ";". Nothing is quoted or escaped.
};

/// Calls `take` with the text of one row after the other, in the list's order; in front of the rows with the header
/// line, if the form has one.
void ForEachRecord(Session& session, RecordForm form, const std::function<void(TextView record)>& take);

}  // namespace zentlor
