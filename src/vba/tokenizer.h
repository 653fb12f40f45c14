#pragma once

// Cuts a module's text into tokens after [MS-VBAL] 3.2 and 3.3. One pass, in time linear in the text, without recursion
// and without allocation per token. Nothing is refused: what cannot be read becomes a token of kind `Unknown`.

#include <span>
#include <vector>

#include "core/analysis/words.h"
#include "vba/token.h"
#include "vba/word_meaning.h"

namespace zentlor::vba {

/// Reads the modules of one project. Remembers what each of its words is.
class Tokenizer {
  public:
    /// The tokens of `text`, whose lines end in a line feed; the last line needs none. The last token is always
    /// `EndOfText`, and in front of it, unless the text is empty, stands an `EndOfLine`. `words` are the words of the
    /// text as the project's table gives them; the tokens tell their numbers. The memory of `tokens` is used again.
    void Read(TextView text, std::span<const WordPlace> words, Tokens& tokens);

  private:
    std::vector<WordMeaning> meanings_;  // by the word's number
};

/// The same for a text of its own: no token tells the number of its word.
Tokens Tokenize(TextView text);

}  // namespace zentlor::vba
