// Words and operators stand one blank apart. Parentheses, member marks, signs and the ":=" of a named argument cling to
// their neighbours; commas, semicolons and colons cling to what is in front of them. The rest are the places where the
// editor lets an alignment stand, and those where the start of the statement decides: `Foo (x)`, `Foo , x`, `Foo -1`.

#include "vba/spacing.h"

namespace zentlor::vba {
namespace {

// What follows the "-" between two points: `(x, y)` or `Step(x, y)`.
bool BeginsPoint(const Token& token) {
    return token.Is(Operator::OpenParenthesis) || token.Is(Keyword::Step);
}

}  // namespace

void Spacing::BeginLine(std::size_t first) {
    line_ = first;
    statement_ = first;
    previous_ = kNoToken;
    startsStatement_ = true;
    isTight_ = false;
    isKept_ = false;
}

Gap Spacing::Before(std::size_t index) {
    const Token& token = tokens_[index];
    switch (token.kind) {
        case TokenKind::EndOfText:
        case TokenKind::EndOfLine:
            return Gap::None;
        case TokenKind::Continuation:
            return Gap::One;
        case TokenKind::Comment:
            return Gap::Kept;
        default:
            break;
    }
    if (startsStatement_) BeginStatement(index);
    const Gap gap = GapOf(index);
    Advance(index);
    return gap;
}

void Spacing::BeginStatement(std::size_t index) {
    startsStatement_ = false;
    statement_ = index;
    const Token& token = tokens_[index];
    const bool beginsChain = token.kind == TokenKind::Name || token.Is(Operator::Dot) || token.Is(Operator::Bang);
    renames_ = token.Is(Keyword::Name) && IsRename(&token);
    head_ = beginsChain && !renames_ ? ReadStatementHead(tokens_, index) : StatementHead{};
}

Gap Spacing::GapOf(std::size_t index) const {
    const Token& token = tokens_[index];
    if (isKept_ && !token.Is(Operator::Colon)) return Gap::Kept;
    if (isTight_) return Gap::None;
    if (token.kind == TokenKind::Operator) return GapOfOperator(index);
    if (IsSecondHalf(index)) return Gap::None;
    return token.Is(Keyword::As) && KeepsAs() ? Gap::Kept : Gap::One;
}

// `Go To` and `Go Sub` are stored as one word.
bool Spacing::IsSecondHalf(std::size_t index) const {
    return previous_ == statement_ && tokens_[statement_].Is(Keyword::Go) &&
           (tokens_[index].Is(Keyword::To) || tokens_[index].Is(Keyword::Sub));
}

Gap Spacing::GapOfOperator(std::size_t index) const {
    switch (tokens_[index].op()) {
        case Operator::OpenParenthesis:
            return GapOfParenthesis(index);
        case Operator::CloseParenthesis:
            return IsBehind(Operator::Comma) ? Gap::One : Gap::None;
        case Operator::Comma:
        case Operator::Semicolon:
            return GapOfListMark(index);
        case Operator::Dot:
        case Operator::Bang:
            return GapOfMemberMark(index);
        case Operator::Colon:
        case Operator::Assign:
            return Gap::None;
        case Operator::Minus:
            return IsJoiningMinus(index) ? Gap::None : Gap::One;
        default:
            return Gap::One;
    }
}

Gap Spacing::GapOfParenthesis(std::size_t index) const {
    if (index == head_.argument || previous_ == kNoToken) return Gap::One;
    const Token& before = tokens_[previous_];
    if (before.Is(Operator::CloseParenthesis)) return Gap::None;
    if (before.kind == TokenKind::Name) return EndsOperand(before) ? Gap::None : Gap::One;
    return before.kind == TokenKind::Keyword && IsTypeName(before.keyword()) ? Gap::None : Gap::One;
}

// A list whose first item is left out, `Foo , x`, stands apart from the word in front of it.
Gap Spacing::GapOfListMark(std::size_t index) const {
    if (previous_ == kNoToken || index == head_.end) return Gap::One;
    const Token& before = tokens_[previous_];
    return before.Is(Operator::Comma) || before.Is(Keyword::Print) || before.Is(Operator::Question) ? Gap::One
                                                                                                    : Gap::None;
}

Gap Spacing::GapOfMemberMark(std::size_t index) const {
    if (previous_ == kNoToken || index == head_.end) return Gap::One;
    const Token& before = tokens_[previous_];
    const bool clings =
        before.Is(Operator::CloseParenthesis) || (before.kind == TokenKind::Name && EndsOperand(before));
    return clings ? Gap::None : Gap::One;
}

// `Step` of a `For` statement and the `Name` that renames are the contextual keywords in front of an operand.
bool Spacing::EndsOperand(const Token& token) const {
    switch (token.kind) {
        case TokenKind::Name:
            if (renames_ && &token == &tokens_[statement_]) return false;
            return !(token.Is(Keyword::Step) && tokens_[statement_].Is(Keyword::For));
        case TokenKind::Keyword:
            return IsLiteralWord(token.keyword());
        case TokenKind::Operator:
            return token.Is(Operator::CloseParenthesis);
        default:
            return token.kind != TokenKind::Directive;
    }
}

bool Spacing::IsSign(std::size_t index) const {
    const Token& token = tokens_[index];
    if (!token.Is(Operator::Minus) && !token.Is(Operator::Plus)) return false;
    return previous_ == kNoToken || index == head_.end || !EndsOperand(tokens_[previous_]);
}

// The "-" of `Line (a, b)-(c, d)` and of `DefInt A-Z`.
bool Spacing::IsJoiningMinus(std::size_t index) const {
    if (index == kNoToken || !tokens_[index].Is(Operator::Minus) || index == statement_) return false;
    if (IsRangeStatement(tokens_[statement_].keyword()) && tokens_[statement_].kind == TokenKind::Keyword) return true;
    return head_.isDrawing && IsBehind(Operator::CloseParenthesis) && BeginsPoint(tokens_[index + 1]);
}

// Declarations keep an alignment of their "As"; `Open x For Input As #1` and `Name x As y` declare nothing.
bool Spacing::KeepsAs() const {
    return !renames_ && !tokens_[statement_].Is(Keyword::Open);
}

bool Spacing::IsBehind(Operator op) const {
    return previous_ != kNoToken && tokens_[previous_].Is(op);
}

void Spacing::Advance(std::size_t index) {
    const Token& token = tokens_[index];
    const bool isNumber = index == line_ && token.kind == TokenKind::Integer;
    isKept_ = isNumber || token.Is(Operator::Colon);
    startsStatement_ = isNumber || token.Is(Operator::Colon) || token.Is(Keyword::Then) || token.Is(Keyword::Else);
    switch (token.op()) {
        case Operator::OpenParenthesis:
        case Operator::Dot:
        case Operator::Bang:
        case Operator::Hash:
        case Operator::Assign:
            isTight_ = true;
            break;
        case Operator::Plus:
        case Operator::Minus:
            isTight_ = IsSign(index) || IsJoiningMinus(index);
            break;
        default:
            isTight_ = false;
            break;
    }
    previous_ = index;
}

}  // namespace zentlor::vba
