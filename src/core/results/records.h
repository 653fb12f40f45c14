#pragma once

// The two file forms of the result list, as text with CR LF at the end of every line. The words of the columns come in
// the current language.

#include "core/analysis/session.h"

namespace zentlor {

/// The rows as a readable text, four lines a row: module, procedure, hint with line, and an empty line.
Text TxtRecords(Session& session);

/// The rows as a table: one header line, then four fields a line, separated by ";". Nothing is quoted or escaped.
Text CsvRecords(Session& session);

}  // namespace zentlor
