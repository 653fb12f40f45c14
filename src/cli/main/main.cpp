#include <exception>
#include <string>

#include "cli/commands.h"
#include "cli/heap.h"
#include "cli/words.h"

int main(int argc, char** argv) {
    using namespace zentlor::cli;
    PrepareHeap();
    try {
        const ParseResult parsed = ParseArguments(argc, argv);
        return parsed.arguments ? Run(*parsed.arguments) : parsed.exitCode;
    } catch (const std::exception& error) {
        Tell(std::string("zentlor: ") + error.what());
        return kTrouble;
    }
}
