// The table is filled in one pass a module, at the side of which the declarations are recognised.

#include "vba/capitalisation.h"

#include <algorithm>

#include "vba/declaration_reader.h"
#include "vba/library_names.h"

namespace zentlor::vba {

Capitalisation::Capitalisation() {
    TextView rest = kLibraryNames;
    while (!rest.empty()) {
        const std::size_t length = std::min(rest.find(u' '), rest.size());
        names_.Add(rest.substr(0, length), NameRank::Library);
        rest.remove_prefix(std::min(length + 1, rest.size()));
    }
    for (std::size_t id = 1; id <= kKeywordCount; ++id) {
        const TextView spelling = Spelling(static_cast<Keyword>(id));
        if (!names_.Holds(spelling)) names_.Add(spelling, NameRank::Library);
    }
}

// A word is entered when it is met for the first time and when it is first declared; a third time would tell nothing.
std::vector<std::uint32_t> Capitalisation::Learn(const Tokens& tokens, TextView text) {
    DeclarationReader declarations;
    std::vector<std::uint32_t> held;
    ++modules_;
    const auto enter = [&](const Token& token, bool declares) {
        return names_.Add(NameOf(token, text), declares ? NameRank::Declared : NameRank::Met);
    };
    for (std::size_t i = 0; i + 1 < tokens.size(); ++i) {
        const Token& token = tokens[i];
        const bool declares = declarations.Declares(token, tokens[i + 1]);
        if (!HasProjectCapitalisation(token)) continue;
        if (token.word == kNoWord) {
            held.push_back(enter(token, declares));
            continue;
        }
        if (token.word >= words_.size()) words_.resize(2 * std::size_t{token.word} + 64);
        Word& word = words_[token.word];
        if (word.lastModule == modules_ && (word.isDeclared || !declares)) continue;
        if (word.lastModule == 0 || (declares && !word.isDeclared)) word.name = enter(token, declares);
        if (word.lastModule != modules_) held.push_back(word.name);
        word.lastModule = modules_;
        word.isDeclared |= declares;
    }
    return held;
}

}  // namespace zentlor::vba
