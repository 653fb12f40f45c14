#include <fmt/format.h>

#include <cstdio>
#include <exception>

#include "cli/commands.h"
#include "cli/heap.h"

int main(int argc, char** argv) {
    using namespace zentlor::cli;
    PrepareHeap();
    try {
        const ParseResult parsed = ParseArguments(argc, argv);
        return parsed.arguments ? Run(*parsed.arguments) : parsed.exitCode;
    } catch (const std::exception& error) {
        fmt::print(stderr, "zentlor: {}\n", error.what());
        return kTrouble;
    }
}
