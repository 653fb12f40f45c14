#pragma once

// Cuts a module's text into tokens after [MS-VBAL] 3.2 and 3.3. One pass, in time linear in the text, without recursion
// and without allocation per token. Nothing is refused: what cannot be read becomes a token of kind `Unknown`.

#include "vba/token.h"

namespace zentlor::vba {

/// The tokens of `text`, whose lines end in a line feed. The last line needs none. The last token is always
/// `EndOfText`, and in front of it, unless the text is empty, stands an `EndOfLine`.
Tokens Tokenize(TextView text);

/// The same into `tokens`, whose memory is used again.
void Tokenize(TextView text, Tokens& tokens);

}  // namespace zentlor::vba
