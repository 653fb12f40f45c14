#pragma once

// The lowest layer of the parser: walks over the tokens that carry meaning, stepping over comments and continuations,
// and notes faults. The layers above return False when a statement can't be read any further; by then the fault is
// noted.

#include "core/utilities/text.h"
#include "vba/parser_faults.h"
#include "vba/token.h"

namespace zentlor::vba {

class ParserReader {
  protected:
    /// `tokens` end with an `EndOfText`, as the tokenizer delivers them, and hold no `Directive`.
    ParserReader(TextView text, const Tokens& tokens, FoundFaults& faults);

    const Token& Here() const { return *here_; }
    /// The token behind `Here()`.
    const Token& Ahead() const { return *Following(here_); }
    /// The token two behind `Here()`.
    const Token& AheadTwice() const { return *Following(Following(here_)); }
    /// The token in front of `Here()`; at the text's start `Here()` itself.
    const Token& Behind() const { return *behind_; }
    TextView Quote(const Token& token) const { return TextOf(token, text_); }
    TextView NameText(const Token& token) const { return NameOf(token, text_); }

    void Advance() {
        behind_ = here_;
        here_ = Following(here_);
    }
    bool Accept(Operator op) {
        if (!Here().Is(op)) return false;
        Advance();
        return true;
    }
    bool Accept(Keyword keyword) {
        if (!Here().Is(keyword)) return false;
        Advance();
        return true;
    }
    bool Expect(Operator op, Fault fault) { return Accept(op) || FailExpecting(fault); }
    bool Expect(Keyword keyword, Fault fault) { return Accept(keyword) || FailExpecting(fault); }

    bool AtLineEnd() const { return Here().Is(TokenKind::EndOfLine) || Here().Is(TokenKind::EndOfText); }
    /// A statement ends at the line's end, at a colon, and in front of `Else` and `ElseIf`.
    bool AtStatementEnd() const {
        return AtLineEnd() || Here().Is(Operator::Colon) || Here().Is(Keyword::Else) || Here().Is(Keyword::ElseIf);
    }
    void SkipToStatementEnd();
    void SkipToLineEnd();

    /// True if no blank stands in front of `Here()`. A continued line counts as none.
    bool IsAttached() const;

    /// A new logical line begins: it may have a fault of its own.
    void BeginLine() { isFaulty_ = false; }
    /// Notes the fault unless the logical line already has one. Always False.
    bool Fail(Fault fault, const Token& place, TextView word = {}, std::uint32_t related = 0);
    /// Notes that something else was expected in the place of `Here()`. Always False.
    bool FailExpecting(Fault fault);
    /// Notes a fault that belongs to another line than the current one.
    void NoteElsewhere(Fault fault, const Token& place, TextView word);

  private:
    const Token* Following(const Token* token) const {
        if (token->kind == TokenKind::EndOfText) return token;
        do {
            ++token;
        } while (token->kind == TokenKind::Continuation || token->kind == TokenKind::Comment);
        return token;
    }
    void Note(Fault fault, std::uint32_t offset, TextView word, std::uint32_t related);
    bool FailAtOddToken();

    TextView text_;
    const Token* here_;
    const Token* behind_;
    FoundFaults& faults_;
    bool isFaulty_ = false;
};

}  // namespace zentlor::vba
