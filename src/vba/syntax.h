#pragma once

// Says whether a module would pass the editor's compile command as far as its form goes: statements, blocks, labels and
// declarations of one module ([MS-VBAL] 4 and 5). Types, references and other modules are not looked at. Where the
// language leaves room the answer is yes: code that the editor accepts is never to be refused.

#include <cstdint>
#include <string>
#include <vector>

#include "core/utilities/text.h"
#include "vba/token.h"

namespace zentlor::vba {

/// A sentence for the user, complete with its full stop. UTF-8.
struct Sentence {
    std::string german;
    std::string english;
};

enum class Fault : std::uint8_t;  // in parser_faults.h

/// One reason why a module does not compile. Line and column count from 1; the column in UTF-16 code units.
struct SyntaxError {
    int line = 0;
    int column = 0;
    Fault fault{};
    Text word;            ///< what the sentence quotes
    int relatedLine = 0;  ///< the line that the sentence points to, if it does

    Sentence Words() const { return Words(relatedLine); }
    /// Says `related` for the line that the sentence points to: where lines bear other numbers than the module's.
    Sentence Words(int related) const;
};

/// No module gives more errors than this; the first ones count.
inline constexpr std::size_t kMaximumSyntaxErrors = 100;

/// The errors of the module `text`, whose tokens are `tokens`, in the order of the text; empty if it compiles. One
/// cause gives one error, and a logical line at most one. With conditional compilation all branches are read; where
/// they can't stand side by side, `VBA7`, `Win32`, `Win64` and the module's own `#Const` decide which ones count.
/// Linear in the text; deep nesting does not use up the stack.
std::vector<SyntaxError> CheckSyntax(TextView text, const Tokens& tokens);

}  // namespace zentlor::vba
