#pragma once

// What stands on the command line, as plain data.

#include <optional>
#include <string>
#include <vector>

#include "core/checks/catalogue.h"
#include "readers/document.h"

namespace zentlor::cli {

enum class Verb { Check, Dump, Checks, Compile, Extract, Info };

struct Arguments {
    Verb verb = Verb::Check;
    std::vector<std::string> paths;
    std::string format;  ///< one of the verb's own
    std::string output;  ///< file or folder; empty: standard output
    int sprache = 0;     ///< 1 German, 2 English, 0 as stored

    // check
    std::vector<CheckId> only;
    std::vector<CheckId> ignore;
    std::optional<std::string> component;
    std::string requireDeclaration = "1";
    std::string settings;
    bool isolated = false;
    bool uncompiled = false;
    bool stageTimes = false;

    // dump
    bool raw = false;
    bool diff = false;

    // extract
    bool force = false;
    bool utf8 = false;

    // reading
    bool projectPerFolder = false;
    readers::Limits limits;
};

/// Exit codes of the program.
enum ExitCode { kNoHints = 0, kHints = 1, kTrouble = 2, kInterrupted = 130 };

/// Reads the command line. Nothing to run, but an exit code, after --help, --version and mistakes, which are told on
/// the standard streams.
struct ParseResult {
    std::optional<Arguments> arguments;
    int exitCode = kNoHints;
};
ParseResult ParseArguments(int argc, const char* const* argv);

}  // namespace zentlor::cli
