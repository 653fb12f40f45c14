#include "support/check_fixture.h"

#include <stdexcept>

#include "core/utilities/encoding.h"

namespace zentlor::test {

namespace {

constexpr TextView kMark = u"'!";

struct MarkedLine {
    TextView code;
    std::vector<TextView> marks;
};

MarkedLine SplitMarks(TextView line) {
    MarkedLine result;
    const auto first = line.find(kMark);
    result.code = first == TextView::npos ? line : RTrim(line.substr(0, first));
    for (auto mark = first; mark != TextView::npos;) {
        const auto next = line.find(kMark, mark + kMark.size());
        result.marks.push_back(Trim(line.substr(mark + 2, next == TextView::npos ? next : next - mark - 2)));
        mark = next;
    }
    return result;
}

ExpectedHint ParseMark(TextView mark) {
    ExpectedHint hint;
    const auto quote = mark.find(u'"');
    hint.procedure = Trim(mark.substr(0, quote));
    if (hint.procedure == u"-") hint.procedure.clear();
    if (quote != TextView::npos) hint.textPart = mark.substr(quote + 1, mark.rfind(u'"') - quote - 1);
    return hint;
}

int TypeOfKind(TextView kind) {
    if (kind == u"Modul") return 1;
    if (kind == u"Klasse") return 2;
    if (kind == u"Formular") return 3;
    if (kind == u"Dokument") return 100;
    throw std::runtime_error("no such kind of component: " + ToUtf8(kind));
}

void ReadDirective(TextView directive, int fixtureLine, Fixture& fixture) {
    const auto blank = directive.find(u' ');
    const TextView word = directive.substr(0, blank);
    const TextView rest = blank == TextView::npos ? TextView() : Trim(directive.substr(blank));
    if (word == u"RequireDeclaration") {
        fixture.requireDeclaration = rest;
    } else if (directive == u"expects nothing") {
        fixture.expectsNothing = true;
    } else {
        fixture.components.push_back({Text(rest), TypeOfKind(word), {}, fixtureLine});
    }
}

}  // namespace

Fixture ParseFixture(const std::string& utf8) {
    Fixture fixture;
    const Text text = FromUtf8(utf8);
    int fixtureLine = 0;
    int codeLine = 0;
    for (std::size_t begin = 0; begin < text.size();) {
        const std::size_t end = std::min(text.find(u'\n', begin), text.size());
        const MarkedLine line = SplitMarks(TextView(text).substr(begin, end - begin));
        begin = end + 1;
        ++fixtureLine;
        const bool directive = line.code.starts_with(u"'=");
        codeLine = directive ? 0 : codeLine + 1;
        if (directive) {
            ReadDirective(Trim(line.code.substr(2)), fixtureLine, fixture);
        } else if (fixture.components.empty()) {
            throw std::runtime_error("code in front of the first component, line " + std::to_string(fixtureLine));
        } else {
            fixture.components.back().code.append(line.code).append(u"\n");
        }
        for (const TextView mark : line.marks) {
            ExpectedHint hint = ParseMark(mark);
            if (!fixture.components.empty()) hint.component = fixture.components.back().name;
            hint.line = codeLine;
            hint.fixtureLine = fixtureLine;
            fixture.expected.push_back(std::move(hint));
        }
    }
    return fixture;
}

}  // namespace zentlor::test
