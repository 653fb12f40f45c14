#pragma once

// Every word of a project with its places, in order. One index over all modules: a question costs what the word's own
// occurrences cost, however many modules there are.

#include <cstdint>
#include <functional>
#include <map>
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

    /// The characters of the index at the start of `target`. In a match that stands free they are a whole word of the
    /// text: what follows them in the target ends the word, and nothing in front of the match continues it. Remembers
    /// the last answer, since a walk asks for the same target at every step. Not to be called by several threads at
    /// once.
    LeadingWord FindLeading(TextView target) const {
        if (!IsSame(target, askedTarget_)) {
            askedTarget_ = target;
            leadingWord_ = words_.FindLeading(target);
        }
        return leadingWord_;
    }

    /// The words that end in `ending`, which has characters of the index only. Remembers what was asked for. Not to be
    /// called by several threads at once.
    const std::vector<WordWithEnding>& EndingIn(TextView ending) const;

    /// Every place of the word, in order of modules and of text; empty for `kNoWord`.
    std::span<const Place> PlacesOf(std::uint32_t number) const;

    /// PlacesOf(number) from an offset in the text of one module on, to the project's end. Remembers where that is: a
    /// search that goes on from there for the same word costs next to nothing. Not to be called by several threads at
    /// once.
    std::span<const Place> PlacesOf(std::uint32_t number, std::size_t module, std::uint32_t fromOffset) const;

    /// The number of the module, counted from 0, that holds a place.
    std::size_t ModuleOf(Place place) const;
    /// Where the text of a module begins; one behind the last module, where it ends.
    Place StartOf(std::size_t module) const { return moduleStarts_[module]; }

  private:
    const WordTable& words_;
    mutable std::vector<std::uint32_t> passed_;  ///< by a word's number: the places that its last search left behind
    std::vector<Place> moduleStarts_;
    std::vector<std::uint32_t> starts_;  ///< by a word's number: where its places begin in places_
    std::vector<Place> places_;
    mutable Text askedTarget_;  ///< of the last question for a leading word
    mutable LeadingWord leadingWord_;
    mutable std::map<Text, std::vector<WordWithEnding>, std::less<>> endings_;
};

}  // namespace zentlor
