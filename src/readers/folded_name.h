#pragma once

// Names as keys: storages, streams and modules are the same whatever the case of their letters.

#include <algorithm>

#include "core/utilities/text.h"

namespace zentlor::readers {

/// `name` with every character folded, so that equal keys mean names that differ in case alone.
inline Text Folded(TextView name) {
    Text folded(name);
    std::ranges::transform(folded, folded.begin(), FoldCase);
    return folded;
}

}  // namespace zentlor::readers
