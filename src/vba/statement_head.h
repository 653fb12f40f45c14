#pragma once

// What stands at the start of a statement that begins with a name: an assignment or a call. The editor shows a call's
// argument in parentheses apart, `Foo (x)`, and an assignment's index close, `Foo(x) = 1`.

#include <cstddef>

#include "core/utilities/text.h"
#include "vba/token.h"

namespace zentlor::vba {

inline constexpr std::size_t kNoToken = static_cast<std::size_t>(-1);

/// The chain of names, members and parentheses at a statement's start, as indexes into the tokens.
struct StatementHead {
    /// The token behind the called or assigned chain; `kNoToken` if the chain ends in parentheses.
    std::size_t end = kNoToken;
    /// The "(" that opens a call's first argument, as in `Foo (x), y`; `kNoToken` if there is none.
    std::size_t argument = kNoToken;
    /// True for the drawing methods `Line` and `Scale`, whose "-" joins two points.
    bool isDrawing = false;
};

/// Reads the chain that begins at token `start`, a name, "." or "!". Looks at tokens of the one statement alone.
StatementHead ReadStatementHead(const Tokens& tokens, std::size_t start);

/// Whether the `Name` that begins a statement renames a file, `Name a As b`: then an `As` follows outside of
/// parentheses, which neither a call nor an assignment has. A type's member `Name(9) As Long` differs from `Name (a) As
/// b` in the blank alone. Looks at tokens of the one statement alone.
bool IsRename(const Token* name);

/// The first token at or behind `index` that is no continuation.
inline std::size_t SkipContinuations(const Tokens& tokens, std::size_t index) {
    while (tokens[index].kind == TokenKind::Continuation) ++index;
    return index;
}

}  // namespace zentlor::vba
