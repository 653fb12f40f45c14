#pragma once

// From the text of a file to the text that the editor would store, and to the answer whether it compiles: one pass of
// tokens for both. The words that the tokens were made from are handed on.

#include "workspace/workspace.h"

namespace zentlor::workspace {

struct CompiledModules {
    WordTable words;
    std::vector<std::vector<WordPlace>> wordPlaces;  ///< of each module
    std::vector<CompileError> errors;
    /// For each module its code as it was read, where that was wanted and differs from the canonical one; else empty.
    std::vector<Text> rawCode;
};

/// Brings the code of the modules of one project into canonical form and checks it. Line numbers do not change.
CompiledModules Compile(std::vector<readers::SourceModule>& modules, bool keepRawCode, StageTimes* times);

}  // namespace zentlor::workspace
