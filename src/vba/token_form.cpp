// Numbers keep their digits, but the letters in them are capitals. In a date the day's half is written in capitals and
// a month with one capital. Of a comment only the word "Rem" is touched.

#include "vba/token_form.h"

#include <algorithm>
#include <array>

#include "vba/characters.h"

namespace zentlor::vba {
namespace {

constexpr std::array<TextView, 24> kOperatorForms = {u"",  u"+", u"-", u"*",  u"/",  u"\\", u"^",  u"&",
                                                     u"=", u"<", u">", u"<=", u">=", u"<>", u":=", u":",
                                                     u",", u";", u".", u"!",  u"#",  u"(",  u")",  u"Print"};
static_assert(static_cast<std::size_t>(Operator::Question) + 1 == kOperatorForms.size());

char16_t NumberForm(char16_t c) {
    return UpperAscii(FoldWidth(c));
}

Text DateForm(TextView present) {
    Text form(present);
    std::transform(form.begin(), form.end(), form.begin(), FoldWidth);
    std::size_t i = 0;
    while (i < form.size()) {
        const std::size_t start = i;
        while (i < form.size() && HasTrait(form[i], kNameStart)) ++i;
        const bool isMonth = i - start > 2;
        for (std::size_t k = start; k < i; ++k)
            form[k] = isMonth && k > start ? LowerAscii(form[k]) : UpperAscii(form[k]);
        if (i == start) ++i;
    }
    std::replace(form.begin(), form.end(), u'\t', u' ');
    return form;
}

Text CommentForm(const Token& token, TextView present) {
    if (token.keyword() != Keyword::Rem) return Text(present);
    return Text(Spelling(Keyword::Rem)).append(present.substr(3));
}

Text DirectiveForm(const Token& token) {
    if (token.keyword() == Keyword::EndIf) return u"#End If";
    return Text(u"#").append(Spelling(token.keyword()));
}

}  // namespace

TextView FormOf(Operator op) {
    return kOperatorForms[static_cast<std::size_t>(op)];
}

bool HasForm(const Token& token, TextView present) {
    switch (token.kind) {
        case TokenKind::Integer:
        case TokenKind::Hexadecimal:
        case TokenKind::Octal:
        case TokenKind::Float:
            return std::all_of(present.begin(), present.end(), [](char16_t c) { return c == NumberForm(c); });
        case TokenKind::Comment:
            return token.keyword() != Keyword::Rem || present.substr(0, 3) == Spelling(Keyword::Rem);
        case TokenKind::Continuation:
            return present == u"_\n" || present == u"_";
        case TokenKind::Date:
        case TokenKind::Directive:
            return present == FormOf(token, present);
        default:
            return true;
    }
}

Text FormOf(const Token& token, TextView present) {
    switch (token.kind) {
        case TokenKind::Comment:
            return CommentForm(token, present);
        case TokenKind::Continuation:
            return present.back() == u'\n' ? u"_\n" : u"_";
        case TokenKind::Date:
            return DateForm(present);
        case TokenKind::Directive:
            return DirectiveForm(token);
        default:
            break;
    }
    Text form(present);
    std::transform(form.begin(), form.end(), form.begin(), NumberForm);
    return form;
}

}  // namespace zentlor::vba
