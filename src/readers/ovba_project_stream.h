#pragma once

// The `PROJECT` stream of a VBA project: plain text that tells of what kind each module is, and whether the project is
// locked for viewing ([MS-OVBA] 2.3.1).

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "readers/document.h"

namespace zentlor::readers {

struct OvbaProjectStream {
    struct Entry {
        /// The module's name in the bytes of the project's code page.
        std::string rawName;
        ModuleType type = ModuleType::Standard;
    };
    std::vector<Entry> modules;
    /// Protected by its user, its program or the editor, hidden, or with a password.
    bool locked = false;
};

OvbaProjectStream ParseOvbaProjectStream(std::string_view bytes);

/// The bytes behind the obfuscated hexadecimal text of `CMG`, `DPB` and `GC` ([MS-OVBA] 2.4.3.3), or nothing if the
/// text is no such thing.
std::optional<std::string> RevealObfuscatedData(std::string_view hexadecimal);

}  // namespace zentlor::readers
