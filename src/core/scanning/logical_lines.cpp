#include "core/scanning/logical_lines.h"

#include <algorithm>

namespace zentlor {

namespace {

constexpr TextView kModule = u"mdl_PrüfungenHilfe";

TextView WithoutMark(TextView trimmedLine) {
    return trimmedLine.substr(0, trimmedLine.size() - 1);
}

int FirstLineOfLogicalLine(const CodeModule& cm, int line) {
    while (line > 1 && EndsInMark(cm.Lines(line - 1))) --line;
    return line;
}

// Joins the lines from `line` on, up to the first one without a mark or to the module's end. `first` is the text of the
// first of them, which the callers trim differently. `count`: how many there are.
LogicalText JoinForward(const CodeModule& cm, int line, TextView first, int& count) {
    count = 1;
    if (!first.ends_with(u'_')) return LogicalText(first);
    Text joined;
    TextView text = first;
    while (text.ends_with(u'_')) {
        joined.append(WithoutMark(text));
        if (line == cm.CountOfLines()) return LogicalText(std::move(joined));
        text = Trim(cm.Lines(++line));
        ++count;
    }
    return LogicalText(joined.append(text));
}

}  // namespace

bool EndsInMark(TextView line) {
    const TextView trimmed = RTrim(line);
    return !trimmed.empty() && trimmed.back() == u'_';
}

LineStep StepTo(const CodeModule& cm, int next, int line) {
    if (line < next) next = 0;
    LineStep step{line, false};
    while (step.first > std::max(next, 1) && EndsInMark(cm.Lines(step.first - 1))) --step.first;
    step.goesOn = next > 1 && step.first == next && EndsInMark(cm.Lines(next - 1));
    return step;
}

LogicalText GibGanzeZeile(const VBComponent& vbc, int lngZeile, int& lngAnzahl) {
    LogicalText result;
    lngAnzahl = 1;
    Frame(vbc.Project().Failures(), {kModule, u"GibGanzeZeile", vbc.Name()}, [&] {
        const CodeModule& cm = vbc.CodeModule();
        const int first = FirstLineOfLogicalLine(cm, lngZeile);
        result = JoinForward(cm, first, Trim(cm.Lines(first)), lngAnzahl);
    });
    return result;
}

Text GibGanzeZeileVorh(const CodeModule& cm, int lngZeile, int& lngSpalte) {
    Text result;
    Frame(cm.Parent().Project().Failures(), {kModule, u"GibGanzeZeileVorh", cm.Parent().Name()}, [&] {
        const TextView line = cm.Lines(lngZeile);
        const TextView trimmed = LTrim(line);
        lngSpalte -= static_cast<int>(line.size() - trimmed.size());
        Text joined;
        for (int i = FirstLineOfLogicalLine(cm, lngZeile); i < lngZeile; ++i) {
            joined.append(WithoutMark(Trim(cm.Lines(i))));
        }
        lngSpalte += Len(joined);
        result = joined.append(trimmed);
    });
    return result;
}

LogicalText GibGanzeZeileBisEnde(const VBComponent& vbc, int lngZeile, int lngSpalte, int& lngAnzahl) {
    LogicalText result;
    lngAnzahl = 1;
    Frame(vbc.Project().Failures(), {kModule, u"GibGanzeZeileBisEnde", vbc.Name()}, [&] {
        const CodeModule& cm = vbc.CodeModule();
        const TextView line = cm.Lines(lngZeile);
        const LogicalText whole = JoinForward(cm, lngZeile, line, lngAnzahl);
        result = line.ends_with(u'_') ? LogicalText(Text(Mid(whole, lngSpalte))) : LogicalText(Mid(line, lngSpalte));
    });
    return result;
}

bool StandsBehind(const CodeModule& cm, int lngZeile, int lngSpalte, TextView expected, int least) {
    bool result = false;
    Frame(cm.Parent().Project().Failures(), {kModule, u"GibGanzeZeileVorh", cm.Parent().Name()}, [&] {
        TextView piece = LTrim(cm.Lines(lngZeile).substr(0, static_cast<std::size_t>(lngSpalte - 1)));
        Text before(piece.substr(piece.size() - std::min(piece.size(), static_cast<std::size_t>(least))));
        for (int line = lngZeile - 1; Len(before) < least && line >= 1 && EndsInMark(cm.Lines(line)); --line) {
            before.insert(0, WithoutMark(Trim(cm.Lines(line))));
        }
        result = Len(before) >= least && before.ends_with(expected);
    });
    return result;
}

}  // namespace zentlor
