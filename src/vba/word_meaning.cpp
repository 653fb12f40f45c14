#include "vba/word_meaning.h"

#include <iterator>

#include "vba/characters.h"

namespace zentlor::vba {

WordMeaning MeaningOf(TextView word) {
    WordMeaning meaning;
    meaning.length = static_cast<std::uint32_t>(word.size());
    meaning.keyword = KeywordOf(word);
    if (IsReserved(meaning.keyword)) meaning.kind = TokenKind::Keyword;
    if (meaning.keyword == Keyword::Rem) meaning.kind = TokenKind::Comment;
    const bool isRespelled =
        meaning.keyword == Keyword::EndIf || (meaning.keyword != Keyword::None && word != Spelling(meaning.keyword));
    if (isRespelled) meaning.flags |= kRespelled;
    if (meaning.keyword == Keyword::None || IsContextual(meaning.keyword)) meaning.flags |= kOfProject;
    if (meaning.keyword == Keyword::Then || meaning.keyword == Keyword::Else) meaning.flags |= kEndsStatement;
    return meaning;
}

Keyword KeywordOf(TextView word) {
    char16_t narrow[16];
    if (word.size() > std::size(narrow)) return Keyword::None;
    for (std::size_t i = 0; i < word.size(); ++i) {
        narrow[i] = FoldWidth(word[i]);
        if (narrow[i] >= 128) return Keyword::None;
    }
    return FindKeyword(TextView(narrow, word.size()));
}

}  // namespace zentlor::vba
