#pragma once

#include <cstdint>

#include "core/utilities/text.h"
#include "vba/token.h"

namespace zentlor::vba {

/// What a word of letters, digits and "_" is, wherever it stands.
struct WordMeaning {
    std::uint32_t length = 0;  ///< in characters; 0 while nothing is known of the word
    Keyword keyword = Keyword::None;
    TokenKind kind = TokenKind::Name;  ///< `Keyword` for a reserved word, and `Comment` for `Rem`
    std::uint8_t flags = 0;            ///< of the word's token, unless it is a member; see token.h
};

WordMeaning MeaningOf(TextView word);

/// The keyword that a word is in any case and width, or `Keyword::None`.
Keyword KeywordOf(TextView word);

}  // namespace zentlor::vba
