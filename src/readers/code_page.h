#pragma once

// Bytes of a Windows or Macintosh code page as text. Behind this interface stands a library; another platform can bring
// its own.

#include <cstddef>
#include <string_view>

#include "core/utilities/text.h"

namespace zentlor::readers {

struct DecodedText {
    Text text;
    /// Bytes that mean nothing in the code page. Each is kept visible: as the character that Windows-1252 has for it.
    std::size_t undecodable = 0;
};

/// `bytes` in `codePage` as the platform numbers them: 874, 932, 936, 949, 950, 1250 to 1258, 10000 (Macintosh Roman)
/// and its relatives, 20127, 28591 …, 65001 (UTF-8), 1200 and 1201 (UTF-16). 0, and a number that nobody knows, count
/// as 1252. `CodePageIsKnown` tells the difference.
DecodedText DecodeCodePage(std::string_view bytes, int codePage);

bool CodePageIsKnown(int codePage);

}  // namespace zentlor::readers
