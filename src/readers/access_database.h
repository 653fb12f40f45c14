#pragma once

// Access databases: .mdb and .mda of Access 97 to 2003, .accdb and .accda of 2007 to today. Where a database keeps its
// VBA project depends on the program that wrote it; all three places are known.

#include <string>
#include <string_view>

#include "readers/document.h"

namespace zentlor::readers {

/// Whether `bytes` begins as an Access database does.
bool LooksLikeAccessDatabase(std::string_view bytes);

/// The database `bytes`; `path` names it. A database without VBA code comes back without modules and with no problem.
/// What is damaged costs what it holds and no more, and is named in `problems`.
/// Throws `ReadError` where nothing can be read: `NotADocument`, `Encrypted`, `CompiledOnly` or `Damaged`.
Document ReadAccessDatabase(std::string_view bytes, const std::string& path, const Limits& limits);

}  // namespace zentlor::readers
