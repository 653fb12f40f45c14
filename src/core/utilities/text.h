#pragma once

// The text type of the whole program, and the few operations of the host language that the logic is written in:
// columns count from 1 and are UTF-16 code units, trimming removes the blank U+0020 and nothing else, and a search that
// finds nothing answers 0.

#include <cstring>
#include <string>
#include <string_view>

namespace zentlor {

using Text = std::u16string;
using TextView = std::u16string_view;

/// `text` without the blanks U+0020 at its start.
TextView LTrim(TextView text);
/// `text` without the blanks U+0020 at its end.
TextView RTrim(TextView text);
/// `text` without the blanks U+0020 at both ends. Tabs and other white space stay.
TextView Trim(TextView text);

/// The column of the first `needle` in `text` at or behind column `start`, or 0. `start` below 1 counts as 1.
int InStr(int start, TextView text, TextView needle);
int InStr(int start, TextView text, char16_t needle);

/// The `length` characters of `text` from column `start` on, fewer where the text ends; empty for `start` behind the
/// end. Columns in front of the text hold nothing: a `start` below 1 gives the empty text.
TextView Mid(TextView text, int start, int length);
TextView Mid(TextView text, int start);

/// The number of characters, in the signed form in which columns are kept.
inline int Len(TextView text) {
    return static_cast<int>(text.size());
}

/// Offset of the first `wanted` at or behind offset `from`, or the text's size. The searches over whole modules rest on
/// it, so it looks at several characters at a time.
std::size_t FindCharacter(TextView text, std::size_t from, char16_t wanted);
/// The same for a `target` of one character and more.
std::size_t FindText(TextView text, std::size_t from, TextView target);

/// Offset of the first character at or behind offset `from` that is no " ", or the text's size.
inline std::size_t SkipSpaces(TextView text, std::size_t from) {
    constexpr std::size_t kStep = 4;
    while (from + kStep <= text.size() && std::memcmp(text.data() + from, u"    ", kStep * sizeof(char16_t)) == 0) {
        from += kStep;
    }
    while (from < text.size() && text[from] == u' ') ++from;
    return from;
}

/// `a == b`, quicker for words: the standard's comparison of this type of text goes character by character.
inline bool IsSame(TextView a, TextView b) {
    return a.size() == b.size() && (a.empty() || std::memcmp(a.data(), b.data(), a.size() * sizeof(char16_t)) == 0);
}

/// `number` in decimal, without blanks.
Text ToText(long long number);

/// `text` with every `from` replaced by `to`, from the first character on. An empty `from` changes nothing.
Text ReplaceAll(TextView text, TextView from, TextView to);

/// Letters, digits and "_" in the sense of a whole-word search: every letter and digit of Unicode's basic plane.
bool IsWordCharacterOutsideAscii(char16_t c);
inline bool IsWordCharacter(char16_t c) {
    if (c >= 0x80) return IsWordCharacterOutsideAscii(c);
    const char16_t lower = c | 0x20;
    return (lower >= u'a' && lower <= u'z') || (c >= u'0' && c <= u'9') || c == u'_';
}

/// Simple lower case of one code unit, for comparisons that ignore case: Latin, Greek and Cyrillic letters; all other
/// characters are themselves.
char16_t FoldCaseOutsideAscii(char16_t c);
inline char16_t FoldCase(char16_t c) {
    if (c >= 0x80) return FoldCaseOutsideAscii(c);
    return c >= u'A' && c <= u'Z' ? static_cast<char16_t>(c | 0x20) : c;
}
bool EqualIgnoringCase(TextView a, TextView b);

}  // namespace zentlor
