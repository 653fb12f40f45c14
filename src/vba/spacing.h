#pragma once

// How many blanks the editor puts in front of a token.

#include <cstddef>
#include <cstdint>

#include "vba/statement_head.h"
#include "vba/token.h"

namespace zentlor::vba {

enum class Gap : std::uint8_t {
    None,
    One,
    Kept,  ///< As many as stand there, and at least one: alignment.
};

/// A walk over the tokens of a module, line by line from left to right.
class Spacing {
  public:
    explicit Spacing(const Tokens& tokens) : tokens_(tokens) {}

    /// Forgets what came before: token `first` begins a logical line.
    void BeginLine(std::size_t first);

    /// The gap in front of token `index`. Every token of the logical line is asked for once and in order; the answer
    /// means nothing for the first token of a physical line.
    Gap Before(std::size_t index);

    /// The first token of the statement to which the token last asked for belongs.
    std::size_t StatementStart() const { return statement_; }

  private:
    void BeginStatement(std::size_t index);
    Gap GapOf(std::size_t index) const;
    Gap GapOfOperator(std::size_t index) const;
    Gap GapOfParenthesis(std::size_t index) const;
    Gap GapOfListMark(std::size_t index) const;
    Gap GapOfMemberMark(std::size_t index) const;
    bool IsSign(std::size_t index) const;
    bool IsJoiningMinus(std::size_t index) const;
    bool EndsOperand(const Token& token) const;
    bool IsSecondHalf(std::size_t index) const;
    bool KeepsAs() const;
    bool IsBehind(Operator op) const;
    void Advance(std::size_t index);

    const Tokens& tokens_;
    StatementHead head_;
    std::size_t line_ = 0;             // the logical line's first token
    std::size_t statement_ = 0;        // the statement's first token
    std::size_t previous_ = kNoToken;  // the token before, continuations left out
    bool startsStatement_ = true;
    bool renames_ = false;  // the statement is `Name a As b`
    bool isTight_ = false;  // nothing stands between the token before and the next one
    bool isKept_ = false;   // behind a colon or line number: the next gap is alignment
};

}  // namespace zentlor::vba
