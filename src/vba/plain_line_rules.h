#pragma once

// What belongs between two tokens of a line in the editor's form, for the common cases: a table over what stands before
// and what comes. It says the same as `Spacing`, or that it takes `Spacing` to tell.

#include <array>
#include <cstddef>
#include <cstdint>

#include "vba/keywords.h"
#include "vba/token.h"

namespace zentlor::vba {

/// What a token is to the table.
enum class Piece : std::uint8_t {
    Name,
    Keyword,
    TypeName,
    Literal,
    Open,
    Close,
    Comma,
    Semicolon,
    Point,  // "." and "!"
    Assign,
    Hash,
    Infix,
    // From here on the table does not tell everything.
    LineEnd,
    StatementWord,  // `Then` and `Else`, behind which a statement begins
    OddName,        // `Attribute`, `Go`, `Step`
    LineNumber,
    Number,
    Colon,
    Sign,
    Comment,
    Continuation,
    Unreadable,
};
inline constexpr std::size_t kPieces = static_cast<std::size_t>(Piece::Unreadable) + 1;

/// What stands before, continuations left out. The head is the chain of names at a statement's start.
enum class Before : std::uint8_t {
    Nothing,  // the line begins
    HeadName,
    HeadTight,
    Name,
    Keyword,
    StatementWord,
    TypeName,
    Literal,
    Close,
    Comma,
    Mark,   // an operator that stands apart from what follows
    Tight,  // an operator to which clings what follows
    Comment,
};
inline constexpr std::size_t kBefores = static_cast<std::size_t>(Before::Comment) + 1;

struct Rule {
    std::uint8_t gap;  ///< how many blanks, or one of the following
    Before next;
};
inline constexpr std::uint8_t kSome = 0xFE;    ///< one or more
inline constexpr std::uint8_t kGiveUp = 0xFF;  ///< the table does not tell

constexpr Rule RuleFor(Before before, Piece piece) {
    constexpr Rule kUntold{kGiveUp, Before::Nothing};
    const bool isHead = before == Before::HeadName || before == Before::HeadTight;
    const bool isStart = before == Before::Nothing || before == Before::StatementWord;
    const bool clings = before == Before::Tight || before == Before::HeadTight;
    const bool isBehindWord = before == Before::Keyword || before == Before::TypeName || isStart;
    const std::uint8_t none = 0;
    const std::uint8_t one = clings ? 0 : 1;
    const std::uint8_t behindOperand =
        before == Before::Name || before == Before::HeadName || before == Before::Close ? none : one;
    const std::uint8_t inList = before == Before::Comma ? one : none;
    switch (piece) {
        case Piece::Name:
        case Piece::OddName:
            return {one, isStart || before == Before::HeadTight ? Before::HeadName : Before::Name};
        case Piece::Keyword:
            return {one, Before::Keyword};
        case Piece::StatementWord:
            return {one, Before::StatementWord};
        case Piece::TypeName:
            return {one, Before::TypeName};
        case Piece::Literal:
        case Piece::Number:
            return {one, Before::Literal};
        case Piece::LineNumber:
            return before == Before::Nothing ? kUntold : Rule{one, Before::Literal};
        case Piece::Open:
            // A call's argument stands apart, and so does what follows most keywords; it takes the rules to tell.
            if (isHead || before == Before::Nothing || before == Before::TypeName) return kUntold;
            return {behindOperand, Before::Tight};
        case Piece::Close:
            return isHead || before == Before::Nothing ? kUntold : Rule{inList, Before::Close};
        case Piece::Comma:
            if (before == Before::TypeName) return {none, Before::Comma};
            return isHead || isBehindWord ? kUntold : Rule{inList, Before::Comma};
        case Piece::Semicolon:
            return isHead || isBehindWord ? kUntold : Rule{inList, Before::Mark};
        case Piece::Point:
            return {behindOperand, isStart || isHead ? Before::HeadTight : Before::Tight};
        case Piece::Assign:
            return {none, isHead ? Before::HeadTight : Before::Tight};
        case Piece::Hash:
            return {one, isHead ? Before::HeadTight : Before::Tight};
        case Piece::Colon:
            return {none, Before::Mark};
        case Piece::Sign: {
            if (isHead || before == Before::Nothing) return kUntold;
            const bool isInfix = before == Before::Name || before == Before::Literal || before == Before::Close;
            return {one, isInfix ? Before::Mark : Before::Tight};
        }
        case Piece::Infix:
            return {one, Before::Mark};
        case Piece::LineEnd:
            return {none, Before::Nothing};
        case Piece::Comment:
            return {kSome, Before::Comment};
        case Piece::Continuation:
            return {before == Before::Comment ? none : std::uint8_t{1}, before};
        case Piece::Unreadable:
            return kUntold;
    }
    return kUntold;
}

using Row = std::array<Rule, kPieces>;
inline constexpr auto kRows = [] {
    std::array<Row, kBefores> rows{};
    for (std::size_t before = 0; before < kBefores; ++before) {
        for (std::size_t piece = 0; piece < kPieces; ++piece) {
            rows[before][piece] = RuleFor(static_cast<Before>(before), static_cast<Piece>(piece));
        }
    }
    return rows;
}();

constexpr Piece PieceOf(Operator op) {
    switch (op) {
        case Operator::OpenParenthesis:
            return Piece::Open;
        case Operator::CloseParenthesis:
            return Piece::Close;
        case Operator::Comma:
            return Piece::Comma;
        case Operator::Semicolon:
            return Piece::Semicolon;
        case Operator::Dot:
        case Operator::Bang:
            return Piece::Point;
        case Operator::Assign:
            return Piece::Assign;
        case Operator::Hash:
            return Piece::Hash;
        case Operator::Colon:
            return Piece::Colon;
        case Operator::Plus:
        case Operator::Minus:
            return Piece::Sign;
        case Operator::None:
        case Operator::Question:
            return Piece::Unreadable;
        default:
            return Piece::Infix;
    }
}

constexpr Piece PieceOfReserved(Keyword keyword) {
    if (keyword == Keyword::Then || keyword == Keyword::Else) return Piece::StatementWord;
    if (IsRangeStatement(keyword)) return Piece::Unreadable;
    if (IsTypeName(keyword)) return Piece::TypeName;
    return IsLiteralWord(keyword) ? Piece::Literal : Piece::Keyword;
}

constexpr Piece PieceOfName(Keyword keyword) {
    return keyword == Keyword::Attribute || keyword == Keyword::Go || keyword == Keyword::Step ? Piece::OddName
                                                                                               : Piece::Name;
}

constexpr Piece PieceOf(TokenKind kind) {
    switch (kind) {
        case TokenKind::EndOfLine:
            return Piece::LineEnd;
        case TokenKind::String:
            return Piece::Literal;
        case TokenKind::Integer:
            return Piece::LineNumber;
        case TokenKind::Hexadecimal:
        case TokenKind::Octal:
        case TokenKind::Float:
        case TokenKind::Date:
            return Piece::Number;
        case TokenKind::Comment:
            return Piece::Comment;
        case TokenKind::Continuation:
            return Piece::Continuation;
        default:
            return Piece::Unreadable;
    }
}

// The pieces by kind and, where it matters, by keyword or operator.
class PieceTable {
  public:
    constexpr PieceTable() {
        for (std::size_t kind = 0; kind < kKinds; ++kind) Enter(static_cast<TokenKind>(kind));
    }
    const Piece& Of(const Token& token) const { return pieces_[static_cast<std::size_t>(token.kind)][token.id]; }

  private:
    static constexpr std::size_t kKinds = static_cast<std::size_t>(TokenKind::Unknown) + 1;
    static constexpr std::size_t kIds = kKeywordCount + 1;

    constexpr void Enter(TokenKind kind) {
        for (std::size_t id = 0; id < kIds; ++id) {
            Piece& piece = pieces_[static_cast<std::size_t>(kind)][id];
            if (kind == TokenKind::Operator) {
                piece = PieceOf(static_cast<Operator>(id));
            } else if (kind == TokenKind::Keyword) {
                piece = PieceOfReserved(static_cast<Keyword>(id));
            } else if (kind == TokenKind::Name) {
                piece = PieceOfName(static_cast<Keyword>(id));
            } else {
                piece = PieceOf(kind);
            }
        }
    }

    std::array<std::array<Piece, kIds>, kKinds> pieces_{};
};
inline constexpr PieceTable kPieceTable;

}  // namespace zentlor::vba
