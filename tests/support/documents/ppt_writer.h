#pragma once

// Writes the records of a PowerPoint 97–2003 document ([MS-PPT]).

#include <cstdint>
#include <string>

namespace zentlor::test {

std::string PptRecord(std::uint16_t type, std::uint16_t instance, const std::string& body);

/// The record of an embedded storage: packed with its size in front, or as it is.
std::string PptStorageRecord(const std::string& compoundFile, bool packed);

}  // namespace zentlor::test
