#pragma once

// Keeps copies of many short texts in a few large blocks.

#include <algorithm>
#include <cstddef>
#include <memory>
#include <vector>

#include "core/utilities/text.h"

namespace zentlor {

class TextStore {
  public:
    /// A copy of `text`, each character of it changed by `change`; valid as long as the store, whatever else it takes.
    template <class Change>
    TextView Keep(TextView text, Change change) {
        if (free_ < text.size()) {
            free_ = std::max(kBlockLength, text.size());
            blocks_.push_back(std::make_unique<char16_t[]>(free_));
            next_ = blocks_.back().get();
        }
        char16_t* const start = next_;
        next_ = std::transform(text.begin(), text.end(), start, change);
        free_ -= text.size();
        return {start, text.size()};
    }
    TextView Keep(TextView text) {
        return Keep(text, [](char16_t c) { return c; });
    }

  private:
    static constexpr std::size_t kBlockLength = 16384;

    std::vector<std::unique_ptr<char16_t[]>> blocks_;
    char16_t* next_ = nullptr;
    std::size_t free_ = 0;  // unused characters at the end of the last block
};

}  // namespace zentlor
