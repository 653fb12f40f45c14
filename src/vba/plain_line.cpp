// One walk over the line that knows the common cases of `Spacing` and of the writer, and gives up at all others. It may
// give up where nothing is wrong, never the other way round.

#include "vba/plain_line.h"

#include "vba/capitalisation.h"
#include "vba/header_parentheses.h"
#include "vba/token_form.h"

namespace zentlor::vba {
namespace {

class PlainLine {
  public:
    PlainLine(const Tokens& tokens, TextView text, std::size_t first)
        : tokens_(tokens.data()), text_(text.data()), first_(first), statement_(first) {}

    std::size_t FindEnd(const Tokens& tokens) {
        if (tokens_[first_].keyword() == Keyword::Attribute) return kNoToken;
        std::size_t end = first_ == 0 ? 0 : tokens_[first_ - 1].End();
        for (at_ = first_; tokens_[at_].kind != TokenKind::EndOfLine; ++at_) {
            const Token& token = tokens_[at_];
            gapStart_ = end;
            gap_ = token.offset - end;
            if (startsPhysicalLine_ && !IsBlank()) return kNoToken;
            if (!Take(token)) return kNoToken;
            end = token.End();
        }
        gapStart_ = end;
        gap_ = tokens_[at_].offset - end;
        if (startsPhysicalLine_ ? !IsBlank() : gap_ != 0) return kNoToken;
        return FindMissingParentheses(tokens, first_, at_).behind == kNoToken ? at_ : kNoToken;
    }

  private:
    // What the token before has to do with the gap behind it, continuations left out.
    enum class Before : std::uint8_t {
        Nothing,  // the line begins
        Name,
        Keyword,
        Literal,
        Close,  // ")"
        Comma,
        Mark,   // an operator that stands apart from what follows
        Tight,  // an operator to which clings what follows
    };

    bool Take(const Token& token) {
        switch (token.kind) {
            case TokenKind::Name:
                return TakeName(token);
            case TokenKind::Keyword:
                return TakeKeyword(token);
            case TokenKind::Operator:
                return TakeOperator(token);
            case TokenKind::String:
                return !token.Has(kUnterminated) && TakeLiteral();
            case TokenKind::Integer:
                return before_ != Before::Nothing && HasForm(token) && TakeLiteral();
            case TokenKind::Hexadecimal:
            case TokenKind::Octal:
            case TokenKind::Float:
            case TokenKind::Date:
                return HasForm(token) && TakeLiteral();
            case TokenKind::Comment:
                return TakeComment(token);
            case TokenKind::Continuation:
                return TakeContinuation(token);
            default:
                return false;
        }
    }

    bool HasForm(const Token& token) const { return vba::HasForm(token, TextView(text_ + token.offset, token.length)); }

    // Whether the gap holds nothing but simple blanks.
    bool IsBlank() const { return SkipSpaces(TextView(text_ + gapStart_, gap_), 0) == gap_; }
    bool IsOneBlank() const { return gap_ == 1 && text_[gapStart_] == u' '; }
    bool HasGapOfWord() const { return startsPhysicalLine_ || (before_ == Before::Tight ? gap_ == 0 : IsOneBlank()); }

    bool Become(Before before) {
        before_ = before;
        startsPhysicalLine_ = false;
        return true;
    }

    void StartStatement() {
        if (!startsStatement_) return;
        startsStatement_ = false;
        statement_ = at_;
        const Token& token = tokens_[at_];
        isInHead_ = token.kind == TokenKind::Name || token.Is(Operator::Dot) || token.Is(Operator::Bang);
    }

    bool TakeName(const Token& token) {
        StartStatement();
        if (!HasGapOfWord()) return false;
        if (before_ == Before::Name) isInHead_ = false;
        return token.id == 0 ? Become(Before::Name) : TakeContextualWord(token);
    }

    bool TakeContextualWord(const Token& token) {
        if (token.Is(Keyword::Go)) return false;
        if (token.Has(kRespelled) && !token.Has(kBracketed) && !HasProjectCapitalisation(token)) return false;
        const bool isStep = token.Is(Keyword::Step) && tokens_[statement_].Is(Keyword::For);
        return Become(isStep ? Before::Keyword : Before::Name);
    }

