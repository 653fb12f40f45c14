// The decompression of source: never more than asked for.

#include <cstdlib>

#include "readers/ovba_decompress.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    constexpr std::uint64_t kMaximum = 1 << 16;
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    if (zentlor::readers::DecompressContainer(bytes, kMaximum).bytes.size() > kMaximum) std::abort();
    return 0;
}
