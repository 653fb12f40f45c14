#pragma once

// The form in which the editor stores code: keywords and names in one capitalisation, one blank between words and
// around operators, none inside parentheses. Comments, strings, indentation and the alignment of "As" stay; a line that
// can't be read stays whole. The lines stay the same in number and order.

#include <cstddef>
#include <cstdint>
#include <vector>

#include "core/utilities/text.h"
#include "vba/capitalisation.h"
#include "vba/token.h"

namespace zentlor::vba {

/// Rewrites the modules of one project: first all of them are learned, then each is written.
class Canonicaliser {
  public:
    /// The name of a component, which counts as declared.
    void LearnName(TextView name) { capitalisation_.LearnDeclared(name); }

    /// Takes the names of a module and returns the module's number, counted from 0. `tokens` are those of `text`. The
    /// order of the modules decides between declarations of one name in different capitalisations: the first wins.
    std::size_t Learn(const Tokens& tokens, TextView text);

    /// Puts the canonical text of module `number` into `canonical` and answers True, or answers False if the module's
    /// text is canonical as it stands; `canonical` is then untouched. `tokens` and `text` are those that were learned.
    /// May run for several modules at once.
    bool Write(std::size_t number, const Tokens& tokens, TextView text, Text& canonical) const;

  private:
    Capitalisation capitalisation_;
    std::vector<std::vector<std::uint32_t>> names_;  // per module, as `Capitalisation::Learn` gives them
};

}  // namespace zentlor::vba
