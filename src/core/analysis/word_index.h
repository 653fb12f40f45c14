#pragma once

// Every word of a project with its places, in order. One index over all modules: a question costs what the word's own
// occurrences cost, however many modules there are.

#include <array>
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

    /// PlacesOf(word) from an offset in the text of one module on, to the project's end. Remembers the answer: a search
    /// that goes on from there for the same word costs next to nothing. Not to be called by several threads at once.
    std::span<const Place> PlacesOf(TextView word, std::size_t module, std::uint32_t fromOffset) const;

    /// The number of the module, counted from 0, that holds a place.
    std::size_t ModuleOf(Place place) const;
    /// Where the text of a module begins; one behind the last module, where it ends.
    Place StartOf(std::size_t module) const { return moduleStarts_[module]; }

  private:
    static constexpr std::size_t kPacked = 16;

    // A word as the table compares it: its first kPacked characters with one byte each, and all of it where it is
    // longer.
    struct Key {
        std::uint64_t low = 0;
        std::uint64_t high = 0;
        const char16_t* text = nullptr;
        std::uint32_t length = 0;
    };
    struct Slot {
        Key key;
        std::uint32_t id = 0;
    };
    // Where the last search of a word ended: its places, and how many of them it left behind.
    struct Search {
        Text word;
        std::span<const Place> places;
        std::size_t passed = 0;
    };

    static Key KeyOf(const char16_t* word, std::size_t length);
    static Key KeyOf(TextView word);
    static bool AreEqual(const Key& a, const Key& b);
    static std::uint32_t HashOf(const Key& key);

    std::uint32_t IdOf(const Key& key);
    void Grow();

    mutable std::array<Search, 16> searches_;  ///< a few words are searched in turn, procedure after procedure
    std::vector<Slot> slots_;                  ///< open addressing, a power of two
    std::uint32_t words_ = 0;
    std::vector<Place> moduleStarts_;
    std::vector<std::uint32_t> starts_;  ///< by id: where its places begin in places_
    std::vector<Place> places_;
};

}  // namespace zentlor
