#pragma once

// Little-endian numbers out of bytes that nobody vouches for: whatever lies behind the end reads as zero.

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace zentlor::readers {

inline std::uint8_t U8At(std::string_view bytes, std::size_t offset) {
    return offset < bytes.size() ? static_cast<std::uint8_t>(bytes[offset]) : std::uint8_t{0};
}

inline std::uint16_t U16At(std::string_view bytes, std::size_t offset) {
    return static_cast<std::uint16_t>(U8At(bytes, offset) | U8At(bytes, offset + 1) << 8);
}

inline std::uint32_t U32At(std::string_view bytes, std::size_t offset) {
    return U16At(bytes, offset) | static_cast<std::uint32_t>(U16At(bytes, offset + 2)) << 16;
}

/// The `length` bytes at `offset`, fewer or none where the bytes end.
inline std::string_view BytesAt(std::string_view bytes, std::size_t offset, std::size_t length) {
    return offset < bytes.size() ? bytes.substr(offset, length) : std::string_view();
}

}  // namespace zentlor::readers
