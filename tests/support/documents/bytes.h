#pragma once

// Little-endian numbers into bytes, for the writers of test documents.

#include <cstdint>
#include <string>

namespace zentlor::test {

inline void Put16(std::string& out, std::uint32_t value) {
    out.push_back(static_cast<char>(value & 0xFF));
    out.push_back(static_cast<char>(value >> 8 & 0xFF));
}

inline void Put32(std::string& out, std::uint32_t value) {
    Put16(out, value & 0xFFFF);
    Put16(out, value >> 16);
}

/// Overwrites four bytes of `out` at `offset`.
inline void Set32(std::string& out, std::size_t offset, std::uint32_t value) {
    std::string bytes;
    Put32(bytes, value);
    out.replace(offset, 4, bytes);
}

}  // namespace zentlor::test
