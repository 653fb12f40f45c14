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
        const auto keyword = static_cast<Keyword>(id);
        if (keyword == Keyword::GoTo) continue;  // one application has a method Goto, another one GoTo
        const TextView spelling = Spelling(keyword);
        if (!names_.Holds(spelling)) names_.Add(spelling, NameRank::Library);
    }
}

// A word is entered when it is met for the first time and when it is first declared; a third time would tell nothing.
std::vector<std::uint32_t> Capitalisation::Learn(const Tokens& tokens, TextView text) {
    ++module_;
    held_.clear();
    FindPlaces(tokens);
    DeclarationReader declarations;
    const Token* first = tokens.begin();
    bool startsLine = true;
    letters_.clear();
    for (const std::uint32_t place : statementEnds_.All()) {
        const Token* const end = tokens.begin() + place;
        declarations.Read(first, end, startsLine, [&](const Token& token) { EnterDeclared(token, text); });
        if (IsRangeStatement(first->keyword())) letters_.push_back({first, end});
        first = end + 1;
        startsLine = end->Is(TokenKind::EndOfLine);
    }
    auto letters = letters_.begin();
    for (const std::uint32_t place : namesOfProject_.All()) {
        const Token& token = tokens[place];
        const bool isKnown = token.word < words_.size() && words_[token.word].lastModule == module_;
        if (isKnown) continue;
        while (letters != letters_.end() && letters->end < &token) ++letters;
        const bool isLetter = letters != letters_.end() && letters->first < &token;
        if (!isLetter) EnterMet(token, text);
    }
    return std::move(held_);
}

// Which tokens end a statement and which are names is nothing that a processor can guess: a loop without a branch.
void Capitalisation::FindPlaces(const Tokens& tokens) {
    for (TokenPlaces* places : {&statementEnds_, &namesOfProject_}) {
        if (places->memory.size() < tokens.size()) places->memory = std::vector<std::uint32_t>(tokens.size());
    }
    std::uint32_t* end = statementEnds_.memory.data();
    std::uint32_t* name = namesOfProject_.memory.data();
    std::uint32_t index = 0;
    for (const Token* token = tokens.begin(); token != tokens.end(); ++token, ++index) {
        *end = index;
        *name = index;
        end += token->Has(kEndsStatement) ? 1 : 0;
        name += token->Has(kOfProject) ? 1 : 0;
    }
    statementEnds_.count = static_cast<std::size_t>(end - statementEnds_.memory.data());
    namesOfProject_.count = static_cast<std::size_t>(name - namesOfProject_.memory.data());
}

Capitalisation::Word& Capitalisation::WordOf(const Token& token) {
    if (token.word >= words_.size()) words_.resize(2 * std::size_t{token.word} + 64);
    return words_[token.word];
}

void Capitalisation::EnterDeclared(const Token& token, TextView text) {
    if (!token.Has(kOfProject)) return;
    if (token.word == kNoWord) {
        held_.push_back(names_.Add(NameOf(token, text), NameRank::Declared));
        return;
    }
    Word& word = WordOf(token);
    if (!word.isDeclared) word.name = names_.Add(NameOf(token, text), NameRank::Declared);
    if (word.lastModule != module_) held_.push_back(word.name);
    word.isDeclared = true;
    word.lastModule = module_;
}

void Capitalisation::EnterMet(const Token& token, TextView text) {
    if (token.word == kNoWord) {
        held_.push_back(names_.Add(NameOf(token, text), NameRank::Met));
        return;
    }
    Word& word = WordOf(token);
    if (word.lastModule == 0) word.name = names_.Add(NameOf(token, text), NameRank::Met);
    if (word.lastModule != module_) held_.push_back(word.name);
    word.lastModule = module_;
}

}  // namespace zentlor::vba
