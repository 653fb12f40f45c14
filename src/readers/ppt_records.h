#pragma once

// The records of a PowerPoint 97–2003 document that hold embedded storages, a VBA project among them ([MS-PPT] 2.10.34,
// 2.3.1).

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace zentlor::readers {

struct PptStorages {
    /// The embedded compound files, unpacked, in the order of the stream.
    std::vector<std::string> compoundFiles;
    /// More than the maximum would have been unpacked; what came first is there.
    bool limitHit = false;
    /// A record reaches behind the end of the stream.
    bool truncated = false;
};

/// Reads the stream "PowerPoint Document". `maximum` bounds the bytes of all storages together.
PptStorages FindPptStorages(std::string_view stream, std::uint64_t maximum);

}  // namespace zentlor::readers
