// A word is found by its first sixteen characters, which fit into two numbers since each of them has one byte; only
// longer words are compared character by character.

#include "core/analysis/words.h"

#include <algorithm>
#include <array>
#include <bit>

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

}  // namespace

bool IsIndexCharacter(char16_t c) {
    return c < 256 && kIndexCharacters[c];
}

WordTable::Key WordTable::KeyOf(const std::uint64_t (&packed)[2], TextView word) {
    const std::size_t used = std::min(word.size(), kPacked);
    Key key;
    key.low = packed[0] & kFirstBytes[std::min(used, kPacked / 2)];
    key.high = packed[1] & kFirstBytes[std::max(used, kPacked / 2) - kPacked / 2];
    key.text = word;
    return key;
}

WordTable::Key WordTable::KeyOf(TextView word) {
    char16_t padded[kPacked] = {};
    std::copy_n(word.begin(), std::min(word.size(), kPacked), padded);
    std::uint64_t packed[2];
    PackBlock(padded, packed);
    return KeyOf(packed, word);
}

std::size_t WordTable::HashOf(const Key& key) {
    constexpr std::uint64_t kMultiplier = 0x9E3779B97F4A7C15;
    std::uint64_t hash = key.low * kMultiplier;
    hash = (hash ^ (hash >> 32) ^ key.high) * kMultiplier;
    for (std::size_t i = kPacked; i < key.text.size(); ++i) hash = (hash ^ key.text[i]) * kMultiplier;
    return hash >> 32;
}

// No character of a word is 0: words of different length differ in their first bytes.
bool WordTable::Holds(const Slot& slot, const Key& key) const {
    if (slot.low != key.low || slot.high != key.high) return false;
    return key.text.size() < kPacked || IsSame(longWords_[slot.number], key.text);
}

// The slot of the word, or the free one where it belongs.
std::size_t WordTable::SlotOf(const Key& key) const {
    const std::size_t mask = slots_.size() - 1;
    std::size_t i = HashOf(key) & mask;
    while (slots_[i].number != kNoWord && !Holds(slots_[i], key)) i = (i + 1) & mask;
    return i;
}

std::uint32_t WordTable::NumberOf(const Key& key) {
    Slot& slot = slots_[SlotOf(key)];
    if (slot.number != kNoWord) return slot.number;
    const std::uint32_t number = Size();
    slot = {key.low, key.high, number};
    longWords_.push_back(key.text.size() < kPacked ? TextView() : store_.Keep(key.text));
    if (2 * longWords_.size() > slots_.size()) Grow();
    return number;
}

void WordTable::Grow() {
    std::vector<Slot> old(4 * slots_.size());
    old.swap(slots_);
    const std::size_t mask = slots_.size() - 1;
    for (const Slot& slot : old) {
        if (slot.number == kNoWord) continue;
        std::size_t i = HashOf({slot.low, slot.high, longWords_[slot.number]}) & mask;
        while (slots_[i].number != kNoWord) i = (i + 1) & mask;
        slots_[i] = slot;
    }
}

std::uint32_t WordTable::Find(TextView word) const {
    if (word.empty() || !std::all_of(word.begin(), word.end(), IsIndexCharacter)) return kNoWord;
    return slots_[SlotOf(KeyOf(word))].number;
}

std::vector<WordPlace> WordTable::Read(TextView text) {
    constexpr std::size_t kCharactersPerWord = 6;
    std::vector<WordPlace> places;
    places.reserve(text.size() / kCharactersPerWord);
    ForEachWord(text, [&](std::size_t begin, std::size_t end) {
        const TextView word = text.substr(begin, end - begin);
        if (begin + kPacked > text.size()) {
            places.push_back({static_cast<std::uint32_t>(begin), NumberOf(KeyOf(word))});
            return;
        }
        std::uint64_t packed[2];
        PackBlock(word.data(), packed);
        places.push_back({static_cast<std::uint32_t>(begin), NumberOf(KeyOf(packed, word))});
    });
    return places;
}

}  // namespace zentlor
