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

std::string SizeText(std::uint64_t bytes) {
    constexpr std::uint64_t kKiB = 1 << 10;
    constexpr std::uint64_t kMiB = 1 << 20;
    if (bytes == 0 || bytes % kKiB != 0) return std::to_string(bytes) + " B";
    return bytes % kMiB == 0 ? std::to_string(bytes / kMiB) + " MiB" : std::to_string(bytes / kKiB) + " KiB";
}

void Fail(ReadFailure why, std::string_view german, std::string_view english,
          std::initializer_list<std::string> values) {
    throw ReadError(why, MakeSentence(german, english, values));
}

}  // namespace zentlor::readers
