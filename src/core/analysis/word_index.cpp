#include "core/analysis/word_index.h"

#include <algorithm>
#include <array>
#include <bit>
#include <stdexcept>

#include "core/utilities/character_blocks.h"

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

// By number of bytes: a mask of that many of the first ones of eight.
constexpr std::array<std::uint64_t, 9> MakeFirstBytes() {
    std::array<std::uint64_t, 9> masks{};
    for (std::size_t count = 1; count <= 8; ++count) masks[count] = ~std::uint64_t{0} >> (64 - 8 * count);
    return masks;
}
constexpr std::array<std::uint64_t, 9> kFirstBytes = MakeFirstBytes();

#if defined(__SSE2__)

// Sixteen characters as sixteen bytes, the first one lowest.
void PackBlock(const char16_t* block, std::uint64_t (&packed)[2]) {
    const __m128i first = _mm_loadu_si128(reinterpret_cast<const __m128i*>(block));
    const __m128i second = _mm_loadu_si128(reinterpret_cast<const __m128i*>(block + kBlock / 2));
    _mm_storeu_si128(reinterpret_cast<__m128i*>(packed), _mm_packus_epi16(first, second));
}

// The places of the index's characters in the kBlock characters at `block`. All of them have one byte; any other
// character is 0 or 255 in the bytes, which are none of them.
std::uint32_t PlacesOfIndexCharacters(const char16_t* block) {
    const __m128i first = _mm_loadu_si128(reinterpret_cast<const __m128i*>(block));
    const __m128i second = _mm_loadu_si128(reinterpret_cast<const __m128i*>(block + kBlock / 2));
    const __m128i bytes = _mm_packus_epi16(first, second);
    const __m128i lower = _mm_or_si128(bytes, _mm_set1_epi8(0x20));
    const auto all = [](int byte) { return _mm_set1_epi8(static_cast<char>(byte)); };
    const auto isInRange = [&](__m128i value, char from, char to) {
        const __m128i distance = _mm_sub_epi8(value, all(from));
        return _mm_cmpeq_epi8(_mm_min_epu8(distance, all(to - from)), distance);
    };
    __m128i found = _mm_or_si128(isInRange(lower, 'a', 'z'), isInRange(bytes, '0', '9'));
    for (const char16_t c : TextView(u"äöü")) found = _mm_or_si128(found, _mm_cmpeq_epi8(lower, all(c)));
    for (const char16_t c : TextView(u"_ß")) found = _mm_or_si128(found, _mm_cmpeq_epi8(bytes, all(c)));
    return static_cast<std::uint32_t>(_mm_movemask_epi8(found));
}

#else

void PackBlock(const char16_t* block, std::uint64_t (&packed)[2]) {
    packed[0] = packed[1] = 0;
    for (std::size_t i = 0; i < kBlock; ++i) {
        packed[i / 8] |= static_cast<std::uint64_t>(block[i] & 0xFF) << (8 * (i % 8));
    }
}

std::uint32_t PlacesOfIndexCharacters(const char16_t* block) {
    std::uint32_t places = 0;
    for (std::size_t i = 0; i < kBlock; ++i) places |= static_cast<std::uint32_t>(IsIndexCharacter(block[i])) << i;
    return places;
}

#endif

// Calls `visit` with begin and end of every run of the index's characters. A change from one side of a run's border to
// the other is a bit that differs from the one in front of it.
template <class Visit>
void ForEachWord(TextView text, Visit visit) {
    std::uint32_t inWord = 0;  // 1 where the last character belongs to a word
    std::size_t begin = 0;
    const auto visitBorders = [&](std::size_t offset, std::uint32_t places) {
        for (std::uint32_t borders = (places ^ (places << 1 | inWord)) & 0xFFFF; borders != 0; borders &= borders - 1) {
            const std::size_t place = offset + static_cast<std::size_t>(std::countr_zero(borders));
            if (inWord != 0) visit(begin, place);
            begin = place;
            inWord ^= 1;
        }
    };
    std::size_t i = 0;
    for (; i + kBlock <= text.size(); i += kBlock) visitBorders(i, PlacesOfIndexCharacters(text.data() + i));
    char16_t rest[kBlock] = {};
    std::copy(text.begin() + static_cast<std::ptrdiff_t>(i), text.end(), rest);
    visitBorders(i, PlacesOfIndexCharacters(rest));
    if (inWord != 0) visit(begin, text.size());
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

    constexpr std::uint64_t kCharactersPerWord = 6;
    std::vector<std::uint32_t> ids;  // of the words in order
    ids.reserve(characters / kCharactersPerWord);
    for (const TextView text : texts) {
        ForEachWord(text, [&](std::size_t begin, std::size_t end) {
            const TextView word = text.substr(begin, end - begin);
            const bool isFarFromEnd = begin + kPacked <= text.size();
            ids.push_back(IdOf(isFarFromEnd ? KeyOf(word.data(), word.size()) : KeyOf(word)));
        });
    }

    // Counting sort by word: stable, so the places of each word come out in order. To find the words a second time
    // costs less than memory for their places.
    starts_.assign(words_ + 1, 0);
    for (const std::uint32_t id : ids) ++starts_[id + 1];
    for (std::size_t id = 0; id < words_; ++id) starts_[id + 1] += starts_[id];
    std::vector<std::uint32_t> next(starts_.begin(), starts_.end() - 1);
    places_.resize(ids.size());
    auto id = ids.begin();
    for (std::size_t module = 0; module < texts.size(); ++module) {
        ForEachWord(texts[module], [&](std::size_t begin, std::size_t) {
            places_[next[*id++]++] = moduleStarts_[module] + static_cast<Place>(begin);
        });
    }
}

