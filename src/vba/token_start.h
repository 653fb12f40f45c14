#pragma once

// By which character each kind of token is told.

#include <array>
#include <cstdint>

#include "vba/characters.h"
#include "vba/token.h"

namespace zentlor::vba {

/// What begins with a character.
enum class Start : std::uint8_t {
    Unknown,
    Blank,
    LineEnd,
    Word,
    Number,
    String,
    Comment,
    Underscore,
    Bracket,
    Hash,
    Ampersand,
    Dot,
    Pair,    // an operator that may have a second character
    Single,  // any other operator
};

struct StartEntry {
    Start start = Start::Unknown;
    std::uint8_t flags = 0;  // of the token that the character makes alone
    Operator single = Operator::None;
};

constexpr std::array<StartEntry, 128> MakeStarts() {
    std::array<StartEntry, 128> table{};
    for (std::size_t c = 0; c < table.size(); ++c) {
        if ((kCharacterTable[c] & kBlank) != 0) table[c].start = Start::Blank;
        if ((kCharacterTable[c] & kNameStart) != 0) table[c].start = Start::Word;
        if ((kCharacterTable[c] & kDigit) != 0) table[c].start = Start::Number;
    }
    table[u'\n'].start = Start::LineEnd;
    table[u'"'].start = Start::String;
    table[u'\''].start = Start::Comment;
    table[u'_'].start = Start::Underscore;
    table[u'['].start = Start::Bracket;
    table[u'#'].start = Start::Hash;
    table[u'&'].start = Start::Ampersand;
    table[u'.'].start = Start::Dot;
    table[u':'] = {Start::Pair, kEndsStatement, Operator::Colon};
    table[u'='] = {Start::Pair, 0, Operator::Equal};
    table[u'<'] = {Start::Pair, 0, Operator::Less};
    table[u'>'] = {Start::Pair, 0, Operator::Greater};
    table[u'+'] = {Start::Single, 0, Operator::Plus};
    table[u'-'] = {Start::Single, 0, Operator::Minus};
    table[u'*'] = {Start::Single, 0, Operator::Times};
    table[u'/'] = {Start::Single, 0, Operator::Divide};
    table[u'\\'] = {Start::Single, 0, Operator::IntegerDivide};
    table[u'^'] = {Start::Single, 0, Operator::Power};
    table[u','] = {Start::Single, 0, Operator::Comma};
    table[u';'] = {Start::Single, 0, Operator::Semicolon};
    table[u'!'] = {Start::Single, 0, Operator::Bang};
    table[u'('] = {Start::Single, 0, Operator::OpenParenthesis};
    table[u')'] = {Start::Single, 0, Operator::CloseParenthesis};
    table[u'?'] = {Start::Single, kRespelled, Operator::Question};
    return table;
}
inline constexpr std::array<StartEntry, 128> kStarts = MakeStarts();

// Letters outside of ASCII, the only characters there that have traits once their width is folded, begin words.
inline StartEntry StartOf(char16_t c) {
    const char16_t folded = FoldWidth(c);
    if (folded < 128) return kStarts[folded];
    return {HasTrait(folded, kNameStart) ? Start::Word : Start::Unknown, 0, Operator::None};
}

}  // namespace zentlor::vba
