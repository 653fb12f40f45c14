#pragma once

// The parts of a zip without its directory, which stands at the end and is the first thing that a broken download
// loses. Each part has a head of its own in front of its data.

#include <cstdint>
#include <memory>
#include <string_view>

#include "readers/container.h"

namespace zentlor::readers {

/// The zip made of the parts whose heads stand in `bytes`, or null if there are none. The sizes of its parts are those
/// of the heads or, where these leave them open or contradict the file, what lies between one head and the next.
/// `tooManyParts` is set, and null comes back, if there are more than `maximumParts`.
std::unique_ptr<ZipArchive> SalvageZip(std::string_view bytes, std::uint32_t maximumParts, bool& tooManyParts);

}  // namespace zentlor::readers
