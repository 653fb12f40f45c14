#pragma once

// Looking at sixteen characters at a time. What is asked of each of them comes back as the bits of a number, the first
// character's in bit 0. On processors with SSE2 a few vector instructions answer, elsewhere a loop.

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>

#include "core/utilities/text.h"

namespace zentlor {

constexpr std::size_t kBlock = 16;

#if defined(__SSE2__)

/// The places of `wanted` in the kBlock characters at `block`.
inline std::uint32_t PlacesOf(char16_t wanted, const char16_t* block) {
    const __m128i pattern = _mm_set1_epi16(static_cast<short>(wanted));
    const __m128i first = _mm_loadu_si128(reinterpret_cast<const __m128i*>(block));
    const __m128i second = _mm_loadu_si128(reinterpret_cast<const __m128i*>(block + kBlock / 2));
    const __m128i equal = _mm_packs_epi16(_mm_cmpeq_epi16(first, pattern), _mm_cmpeq_epi16(second, pattern));
    return static_cast<std::uint32_t>(_mm_movemask_epi8(equal));
}

/// The places of `first` in the kBlock characters at `block` that have `last`, `distance` characters behind them.
inline std::uint32_t PlacesOfPair(char16_t first, char16_t last, std::size_t distance, const char16_t* block) {
    const __m128i firsts = _mm_set1_epi16(static_cast<short>(first));
    const __m128i lasts = _mm_set1_epi16(static_cast<short>(last));
    const auto look = [&](const char16_t* half) {
        const __m128i here = _mm_loadu_si128(reinterpret_cast<const __m128i*>(half));
        const __m128i there = _mm_loadu_si128(reinterpret_cast<const __m128i*>(half + distance));
        return _mm_and_si128(_mm_cmpeq_epi16(here, firsts), _mm_cmpeq_epi16(there, lasts));
    };
    return static_cast<std::uint32_t>(_mm_movemask_epi8(_mm_packs_epi16(look(block), look(block + kBlock / 2))));
}

/// The places of the letter `wanted`, a small one of ASCII, and of its capital.
inline std::uint32_t PlacesOfLetter(char16_t wanted, const char16_t* block) {
    const __m128i pattern = _mm_set1_epi16(static_cast<short>(wanted));
    const __m128i small = _mm_set1_epi16(0x20);
    const __m128i first = _mm_loadu_si128(reinterpret_cast<const __m128i*>(block));
    const __m128i second = _mm_loadu_si128(reinterpret_cast<const __m128i*>(block + kBlock / 2));
    const __m128i equal = _mm_packs_epi16(_mm_cmpeq_epi16(_mm_or_si128(first, small), pattern),
                                          _mm_cmpeq_epi16(_mm_or_si128(second, small), pattern));
    return static_cast<std::uint32_t>(_mm_movemask_epi8(equal));
}

#else

inline std::uint32_t PlacesOf(char16_t wanted, const char16_t* block) {
    std::uint32_t places = 0;
    for (std::size_t i = 0; i < kBlock; ++i) places |= static_cast<std::uint32_t>(block[i] == wanted) << i;
    return places;
}

inline std::uint32_t PlacesOfPair(char16_t first, char16_t last, std::size_t distance, const char16_t* block) {
    return PlacesOf(first, block) & PlacesOf(last, block + distance);
}

inline std::uint32_t PlacesOfLetter(char16_t wanted, const char16_t* block) {
    return PlacesOf(wanted, block) | PlacesOf(static_cast<char16_t>(wanted - 0x20), block);
}

#endif

/// How many bits are set. Not every processor of the kind has an instruction for it, and without one the standard's
/// count is a call.
inline std::size_t CountBits(std::uint64_t bits) {
#if defined(__POPCNT__)
    return static_cast<std::size_t>(std::popcount(bits));
#else
    bits -= bits >> 1 & 0x5555555555555555;
    bits = (bits & 0x3333333333333333) + (bits >> 2 & 0x3333333333333333);
    bits = (bits + (bits >> 4)) & 0x0F0F0F0F0F0F0F0F;
    return bits * 0x0101010101010101 >> 56;
#endif
}

/// Writes the numbers of the bits that are set in `bits` to `found`, each with `offset` added, the lowest first, and
/// says how many there are. Writes kAtOnce at a time, since processors guess badly how many there are: what is written
/// behind the last one means nothing.
template <std::size_t kAtOnce>
std::size_t WritePlaces(std::uint64_t bits, std::uint32_t offset, std::uint32_t* found) {
    constexpr std::uint64_t kLast = std::uint64_t{1} << 63;
    const std::size_t count = CountBits(bits);
    for (std::size_t written = 0; written < count; written += kAtOnce) {
        for (std::size_t i = 0; i < kAtOnce; ++i) {
            found[written + i] = offset + static_cast<std::uint32_t>(std::countr_zero(bits | kLast));
            bits &= bits - 1;
        }
    }
    return count;
}

/// Calls `visit` with the offset of every `wanted` in `text`. Finds many of them before the first one is visited: short
/// loops end where no processor expects it.
template <class Visit>
void ForEachPlace(TextView text, char16_t wanted, Visit visit) {
    constexpr std::size_t kStretch = 4 * kBlock;
    constexpr std::size_t kStretches = 32;
    constexpr std::size_t kAtOnce = 4;
    std::array<std::uint32_t, kStretches * kStretch + kAtOnce> places;
    std::size_t at = 0;
    while (at + kStretch <= text.size()) {
        std::size_t count = 0;
        for (std::size_t i = 0; i < kStretches && at + kStretch <= text.size(); ++i, at += kStretch) {
            std::uint64_t bits = 0;
            for (std::size_t k = 0; k < kStretch; k += kBlock) {
                bits |= std::uint64_t{PlacesOf(wanted, text.data() + at + k)} << k;
            }
            count += WritePlaces<kAtOnce>(bits, static_cast<std::uint32_t>(at), places.data() + count);
        }
        for (std::size_t i = 0; i < count; ++i) visit(std::size_t{places[i]});
    }
    for (; at < text.size(); ++at) {
        if (text[at] == wanted) visit(at);
    }
}

/// Offset of the first character at or behind `from` that is no " ", or the text's size. For indentations: that of a
/// line behind another is nothing that a processor can guess.
inline std::size_t SkipIndentation(TextView text, std::size_t from) {
    constexpr std::uint32_t kAll = (1U << kBlock) - 1;
    for (; from + kBlock <= text.size(); from += kBlock) {
        const std::uint32_t others = PlacesOf(u' ', text.data() + from) ^ kAll;
        if (others != 0) return from + static_cast<std::size_t>(std::countr_zero(others));
    }
    return SkipSpaces(text, from);
}

/// Offset of the first of `wanted` at or behind offset `from`, or the text's size.
template <class... Characters>
std::size_t FindAny(TextView text, std::size_t from, Characters... wanted) {
    const auto placesAt = [&](std::size_t block) { return (PlacesOf(wanted, text.data() + block) | ...); };
    std::size_t i = from;
    for (; i + kBlock <= text.size(); i += kBlock) {
        if (const std::uint32_t places = placesAt(i); places != 0) {
            return i + static_cast<std::size_t>(std::countr_zero(places));
        }
    }
    if (i >= text.size()) return text.size();
    if (text.size() >= kBlock) {
        const std::size_t last = text.size() - kBlock;  // a block that begins with characters already looked at
        const std::uint32_t places = placesAt(last) >> (i - last);
        return places == 0 ? text.size() : i + static_cast<std::size_t>(std::countr_zero(places));
    }
    while (i < text.size() && ((text[i] != wanted) && ...)) ++i;
    return i;
}

}  // namespace zentlor
