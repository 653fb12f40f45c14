#include "core/analysis/word_index.h"

#include <algorithm>
#include <stdexcept>

namespace zentlor {

WordIndex::WordIndex(const WordTable& words, std::vector<ModuleWords> modules) : words_(words) {
    std::uint64_t characters = 0;
    std::size_t places = 0;
    for (const ModuleWords& module : modules) {
        moduleStarts_.push_back(static_cast<Place>(characters));
        characters += module.length;
        places += module.places.size();
        if (characters > 0xFFFFFFFF) throw std::length_error("the project's text is too long to be indexed");
    }
    moduleStarts_.push_back(static_cast<Place>(characters));

    // Counting sort by word: stable, so the places of each word come out in order. While they are put there,
    // starts_[n + 1] is where the next place of word n belongs.
    passed_.assign(words.Size(), 0);
    starts_.assign(words.Size() + 2, 0);
    for (const ModuleWords& module : modules) {
        for (const WordPlace& word : module.places) ++starts_[word.number + 2];
    }
    for (std::size_t i = 2; i < starts_.size(); ++i) starts_[i] += starts_[i - 1];
    places_.resize(places);
    for (std::size_t i = 0; i < modules.size(); ++i) {
        for (const WordPlace& word : modules[i].places) {
            places_[starts_[word.number + 1]++] = moduleStarts_[i] + word.offset;
        }
        modules[i].places = {};
    }
}

const std::vector<WordWithEnding>& WordIndex::EndingIn(TextView ending) const {
    const auto known = endings_.find(ending);
    return known != endings_.end() ? known->second : endings_.emplace(ending, words_.EndingIn(ending)).first->second;
}

std::span<const Place> WordIndex::PlacesOf(std::uint32_t number) const {
    if (number == kNoWord) return {};
    return std::span(places_).subspan(starts_[number], starts_[number + 1] - starts_[number]);
}

std::span<const Place> WordIndex::PlacesOf(std::uint32_t number, std::size_t module, std::uint32_t fromOffset) const {
    if (number == kNoWord) return {};
    const std::span<const Place> all = PlacesOf(number);
    const Place from = moduleStarts_[module] + fromOffset;
    std::uint32_t passed = passed_[number];
    const bool goesOn = passed == 0 || all[passed - 1] < from;
    if (goesOn && passed < all.size() && all[passed] < from) ++passed;
    if (!goesOn || (passed < all.size() && all[passed] < from)) {
        passed = static_cast<std::uint32_t>(std::lower_bound(all.begin(), all.end(), from) - all.begin());
    }
    passed_[number] = passed;
    return all.subspan(passed);
}

std::size_t WordIndex::ModuleOf(Place place) const {
    const auto behind = std::upper_bound(moduleStarts_.begin(), moduleStarts_.end() - 1, place);
    return static_cast<std::size_t>(behind - moduleStarts_.begin()) - 1;
}

}  // namespace zentlor
