#pragma once

// From the text of a file to the text that the editor would store, and to the answer whether it compiles: one pass of
// tokens for both. The words that the tokens were made from are handed on.

#include <limits>

#include "workspace/workspace.h"

namespace zentlor::workspace {

struct CompiledModules {
    WordTable words;
    std::vector<std::vector<WordPlace>> wordPlaces;  ///< of each module
    std::vector<CompileError> errors;
    /// For each module its code as it was read, where that was wanted and differs from the canonical one; else empty.
    std::vector<Text> rawCode;
};

struct CompileOptions {
    bool keepRawCode = false;
    /// How many bytes the work and what comes of it may take, as they are estimated. Code that people write takes up to
    /// ten for a character, nothing but short statements with ever new names thirty.
    std::uint64_t memory = std::numeric_limits<std::uint64_t>::max();
    StageTimes* times = nullptr;
};

/// Brings the code of the modules of one project into canonical form and checks it. Line numbers do not change. Takes
/// the modules for which the memory does not suffice off the end of `modules`.
CompiledModules Compile(std::vector<readers::SourceModule>& modules, const CompileOptions& options);

}  // namespace zentlor::workspace
