#pragma once

// What an exported module, or one inside of a document, holds beside the code that the editor shows: the header
// `VERSION … BEGIN … END` with `Object =` lines, and `Attribute` lines at the top and inside of procedures.

#include <cstdint>
#include <vector>

#include "core/utilities/text.h"
#include "readers/document.h"

namespace zentlor::readers {

/// What the first line of an exported module says about it.
enum class ExportHeader {
    None,   ///< no `VERSION` line: a standard module, or the source inside of a document
    Class,  ///< `VERSION 1.0 CLASS`: a class or document module
    Form,   ///< `VERSION 5.00`: a form
};

struct StrippedCode {
    /// The code as the editor shows it, its lines ended by LF.
    Text code;
    /// For every line of `code` its line in the text.
    FileLines fileLines;
    /// The header and the `Attribute` lines at the top, ended by LF.
    Text header;
    /// The `Attribute` lines between the lines of the code.
    std::vector<HiddenLine> innerAttributes;
    ExportHeader kind = ExportHeader::None;
    /// The attributes of the module: `VB_Name` and `VB_Base` without their quotation marks, empty where missing.
    Text name;
    Text base;
    bool predeclaredId = false;
    bool exposed = false;
};

/// Takes `text` apart. Its lines end in CR LF, LF or CR. An `Attribute` line is a logical line (a " _" at its end
/// continues it) whose first word is `Attribute`, followed by a name that is or ends in `VB_…` and "=". Strings and
/// comments that hold such words, and lines that continue another statement, stay.
StrippedCode StripAttributes(Text text);

}  // namespace zentlor::readers
