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

/// A place in a project: the offset in the texts of all modules, one behind the other.
using Place = std::uint32_t;

class WordIndex {
  public:
    /// Reads the words of `texts`, one text a module. The index holds views of them. Throws std::length_error for texts
    /// of 2^32 characters and more.
    explicit WordIndex(const std::vector<TextView>& texts);

    /// Every place of `word`, in order of modules and of text; empty for a word that occurs nowhere or that has other
    /// characters than those of the index.
    std::span<const Place> PlacesOf(TextView word) const;

    /// The part of PlacesOf(word) in one module, from an offset in its text on.
    std::span<const Place> PlacesOf(TextView word, std::size_t module, std::uint32_t fromOffset) const;

    /// The number of the module, counted from 0, that holds a place.
    std::size_t ModuleOf(Place place) const;
    /// Where the text of a module begins; one behind the last module, where it ends.
    Place StartOf(std::size_t module) const { return moduleStarts_[module]; }

  private:
    struct Slot {
        TextView word;
        std::uint32_t id = 0;
    };

    Slot& SlotOf(TextView word, std::uint32_t hash);
    void Grow();

    std::vector<Slot> slots_;  ///< open addressing, a power of two
    std::uint32_t words_ = 0;
    std::vector<Place> moduleStarts_;
    std::vector<std::uint32_t> starts_;  ///< by id: where its places begin in places_
    std::vector<Place> places_;
};

}  // namespace zentlor
