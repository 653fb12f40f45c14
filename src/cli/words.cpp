#include "cli/words.h"

#include <fmt/format.h>

#include <algorithm>
#include <cstdio>
#include <numeric>

#include "core/language/messages.h"
#include "core/utilities/encoding.h"
#include "readers/sentences.h"

namespace zentlor::cli {

namespace {

// Characters that a terminal obeys instead of showing them.
bool MustBeEscaped(char16_t c) {
    const bool control = c < 0x20 || (c >= 0x7F && c < 0xA0);
    const bool direction =
        c == 0x061C || c == 0x200E || c == 0x200F || (c >= 0x202A && c <= 0x202E) || (c >= 0x2066 && c <= 0x2069);
    return control || direction || c == 0x2028 || c == 0x2029 || c == 0xFEFF;
}

// The least number of letters to put in, leave out or replace that makes one word of the other.
std::size_t Distance(TextView word, TextView other) {
    std::vector<std::size_t> row(other.size() + 1);
    std::iota(row.begin(), row.end(), std::size_t{0});
    for (const char16_t letter : word) {
        std::size_t diagonal = row[0]++;
        for (std::size_t k = 0; k < other.size(); ++k) {
            const std::size_t replaced = diagonal + (letter == other[k] ? 0 : 1);
            diagonal = row[k + 1];
            row[k + 1] = std::min({row[k] + 1, row[k + 1] + 1, replaced});
        }
    }
    return row.back();
}

}  // namespace

const std::string& InLanguage(const readers::Sentence& sentence, int sprache) {
    return sprache == kEnglish ? sentence.english : sentence.german;
}

std::string Say(int sprache, std::string_view german, std::string_view english,
                std::initializer_list<std::string> values) {
    return InLanguage(readers::MakeSentence(german, english, values), sprache);
}

std::string Counted(std::size_t number, int sprache, Forms german, Forms english) {
    const Forms& forms = sprache == kEnglish ? english : german;
    return fmt::format("{} {}", number, number == 1 ? forms.one : forms.many);
}

std::string Printable(TextView text) {
    if (std::none_of(text.begin(), text.end(), MustBeEscaped)) return ToUtf8(text);
    std::string result;
    for (const char16_t c : text) {
        if (MustBeEscaped(c)) {
            result += fmt::format("\\u{{{:x}}}", static_cast<unsigned>(c));
        } else {
            AppendUtf8(TextView(&c, 1), result);
        }
    }
    return result;
}

std::string Printable(const std::string& utf8) {
    return Printable(FromUtf8(utf8));
}

void Tell(const std::string& line) {
    std::fputs((line + "\n").c_str(), stderr);
}

Text Folded(const std::string& utf8) {
    Text text = FromUtf8(utf8);
    std::transform(text.begin(), text.end(), text.begin(), FoldCase);
    return text;
}

std::string NearestWord(const std::string& word, const std::vector<std::string>& known) {
    const Text wanted = Folded(word);
    std::size_t least = wanted.size() / 2 + 1;
    const std::string* nearest = nullptr;
    for (const std::string& candidate : known) {
        const std::size_t distance = Distance(wanted, Folded(candidate));
        if (distance >= least) continue;
        least = distance;
        nearest = &candidate;
    }
    return nearest == nullptr ? std::string() : *nearest;
}

}  // namespace zentlor::cli
