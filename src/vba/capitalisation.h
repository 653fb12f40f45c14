#pragma once

// One capitalisation for each name of a project, as the editor keeps it: that of the first declaration in the order of
// the modules; without one that of the libraries; without that the first one met.

#include "vba/name_table.h"
#include "vba/token.h"

namespace zentlor::vba {

class Capitalisation {
  public:
    /// Knows the libraries' names.
    Capitalisation();

    /// A name that is declared outside of the text: a component's.
    void LearnDeclared(TextView name) { names_.Add(name, NameRank::Declared); }

    /// Takes the names of one module. The order of the calls decides which declaration is the first.
    void Learn(const Tokens& tokens, TextView text);

    /// The capitalisation of a name, given without brackets and type character. Asks for nothing but the name: whether
    /// a word stands for a keyword at its place is the caller's matter.
    TextView SpellingOf(TextView name) const { return names_.SpellingOf(name); }

    /// True if all names learned so far stand everywhere as `SpellingOf` gives them.
    bool IsUniform() const { return names_.IsUniform(); }

  private:
    NameTable names_;
};

/// True for tokens whose capitalisation the project decides: names without brackets that are no fixed word of VBA.
inline bool HasProjectCapitalisation(const Token& token) {
    return token.kind == TokenKind::Name && !token.Has(kBracketed) && (token.id == 0 || IsContextual(token.keyword()));
}

}  // namespace zentlor::vba
