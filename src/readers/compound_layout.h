#pragma once

// A look at the bones of a compound file before a library takes it apart ([MS-CFB] 2.2 and 2.3). The library's time
// grows with the square of the directory and its stack with the depth of it, and it trusts some sizes of the header; so
// these are measured first.

#include <cstdint>
#include <string>
#include <string_view>

#include "readers/document.h"

namespace zentlor::readers {

struct CompoundLayout {
    /// Header, allocation table and directory chain agree with the size of the file, and nothing stands beside the
    /// root of the directory.
    bool sound = false;
    /// Entries of the directory, free ones included.
    std::uint64_t directoryEntries = 0;
    /// The allocation table speaks of sectors behind the end of the file: its end is missing.
    bool truncated = false;
    /// The directory is no tree: entries meet twice or lie outside, or a VBA project stands where nothing leads to. The
    /// library leaves out what it cannot reach, and the document would seem to hold no code.
    bool tangled = false;
    /// The directory is deeper than a library can follow, and than any program makes it.
    bool tooDeep = false;
    /// Some entry is called like a part of a VBA project. If there is none, there is no project.
    bool namesProject = false;
};

CompoundLayout MeasureCompoundFile(std::string_view bytes);

/// Throws `ReadError` with `Limit` if `entries` of the document `path` are more than `limits` allows.
void RequireFewEntries(std::uint64_t entries, const std::string& path, const Limits& limits);

}  // namespace zentlor::readers
