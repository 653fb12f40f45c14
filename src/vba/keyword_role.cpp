// Each contextual word has few places: behind a certain word, in a certain statement, or at a statement's start in
// front of something that no assignment and no member access begins with.

#include "vba/keyword_role.h"

#include "vba/statement_head.h"

namespace zentlor::vba {
namespace {

class Place {
  public:
    Place(const Tokens& tokens, std::size_t index, std::size_t statement)
        : tokens_(tokens), index_(index), statement_(statement) {}

    bool IsFirst() const { return index_ == statement_; }
    const Token& First() const { return tokens_[statement_]; }
    const Token& Before() const {
        std::size_t i = index_;
        while (i > statement_ && tokens_[--i].kind == TokenKind::Continuation) {
        }
        return tokens_[i];
    }
    const Token& Behind() const {
        std::size_t i = index_ + 1;
        while (tokens_[i].kind == TokenKind::Continuation) ++i;
        return tokens_[i];
    }
    bool IsBehind(Keyword word) const { return !IsFirst() && Before().Is(word); }
    bool EndsStatement() const {
        const Token& behind = Behind();
        return behind.Is(TokenKind::EndOfLine) || behind.Is(TokenKind::Comment) || behind.Is(Operator::Colon) ||
               behind.Is(Keyword::Else);
    }
    bool PrecedesOperand() const {
        const Token& behind = Behind();
        return behind.kind != TokenKind::Operator && behind.kind != TokenKind::Keyword && !EndsStatement();
    }
    // Anywhere in a `Declare` statement, which a word of access may precede.
    bool IsInDeclare() const {
        for (std::size_t i = statement_; i < index_ && i < statement_ + 3; ++i) {
            if (tokens_[i].Is(Keyword::Declare)) return true;
        }
        return false;
    }

  private:
    const Tokens& tokens_;
    std::size_t index_;
    std::size_t statement_;
};

bool BeginsProperty(const Token& behind) {
    return behind.Is(Keyword::Get) || behind.Is(Keyword::Let) || behind.Is(Keyword::Set);
}

bool StandsInOpen(const Place& place, Keyword word) {
    if (!place.First().Is(Keyword::Open)) return false;
    switch (word) {
        case Keyword::Access:
        case Keyword::Read:
            return place.Before().kind != TokenKind::Operator;
        default:
            return place.IsBehind(Keyword::For);
    }
}

bool StandsBehindOption(const Place& place) {
    return place.First().Is(Keyword::Option);
}

}  // namespace

bool StandsAsKeyword(const Tokens& tokens, std::size_t index, std::size_t statement) {
    const Token& token = tokens[index];
    if (token.Has(kMember)) return false;
    const Place place(tokens, index, statement);
    switch (token.keyword()) {
        case Keyword::Access:
        case Keyword::Append:
        case Keyword::Output:
        case Keyword::Random:
        case Keyword::Read:
            return StandsInOpen(place, token.keyword());
        case Keyword::Binary:
            return StandsInOpen(place, token.keyword()) || StandsBehindOption(place);
        case Keyword::Base:
        case Keyword::Compare:
        case Keyword::Database:
        case Keyword::Explicit:
        case Keyword::Module:
        case Keyword::Text:
            return StandsBehindOption(place);
        case Keyword::Alias:
        case Keyword::Lib:
        case Keyword::PtrSafe:
            return place.IsInDeclare() && !place.IsBehind(Keyword::As);
        case Keyword::Beep:
        case Keyword::Reset:
            return place.IsFirst() && place.EndsStatement();
        case Keyword::Error:
            return place.IsBehind(Keyword::On) || (place.IsFirst() && place.PrecedesOperand());
        case Keyword::Go:
            return place.IsFirst() && (place.Behind().Is(Keyword::To) || place.Behind().Is(Keyword::Sub));
        case Keyword::Line:
            return place.IsFirst() && place.Behind().Is(Keyword::Input);
        case Keyword::Name:
            return place.IsFirst() && (place.PrecedesOperand() || IsRename(&token));
        case Keyword::Object:
            return place.IsBehind(Keyword::As);
        case Keyword::Property:
            return BeginsProperty(place.Behind()) || place.IsBehind(Keyword::End) || place.IsBehind(Keyword::Exit);
        case Keyword::Step:
            return place.First().Is(Keyword::For) && place.Before().kind != TokenKind::Operator;
        case Keyword::Width:
            return place.IsFirst() && place.Behind().Is(Operator::Hash);
        default:
            return false;
    }
}

}  // namespace zentlor::vba
