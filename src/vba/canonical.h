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

    /// Takes the names of the next module. `tokens` are those of `text`. The order of the modules decides between
    /// declarations of one name in different capitalisations: the first wins.
    void Learn(const Tokens& tokens, TextView text);

    /// False if `Write` would leave the module as it is: the one that was learned as number `number`, counted from 0.
    /// To be asked once all modules are learned.
    bool MayChange(std::size_t number) const;

    /// Puts the canonical text of a module into `canonical` and answers True, or answers False if its text is canonical
    /// as it stands; `canonical` is then untouched. `tokens` and `text` are those that were learned. May run for
    /// several modules at once.
    bool Write(const Tokens& tokens, TextView text, Text& canonical) const;

  private:
    struct Module {
        std::vector<std::uint32_t> names;  // as `Capitalisation::Learn` gives them
        bool differsInForm = false;        // in something else than the capitalisation of names
    };

    Capitalisation capitalisation_;
    std::vector<Module> modules_;
};

}  // namespace zentlor::vba
