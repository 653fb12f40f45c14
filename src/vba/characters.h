#pragma once

// What a single character means to the tokenizer. ASCII is looked up in a table; outside of it full-width forms count
// as the ASCII characters they stand for ([MS-VBAL] 3.1), the blanks of Unicode as blanks, and nearly everything else
// may be part of a name, as the editor's code pages allow "§" and "€" beside the letters. So may the codes of U+0080 to
// U+009F: where they come up, a letter of another code page was read as one of Windows-1252.

#include <array>
#include <cstdint>

namespace zentlor::vba {

enum CharacterTrait : std::uint8_t {
    kBlank = 1,      ///< Blank, tab, carriage return of a foreign line end, DOS end mark; never the line feed.
    kNameStart = 2,  ///< A letter.
    kNamePart = 4,   ///< A letter, a digit or "_".
    kDigit = 8,
    kHexDigit = 16,
    kTypeMark = 32,  ///< One of "%&^!#@$", which tell a name's or a number's type.
};

constexpr std::array<std::uint8_t, 128> MakeCharacterTable() {
    std::array<std::uint8_t, 128> table{};
    for (char16_t blank : {u' ', u'\t', u'\r', u'\v', u'\f', u'\x1A'}) table[blank] = kBlank;
    for (char16_t c = u'0'; c <= u'9'; ++c) table[c] = kNamePart | kDigit | kHexDigit;
    for (char16_t c = u'a'; c <= u'z'; ++c) {
        const std::uint8_t hex = c <= u'f' ? kHexDigit : 0;
        table[c] = kNameStart | kNamePart | hex;
        table[c - u'a' + u'A'] = table[c];
    }
    table[u'_'] = kNamePart;
    for (char16_t mark : {u'%', u'&', u'^', u'!', u'#', u'@', u'$'}) table[mark] = kTypeMark;
    return table;
}

inline constexpr std::array<std::uint8_t, 128> kCharacterTable = MakeCharacterTable();

/// The ASCII character that a full-width form or a wide blank stands for; other characters are themselves. The
/// full-width quotation mark and apostrophe stand for nothing: only the ASCII ones open a string or a comment.
constexpr char16_t FoldWidth(char16_t c) {
    if (c < 0xA0) return c;
    if (c == 0xFF02 || c == 0xFF07) return c;
    if (c >= 0xFF01 && c <= 0xFF5E) return static_cast<char16_t>(c - 0xFEE0);
    const bool isBlank = c == 0xA0 || (c >= 0x2000 && c <= 0x200A) || c == 0x202F || c == 0x205F || c == 0x3000;
    return isBlank ? u' ' : c;
}

/// The traits of a character outside of ASCII.
constexpr std::uint8_t WideTraits(char16_t c) {
    const char16_t folded = FoldWidth(c);
    if (folded < 128) return kCharacterTable[folded];
    const bool isControl = c == 0xFEFF || c == 0x2028 || c == 0x2029;
    const bool isQuotationMark = (c >= 0x2018 && c <= 0x201F) || c == 0xFF02 || c == 0xFF07;
    return isControl || isQuotationMark ? 0 : kNameStart | kNamePart;
}

constexpr bool HasTrait(char16_t c, std::uint8_t traits) {
    return ((c < 128 ? kCharacterTable[c] : WideTraits(c)) & traits) != 0;
}

constexpr char16_t LowerAscii(char16_t c) {
    return c >= u'A' && c <= u'Z' ? static_cast<char16_t>(c | 0x20) : c;
}
constexpr char16_t UpperAscii(char16_t c) {
    return c >= u'a' && c <= u'z' ? static_cast<char16_t>(c & ~0x20) : c;
}

}  // namespace zentlor::vba
