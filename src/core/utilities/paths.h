#pragma once

#include "core/utilities/text.h"

namespace zentlor {

/// Between the folders of a path on this system.
inline constexpr char16_t kPathSeparator = u'/';

/// The path of `name` in `folder`, which ends without a separator.
inline Text PathIn(TextView folder, TextView name) {
    return Text(folder) + kPathSeparator + Text(name);
}

}  // namespace zentlor
