#pragma once

// Writes one module of an invented business application in German, in the form in which the editor stores code. What
// comes out depends on the seed alone, on every machine.

#include <array>
#include <cstdint>
#include <set>
#include <string>

namespace zentlor::bench {

/// Numbers without pattern from a seed: splitmix64, the same on every machine.
class Random {
  public:
    explicit Random(std::uint64_t seed) : state_(seed) {}

    /// 0 to `bound` - 1.
    std::size_t Below(std::size_t bound);
    bool OneIn(std::size_t chances) { return Below(chances) == 0; }
    template <typename Row, std::size_t size>
    const Row& Pick(const std::array<Row, size>& table) {
        return table[Below(size)];
    }

  private:
    std::uint64_t state_;
};

struct Module {
    std::string fileName;
    std::string text;  ///< UTF-8, lines ended by CR LF
    int lines = 0;
};

/// The code of module `number` of a project, of about `wantedLines` lines. It calls functions of the modules with lower
/// numbers, and of its own.
Module WriteModule(int number, int wantedLines, Random& random);

}  // namespace zentlor::bench
