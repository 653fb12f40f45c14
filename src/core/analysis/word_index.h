#pragma once

// Every word of a project with its places, in order. One index over all modules: a question costs what the word's own
// occurrences cost, however many modules there are.

#include <cstdint>
#include <span>
#include <vector>

#include "core/analysis/words.h"
#include "core/utilities/text.h"

namespace zentlor {

/// A place in a project: the offset in the texts of all modules, one behind the other.
using Place = std::uint32_t;

/// The words of one module of `length` characters, as the table's `Read` gives them.
struct ModuleWords {
    std::size_t length = 0;
    std::vector<WordPlace> places;
};

class WordIndex {
  public:
    /// The words of all modules in their order, with the numbers of `words`, which lives as long as the index. Throws
    /// std::length_error for texts of 2^32 characters and more.
    WordIndex(const WordTable& words, std::vector<ModuleWords> modules);

    /// Every place of `word`, in order of modules and of text; empty for a word that occurs nowhere or that has other
    /// characters than those of the index.
    std::span<const Place> PlacesOf(TextView word) const;

    /// PlacesOf(word) from an offset in the text of one module on, to the project's end. Remembers where that is: a
    /// search that goes on from there for the same word costs next to nothing. Not to be called by several threads at
    /// once.
    std::span<const Place> PlacesOf(TextView word, std::size_t module, std::uint32_t fromOffset) const;

    /// The number of the module, counted from 0, that holds a place.
    std::size_t ModuleOf(Place place) const;
    /// Where the text of a module begins; one behind the last module, where it ends.
    Place StartOf(std::size_t module) const { return moduleStarts_[module]; }

  private:
    std::span<const Place> PlacesOfNumber(std::uint32_t number) const;

    const WordTable& words_;
    mutable std::vector<std::uint32_t> passed_;  ///< by a word's number: the places that its last search left behind
    std::vector<Place> moduleStarts_;
    std::vector<std::uint32_t> starts_;  ///< by a word's number: where its places begin in places_
    std::vector<Place> places_;
};

}  // namespace zentlor
