// The project itself, without a container or compression in front of it: the input is `dir`, a line of four dashes,
// `PROJECT`, a line of four dashes, and the text of every module.

#include <algorithm>

#include "readers/ovba_project.h"
#include "seeds.h"

namespace {

constexpr std::size_t kChunk = 4096;

// A container whose chunks are stored as they are, so that the fuzzer sees through it.
std::string Stored(std::string_view bytes) {
    std::string container(1, '\1');
    for (std::size_t at = 0; at < bytes.size(); at += kChunk) {
        const std::string_view chunk = bytes.substr(at, kChunk);
        const auto header = static_cast<unsigned>(0x3000 | (chunk.size() - 1));
        container.push_back(static_cast<char>(header & 0xFF));
        container.push_back(static_cast<char>(header >> 8));
        container += chunk;
    }
    return container;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace zentlor;
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    const std::size_t first = std::min(bytes.find(fuzz::kSeparator), size);
    const std::size_t second = std::min(bytes.find(fuzz::kSeparator, first + 1), size);
    const std::string dir = Stored(bytes.substr(0, first));
    const std::string project(bytes.substr(first, second - first));
    const std::string module = Stored(bytes.substr(second));
    readers::Limits limits;
    limits.sourceBytes = 1 << 20;
    try {
        const readers::OvbaSource source{dir, project, [&](const readers::OvbaDirModule&) { return module; }};
        readers::ReadOvbaProject(source, "fuzz.xls", limits);
    } catch (const readers::ReadError&) {
    }
    return 0;
}
