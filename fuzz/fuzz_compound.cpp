// Compound files with a project: container, search for the project, `dir`, `PROJECT`, modules.

#include "office_target.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    return zentlor::fuzz::ReadOffice(data, size, "\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1");
}
