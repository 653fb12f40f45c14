// Which code page a text is in that does not say so. Text of single bytes must never be taken for one of double bytes.

#include "readers/double_byte.h"

#include <gtest/gtest.h>

namespace zentlor::test {
namespace {

struct Row {
    const char* why;
    const char* bytes;
    int codePage;
};

constexpr Row kRows[] = {
    {"ASCII", "Sub A()\r\nEnd Sub", 0},
    {"Japanese: a button's procedure, with { and ^ in it",
     "Sub \x83{\x83^\x83\x93"
     "1_Click()",
     932},
    {"Japanese: hiragana", "' \x82\xB1\x82\xEA", 932},
    {"Japanese: kanji with a byte that Windows-1252 does not assign", "Dim \x90\x94", 932},
    {"Japanese: kanji with a backslash", "Dim \x95\x5C\x8E\xA6", 932},
    {"Japanese: half-width kana in between", "Dim \xB1\xB2 ' \x83\x5C\x81\x5B", 932},
    {"Japanese, broken off", "Dim \x83\x5C\x83", 0},
    {"traditional Chinese: [ and | in it", "Sub \xA5\x5C\xAF\xE0() ' \xB3\x5C\xA5i\xC3\xD2\xBFz\xBF\xEF", 950},
    {"simplified Chinese with one rare sign",
     "' \xB9\xA4\xD7\xF7\xB1\xED\xB5\xC4\xC3\xFB\xB3\xC6\xBA\xCD\xC8\xD5\xC6\xDA\xB5\xC8\r\nDim \xE9"
     "F",
     936},
    {"simplified Chinese, letters either way", "Dim \xCA\xFD\xBE\xDD\xB1\xED\xB8\xF1", 0},
    {"German",
     "gr\xF6\xDF"
     "er f\xFCr \xDC"
     "berschrift, \x84Wort\x93 \x96 \x80",
     0},
    {"German without a blank behind",
     "Pr\xFC"
     "fen(f\xFCr)",
     0},
    {"German with a bullet",
     "' \x95\xDC"
     "bersicht, gr\xF6\xDF"
     "er",
     0},
    {"English with apostrophes", "' it\x92s, don\x92t", 0},
    {"degrees and micrometres",
     "' \xB0"
     "C \xB5m \xB0"
     "C \xB5m",
     0},
    {"French with a round apostrophe",
     "' l\x92\xE9tat d\x92\xE9"
     "mission",
     0},
    {"Portuguese with round quotation marks", "' \x93n\xE3o\x94\x85", 0},
    {"Spanish",
     "Dim a\xF1o, contrase\xF1"
     "a",
     0},
    {"Russian", "Dim \xC4\xE0\xED\xED\xFB\xE5, \xC8\xEC\xFF, \xB8\xE6, \x81\x8D", 0},
    {"Czech",
     "Dim \x9Dukat, \xE9, \x8Atef\xE1n, \xF8\xE1"
     "dek 1",
     0},
    {"Persian", "Dim \x98\xED\xDD, \x81\xE6\xE1 ' \xE4\xC7\xE3 \x98\xC7\xD1", 0},
    {"Thai", "Dim \xA2\xE9\xCD\xC1\xD9\xC5, \xE1\xB6\xC7", 0},
};

TEST(DoubleByte, IsToldFromSingleBytes) {
    for (const Row& row : kRows) EXPECT_EQ(readers::GuessDoubleBytePage(row.bytes), row.codePage) << row.why;
}

}  // namespace
}  // namespace zentlor::test
