#pragma once

// Expressions and the lists made of them ([MS-VBAL] 5.6). Operands and operators have to alternate and parentheses have
// to close; ranks of operators and types of operands play no part.

#include "vba/parser_reader.h"

namespace zentlor::vba {

class ExpressionParser : protected ParserReader {
  protected:
    using ParserReader::ParserReader;

    /// How an operand that was read ends; tells a call with an argument list from an assignment's target.
    struct Operand {
        const Token* lastName = nullptr;  ///< The last name in it: of `a.b(1)` it is `b`.
        bool endsInParentheses = false;
        bool hasParentheses = false;  ///< At its end or before.
        bool isPrint = false;         ///< Ends with a member `Print`, or has one in front of parentheses.
        int arguments = 0;            ///< In the parentheses that it ends with.
    };

    bool ParseExpression();
    /// A name with whatever hangs on it: members, indexes, arguments. Begins with a name, "." or "!".
    bool ParseNamedOperand(Operand& operand);
    /// The same at the start of a statement, where a blank behind a name may begin an argument list instead.
    bool ParseStatementHead(Operand& operand);
    /// "(...)" with arguments, indexes or bounds; `arguments` receives their number. `Here()` is the "(".
    bool ParseParenthesizedArguments(int& arguments);
    /// Arguments without parentheses up to the statement's end. There may be none.
    bool ParseArgumentList();
    /// What `Print` and `Write` put out: expressions with "," or ";" or nothing in between, up to the statement's end.
    bool ParseOutputList();
    /// The odd forms of drawing methods, `(x, y)-(x, y), , BF`: only the parentheses are looked at.
    bool ParseDrawing();

    /// True if one of the blocks around is a `With`, so that an operand may begin with "." or "!".
    virtual bool IsInsideWith() const = 0;

    bool AtBinaryOperator() const;
    static bool IsDrawing(const Token& name);

    ~ExpressionParser() = default;

  private:
    bool ParseOperand();
    bool ParseParenthesizedExpression();
    bool ParseArgument();
    bool ParseWithMember();
    bool ParseMember();
    bool ParseTail(Operand& operand);
    void SkipParentheses();
    void SkipPrefixes();

    int depth_ = 0;
};

}  // namespace zentlor::vba
