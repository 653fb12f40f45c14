// The characters of a word have one byte each, so that those of nearly every word fit into two numbers; only longer
// words are compared character by character.

#include "core/analysis/words.h"

#include <algorithm>
#include <array>
#include <bit>
#include <tuple>
#include <utility>

#include "core/utilities/character_blocks.h"

namespace zentlor {

namespace {

#if defined(__SSE2__)

// The kBlock characters at `block` as bytes, which the characters of the index fit into. Any other one is 0 or 255, and
// neither is one of them.
__m128i BytesOf(const char16_t* block) {
    const __m128i first = _mm_loadu_si128(reinterpret_cast<const __m128i*>(block));
    const __m128i second = _mm_loadu_si128(reinterpret_cast<const __m128i*>(block + kBlock / 2));
    return _mm_packus_epi16(first, second);
}

// The first `count` characters of a block as bytes, at most kBlock, the first one lowest. The others are 0.
std::pair<std::uint64_t, std::uint64_t> Pack(const char16_t* block, std::size_t count) {
    static constexpr std::array<std::uint8_t, 2 * kBlock> kMask = [] {
        std::array<std::uint8_t, 2 * kBlock> mask{};
        std::fill_n(mask.begin(), kBlock, 0xFF);
        return mask;
    }();
    const auto* const mask = reinterpret_cast<const __m128i*>(kMask.data() + kBlock - count);
    const __m128i bytes = _mm_and_si128(BytesOf(block), _mm_loadu_si128(mask));
    return {static_cast<std::uint64_t>(_mm_cvtsi128_si64(bytes)),
            static_cast<std::uint64_t>(_mm_cvtsi128_si64(_mm_unpackhi_epi64(bytes, bytes)))};
}

// The places of the index's characters in the kBlock characters at `block`.
std::uint32_t PlacesOfIndexCharacters(const char16_t* block) {
    const __m128i bytes = BytesOf(block);
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

std::pair<std::uint64_t, std::uint64_t> Pack(const char16_t* block, std::size_t count) {
    std::uint64_t packed[2] = {};
    for (std::size_t i = 0; i < count; ++i) {
        packed[i / 8] |= static_cast<std::uint64_t>(block[i] & 0xFF) << (8 * (i % 8));
    }
    return {packed[0], packed[1]};
}

std::uint32_t PlacesOfIndexCharacters(const char16_t* block) {
    std::uint32_t places = 0;
    for (std::size_t i = 0; i < kBlock; ++i) places |= static_cast<std::uint32_t>(IsIndexCharacter(block[i])) << i;
    return places;
}

#endif

// The borders of the runs of the index's characters, in a text that is read from its start in stretches.
class BorderFinder {
  public:
    static constexpr std::size_t kStretch = 64;
    static constexpr std::size_t kAtOnce = 8;

    /// Writes the borders in the kStretch characters at `stretch`, to which `offset` is added, and says how many there
    /// are. A border is a bit that differs from the one in front of it.
    std::size_t Find(const char16_t* stretch, std::uint32_t offset, std::uint32_t* found) {
        std::uint64_t places = 0;
        for (std::size_t i = 0; i < kStretch; i += kBlock) {
            places |= std::uint64_t{PlacesOfIndexCharacters(stretch + i)} << i;
        }
        const std::uint64_t borders = places ^ (places << 1 | lastPlace_);
        lastPlace_ = places >> (kStretch - 1);
        return WritePlaces<kAtOnce>(borders, offset, found);
    }

  private:
    std::uint64_t lastPlace_ = 0;  // 1 where the last character belongs to a word
};

// Calls `visit` with begin and end of every run of the index's characters. The borders of many stretches are found
// before the words between them are looked at: short loops end where no processor expects it.
template <class Visit>
void ForEachWord(TextView text, Visit visit) {
    constexpr std::size_t kStretches = 32;
    std::array<std::uint32_t, kStretches * BorderFinder::kStretch + BorderFinder::kAtOnce + 1> borders;
    std::size_t count = 0;
    BorderFinder finder;
    const auto find = [&](const char16_t* stretch, std::size_t offset) {
        count += finder.Find(stretch, static_cast<std::uint32_t>(offset), borders.data() + count);
    };
    const auto visitWords = [&] {
        for (std::size_t i = 0; i + 1 < count; i += 2) visit(borders[i], borders[i + 1]);
        if (count % 2 != 0) borders[0] = borders[count - 1];  // of a word whose end is not found yet
        count %= 2;
    };
    std::size_t at = 0;
    while (at + BorderFinder::kStretch <= text.size()) {
        for (std::size_t i = 0; i < kStretches && at + BorderFinder::kStretch <= text.size(); ++i) {
            find(text.data() + at, at);
            at += BorderFinder::kStretch;
        }
        visitWords();
    }
    char16_t rest[BorderFinder::kStretch] = {};
    std::copy(text.begin() + static_cast<std::ptrdiff_t>(at), text.end(), rest);
    find(rest, at);
    visitWords();
}

std::size_t CountWords(TextView text) {
    std::size_t count = 0;
    ForEachWord(text, [&](std::uint32_t, std::uint32_t) { ++count; });
    return count;
}

}  // namespace

WordTable::Key WordTable::KeyOf(TextView word) {
    Key key;
    const std::size_t half = kPacked / 2;
    for (std::size_t i = 0; i < std::min(word.size(), half); ++i) key.low |= std::uint64_t{word[i]} << (8 * i);
    for (std::size_t i = half; i < std::min(word.size(), kPacked); ++i) {
        key.high |= std::uint64_t{word[i]} << (8 * (i - half));
    }
    return key;
}

inline std::uint32_t WordTable::HashOf(Key key, TextView word) {
    constexpr std::uint64_t kMultiplier = 0x9E3779B97F4A7C15;
    std::uint64_t hash = key.low * kMultiplier;
    hash = (hash ^ (hash >> 32) ^ key.high) * kMultiplier;
    for (std::size_t i = kPacked; i < word.size(); ++i) hash = (hash ^ word[i]) * kMultiplier;
    return static_cast<std::uint32_t>(hash >> 32) | kUsed;
}

// No character of a word is 0: shorter words of different length differ in their keys.
inline bool WordTable::Holds(Slot slot, std::uint32_t hash, Key key, TextView word) const {
    if (slot.hash != hash) return false;
    const Key& known = keys_[slot.number];
    if (word.size() < kPacked) return known == key;
    return known.high == kLong && IsSame(longWords_[known.low], word);
}

// The slot of the word, or the free one where it belongs.
inline std::size_t WordTable::SlotOf(std::uint32_t hash, Key key, TextView word) const {
    const std::size_t mask = slots_.size() - 1;
    std::size_t i = hash & mask;
    while (slots_[i].number != kNoWord && !Holds(slots_[i], hash, key, word)) i = (i + 1) & mask;
    return i;
}

inline std::uint32_t WordTable::NumberOf(Key key, TextView word) {
    const std::uint32_t hash = HashOf(key, word);
    const std::size_t slot = SlotOf(hash, key, word);
    const std::uint32_t number = slots_[slot].number;
    return number != kNoWord ? number : Enter(slot, hash, key, word);
}

std::uint32_t WordTable::Enter(std::size_t slot, std::uint32_t hash, Key key, TextView word) {
    const std::uint32_t number = Size();
    if (word.size() >= kPacked) {
        key = {longWords_.size(), kLong};
        longWords_.push_back(store_.Keep(word));
    }
    keys_.push_back(key);
    slots_[slot] = {hash, number};
    if (2 * keys_.size() > slots_.size()) Grow();
    return number;
}

void WordTable::Grow() {
    std::vector<Slot> old(2 * slots_.size());
    old.swap(slots_);
    const std::size_t mask = slots_.size() - 1;
    for (const Slot& slot : old) {
        if (slot.number == kNoWord) continue;
        std::size_t i = slot.hash & mask;
        while (slots_[i].number != kNoWord) i = (i + 1) & mask;
        slots_[i] = slot;
    }
}

std::uint32_t WordTable::Find(TextView word) const {
    const LeadingWord found = FindLeading(word);
    return found.length == word.size() ? found.number : kNoWord;
}

LeadingWord WordTable::FindLeading(TextView target) const {
    Key key;
    std::size_t length = 0;
    const auto pack = [&](std::uint64_t& half, std::size_t end) {
        for (int shift = 0; length < end && IsIndexCharacter(target[length]); shift += 8) {
            half |= std::uint64_t{target[length++]} << shift;
        }
    };
    pack(key.low, std::min(target.size(), kPacked / 2));
    if (length == kPacked / 2) pack(key.high, std::min(target.size(), kPacked));
    if (length == 0) return {};
    while (length >= kPacked && length < target.size() && IsIndexCharacter(target[length])) ++length;
    const TextView word = target.substr(0, length);
    return {length, slots_[SlotOf(HashOf(key, word), key, word)].number};
}

Text WordTable::SpellingOf(std::uint32_t number) const {
    const Key& key = keys_[number];
    if (key.high == kLong) return Text(longWords_[key.low]);
    Text word;
    for (std::uint64_t rest = key.low; rest != 0; rest >>= 8) word += static_cast<char16_t>(rest & 0xFF);
    for (std::uint64_t rest = key.high; rest != 0; rest >>= 8) word += static_cast<char16_t>(rest & 0xFF);
    return word;
}

char16_t WordTable::LastCharacterOf(std::uint32_t number) const {
    const Key& key = keys_[number];
    if (key.high == kLong) return longWords_[key.low].back();
    const std::uint64_t half = key.high != 0 ? key.high : key.low;
    return static_cast<char16_t>(half >> ((std::bit_width(half) - 1) / 8 * 8));
}

std::vector<WordWithEnding> WordTable::EndingIn(TextView ending) const {
    std::vector<WordWithEnding> words;
    for (std::uint32_t number = 0; number < Size(); ++number) {
        if (LastCharacterOf(number) != ending.back()) continue;
        const Text word = SpellingOf(number);
        if (word.ends_with(ending)) words.push_back({number, static_cast<std::uint32_t>(word.size() - ending.size())});
    }
    return words;
}

// Nearly every word of a text is a short one that the table holds where its hash leads. This is the loop for these.
std::vector<WordPlace> WordTable::Read(TextView text, std::uint32_t most) {
    constexpr std::size_t kCharactersPerWord = 6;  // of the code that people write; other code is counted
    std::vector<WordPlace> places;
    places.reserve(text.size() / kCharactersPerWord);
    std::array<WordPlace, 512> piece;
    std::size_t taken = 0;
    const auto keepPiece = [&](std::size_t next) {
        if (places.capacity() - places.size() < taken) {
            places.reserve(places.size() + taken + CountWords(text.substr(next)));
        }
        places.insert(places.end(), piece.begin(), piece.begin() + static_cast<std::ptrdiff_t>(taken));
        taken = 0;
    };
    const Slot* slots = slots_.data();
    std::size_t mask = slots_.size() - 1;
    const std::size_t endOfBlocks = std::max(text.size() + 1, kPacked) - kPacked;  // behind the last one's beginning
    ForEachWord(text, [&](std::uint32_t begin, std::uint32_t end) {
        const std::size_t length = end - begin;
        const bool isShort = length < kPacked && begin < endOfBlocks;
        Key key;
        if (isShort) std::tie(key.low, key.high) = Pack(text.data() + begin, length);
        const std::uint32_t hash = HashOf(key, {});
        const Slot slot = slots[hash & mask];
        std::uint32_t number = slot.number;
        if (!isShort || slot.hash != hash || keys_[number] != key) {
            if (Size() >= most) return;
            const TextView word = text.substr(begin, length);
            number = NumberOf(isShort ? key : KeyOf(word), word);
            slots = slots_.data();
            mask = slots_.size() - 1;
        }
        piece[taken++] = {begin, number};
        if (taken == piece.size()) keepPiece(end);
    });
    keepPiece(text.size());
    places.shrink_to_fit();
    return places;
}

}  // namespace zentlor
