#include "readers/sentences.h"

#include <vector>

namespace zentlor::readers {
namespace {

std::string Fill(std::string_view text, const std::vector<std::string>& values) {
    std::string out;
    for (std::size_t i = 0; i < text.size();) {
        const bool mark = text.substr(i, 2) == "[%" && i + 3 < text.size() && text[i + 3] == ']';
        const std::size_t number = mark ? static_cast<std::size_t>(text[i + 2] - '1') : values.size();
        if (number < values.size()) {
            out += values[number];
            i += 4;
        } else {
            out.push_back(text[i++]);
        }
    }
    return out;
}

}  // namespace

Sentence MakeSentence(std::string_view german, std::string_view english, std::initializer_list<std::string> values) {
    return {Fill(german, values), Fill(english, values)};
}

void Fail(ReadFailure why, std::string_view german, std::string_view english,
          std::initializer_list<std::string> values) {
    throw ReadError(why, MakeSentence(german, english, values));
}

}  // namespace zentlor::readers
