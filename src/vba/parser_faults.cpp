// Lines are counted when all faults of a module are known, sentences put together when somebody reads them.

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

}  // namespace

Sentence SyntaxError::Words(int related) const {
    const FaultText& texts = TextsOf(fault);
    const std::string quoted = ToUtf8(word);
    if (!texts.isExpectation) {
        const std::string number = std::to_string(related);
        return {Fill(texts.german, quoted, number), Fill(texts.english, quoted, number)};
    }
    const std::string german(texts.german);
    const std::string english(texts.english);
    if (quoted.empty()) {
        return {"Die Anweisung endet hier; erwartet wird noch " + german + ".",
                "The statement ends here; still expected is " + english + "."};
    }
    return {"Hier wird " + german + " erwartet, nicht „" + quoted + "“.",
            "Expected here is " + english + ", not \"" + quoted + "\"."};
}

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
    for (FoundFault& found : faults) {
        const int line = places.LineOf(found.offset);
        const int column = places.ColumnOf(found.offset);
        errors.push_back({line, column, found.fault, std::move(found.word), relatedPlaces.LineOf(found.related)});
    }
    return errors;
}

}  // namespace zentlor::vba
