#pragma once

// Tells a date literal, `#1/31/2000 5:00 PM#`, from the "#" of a file number and of a type character ([MS-VBAL] 3.3.3).

#include <cstddef>

#include "core/utilities/text.h"

namespace zentlor::vba {

/// The number of characters of the date literal at the start of `text`, both "#" included; 0 if none stands there.
/// Looks no further than to the next "#" or line end.
std::size_t DateLiteralLength(TextView text);

}  // namespace zentlor::vba
