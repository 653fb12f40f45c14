// A date is a row of numbers, month names and day halves with separators in between, and at least two of them: `#1#` is
// none, and neither is `#1, 2, #`. Whether the numbers make a real day is not asked.

#include "vba/date_literal.h"

#include <algorithm>

#include "vba/characters.h"

namespace zentlor::vba {
namespace {

constexpr TextView kMonths[] = {u"january", u"february", u"march",     u"april",   u"may",      u"june",
                                u"july",    u"august",   u"september", u"october", u"november", u"december"};

bool EqualsLower(TextView lower, TextView word) {
    return lower.size() == word.size() && std::equal(word.begin(), word.end(), lower.begin(),
                                                     [](char16_t c, char16_t l) { return (FoldWidth(c) | 0x20) == l; });
}

bool IsDateWord(TextView word) {
    for (TextView half : {u"am", u"pm", u"a", u"p"}) {
        if (EqualsLower(half, word)) return true;
    }
    return std::any_of(std::begin(kMonths), std::end(kMonths), [word](TextView month) {
        return EqualsLower(month, word) || EqualsLower(month.substr(0, 3), word);
    });
}

bool IsBlank(char16_t c) {
    return c == u' ' || c == u'\t';
}

bool IsSeparator(char16_t c) {
    return IsBlank(c) || c == u'/' || c == u'-' || c == u':' || c == u',' || c == u'.';
}

}  // namespace

std::size_t DateLiteralLength(TextView text) {
    std::size_t parts = 0;
    bool isComplete = false;  // no comma, slash or the like waits for a part behind it
    std::size_t i = 1;
    while (i < text.size() && FoldWidth(text[i]) != u'#') {
        const std::size_t start = i;
        const std::uint8_t trait = HasTrait(text[i], kDigit) ? kDigit : kNameStart;
        while (i < text.size() && HasTrait(text[i], trait)) ++i;
        if (i > start) {
            if (trait == kNameStart && !IsDateWord(text.substr(start, i - start))) return 0;
            ++parts;
            isComplete = true;
        } else if (IsSeparator(FoldWidth(text[i]))) {
            isComplete = isComplete && IsBlank(FoldWidth(text[i]));
            ++i;
        } else {
            return 0;
        }
    }
    return i < text.size() && parts >= 2 && isComplete ? i + 1 : 0;
}

}  // namespace zentlor::vba
