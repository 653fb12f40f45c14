#pragma once

// The words that VBA gives a meaning of their own ([MS-VBAL] 3.3.5.2), in the capitalisation in which the editor stores
// them. A reserved word is never a declared name; a contextual one is a keyword in some places and a name in all
// others.

#include <cstddef>
#include <cstdint>
#include <initializer_list>

#include "core/utilities/text.h"

namespace zentlor::vba {

enum class Keyword : std::uint16_t {
    None,
#define KEYWORD(word, wordClass) word,
#include "vba/keywords.def"
#undef KEYWORD
};

/// The number of keywords; their values run from 1 to this one.
inline constexpr std::size_t kKeywordCount = std::size(std::initializer_list<Keyword>{
#define KEYWORD(word, wordClass) Keyword::word,
#include "vba/keywords.def"
#undef KEYWORD
});

/// The keyword that `word` is in any capitalisation, or `Keyword::None`. `word` holds ASCII characters alone.
Keyword FindKeyword(TextView word);

/// The keyword as the editor writes it; empty for `None`.
TextView Spelling(Keyword keyword);

/// True for words that never stand where a name may stand: `Dim`, `And`, `True`; False for `Name`, `Date`, `Len`, `Me`.
bool IsReserved(Keyword keyword);

/// True for words that a project may declare as a name of its own: `Name`, `Line`, `Text`; False for `Date` and `Dim`.
bool IsContextual(Keyword keyword);

/// True for `DefBool` to `DefVar`. They give types to letters, which the editor shows as capitals and which are no
/// names.
constexpr bool IsRangeStatement(Keyword keyword) {
    return keyword >= Keyword::DefBool && keyword <= Keyword::DefVar;
}

/// True for the reserved words among the names of types: `Integer`, `Variant`.
constexpr bool IsTypeName(Keyword keyword) {
    switch (keyword) {
        case Keyword::Boolean:
        case Keyword::Byte:
        case Keyword::Currency:
        case Keyword::Double:
        case Keyword::Integer:
        case Keyword::Long:
        case Keyword::LongLong:
        case Keyword::LongPtr:
        case Keyword::Single:
        case Keyword::Variant:
            return true;
        default:
            return false;
    }
}

/// True for the words that are values: `True`, `Nothing`.
constexpr bool IsLiteralWord(Keyword keyword) {
    switch (keyword) {
        case Keyword::Empty:
        case Keyword::False:
        case Keyword::Nothing:
        case Keyword::Null:
        case Keyword::True:
            return true;
        default:
            return false;
    }
}

}  // namespace zentlor::vba
