// The text is walked once, physical line by physical line, and its code is left behind in its own place. Only where a
// logical line begins can a line be an `Attribute` line; its continuations share its fate. In front of the code an
// exported module may hold a header, of which the nesting of BEGIN and END tells where it stops.

#include "readers/attributes.h"

#include <algorithm>
#include <optional>

#include "core/utilities/character_blocks.h"

namespace zentlor::readers {
namespace {

bool IsBlank(char16_t c) {
    return c == u' ' || c == u'\t';
}

TextView WithoutBlanks(TextView text) {
    while (!text.empty() && IsBlank(text.front())) text.remove_prefix(1);
    while (!text.empty() && IsBlank(text.back())) text.remove_suffix(1);
    return text;
}

TextView FirstWord(TextView line) {
    const TextView trimmed = WithoutBlanks(line);
    return trimmed.substr(0, std::min(trimmed.find_first_of(u" \t="), trimmed.size()));
}

bool Continues(TextView line) {
    return line.size() >= 2 && line.back() == u'_' && IsBlank(line[line.size() - 2]);
}

bool IsVbName(TextView name) {
    const std::size_t point = name.rfind(u'.');
    if (point != TextView::npos) name.remove_prefix(point + 1);
    return name.size() > 3 && EqualIgnoringCase(name.substr(0, 3), u"VB_") &&
           std::all_of(name.begin(), name.end(), IsWordCharacter);
}

struct Attribute {
    TextView name;
    TextView value;
};

// Nearly every line is told by its first letter.
bool MayBeAttribute(TextView line) {
    if (line.empty()) return false;
    if (!IsBlank(line.front())) return (line.front() | 0x20) == u'a';
    std::size_t first = SkipIndentation(line, 0);
    while (first < line.size() && IsBlank(line[first])) ++first;
    return first < line.size() && (line[first] | 0x20) == u'a';
}

// The parts of a physical line that begins an `Attribute` line.
std::optional<Attribute> ParseAttribute(TextView line) {
    constexpr TextView kWord = u"Attribute";
    const TextView trimmed = WithoutBlanks(line);
    if (trimmed.size() <= kWord.size() || !IsBlank(trimmed[kWord.size()])) return std::nullopt;
    if (!EqualIgnoringCase(trimmed.substr(0, kWord.size()), kWord)) return std::nullopt;
    const TextView rest = trimmed.substr(kWord.size());
    const std::size_t equals = rest.find(u'=');
    if (equals == TextView::npos) return std::nullopt;
    const Attribute attribute{WithoutBlanks(rest.substr(0, equals)), WithoutBlanks(rest.substr(equals + 1))};
    if (!IsVbName(attribute.name)) return std::nullopt;
    return attribute;
}

TextView Unquoted(TextView value) {
    if (value.size() >= 2 && value.front() == u'"' && value.back() == u'"') return value.substr(1, value.size() - 2);
    return value;
}

void Remember(const Attribute& attribute, StrippedCode& result) {
    const auto is = [&](TextView name) { return EqualIgnoringCase(attribute.name, name); };
    const bool yes = EqualIgnoringCase(attribute.value, u"True");
    if (is(u"VB_Name")) result.name = Unquoted(attribute.value);
    if (is(u"VB_Base")) result.base = Unquoted(attribute.value);
    if (is(u"VB_PredeclaredId")) result.predeclaredId = yes;
    if (is(u"VB_Exposed")) result.exposed = yes;
}

// Gives out the physical lines of a text, without their ends.
class LineReader {
  public:
    explicit LineReader(TextView text) : text_(text) {}
    bool Next(TextView& line) {
        if (at_ >= text_.size()) return false;
        const std::size_t end = FindAny(text_, at_, u'\n', u'\r');
        line = text_.substr(at_, end - at_);
        const bool pair = end + 1 < text_.size() && text_[end] == u'\r' && text_[end + 1] == u'\n';
        at_ = end + (pair ? 2 : 1);
        return true;
    }

  private:
    TextView text_;
    std::size_t at_ = 0;
};

ExportHeader KindOfHeader(TextView firstLine) {
    const TextView line = WithoutBlanks(firstLine);
    if (!EqualIgnoringCase(FirstWord(line), u"VERSION")) return ExportHeader::None;
    const TextView version = WithoutBlanks(line.substr(7));
    if (version.empty() || version.front() < u'0' || version.front() > u'9') return ExportHeader::None;
    const std::size_t blank = version.find_first_of(u" \t");
    const bool isClass = blank != TextView::npos && EqualIgnoringCase(WithoutBlanks(version.substr(blank)), u"CLASS");
    return isClass ? ExportHeader::Class : ExportHeader::Form;
}

struct Header {
    ExportHeader kind = ExportHeader::None;
    std::size_t lines = 0;
};

// The header: the `VERSION` line and the blank ones in front of it, `Object =` lines, and a block from BEGIN to its
// END. A block that never ends is none, or a missing END would swallow the code.
Header FindHeader(TextView text) {
    LineReader lines(text);
    TextView line;
    std::size_t count = 1;
    while (lines.Next(line) && WithoutBlanks(line).empty()) ++count;
    const ExportHeader kind = KindOfHeader(line);
    if (kind == ExportHeader::None) return {};
    std::size_t complete = count;
    for (int depth = 0; lines.Next(line);) {
        const TextView word = FirstWord(line);
        const bool begins = EqualIgnoringCase(word, u"BEGIN") || EqualIgnoringCase(word, u"BeginProperty");
        const bool ends = EqualIgnoringCase(word, u"END") || EqualIgnoringCase(word, u"EndProperty");
        if (MayBeAttribute(line) && ParseAttribute(line)) return {kind, depth > 0 ? count : complete};
        if (depth == 0 && !begins && !word.empty() && !EqualIgnoringCase(word, u"Object")) break;
        ++count;
        if (begins) ++depth;
        if (ends && depth > 0 && --depth == 0) complete = count;
        if (depth == 0 && EqualIgnoringCase(word, u"Object")) complete = count;
    }
    return {kind, complete};
}

void AddLine(TextView line, Text& out) {
    out += line;
    out.push_back(u'\n');
}

}  // namespace

StrippedCode StripAttributes(Text text) {
    StrippedCode result;
    const Header header = FindHeader(text);
    result.kind = header.kind;
    // The code moves together in the place of the text, every line at most to where it stands.
    if (!text.empty() && text.back() != u'\n' && text.back() != u'\r') text.push_back(u'\n');
    char16_t* behindCode = text.data();
    LineReader lines(text);
    TextView line;
    bool inside = false, hiding = false;
    for (std::uint32_t number = 1; lines.Next(line); ++number) {
        if (number <= header.lines) {
            AddLine(line, result.header);
            continue;
        }
        if (!inside) {
            hiding = false;
            if (MayBeAttribute(line)) {
                const auto attribute = ParseAttribute(line);
                hiding = attribute.has_value();
                if (attribute) Remember(*attribute, result);
            }
        }
        inside = Continues(line);
        if (hiding) {
            if (result.fileLines.Count() == 0) {
                AddLine(line, result.header);
            } else {
                result.innerAttributes.push_back({result.fileLines.Count(), Text(line)});
            }
            continue;
        }
        behindCode = std::copy(line.begin(), line.end(), behindCode);
        *behindCode++ = u'\n';
        result.fileLines.Add(number);
    }
    text.resize(static_cast<std::size_t>(behindCode - text.data()));
    result.code = std::move(text);
    return result;
}

}  // namespace zentlor::readers
