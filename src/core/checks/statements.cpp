// Single words in the code of the procedures: what was left over from debugging, and what is discouraged. Every
// occurrence in code counts, whatever the word means there; two on one line are two hints.

#include "core/checks/checks.h"
#include "core/scanning/logical_lines.h"

namespace zentlor::checks {

namespace {

void ReportWords(const VBComponent& vbc, TextView word, Hints& hints) {
    ForEachHit(vbc.CodeModule(), KeywordWalk(vbc.CodeModule(), word), [&](const Hit& hit) { hints.Add(hit); });
}

// Parts of words and other fragments count as well.
template <class Counts>
void ReportFragments(const VBComponent& vbc, TextView fragment, Hints& hints, Counts counts) {
    FindForm form = KeywordWalk(vbc.CodeModule(), fragment);
    form.flags.wholeWord = false;
    ForEachHit(vbc.CodeModule(), form, counts, [&](const Hit& hit) { hints.Add(hit); });
}

// Spares a procedure that bears the word as its name, on the first line of its header.
void ReportWordsBehindHeader(const VBComponent& vbc, TextView word, Hints& hints) {
    const CodeModule& cm = vbc.CodeModule();
    const auto isBehindHeader = [&](const Hit& hit) { return !IsOnHeader(cm, hit); };
    ForEachHit(cm, KeywordWalk(cm, word), isBehindHeader, [&](const Hit& hit) { hints.Add(hit); });
}

void ReportDebugMethod(const VBComponent& vbc, TextView method, Hints& hints) {
    const CodeModule& cm = vbc.CodeModule();
    const auto isOfDebug = [&](const Hit& hit) {
        return StandsBehind(cm, hit.line, hit.column, u"Debug.", 6) ||
               StandsBehind(cm, hit.line, hit.column, u"Debug. ", 7);
    };
    ForEachHit(cm, KeywordWalk(cm, method), isOfDebug, [&](const Hit& hit) { hints.Add(hit); });
}

}  // namespace

void CmdVergessenerBefehlStop(const VBComponent& vbc, Hints& hints) {
    ReportWords(vbc, u"Stop", hints);
}

void CmdVergessenerBefehlDebugPrint(const VBComponent& vbc, Hints& hints) {
    ReportDebugMethod(vbc, u"Print", hints);
}

void CmdVergessenerBefehlDebugAssert(const VBComponent& vbc, Hints& hints) {
    ReportDebugMethod(vbc, u"Assert", hints);
}

void CmdDoMenuItemWirdVerwendet(const VBComponent& vbc, Hints& hints) {
    ReportWordsBehindHeader(vbc, u"DoMenuItem", hints);
}

void CmdWendWirdVerwendet(const VBComponent& vbc, Hints& hints) {
    ReportWords(vbc, u"Wend", hints);
}

void CmdDoppelpunktVerwendet(const VBComponent& vbc, Hints& hints) {
    ReportFragments(vbc, u": ", hints, [](const Hit&) { return true; });
}

void CmdSendKeysWirdVerwendet(const VBComponent& vbc, Hints& hints) {
    ReportWordsBehindHeader(vbc, u"SendKeys", hints);
}

void CmdGoSubWirdVerwendet(const VBComponent& vbc, Hints& hints) {
    ReportFragments(vbc, u"GoSub ", hints, [](const Hit&) { return true; });
}

void CmdGoToWirdVerwendet(const VBComponent& vbc, Hints& hints) {
    // A method of that name, and the jump of an error handler, are something else.
    const CodeModule& cm = vbc.CodeModule();
    ReportFragments(vbc, u"GoTo ", hints, [&](const Hit& hit) {
        return !StandsBehind(cm, hit.line, hit.column, u".", 1) &&
               !StandsBehind(cm, hit.line, hit.column, u" Error ", 7);
    });
}

void CmdLetWirdVerwendet(const VBComponent& vbc, Hints& hints) {
    const CodeModule& cm = vbc.CodeModule();
    const auto isStatement = [&](const Hit& hit) { return !StandsBehind(cm, hit.line, hit.column, u"Property ", 9); };
    ForEachHit(cm, KeywordWalk(cm, u"Let"), isStatement, [&](const Hit& hit) { hints.Add(hit); });
}

void CmdIIfWirdVerwendet(const VBComponent& vbc, Hints& hints) {
    ReportWordsBehindHeader(vbc, u"IIf", hints);
}

}  // namespace zentlor::checks
