#pragma once

// The find walk: all occurrences of a target in code, one after the other. Hits in comments and strings are dropped.

#include <type_traits>

#include "core/scanning/comments_and_strings.h"

namespace zentlor {

struct Hit {
    int line = 0;
    int column = 0;

    /// In the order of the text.
    friend bool operator<(const Hit& a, const Hit& b) {
        return a.line != b.line ? a.line < b.line : a.column < b.column;
    }
};

/// Tells hits in comments and strings: what IstPosInKommentar and IstPosInQuotes answer. For hits in ascending order
/// each line is read once.
class HitFilter {
  public:
    explicit HitFilter(const CodeModule& cm) : cm_(cm), comments_(cm), quotes_({}) {}

    /// False if the line cannot be read, which is reported.
    bool IsInComment(int line, int column);
    bool IsInQuotes(int line, int column);
    bool IsInCode(Hit hit) { return !IsInComment(hit.line, hit.column) && !IsInQuotes(hit.line, hit.column); }

  private:
    const CodeModule& cm_;
    CommentScanner comments_;
    int commentLine_ = 0;
    int markColumn_ = 0;
    QuoteCounter quotes_;
    int quotedLine_ = 0;
};

/// What a walk looks for, and between which bounds.
struct FindForm {
    TextView target;
    FindRange range;
    FindFlags flags;
};

/// From behind the declaration section to the module's end, whole words in exact case.
FindForm KeywordWalk(const CodeModule& cm, TextView target);

/// Whether the hit stands on the first line of its procedure's header.
bool IsOnHeader(const CodeModule& cm, const Hit& hit);

/// Calls `onHit` for every hit of `form` in code that `counts`, in order of the text. `onHit` returns nothing, or false
/// to end the walk. `counts` is asked first: to tell code from comments costs more.
template <class Counts, class OnHit>
void ForEachHit(const CodeModule& cm, const FindForm& form, Counts counts, OnHit onHit) {
    HitFilter filter(cm);
    FindRange range = form.range;
    while (cm.Find(form.target, range, form.flags)) {
        const Hit hit{range.startLine, range.startColumn};
        if (counts(hit) && filter.IsInCode(hit)) {
            if constexpr (std::is_same_v<decltype(onHit(hit)), bool>) {
                if (!onHit(hit)) return;
            } else {
                onHit(hit);
            }
        }
        range = {hit.line, hit.column + 1, form.range.endLine, form.range.endColumn};
    }
}

template <class OnHit>
void ForEachHit(const CodeModule& cm, const FindForm& form, OnHit onHit) {
    ForEachHit(
        cm, form, [](const Hit&) { return true; }, onHit);
}

/// Calls `visit` for every procedure of a procedure walk. One whose extent begins on the module's very last line is not
/// visited.
template <class Visit>
void ForEachProcedure(const CodeModule& cm, Visit visit) {
    for (const Procedure& procedure : cm.Procedures()) {
        if (procedure.firstLine < cm.CountOfLines()) visit(procedure);
    }
}

}  // namespace zentlor
