#pragma once

// Every word of a project with its places, in order. One index over all modules: a question costs what the word's own
// occurrences cost, however many modules there are.

#include <cstdint>
#include <span>
#include <vector>

#include "core/utilities/text.h"

namespace zentlor {

/// The characters of which the index's words are made: the ASCII letters and digits, "_", and the German letters. All
/// of them continue a word for a whole-word search and for the use search alike, so that the runs of these characters
/// answer both; the characters in which the two differ lie beside a run, and the searches look at them there.
bool IsIndexCharacter(char16_t c);

/// A place in a project: the module's number, counted from 0, and the offset in its text, in one ordered number.
struct Place {
    std::uint64_t value;

    static Place Of(std::uint32_t module, std::uint32_t offset) { return {std::uint64_t{module} << 32 | offset}; }
    std::uint32_t Module() const { return static_cast<std::uint32_t>(value >> 32); }
    std::uint32_t Offset() const { return static_cast<std::uint32_t>(value); }
    auto operator<=>(const Place&) const = default;
};

class WordIndex {
  public:
    /// Reads the words of `texts`, one text a module. The index holds views of them.
    explicit WordIndex(const std::vector<TextView>& texts);

    /// Every place of `word`, in order of modules and of text; empty for a word that occurs nowhere or that has other
    /// characters than those of the index.
    std::span<const Place> PlacesOf(TextView word) const;

    /// The part of PlacesOf(word) in one module, from an offset on.
    std::span<const Place> PlacesOf(TextView word, std::uint32_t module, std::uint32_t fromOffset) const;

  private:
    struct Slot {
        TextView word;
        std::uint32_t id = 0;
    };

    Slot& SlotOf(TextView word, std::uint32_t hash);
    void Grow();

    std::vector<Slot> slots_;  ///< open addressing, a power of two
    std::uint32_t words_ = 0;
    std::vector<std::uint32_t> starts_;  ///< by id: where its places begin in places_
    std::vector<Place> places_;
};

}  // namespace zentlor
