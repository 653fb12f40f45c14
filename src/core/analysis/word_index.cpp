#include "core/analysis/word_index.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <stdexcept>

namespace zentlor {

namespace {

constexpr std::array<bool, 256> MakeIndexCharacters() {
    std::array<bool, 256> table{};
    for (int c = u'0'; c <= u'9'; ++c) table[static_cast<std::size_t>(c)] = true;
    for (int c = u'A'; c <= u'Z'; ++c)
        table[static_cast<std::size_t>(c)] = table[static_cast<std::size_t>(c + 32)] = true;
    for (const char16_t c : TextView(u"_ßäÄöÖüÜ")) table[c] = true;
    return table;
}
constexpr std::array<bool, 256> kIndexCharacters = MakeIndexCharacters();

// Four characters at a time: a word is short, and a multiplication for each of its characters would be most of the
// work.
std::uint32_t HashOf(TextView word) {
    constexpr std::uint64_t kMultiplier = 0x9E3779B97F4A7C15;
    constexpr std::size_t kAtOnce = sizeof(std::uint64_t) / sizeof(char16_t);
    std::uint64_t hash = word.size() * kMultiplier;
    std::size_t i = 0;
    for (std::uint64_t piece; i + kAtOnce <= word.size(); i += kAtOnce) {
        std::memcpy(&piece, word.data() + i, sizeof piece);
        hash = (hash ^ piece) * kMultiplier;
        hash ^= hash >> 32;
    }
    for (; i < word.size(); ++i) hash = (hash << 16) ^ (hash >> 48) ^ word[i];
    hash *= kMultiplier;
    return static_cast<std::uint32_t>(hash >> 32);
}

constexpr std::uint32_t kNoWord = 0xFFFFFFFF;

}  // namespace

bool IsIndexCharacter(char16_t c) {
    return c < 256 && kIndexCharacters[c];
}

WordIndex::WordIndex(const std::vector<TextView>& texts) : slots_(1024, Slot{{}, kNoWord}) {
    std::uint64_t characters = 0;
    for (const TextView text : texts) {
        moduleStarts_.push_back(static_cast<Place>(characters));
        characters += text.size();
        if (characters > 0xFFFFFFFF) throw std::length_error("the project's text is too long to be indexed");
    }
    moduleStarts_.push_back(static_cast<Place>(characters));

    struct Occurrence {
        std::uint32_t id;
        Place place;
    };
    std::vector<Occurrence> occurrences;
    constexpr std::uint64_t kCharactersPerWord = 6;
    occurrences.reserve(characters / kCharactersPerWord);
    for (std::size_t module = 0; module < texts.size(); ++module) {
        const TextView text = texts[module];
        for (std::size_t i = 0; i < text.size(); ++i) {
            if (!IsIndexCharacter(text[i])) continue;
            const std::size_t begin = i;
            while (i < text.size() && IsIndexCharacter(text[i])) ++i;
            const TextView word = text.substr(begin, i - begin);
            occurrences.push_back({SlotOf(word, HashOf(word)).id, moduleStarts_[module] + static_cast<Place>(begin)});
        }
    }

    // Counting sort by word: stable, so the places of each word come out in order.
    starts_.assign(words_ + 1, 0);
    for (const Occurrence& o : occurrences) ++starts_[o.id + 1];
    for (std::size_t id = 0; id < words_; ++id) starts_[id + 1] += starts_[id];
    std::vector<std::uint32_t> next(starts_.begin(), starts_.end() - 1);
    places_.resize(occurrences.size());
    for (const Occurrence& o : occurrences) places_[next[o.id]++] = o.place;
}

WordIndex::Slot& WordIndex::SlotOf(TextView word, std::uint32_t hash) {
    const std::size_t mask = slots_.size() - 1;
    for (std::size_t i = hash & mask;; i = (i + 1) & mask) {
        Slot& slot = slots_[i];
        if (slot.id == kNoWord) {
            if (2 * (words_ + 1) > slots_.size()) {
                Grow();
                return SlotOf(word, hash);
            }
            slot = {word, words_++};
            return slot;
        }
        if (slot.word == word) return slot;
    }
}

void WordIndex::Grow() {
    std::vector<Slot> old(2 * slots_.size(), Slot{{}, kNoWord});
    old.swap(slots_);
    const std::size_t mask = slots_.size() - 1;
    for (const Slot& slot : old) {
        if (slot.id == kNoWord) continue;
        std::size_t i = HashOf(slot.word) & mask;
        while (slots_[i].id != kNoWord) i = (i + 1) & mask;
        slots_[i] = slot;
    }
}

std::span<const Place> WordIndex::PlacesOf(TextView word) const {
    const std::size_t mask = slots_.size() - 1;
    for (std::size_t i = HashOf(word) & mask; slots_[i].id != kNoWord; i = (i + 1) & mask) {
        if (slots_[i].word != word) continue;
        const std::uint32_t id = slots_[i].id;
        return std::span(places_).subspan(starts_[id], starts_[id + 1] - starts_[id]);
    }
    return {};
}

std::span<const Place> WordIndex::PlacesOf(TextView word, std::size_t module, std::uint32_t fromOffset) const {
    const std::span<const Place> all = PlacesOf(word);
    const auto first = std::lower_bound(all.begin(), all.end(), moduleStarts_[module] + fromOffset);
    const auto last = std::lower_bound(first, all.end(), moduleStarts_[module + 1]);
    return {first, last};
}

std::size_t WordIndex::ModuleOf(Place place) const {
    const auto behind = std::upper_bound(moduleStarts_.begin(), moduleStarts_.end() - 1, place);
    return static_cast<std::size_t>(behind - moduleStarts_.begin()) - 1;
}

}  // namespace zentlor
