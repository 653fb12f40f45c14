// Sentences are put together when all faults of a module are known: only then is it worth counting lines.

#include "vba/parser_faults.h"

#include <algorithm>
#include <string_view>

#include "core/utilities/encoding.h"

namespace zentlor::vba {
namespace {

struct FaultText {
    bool isExpectation;
    std::string_view german;
    std::string_view english;
};

constexpr FaultText kTexts[] = {
#define EXPECTED(key, german, english) {true, german, english},
#define FAULT(key, german, english) {false, german, english},
#include "vba/parser_faults.def"
#undef EXPECTED
#undef FAULT
};

const FaultText& TextsOf(Fault fault) {
    return kTexts[static_cast<std::size_t>(fault)];
}

// Turns offsets into lines, each line counted once as long as the offsets grow.
class LineCounter {
  public:
    explicit LineCounter(TextView text) : text_(text) {}

    int LineOf(std::uint32_t offset) {
        if (offset < lineStart_) {
            line_ = 1;
            lineStart_ = 0;
        }
        for (std::size_t feed = text_.find(u'\n', lineStart_); feed < offset; feed = text_.find(u'\n', lineStart_)) {
            ++line_;
            lineStart_ = feed + 1;
        }
        return line_;
    }
    /// The column of the offset that was asked for last.
    int ColumnOf(std::uint32_t offset) const { return static_cast<int>(offset - lineStart_) + 1; }

  private:
    TextView text_;
    int line_ = 1;
    std::size_t lineStart_ = 0;
};

std::string Fill(std::string_view pattern, const std::string& word, const std::string& line) {
    std::string filled;
    for (std::size_t i = 0; i < pattern.size(); ++i) {
        if (pattern.substr(i, 2) == "%1") {
            filled += word;
            ++i;
        } else if (pattern.substr(i, 2) == "%2") {
            filled += line;
            ++i;
        } else {
            filled += pattern[i];
        }
    }
    return filled;
}

Sentence SentenceOf(const FoundFault& found, int relatedLine) {
    const FaultText& texts = TextsOf(found.fault);
    const std::string word = ToUtf8(found.word);
    if (!texts.isExpectation) {
        const std::string line = std::to_string(relatedLine);
        return {Fill(texts.german, word, line), Fill(texts.english, word, line)};
    }
    const std::string german(texts.german);
    const std::string english(texts.english);
    if (word.empty()) {
        return {"Die Anweisung endet hier; erwartet wird noch " + german + ".",
                "The statement ends here; still expected is " + english + "."};
    }
    return {"Hier wird " + german + " erwartet, nicht „" + word + "“.",
            "Expected here is " + english + ", not \"" + word + "\"."};
}

}  // namespace

bool IsExpectation(Fault fault) {
    return TextsOf(fault).isExpectation;
}

std::vector<SyntaxError> Describe(TextView text, FoundFaults faults) {
    std::ranges::stable_sort(faults, {}, &FoundFault::offset);
    if (faults.size() > kMaximumSyntaxErrors) faults.resize(kMaximumSyntaxErrors);
    LineCounter places(text);
    LineCounter relatedPlaces(text);
    std::vector<SyntaxError> errors;
    errors.reserve(faults.size());
    for (const FoundFault& found : faults) {
        const int line = places.LineOf(found.offset);
        const int column = places.ColumnOf(found.offset);
        errors.push_back({line, column, SentenceOf(found, relatedPlaces.LineOf(found.related))});
    }
    return errors;
}

}  // namespace zentlor::vba
