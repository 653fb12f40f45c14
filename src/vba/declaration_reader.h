#pragma once

// Tells which names of a module are declarations: variables, constants, procedures and their parameters, events, types
// and enumerations with their members, labels, and constants of conditional compilation.

#include "vba/token.h"

namespace zentlor::vba {

/// A walk over the tokens of one module from the first to the last.
class DeclarationReader {
  public:
    /// Takes the next token; `following` is the one behind it. True if the token is a name that is declared here.
    bool Declares(const Token& token, const Token& following) {
        // Nearly all tokens stand in statements that declare nothing.
        return (mode_ != Mode::Other || EndsStatement(token)) && Read(token, following);
    }

  private:
    enum class Mode : std::uint8_t {
        Start,       // a statement begins
        List,        // `Dim a, b`
        Header,      // in front of a procedure's name
        Parameters,  // behind a procedure's name
        BlockName,   // behind `Type` or `Enum`
        Other,
    };

    static bool EndsStatement(const Token& token) {
        switch (token.kind) {
            case TokenKind::EndOfLine:
                return true;
            case TokenKind::Keyword:
                return token.keyword() == Keyword::Then || token.keyword() == Keyword::Else;
            default:
                return token.Is(Operator::Colon);
        }
    }
    bool Read(const Token& token, const Token& following);
    bool ReadStart(const Token& token, const Token& following);
    bool ReadList(const Token& token, const Token& following);
    bool ReadHeader(const Token& token, const Token& following);
    bool ReadParameter(const Token& token);
    bool ReadOperator(const Token& token);
    void StartLine();
    bool EnterProcedure(const Token& token, const Token& following);

    Mode mode_ = Mode::Start;
    bool isLineStart_ = true;
    bool expectsName_ = false;
    bool isInBlock_ = false;  // between `Type` or `Enum` and its end
    int depth_ = 0;
};

}  // namespace zentlor::vba
