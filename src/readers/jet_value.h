#pragma once

// Values of a Jet or ACE database that do not stand in their row as they are: texts, and long values (OLE and memo).

#include <cstdint>
#include <string>
#include <string_view>

#include "core/utilities/text.h"
#include "readers/jet_file.h"

namespace zentlor::readers {

/// The text of a column of type 10. Jet 3 keeps bytes of the database's code page; Jet 4 and ACE keep UTF-16, with runs
/// of Latin-1 if the value begins FF FE.
Text JetText(std::string_view value, const JetFile& file);

/// The bytes of a long value (types 11 and 12), `maximum` of them at most. `head` is the value in the row: its length
/// and where the bytes are. `damaged`, if given, is set if fewer bytes were found than the head claims, and else left
/// alone; the file learns of it too.
std::string JetLongValue(std::string_view head, JetFile& file, std::uint64_t maximum, bool* damaged = nullptr);

}  // namespace zentlor::readers
