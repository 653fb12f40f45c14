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

std::vector<std::uint32_t> Capitalisation::Learn(const Tokens& tokens, TextView text) {
    DeclarationReader declarations;
    std::vector<std::uint32_t> held;
    ++modules_;
    for (std::size_t i = 0; i + 1 < tokens.size(); ++i) {
        const bool declares = declarations.Declares(tokens[i], tokens[i + 1]);
        if (!HasProjectCapitalisation(tokens[i])) continue;
        const std::uint32_t number = names_.Add(NameOf(tokens[i], text), declares ? NameRank::Declared : NameRank::Met);
        if (number >= lastModule_.size()) lastModule_.resize(2 * std::size_t{number} + 1);
        if (lastModule_[number] == modules_) continue;
        lastModule_[number] = modules_;
        held.push_back(number);
    }
    return held;
}

}  // namespace zentlor::vba
