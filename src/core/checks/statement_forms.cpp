// The form of a statement: Select Case without Case Else, a string function without its "$", an empty string written as
// two quotation marks.

#include <array>

#include "core/checks/checks.h"
#include "core/scanning/use_search.h"

namespace zentlor::checks {

namespace {

std::vector<Hit> CodeHits(const CodeModule& cm, TextView target) {
    std::vector<Hit> hits;
    ForEachHit(cm, KeywordWalk(cm, target), [&](const Hit& hit) { hits.push_back(hit); });
    return hits;
}

// Skips the hits up to and including `place`, and returns the one behind it, or nullptr.
const Hit* NextBehind(const std::vector<Hit>& hits, std::size_t& next, const Hit& place) {
    while (next < hits.size() && !(place < hits[next])) ++next;
    return next < hits.size() ? &hits[next] : nullptr;
}

}  // namespace

void CmdCaseElseFehlt(const VBComponent& vbc, Hints& hints) {
    // Nesting is not tracked: a block ends at the first "End Select" behind its start, and a "Case Else" in front of
    // that belongs to it.
    const CodeModule& cm = vbc.CodeModule();
    const std::vector<Hit> ends = CodeHits(cm, u"End Select");
    const std::vector<Hit> elses = CodeHits(cm, u"Case Else");
    std::size_t nextEnd = 0;
    std::size_t nextElse = 0;
    for (const Hit& start : CodeHits(cm, u"Select Case")) {
        const Hit* end = NextBehind(ends, nextEnd, start);
        const Hit* caseElse = NextBehind(elses, nextElse, start);
        const bool found = end != nullptr && caseElse != nullptr && *caseElse < *end;
        if (!found) hints.Add(start);
    }
}

void CmdLeftStattLeftS(const VBComponent& vbc, Hints& hints) {
    constexpr std::array<TextView, 27> kFunctions = {
        u"Chr",   u"ChrB",   u"Command", u"CurDir", u"Date",  u"Dir",    u"Error", u"Format", u"Hex",
        u"Input", u"InputB", u"LCase",   u"Left",   u"LeftB", u"LTrim",  u"Mid",   u"MidB",   u"Oct",
        u"Right", u"RightB", u"RTrim",   u"Space",  u"Str",   u"String", u"Time",  u"Trim",   u"UCase"};
    const CodeModule& cm = vbc.CodeModule();
    for (const TextView function : kFunctions) {
        const auto isCalled = [&](const Hit& hit) {
            return Mid(cm.Lines(hit.line), hit.column + Len(function), 1) == u"(" && !IsOnHeader(cm, hit);
        };
        ForEachHit(cm, KeywordWalk(cm, function), isCalled, [&](const Hit& hit) { hints.Add(hit, function); });
    }
}

void CmdLeerStringStattVBNullString(const VBComponent& vbc, Hints& hints) {
    // A walk of its own: three marks in a row are the edge of a string with a doubled mark.
    const CodeModule& cm = vbc.CodeModule();
    HitFilter filter(cm);
    FindRange range{1, 0, -1, 1024};
    while (cm.Find(u"\"\"", range, {})) {
        const Hit hit{range.startLine, range.startColumn};
        const bool third = GibNaechsteZeichen(cm, hit.line, hit.column + 1, 1) == u"\"";
        if (!third && filter.IsInCode(hit)) hints.Add(hit);
        range = {hit.line, hit.column + (third ? 3 : 2), -1, 1024};
    }
}

}  // namespace zentlor::checks
