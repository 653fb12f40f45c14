#include "readers/document.h"

#include <algorithm>

namespace zentlor::readers {

Limits Limits::InProportionTo(std::uint64_t file) const {
    const Limits defaults;
    Limits limits = *this;
    const auto bound = [&](std::uint64_t& bytes, std::uint64_t byDefault, std::uint64_t part, std::uint64_t times) {
        if (bytes == byDefault) bytes = std::min(bytes, bytes / part + times * file);
    };
    // Modules are stored at a half to a quarter of their size, mostly beside their compiled form, which is larger. What
    // is taken in grows thirtyfold at worst while it is checked.
    bound(limits.sourceBytes, defaults.sourceBytes, 256, 3);
    bound(limits.checkBytes, defaults.checkBytes, 64, 10);
    bound(limits.zipPartBytes, defaults.zipPartBytes, 16, 4);
    return limits;
}

}  // namespace zentlor::readers
