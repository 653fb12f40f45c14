#pragma once

// What the three targets for databases have in common: the signature and the generation are put in place, since a
// database without them is turned away at once, and then the whole file is read.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>

#include "readers/access_database.h"

namespace zentlor::fuzz {

inline int ReadDatabase(const std::uint8_t* data, std::size_t size, const char* signature, char version) {
    std::string bytes(reinterpret_cast<const char*>(data), size);
    bytes.resize(std::max<std::size_t>(size, 0x15));
    bytes.replace(4, 15, signature);
    bytes[0x14] = version;
    try {
        readers::ReadAccessDatabase(bytes, "fuzz.mdb", readers::Limits{});
    } catch (const readers::ReadError&) {
    }
    return 0;
}

}  // namespace zentlor::fuzz
