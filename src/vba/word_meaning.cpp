#include "vba/word_meaning.h"

#include <iterator>

#include "vba/characters.h"
#include "vba/token.h"

namespace zentlor::vba {

WordMeaning MeaningOf(TextView word) {
    WordMeaning meaning;
    meaning.length = static_cast<std::uint32_t>(word.size());
    meaning.keyword = KeywordOf(word);
    meaning.isReserved = IsReserved(meaning.keyword);
    const bool isRespelled =
        meaning.keyword == Keyword::EndIf || (meaning.keyword != Keyword::None && word != Spelling(meaning.keyword));
    if (isRespelled) meaning.flags = kRespelled;
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
