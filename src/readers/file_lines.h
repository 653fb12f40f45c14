#pragma once

#include <algorithm>
#include <cstdint>
#include <vector>

namespace zentlor::readers {

/// In which line of its file each line of a module's code stands. Both count from 1. Costs memory only where lines are
/// left out in between.
class FileLines {
  public:
    /// The next line of the code stands in `fileLine`, which is larger than that of the line before.
    void Add(std::uint32_t fileLine) {
        ++count_;
        if (fileLine != next_) stretches_.push_back({count_, fileLine});
        next_ = fileLine + 1;
    }
    /// How many lines were added.
    std::uint32_t Count() const { return count_; }
    /// That of a line that was not added follows those before.
    std::uint32_t Of(std::uint32_t line) const {
        const auto behind = std::upper_bound(stretches_.begin(), stretches_.end(), line,
                                             [](std::uint32_t l, const Stretch& stretch) { return l < stretch.line; });
        return behind == stretches_.begin() ? line : (behind - 1)->fileLine + (line - (behind - 1)->line);
    }
    /// More lines stand in front of the code.
    void ShiftBy(std::uint32_t lines) {
        if (lines == 0) return;
        if (stretches_.empty() || stretches_.front().line > 1) stretches_.insert(stretches_.begin(), {1, 1});
        for (Stretch& stretch : stretches_) stretch.fileLine += lines;
        next_ += lines;
    }

  private:
    // From `line` on, both go on one by one.
    struct Stretch {
        std::uint32_t line;
        std::uint32_t fileLine;
    };

    std::vector<Stretch> stretches_;  // in front of the first one line and file line are equal
    std::uint32_t count_ = 0;
    std::uint32_t next_ = 1;  // the file's line behind the last one
};

}  // namespace zentlor::readers