// At least kPacked characters can be read from `word` on, whatever its length.
WordIndex::Key WordIndex::KeyOf(const char16_t* word, std::size_t length) {
    Key key;
    std::uint64_t packed[2];
    PackBlock(word, packed);
    const std::size_t used = std::min(length, kPacked);
    key.low = packed[0] & kFirstBytes[std::min(used, kPacked / 2)];
    key.high = packed[1] & kFirstBytes[std::max(used, kPacked / 2) - kPacked / 2];
    key.text = word;
    key.length = static_cast<std::uint32_t>(length);
    return key;
}

WordIndex::Key WordIndex::KeyOf(TextView word) {
    char16_t padded[kPacked] = {};
    if (word.size() >= kPacked) return KeyOf(word.data(), word.size());
    std::copy(word.begin(), word.end(), padded);
    Key key = KeyOf(padded, word.size());
    key.text = word.data();
    return key;
}

bool WordIndex::AreEqual(const Key& a, const Key& b) {
    if (a.low != b.low || a.high != b.high || a.length != b.length) return false;
    return a.length <= kPacked || IsSame({a.text, a.length}, {b.text, b.length});
}

std::uint32_t WordIndex::HashOf(const Key& key) {
    constexpr std::uint64_t kMultiplier = 0x9E3779B97F4A7C15;
    std::uint64_t hash = (key.low ^ key.length) * kMultiplier;
    hash = (hash ^ (hash >> 32) ^ key.high) * kMultiplier;
    for (std::size_t i = kPacked; i < key.length; ++i) hash = (hash ^ key.text[i]) * kMultiplier;
    return static_cast<std::uint32_t>(hash >> 32);
}

std::uint32_t WordIndex::IdOf(const Key& key) {
    const std::size_t mask = slots_.size() - 1;
    for (std::size_t i = HashOf(key) & mask;; i = (i + 1) & mask) {
        Slot& slot = slots_[i];
        if (slot.id != kNoWord) {
            if (AreEqual(slot.key, key)) return slot.id;
            continue;
        }
        slot = {key, words_++};
        if (2 * words_ <= slots_.size()) return slot.id;
        Grow();
        return words_ - 1;
    }
}

void WordIndex::Grow() {
    std::vector<Slot> old(4 * slots_.size(), Slot{{}, kNoWord});
    old.swap(slots_);
    const std::size_t mask = slots_.size() - 1;
    for (const Slot& slot : old) {
        if (slot.id == kNoWord) continue;
        std::size_t i = HashOf(slot.key) & mask;
        while (slots_[i].id != kNoWord) i = (i + 1) & mask;
        slots_[i] = slot;
    }
}

std::span<const Place> WordIndex::PlacesOf(TextView word) const {
    if (!std::all_of(word.begin(), word.end(), IsIndexCharacter)) return {};
    const Key key = KeyOf(word);
    const std::size_t mask = slots_.size() - 1;
    for (std::size_t i = HashOf(key) & mask; slots_[i].id != kNoWord; i = (i + 1) & mask) {
        if (!AreEqual(slots_[i].key, key)) continue;
        const std::uint32_t id = slots_[i].id;
        return std::span(places_).subspan(starts_[id], starts_[id + 1] - starts_[id]);
    }
    return {};
}

std::span<const Place> WordIndex::PlacesOf(TextView word, std::size_t module, std::uint32_t fromOffset) const {
    if (word.empty()) return {};
    Search& search = searches_[(word.front() + word.size()) % searches_.size()];
    if (!IsSame(search.word, word)) search = {Text(word), PlacesOf(word), 0};
    const std::span<const Place> all = search.places;
    const Place from = moduleStarts_[module] + fromOffset;
    std::size_t passed = search.passed;
    const bool goesOn = passed == 0 || all[passed - 1] < from;
    if (goesOn && passed < all.size() && all[passed] < from) ++passed;
    if (!goesOn || (passed < all.size() && all[passed] < from)) {
        passed = static_cast<std::size_t>(std::lower_bound(all.begin(), all.end(), from) - all.begin());
    }
    search.passed = passed;
    return all.subspan(passed);
}

std::size_t WordIndex::ModuleOf(Place place) const {
    const auto behind = std::upper_bound(moduleStarts_.begin(), moduleStarts_.end() - 1, place);
    return static_cast<std::size_t>(behind - moduleStarts_.begin()) - 1;
}

}  // namespace zentlor
