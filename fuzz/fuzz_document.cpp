// Whole files of any kind, recognised by their content as the program does it.

#include "office_target.h"
#include "readers/reader.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    try {
        zentlor::readers::ReadDocument(std::string_view(reinterpret_cast<const char*>(data), size), "fuzz",
                                       zentlor::readers::Limits{});
    } catch (const zentlor::readers::ReadError&) {
    }
    return 0;
}
