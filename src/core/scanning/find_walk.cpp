#include "core/scanning/find_walk.h"

namespace zentlor {

bool HitFilter::IsInComment(int line, int column) {
    if (line != commentLine_) {
        commentLine_ = line;
        markColumn_ = CommentScanner::kNoComment;
        Frame(cm_.Parent().Project().Failures(), {u"mdl_PrüfungenHilfe", u"IstPosInKommentar", cm_.Parent().Name()},
              [&] { markColumn_ = comments_.MarkColumn(line); });
    }
    return markColumn_ < column;
}

bool HitFilter::IsInQuotes(int line, int column) {
    if (line != quotedLine_) {
        quotes_ = QuoteCounter(cm_.Lines(line));
        quotedLine_ = line;
    }
    return quotes_.IsQuoted(column);
}

bool IsOnHeader(const CodeModule& cm, const Hit& hit) {
    int kind = 0;
    const TextView name = cm.ProcOfLine(hit.line, kind);
    return cm.ProcBodyLine(name, kind) == hit.line;
}

FindForm KeywordWalk(const CodeModule& cm, TextView target) {
    return {target, {cm.CountOfDeclarationLines() + 1, 0, -1, -1}, {.wholeWord = true, .matchCase = true}};
}

}  // namespace zentlor
