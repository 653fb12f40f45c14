#include "core/utilities/text.h"

#include <algorithm>
#include <bit>
#include <cstdint>

#include "core/utilities/character_blocks.h"

namespace zentlor {

namespace {

constexpr char16_t kBlank = u' ';

bool InRange(char16_t c, char16_t first, char16_t last) {
    return first <= c && c <= last;
}

// Blocks of the basic plane that hold no letters and no digits: controls, punctuation, symbols, private use. What lies
// in none of them counts as a letter, so that a script nobody thought of does not break words apart.
bool IsSymbolOutsideAscii(char16_t c) {
    if (c < 0x00C0) return c != 0x00AA && c != 0x00B5 && c != 0x00BA;
    return c == 0x00D7 || c == 0x00F7 || InRange(c, 0x02C2, 0x02DF) || InRange(c, 0x0300, 0x036F) ||
           InRange(c, 0x2000, 0x206F) || InRange(c, 0x20A0, 0x20FF) || InRange(c, 0x2190, 0x2BFF) ||
           InRange(c, 0x2E00, 0x2E7F) || InRange(c, 0x3000, 0x3004) || InRange(c, 0x3008, 0x3020) ||
           InRange(c, 0xD800, 0xF8FF) || InRange(c, 0xFE00, 0xFE6F) || InRange(c, 0xFF00, 0xFF0F) ||
           InRange(c, 0xFF1A, 0xFF20) || InRange(c, 0xFF3B, 0xFF3E) || c == 0xFF40 || InRange(c, 0xFF5B, 0xFF65) ||
           c >= 0xFFE0;
}

}  // namespace

TextView LTrim(TextView text) {
    return text.substr(SkipSpaces(text, 0));
}

TextView RTrim(TextView text) {
    while (!text.empty() && text.back() == kBlank) text.remove_suffix(1);
    return text;
}

TextView Trim(TextView text) {
    return LTrim(RTrim(text));
}

int InStr(int start, TextView text, TextView needle) {
    const auto found = text.find(needle, static_cast<std::size_t>(std::max(start, 1) - 1));
    return found == TextView::npos ? 0 : static_cast<int>(found) + 1;
}

int InStr(int start, TextView text, char16_t needle) {
    const std::size_t found = FindCharacter(text, static_cast<std::size_t>(std::max(start, 1) - 1), needle);
    return found == text.size() ? 0 : static_cast<int>(found) + 1;
}

TextView Mid(TextView text, int start, int length) {
    if (start < 1 || start > Len(text) || length < 1) return {};
    return text.substr(static_cast<std::size_t>(start - 1), static_cast<std::size_t>(length));
}

TextView Mid(TextView text, int start) {
    return Mid(text, start, Len(text));
}

std::size_t FindCharacter(TextView text, std::size_t from, char16_t wanted) {
    return FindAny(text, from, wanted);
}

std::size_t FindText(TextView text, std::size_t from, TextView target) {
    if (target.size() == 1) return FindCharacter(text, from, target.front());
    // First and last character tell nearly all other places apart from those of the target.
    const std::size_t last = target.size() - 1;
    std::size_t i = from;
    for (; i + last + kBlock <= text.size(); i += kBlock) {
        std::uint32_t places = PlacesOfPair(target.front(), target.back(), last, text.data() + i);
        for (; places != 0; places &= places - 1) {
            const std::size_t place = i + static_cast<std::size_t>(std::countr_zero(places));
            if (IsSame(text.substr(place, target.size()), target)) return place;
        }
    }
    return std::min(text.find(target, i), text.size());
}

Text ToText(long long number) {
    const std::string digits = std::to_string(number);
    return Text(digits.begin(), digits.end());
}

Text ReplaceAll(TextView text, TextView from, TextView to) {
    Text result;
    std::size_t position = 0;
    for (auto hit = from.empty() ? TextView::npos : text.find(from); hit != TextView::npos;
         hit = text.find(from, position)) {
        result.append(text.substr(position, hit - position)).append(to);
        position = hit + from.size();
    }
    return result.append(text.substr(position));
}

bool IsWordCharacterOutsideAscii(char16_t c) {
    return !IsSymbolOutsideAscii(c);
}

char16_t FoldCaseOutsideAscii(char16_t c) {
    const bool plus32 = (InRange(c, 0x00C0, 0x00DE) && c != 0x00D7) || (InRange(c, 0x0391, 0x03A9) && c != 0x03A2) ||
                        InRange(c, 0x0410, 0x042F) || InRange(c, 0xFF21, 0xFF3A);
    if (plus32) return static_cast<char16_t>(c + 32);
    if (InRange(c, 0x0400, 0x040F)) return static_cast<char16_t>(c + 80);
    if (c == 0x0178) return 0x00FF;
    const bool oddIsLower = InRange(c, 0x0139, 0x0148) || InRange(c, 0x0179, 0x017E);
    if (oddIsLower) return (c & 1) != 0 ? static_cast<char16_t>(c + 1) : c;
    const bool evenIsUpper = InRange(c, 0x0100, 0x0137) || InRange(c, 0x014A, 0x0177) || InRange(c, 0x0460, 0x0481) ||
                             InRange(c, 0x048A, 0x04BF) || InRange(c, 0x04D0, 0x052F);
    return evenIsUpper && c != 0x0130 ? static_cast<char16_t>(c | 1) : c;
}

bool EqualIgnoringCase(TextView a, TextView b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](char16_t x, char16_t y) { return x == y || FoldCase(x) == FoldCase(y); });
}

}  // namespace zentlor
