// make_project LINES FOLDER [SEED]: writes a project of at least LINES lines of VBA code into FOLDER, one file a module
// as the editor exports them (Windows-1252, CR LF), and prints how many lines and bytes it wrote.

#include <algorithm>
#include <charconv>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "core/utilities/encoding.h"
#include "module_writer.h"

namespace {

constexpr int kShortestModule = 150;
constexpr std::size_t kModuleSpread = 450;

struct Size {
    long lines = 0;
    std::size_t bytes = 0;
};

Size WriteProject(long lines, const std::filesystem::path& folder, std::uint64_t seed) {
    zentlor::bench::Random random(seed);
    Size written;
    for (int number = 0; written.lines < lines; ++number) {
        const int spread = static_cast<int>(random.Below(kModuleSpread));
        const auto left = static_cast<int>(std::max(1L, std::min(lines - written.lines, 100000L)));
        const auto module = zentlor::bench::WriteModule(number, std::min(left, kShortestModule + spread), random);
        const std::string bytes = zentlor::ToWindows1252(zentlor::FromUtf8(module.text));
        std::ofstream out(folder / module.fileName, std::ios::binary);
        out << bytes;
        if (!out.flush()) throw std::filesystem::filesystem_error("cannot write", folder / module.fileName, {});
        written.lines += module.lines;
        written.bytes += bytes.size();
    }
    return written;
}

template <typename Number>
bool Read(const std::string& text, Number& number) {
    const auto result = std::from_chars(text.data(), text.data() + text.size(), number);
    return result.ec == std::errc() && result.ptr == text.data() + text.size();
}

}  // namespace

int main(int argc, char** argv) try {
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    long lines = 0;
    std::uint64_t seed = 1;
    const bool counted = arguments.size() == 2 || (arguments.size() == 3 && Read(arguments[2], seed));
    if (!counted || !Read(arguments[0], lines) || lines < 1) {
        std::fputs("usage: make_project LINES FOLDER [SEED]\n", stderr);
        return 2;
    }
    std::filesystem::create_directories(arguments[1]);
    const Size written = WriteProject(lines, arguments[1], seed);
    std::printf("%ld %zu\n", written.lines, written.bytes);
    return 0;
} catch (const std::exception& error) {
    std::fprintf(stderr, "make_project: %s\n", error.what());
    return 1;
}
