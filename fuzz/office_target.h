#pragma once

// What the targets for Office documents have in common.

#include <cstddef>
#include <cstdint>
#include <string>

#include "readers/office_document.h"

namespace zentlor::fuzz {

/// Reads the document with `signature` put in front, since one without it is turned away at once.
inline int ReadOffice(const std::uint8_t* data, std::size_t size, const std::string& signature) {
    std::string bytes(reinterpret_cast<const char*>(data), size);
    bytes.replace(0, signature.size(), signature);
    try {
        readers::ReadOfficeDocument(bytes, "fuzz.xls", readers::Limits{});
    } catch (const readers::ReadError&) {
    }
    return 0;
}

}  // namespace zentlor::fuzz
