#pragma once

// One capitalisation for each name of a project, as the editor keeps it: that of the first declaration in the order of
// the modules; without one that of the libraries; without that the first one met.

#include <cstdint>
#include <span>
#include <vector>

#include "vba/spelling_table.h"
#include "vba/token.h"

namespace zentlor::vba {

class Capitalisation {
  public:
    /// Knows the libraries' names.
    Capitalisation();

    /// A name that is declared outside of the text: a component's.
    void LearnDeclared(TextView name) { names_.Add(name, NameRank::Declared); }

    /// Takes the names of one module: its tokens with `kOfProject`. The order of the calls decides which
    /// declaration is the first. Returns the numbers of the names that the module holds, some of them repeatedly. The
    /// words of the tokens bear the numbers of one table in all calls.
    std::vector<std::uint32_t> Learn(const Tokens& tokens, TextView text);

    /// The capitalisation of a name that was learned; of any other one `name` itself. Asks for nothing but the name:
    /// whether a word stands for a keyword at its place is the caller's matter.
    TextView SpellingOf(TextView name) const { return names_.SpellingOf(name); }

    /// False if the name stands everywhere as `SpellingOf` gives it, and is no contextual word that was declared in
    /// another capitalisation than the keyword's.
    bool Varies(std::uint32_t number) const { return names_.Varies(number); }

  private:
    // What has been learned of a word in the capitalisation in which it stands.
    struct Word {
        std::uint32_t name = 0;        // its number
        std::uint32_t lastModule = 0;  // the last module that held it, counted from 1; 0 if none did
        bool isDeclared = false;
    };

    // Indexes of tokens, in order.
    struct TokenPlaces {
        std::vector<std::uint32_t> memory;
        std::size_t count = 0;

        std::span<const std::uint32_t> All() const { return std::span(memory).first(count); }
    };

    // A statement that gives types to letters, which are no names.
    struct LetterStatement {
        const Token* first;
        const Token* end;
    };

    void FindPlaces(const Tokens& tokens);
    Word& WordOf(const Token& token);
    void EnterDeclared(const Token& token, TextView text);
    void EnterMet(const Token& token, TextView text);

    SpellingTable names_;
    std::vector<Word> words_;  // by the word's number
    // Of the present module.
    std::uint32_t module_ = 0;  // counted from 1
    std::vector<std::uint32_t> held_;
    TokenPlaces statementEnds_;
    TokenPlaces namesOfProject_;
    std::vector<LetterStatement> letters_;
};

}  // namespace zentlor::vba
