#pragma once

// Decompression of the containers that a VBA project keeps its source in ([MS-OVBA] 2.4.1).

#include <cstdint>
#include <string>
#include <string_view>

namespace zentlor::readers {

enum class DecompressEnd {
    Complete,     ///< every chunk was read; bytes behind the last chunk that are none are passed over
    NoContainer,  ///< the first byte is not the signature 0x01, or nothing is there
    Truncated,    ///< the last chunk ends early
    BadToken,     ///< a copy token reaches before the start of its chunk
    Limit,        ///< more than the maximum would come out
};

struct Decompressed {
    /// What came out up to the end that `end` names.
    std::string bytes;
    DecompressEnd end = DecompressEnd::Complete;
};

/// The bytes of the compressed container at the start of `container`, `maximum` of them at most.
Decompressed DecompressContainer(std::string_view container, std::uint64_t maximum);

}  // namespace zentlor::readers
