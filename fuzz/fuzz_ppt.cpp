// The records of a presentation and the zlib data in them.

#include <cstdlib>

#include "readers/ppt_records.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    constexpr std::uint64_t kMaximum = 1 << 20;
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    std::uint64_t total = 0;
    for (const std::string& storage : zentlor::readers::FindPptStorages(bytes, kMaximum).compoundFiles) {
        total += storage.size();
    }
    if (total > kMaximum) std::abort();
    return 0;
}
