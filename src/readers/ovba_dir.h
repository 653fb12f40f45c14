#pragma once

// The `dir` stream of a VBA project: its name and code page, its references and its modules ([MS-OVBA] 2.3.4.2).

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "core/utilities/text.h"
#include "readers/document.h"

namespace zentlor::readers {

/// A module as `dir` lists it.
struct OvbaDirModule {
    Text name;
    /// The name in the bytes of the project's code page, as the `PROJECT` stream repeats it.
    std::string rawName;
    Text streamName;
    /// Where in its stream the compressed source begins.
    std::uint32_t sourceOffset = 0;
    /// A standard module; else a class, a form or a document module, and only `PROJECT` tells which.
    bool standard = false;
};

struct OvbaDir {
    Text projectName;
    /// As the stream says, 0 if it says nothing.
    int codePage = 0;
    std::vector<Text> references;
    std::vector<OvbaDirModule> modules;
    /// The stream ends in the middle of a record.
    bool truncated = false;
    /// There were more modules than the limit allows; `modules` holds the first of them.
    bool tooManyModules = false;
};

/// Reads the decompressed stream `bytes`. Whatever it holds, the part in front of the damage comes back.
OvbaDir ParseOvbaDir(std::string_view bytes, std::uint32_t maximumModules);

}  // namespace zentlor::readers
