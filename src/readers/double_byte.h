#pragma once

// Tells text in a double-byte code page of East Asia from Windows-1252. A file in such a code page does not say so, and
// read as Windows-1252 the second byte of a character becomes a bracket, a backslash or a "^" in the middle of a name.

#include <string_view>

namespace zentlor::readers {

/// 932 (Japanese), 936 (simplified Chinese) or 950 (traditional Chinese); 0 where `bytes` are more likely to be text in
/// a code page of single bytes, or where it makes no difference for the words.
int GuessDoubleBytePage(std::string_view bytes);

}  // namespace zentlor::readers
