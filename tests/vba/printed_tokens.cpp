#include "printed_tokens.h"

#include "core/utilities/encoding.h"
#include "vba/tokenizer.h"

namespace zentlor::test {

using vba::Token;
using vba::TokenKind;

namespace {

std::string Letter(const Token& token) {
    switch (token.kind) {
        case TokenKind::Name:
            return token.Has(vba::kMember) ? "M:" : "N:";
        case TokenKind::Keyword:
            return "K:";
        case TokenKind::Integer:
            return "I:";
        case TokenKind::Hexadecimal:
            return "H:";
        case TokenKind::Octal:
            return "O:";
        case TokenKind::Float:
            return "F:";
        case TokenKind::Date:
            return "D:";
        case TokenKind::String:
            return "S:";
        case TokenKind::Directive:
            return "X:";
        case TokenKind::Comment:
            return "C:";
        case TokenKind::Unknown:
            return "U:";
        default:
            return "";
    }
}

std::string Printed(const Token& token, TextView code) {
    if (token.kind == TokenKind::EndOfLine) return "/";
    if (token.kind == TokenKind::Continuation) return "~";
    std::string printed = Letter(token) + ToUtf8(vba::TextOf(token, code));
    if (token.Has(vba::kTypeCharacter)) printed += "{type}";
    if (token.Has(vba::kUnterminated)) printed += "{open}";
    return printed;
}

}  // namespace

std::string PrintedTokens(TextView code) {
    std::string line;
    for (const Token& token : vba::Tokenize(code)) {
        if (token.kind == TokenKind::EndOfText) break;
        if (!line.empty()) line += ' ';
        line += Printed(token, code);
    }
    return line;
}

}  // namespace zentlor::test
