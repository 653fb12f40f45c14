// One walk over the line with a table of the common cases. Where the table does not tell, or anything stands otherwise
// than it says, the walk gives up. It may do so where nothing is wrong, never the other way round.

#include "vba/plain_line.h"

#include "vba/header_parentheses.h"
#include "vba/plain_line_rules.h"
#include "vba/token_form.h"

namespace zentlor::vba {
namespace {

class PlainLine {
  public:
    PlainLine(const Tokens& tokens, TextView text, std::size_t first)
        : tokens_(tokens), text_(text.data()), first_(tokens.begin() + first), statement_(first_) {}

    // The line's end, or null.
    const Token* FindEnd() {
        const Token* token = first_;
        std::size_t gapStart = token == tokens_.begin() ? 0 : token[-1].End();
        while (token->kind != TokenKind::EndOfLine) {
            if (!Take(*token, gapStart)) return nullptr;
            if (!startsPhysicalLine_) token = SkipPlain(token);
            gapStart = token->End();
            ++token;
        }
        const std::size_t gap = token->offset - gapStart;
        return (startsPhysicalLine_ ? IsBlank(gapStart, gap) : gap == 0) ? token : nullptr;
    }

  private:
    // The last one of the tokens behind `token` that stand as the table wants it.
    const Token* SkipPlain(const Token* token) {
        Before before = before_;
        for (;; ++token) {
            const Token& next = token[1];
            const Piece piece = kPieceTable.Of(next);
            const Rule rule = kRows[static_cast<std::size_t>(before)][static_cast<std::size_t>(piece)];
            const std::size_t gap = next.offset - token->End();
            if (gap != rule.gap || piece >= Piece::LineEnd || NeedsOtherLetters(next)) break;
            if (gap != 0 && (gap != 1 || text_[token->End()] != u' ')) break;
            before = rule.next;
        }
        before_ = before;
        return token;
    }

    bool Take(const Token& token, std::size_t gapStart) {
        const Piece piece = kPieceTable.Of(token);
        const Rule rule = kRows[static_cast<std::size_t>(before_)][static_cast<std::size_t>(piece)];
        const std::size_t gap = token.offset - gapStart;
        if (rule.gap == kGiveUp || NeedsOtherLetters(token)) return false;
        if (startsPhysicalLine_ || rule.gap == kSome) {
            if (!IsBlank(gapStart, gap) || (!startsPhysicalLine_ && gap == 0)) return false;
        } else if (rule.gap != gap || !IsBlank(gapStart, gap)) {
            return false;
        }
        if (piece >= Piece::LineEnd && !TakeOdd(piece, token)) return false;
        const bool isStep = token.Is(Keyword::Step) && Statement().Is(Keyword::For);
        before_ = isStep ? Before::Keyword : rule.next;
        startsPhysicalLine_ = piece == Piece::Continuation;
        return true;
    }

    static bool NeedsOtherLetters(const Token& token) {
        return (token.flags & (kRespelled | kUnterminated)) != 0 && !token.Has(kOfProject);
    }

    bool IsBlank(std::size_t from, std::size_t length) const {
        return SkipSpaces(TextView(text_ + from, length), 0) == length;
    }

    // Whether the walk may go on behind a piece that the table does not tell everything about.
    bool TakeOdd(Piece piece, const Token& token) {
        switch (piece) {
            case Piece::StatementWord:
                statement_ = &token + 1;
                return true;
            case Piece::OddName:
                return !token.Is(Keyword::Go) && !(token.Is(Keyword::Attribute) && &token == first_);
            case Piece::LineNumber:
            case Piece::Number:
                return HasForm(token, TextView(text_ + token.offset, token.length));
            case Piece::Colon:
                return (&token)[1].Is(TokenKind::EndOfLine);
            case Piece::Sign:
                return !(before_ == Before::Close && MayJoinPoints((&token)[1]));
            case Piece::Comment:
                return token.keyword() != Keyword::Rem;
            case Piece::Continuation:
                return token.length == 2 && text_[token.offset + 1] == u'\n';
            default:
                return false;
        }
    }

    // The first token of the present statement.
    const Token& Statement() const {
        const Token* first = statement_;
        while (first->kind == TokenKind::Continuation) ++first;
        return *first;
    }

    // Behind ")" and "-": `Line (0, 0)-(9, 9)`, `Line (0, 0)-Step(9, 9)`.
    static bool MayJoinPoints(const Token& next) {
        return next.Is(Operator::OpenParenthesis) || next.Is(Keyword::Step);
    }

    const Tokens& tokens_;
    const char16_t* text_;
    const Token* first_;
    const Token* statement_;  // where it begins, or a continuation in front of it
    Before before_ = Before::Nothing;
    bool startsPhysicalLine_ = true;
};

}  // namespace

std::size_t FindEndOfPlainLine(const Tokens& tokens, TextView text, std::size_t first) {
    const Token* const end = PlainLine(tokens, text, first).FindEnd();
    if (end == nullptr) return kNoToken;
    const auto index = static_cast<std::size_t>(end - tokens.begin());
    return FindMissingParentheses(tokens, first, index).behind == kNoToken ? index : kNoToken;
}

}  // namespace zentlor::vba
