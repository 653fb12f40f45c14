#pragma once

// The form in which the editor stores code: keywords and names in one capitalisation, one blank between words and
// around operators, none inside parentheses. Comments, strings, indentation and the alignment of "As" stay; a line that
// can't be read stays whole. The lines stay the same in number and order.

#include "core/utilities/text.h"
#include "vba/capitalisation.h"
#include "vba/token.h"

namespace zentlor::vba {

/// Rewrites the modules of one project: first all of them are learned, then each is written.
class Canonicaliser {
  public:
    /// The name of a component, which counts as declared.
    void LearnName(TextView name) { capitalisation_.LearnDeclared(name); }

    /// Takes the names of a module. `tokens` are those of `text`. The order of the modules decides between declarations
    /// of one name in different capitalisations: the first wins.
    void Learn(const Tokens& tokens, TextView text) { capitalisation_.Learn(tokens, text); }

    /// Puts the canonical text of a module into `canonical` and answers True, or answers False if the module's text is
    /// canonical as it stands; `canonical` is then untouched. May run for several modules at once.
    bool Write(const Tokens& tokens, TextView text, Text& canonical) const;

  private:
    Capitalisation capitalisation_;
};

}  // namespace zentlor::vba
