#pragma once

// The one capitalisation that every name of a project has. Names are kept by their letters without regard to case and
// to full width; a table of slots with open addressing finds a name in constant time and without allocation.

#include <cstddef>
#include <cstdint>
#include <vector>

#include "core/utilities/text.h"
#include "core/utilities/text_store.h"

namespace zentlor::vba {

/// Where a capitalisation comes from. The higher rank wins; of equal ranks the first one stays.
enum class NameRank : std::uint8_t { Met, Library, Declared };

class SpellingTable {
  public:
    /// An empty table.
    SpellingTable();

    /// Takes `name`, without brackets and type character, in the capitalisation in which it stands. Copies its letters.
    /// Returns the name's number, the same for every capitalisation.
    std::uint32_t Add(TextView name, NameRank rank);

    /// The capitalisation of a name that was added, whatever its own; `name` itself if it was not. Valid until the next
    /// `Add`.
    TextView SpellingOf(TextView name) const;

    /// True if the name was added in more than one capitalisation, so that some place must be changed.
    bool Varies(std::uint32_t number) const { return entries_[number].varies; }

    bool Holds(TextView name) const;

  private:
    struct Entry {
        TextView spelling;
        std::uint32_t hash;
        NameRank rank;
        bool varies;
    };

    std::size_t FindSlot(TextView name, std::uint32_t hash) const;
    void Grow();

    std::vector<Entry> entries_;
    std::vector<std::uint32_t> slots_;  // index into `entries_` + 1, or 0; their number is a power of two
    TextStore spellings_;
};

}  // namespace zentlor::vba
