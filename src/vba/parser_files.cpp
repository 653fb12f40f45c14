// The statements that work on files have a form of their own each, older than everything else in the language.

#include "vba/parser_statements.h"

namespace zentlor::vba {
namespace {

bool IsFileMode(const Token& token) {
    switch (token.keyword()) {
        case Keyword::Append:
        case Keyword::Binary:
        case Keyword::Input:
        case Keyword::Output:
        case Keyword::Random:
            return true;
        default:
            return false;
    }
}

}  // namespace

bool StatementParser::ParseOpen() {
    Advance();
    if (!ParseExpression()) return false;
    if (Accept(Keyword::For)) {
        if (!IsFileMode(Here())) return FailExpecting(Fault::FileMode);
        Advance();
    }
    if (Accept(Keyword::Access)) {
        Accept(Keyword::Read);
        Accept(Keyword::Write);
    }
    if (!Accept(Keyword::Shared) && Accept(Keyword::Lock)) {
        Accept(Keyword::Read);
        Accept(Keyword::Write);
    }
    if (!Expect(Keyword::As, Fault::AsFileNumber)) return false;
    Accept(Operator::Hash);
    if (!ParseExpression()) return false;
    if (!Accept(Keyword::Len)) return true;
    return Expect(Operator::Equal, Fault::Assignment) && ParseExpression();
}

bool StatementParser::ParseFileArguments() {
    Advance();
    return ParseArgumentList();
}

// `Lock #1, 2 To 5`: either end of the range may be left out.
bool StatementParser::ParseLock() {
    Advance();
    Accept(Operator::Hash);
    if (!ParseExpression()) return false;
    if (!Accept(Operator::Comma)) return true;
    if (!Here().Is(Keyword::To) && !ParseExpression()) return false;
    return !Accept(Keyword::To) || ParseExpression();
}

// `Print #1, a; b`, `Write #1, a, b`, and `Print a; b` of a form.
bool StatementParser::ParseOutput() {
    Advance();
    if (Accept(Operator::Hash) && !ParseExpression()) return false;
    return ParseOutputList();
}

// Behind `Debug.Print`, or behind its first operand if that began with parentheses: `Debug.Print (a).b * 2; c`.
bool StatementParser::ParseOutputTail() {
    if (AtBinaryOperator()) Advance();
    return ParseOutputList();
}

bool StatementParser::ParseNameAs() {
    Advance();
    return ParseExpression() && Expect(Keyword::As, Fault::AsInName) && ParseExpression();
}

}  // namespace zentlor::vba
