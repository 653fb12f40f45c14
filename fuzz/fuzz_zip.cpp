// Zips: directory, parts, and the project in one of them.

#include "office_target.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    return zentlor::fuzz::ReadOffice(data, size, "PK\x03\x04");
}
