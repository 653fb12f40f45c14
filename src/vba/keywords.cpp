// A word is looked up in a table of 1024 slots by its length and its first, second and last letter, which tells nearly
// all names apart from all keywords before a single further letter is compared.

#include "vba/keywords.h"

#include <array>
#include <cstddef>

#include "vba/characters.h"

namespace zentlor::vba {
namespace {

enum class WordClass : std::uint8_t { Reserved, BuiltIn, Contextual };

struct Row {
    TextView spelling;
    WordClass wordClass;
};

constexpr Row kRows[] = {
    {u"", WordClass::Contextual},
#define KEYWORD(word, wordClass) {u## #word, WordClass::wordClass},
#include "vba/keywords.def"
#undef KEYWORD
};

constexpr std::size_t kSlots = 1024;
constexpr std::size_t kShortest = 2;
constexpr std::size_t kLongest = 10;

constexpr std::size_t SlotOf(TextView word) {
    const std::size_t first = word.front() | 0x20;
    const std::size_t second = word[1] | 0x20;
    const std::size_t last = word.back() | 0x20;
    return (first * 37 + second * 5 + last * 149 + word.size() * 71) % kSlots;
}

constexpr std::array<std::uint8_t, kSlots> MakeSlots() {
    std::array<std::uint8_t, kSlots> slots{};
    for (std::size_t row = 1; row < std::size(kRows); ++row) {
        std::size_t slot = SlotOf(kRows[row].spelling);
        while (slots[slot] != 0) slot = (slot + 1) % kSlots;
        slots[slot] = static_cast<std::uint8_t>(row);
    }
    return slots;
}

static_assert(std::size(kRows) <= 256);
constexpr std::array<std::uint8_t, kSlots> kSlotRows = MakeSlots();

bool EqualLetters(TextView spelling, TextView word) {
    if (spelling.size() != word.size()) return false;
    for (std::size_t i = 0; i < word.size(); ++i) {
        if ((spelling[i] | 0x20) != (word[i] | 0x20)) return false;
    }
    return true;
}

}  // namespace

Keyword FindKeyword(TextView word) {
    if (word.size() < kShortest || word.size() > kLongest) return Keyword::None;
    for (std::size_t slot = SlotOf(word); kSlotRows[slot] != 0; slot = (slot + 1) % kSlots) {
        if (EqualLetters(kRows[kSlotRows[slot]].spelling, word)) return static_cast<Keyword>(kSlotRows[slot]);
    }
    return Keyword::None;
}

TextView Spelling(Keyword keyword) {
    return kRows[static_cast<std::size_t>(keyword)].spelling;
}

bool IsReserved(Keyword keyword) {
    return kRows[static_cast<std::size_t>(keyword)].wordClass == WordClass::Reserved;
}

bool IsContextual(Keyword keyword) {
    return keyword != Keyword::None && kRows[static_cast<std::size_t>(keyword)].wordClass == WordClass::Contextual;
}

}  // namespace zentlor::vba
