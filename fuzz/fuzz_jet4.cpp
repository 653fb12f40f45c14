#include "jet_target.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    return zentlor::fuzz::ReadDatabase(data, size, "Standard Jet DB", '\1');
}
