#include <algorithm>
#include <exception>
#include <filesystem>
#include <string>

#include "cli/commands.h"
#include "cli/heap.h"
#include "cli/words.h"

namespace {

bool IsFolder(const std::string& path) {
    std::error_code error;
    return std::filesystem::is_directory(path, error);
}

}  // namespace

int main(int argc, char** argv) {
    using namespace zentlor::cli;
    try {
        const ParseResult parsed = ParseArguments(argc, argv);
        if (!parsed.arguments) return parsed.exitCode;
        const auto& paths = parsed.arguments->paths;
        if (std::any_of(paths.begin(), paths.end(), IsFolder)) PrepareHeap();
        return Run(*parsed.arguments);
    } catch (const std::exception& error) {
        Tell(std::string("zentlor: ") + error.what());
        return kTrouble;
    }
}