    bool TakeKeyword(const Token& token) {
        StartStatement();
        if (!HasGapOfWord() || token.Has(kRespelled)) return false;
        isInHead_ = false;
        startsStatement_ = token.Is(Keyword::Then) || token.Is(Keyword::Else);
        return Become(IsLiteralWord(token.keyword()) ? Before::Literal : Before::Keyword);
    }

    bool TakeLiteral() {
        StartStatement();
        isInHead_ = false;
        return HasGapOfWord() && Become(Before::Literal);
    }

    bool TakeComment(const Token& token) {
        if (token.keyword() == Keyword::Rem || !(startsPhysicalLine_ || (gap_ > 0 && IsBlank()))) return false;
        isInComment_ = true;
        startsPhysicalLine_ = false;
        return true;
    }

    bool TakeContinuation(const Token& token) {
        if (!isInComment_ && !startsPhysicalLine_ && !IsOneBlank()) return false;
        startsPhysicalLine_ = true;
        return token.length == 2 && text_[token.offset + 1] == u'\n';
    }

    bool TakeOperator(const Token& token) {
        StartStatement();
        if (token.length > 1 ? !IsSame({text_ + token.offset, token.length}, FormOf(token.op()))
                             : text_[token.offset] >= 128) {
            return false;
        }
        switch (token.op()) {
            case Operator::OpenParenthesis:
                return TakeOpenParenthesis();
            case Operator::CloseParenthesis:
                return HasGap(before_ == Before::Comma ? 1 : 0) && Become(Before::Close);
            case Operator::Comma:
            case Operator::Semicolon:
                return TakeListMark(token);
            case Operator::Dot:
            case Operator::Bang:
                return HasGap(before_ == Before::Name || before_ == Before::Close ? 0 : 1) && Become(Before::Tight);
            case Operator::Colon:
                return HasGap(0) && tokens_[at_ + 1].Is(TokenKind::EndOfLine) && Become(Before::Mark);
            case Operator::Assign:
                return HasGap(0) && Become(Before::Tight);
            case Operator::Hash:
                return HasGap(1) && Become(Before::Tight);
            case Operator::Plus:
            case Operator::Minus:
                return TakeSign();
            case Operator::Question:
                return false;
            default:
                isInHead_ = false;
                return HasGap(1) && Become(Before::Mark);
        }
    }

    bool HasGap(std::size_t wanted) const {
        if (startsPhysicalLine_) return true;
        return wanted == 0 || before_ == Before::Tight ? gap_ == 0 : IsOneBlank();
    }

    // A call's argument stands apart, and so does what follows most keywords; it takes the rules to tell.
    bool TakeOpenParenthesis() {
        if (isInHead_ || before_ == Before::Nothing) return false;
        if (before_ == Before::Keyword && IsTypeName(tokens_[at_ - 1].keyword())) return false;
        return HasGap(before_ == Before::Name || before_ == Before::Close ? 0 : 1) && Become(Before::Tight);
    }

    bool TakeListMark(const Token& token) {
        if (isInHead_ || before_ == Before::Nothing || before_ == Before::Keyword) return false;
        return HasGap(before_ == Before::Comma ? 1 : 0) &&
               Become(token.Is(Operator::Comma) ? Before::Comma : Before::Mark);
    }

    bool TakeSign() {
        const Token& next = tokens_[at_ + 1];
        const bool mayJoinPoints =
            before_ == Before::Close && (next.Is(Operator::OpenParenthesis) || next.Is(Keyword::Step));
        if (mayJoinPoints || IsRangeStatement(tokens_[statement_].keyword())) return false;
        if (isInHead_ || before_ == Before::Nothing) return false;
        const bool isSign = before_ != Before::Name && before_ != Before::Literal && before_ != Before::Close;
        return HasGap(1) && Become(isSign ? Before::Tight : Before::Mark);
    }

    const Token* tokens_;
    const char16_t* text_;
    std::size_t first_;
    std::size_t at_ = 0;
    std::size_t statement_;
    std::size_t gapStart_ = 0;
    std::size_t gap_ = 0;
    Before before_ = Before::Nothing;
    bool startsPhysicalLine_ = true;
    bool startsStatement_ = true;
    bool isInHead_ = false;  // in the chain of names at the statement's start
    bool isInComment_ = false;
};

}  // namespace

std::size_t FindEndOfPlainLine(const Tokens& tokens, TextView text, std::size_t first) {
    return PlainLine(tokens, text, first).FindEnd(tokens);
}

}  // namespace zentlor::vba
