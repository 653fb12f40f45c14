#pragma once

// Tells which names of a module are declarations: variables, constants, procedures and their parameters, events, types
// and enumerations with their members, labels, and constants of conditional compilation.

#include "vba/token.h"

namespace zentlor::vba {

/// A walk over the statements of one module from the first to the last.
class DeclarationReader {
  public:
    /// Takes the next statement: the tokens from `first` to `end`, the line's end, colon, `Then` or `Else` behind it.
    /// Calls `declare` for each name that is declared in it.
    template <class Declare>
    void Read(const Token* first, const Token* end, bool startsLine, Declare declare) {
        // Nearly all statements declare nothing.
        if (!MayDeclare(*first, first[1])) return;
        Start(startsLine);
        for (const Token* token = first; token != end; ++token) {
            if (Declares(*token, token[1])) declare(*token);
        }
    }

  private:
    enum class Mode : std::uint8_t {
        Start,       // the statement begins
        List,        // `Dim a, b`
        Header,      // in front of a procedure's name
        Parameters,  // behind a procedure's name
        BlockName,   // behind `Type` or `Enum`
        Other,
    };

    bool MayDeclare(const Token& first, const Token& following) const;
    void Start(bool startsLine);
    bool Declares(const Token& token, const Token& following);
    bool ReadStart(const Token& token, const Token& following);
    bool ReadList(const Token& token, const Token& following);
    bool ReadHeader(const Token& token, const Token& following);
    bool ReadParameter(const Token& token);
    void ReadOperator(const Token& token);
    bool EnterProcedure(const Token& token, const Token& following);

    Mode mode_ = Mode::Start;
    bool isLineStart_ = true;
    bool expectsName_ = false;
    bool isInBlock_ = false;  // between `Type` or `Enum` and its end
    int depth_ = 0;
};

}  // namespace zentlor::vba
