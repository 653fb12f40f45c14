#pragma once

// The directory at the end of a zip, read before a library unpacks anything: how many parts there are, how they are
// called, and what sizes they claim.

#include <cstdint>
#include <string_view>
#include <vector>

#include "readers/container.h"

namespace zentlor::readers {

struct ZipDirectory {
    /// The directory was found and is complete.
    bool sound = false;
    /// There are more parts than the maximum; `parts` is empty then.
    bool tooManyParts = false;
    /// Folders not counted.
    std::vector<ZipPart> parts;
};

/// Whether `name` is one that an Office program could write: of a length and depth that costs a library nothing.
bool ZipNameIsReasonable(std::string_view name);

ZipDirectory ReadZipDirectory(std::string_view bytes, std::uint32_t maximumParts);

}  // namespace zentlor::readers
