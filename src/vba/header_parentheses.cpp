// A header is recognised by its first words. What follows the name, or in a `Declare` statement the names of library
// and entry point, must be a parenthesis.

#include "vba/header_parentheses.h"

#include "vba/statement_head.h"

namespace zentlor::vba {
namespace {

bool IsModifier(const Token& token) {
    return token.Is(Keyword::Public) || token.Is(Keyword::Private) || token.Is(Keyword::Friend) ||
           token.Is(Keyword::Static) || token.Is(Keyword::Declare) || token.Is(Keyword::PtrSafe);
}

bool IsProcedureWord(const Token& token) {
    return token.Is(Keyword::Sub) || token.Is(Keyword::Function) || token.Is(Keyword::Event);
}

bool IsAccessor(const Token& token) {
    return token.Is(Keyword::Get) || token.Is(Keyword::Let) || token.Is(Keyword::Set);
}

// What nearly every line is told by.
bool BeginsHeader(const Token& first) {
    switch (first.keyword()) {
        case Keyword::Declare:
        case Keyword::Event:
        case Keyword::Friend:
        case Keyword::Function:
        case Keyword::Private:
        case Keyword::Property:
        case Keyword::PtrSafe:
        case Keyword::Public:
        case Keyword::Static:
        case Keyword::Sub:
            return true;
        default:
            return false;
    }
}

// What may stand behind a name without parentheses. Any other line is no header that the editor could read.
bool EndsHeaderName(const Token& token) {
    return token.Is(Keyword::As) || token.Has(kEndsStatement) || token.Is(TokenKind::Comment);
}

// The index of the declared name, or `kNoToken` if the line is no header. `isDeclare` tells a `Declare` statement.
std::size_t FindHeaderName(const Tokens& tokens, std::size_t first, bool& isDeclare) {
    std::size_t i = first;
    while (IsModifier(tokens[i])) {
        isDeclare = isDeclare || tokens[i].Is(Keyword::Declare);
        i = SkipContinuations(tokens, i + 1);
    }
    if (tokens[i].Is(Keyword::Property) && IsAccessor(tokens[i + 1])) {
        i += 2;
    } else if (IsProcedureWord(tokens[i])) {
        ++i;
    } else {
        return kNoToken;
    }
    i = SkipContinuations(tokens, i);
    return tokens[i].kind == TokenKind::Name ? i : kNoToken;
}

}  // namespace

MissingParentheses FindMissingParentheses(const Tokens& tokens, std::size_t first, std::size_t end) {
    constexpr MissingParentheses kNothing{kNoToken, {}};
    if (!BeginsHeader(tokens[first])) return kNothing;
    bool isDeclare = false;
    std::size_t last = FindHeaderName(tokens, first, isDeclare);
    if (last == kNoToken) return kNothing;
    std::size_t next = SkipContinuations(tokens, last + 1);
    while (isDeclare && next < end && !tokens[next].Is(Operator::OpenParenthesis) && !EndsHeaderName(tokens[next])) {
        last = next;
        next = SkipContinuations(tokens, last + 1);
    }
    if (!EndsHeaderName(tokens[next])) return kNothing;
    return {last, isDeclare ? TextView(u" ()") : TextView(u"()")};
}

}  // namespace zentlor::vba
