#pragma once

// Modules that the editor, Access or a version control tool wrote into text files, one module a file.

#include <optional>
#include <string>
#include <string_view>

#include "readers/document.h"

namespace zentlor::readers {

/// Whether a file of a folder is read as an exported module: by its ending (.bas, .cls, .frm in any case), or by its
/// first bytes, for Access text exports under .txt, .form and .report.
bool IsExportedModule(std::string_view path, std::string_view firstBytes);

/// The text of a file: UTF-16 and UTF-8 by byte-order mark, else strict UTF-8, else a double-byte code page of East
/// Asia where there is every sign of it, else Windows-1252.
Text DecodeModuleText(std::string_view bytes);

/// The module that `bytes` hold, or nothing for an Access text export without code: a form or report without a module,
/// a macro, a query. Its type follows from the ending and the attributes, its name is `VB_Name`, else the stem of
/// `path`; for an Access text export, whose file is called like the form or report, with `Form_` or `Report_` in front
/// of it. Throws `ReadError`: `NotADocument` for bytes that are no text, `Damaged` for an Access export that breaks off
/// in front of its code.
std::optional<SourceModule> ReadExportedModule(std::string_view bytes, const std::string& path);

/// The file's name in `path` without folder and without its last ending.
std::string FileStem(std::string_view path);

}  // namespace zentlor::readers
