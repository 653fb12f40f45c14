#pragma once

// Office documents: Word, Excel, PowerPoint and Visio, in the zip form of today and the compound files of before, and a
// bare VBA project. What a file is follows from what it holds, never from its name.

#include <string>
#include <string_view>

#include "readers/document.h"

namespace zentlor::readers {

/// Whether `bytes` begins as an Office document does: a zip or a compound file.
bool LooksLikeOfficeDocument(std::string_view bytes);

/// The document `bytes`; `path` names it. A document without VBA code comes back without modules and with no problem.
/// Throws `ReadError` where nothing can be read: `NotADocument`, `Encrypted`, `CompiledOnly`, `Damaged` or `Limit`.
Document ReadOfficeDocument(std::string_view bytes, const std::string& path, const Limits& limits);

}  // namespace zentlor::readers
