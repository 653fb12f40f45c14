#pragma once

// Looking at sixteen characters at a time. What is asked of each of them comes back as the bits of a number, the first
// character's in bit 0. On processors with SSE2 a few vector instructions answer, elsewhere a loop.

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

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

/// Calls `visit` with the offset of every `wanted` in `text`.
template <class Visit>
void ForEachPlace(TextView text, char16_t wanted, Visit visit) {
    std::size_t i = 0;
    for (; i + kBlock <= text.size(); i += kBlock) {
        for (std::uint32_t places = PlacesOf(wanted, text.data() + i); places != 0; places &= places - 1) {
            visit(i + static_cast<std::size_t>(std::countr_zero(places)));
        }
    }
    for (; i < text.size(); ++i) {
        if (text[i] == wanted) visit(i);
    }
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
