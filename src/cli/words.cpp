#include "cli/words.h"

#include <fmt/format.h>

#include <algorithm>
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

}  // namespace

const std::string& InLanguage(const readers::Sentence& sentence, int sprache) {
    return sprache == kEnglish ? sentence.english : sentence.german;
}

std::string Say(int sprache, std::string_view german, std::string_view english,
                std::initializer_list<std::string> values) {
    return InLanguage(readers::MakeSentence(german, english, values), sprache);
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

std::string NearestWord(const std::string& word, const std::vector<std::string>& known) {
    const auto distance = [&word](const std::string& other) {
        std::vector<std::size_t> row(other.size() + 1);
        std::iota(row.begin(), row.end(), std::size_t{0});
        for (std::size_t i = 0; i < word.size(); ++i) {
            std::size_t diagonal = row[0]++;
            for (std::size_t k = 0; k < other.size(); ++k) {
                const std::size_t replaced = diagonal + (word[i] == other[k] ? 0 : 1);
                diagonal = row[k + 1];
                row[k + 1] = std::min({row[k] + 1, row[k + 1] + 1, replaced});
            }
        }
        return row.back();
    };
    const auto nearest = std::min_element(known.begin(), known.end(), [&](const std::string& a, const std::string& b) {
        return distance(a) < distance(b);
    });
    return nearest == known.end() ? std::string() : *nearest;
}

}  // namespace zentlor::cli
