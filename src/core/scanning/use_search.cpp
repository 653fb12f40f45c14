#include "core/scanning/use_search.h"

namespace zentlor {

namespace {

constexpr TextView kModule = u"mdl_PrüfungenHilfe";
constexpr TextView kWordCharacters = u"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyzßäÄöÖüÜ€§12345467890_";
constexpr int kBehindEveryColumn = 1024;

// The walk that both searches share. `result` is kept up to date, for the case that the walk fails.
void SearchUse(const CodeModule& cm, HitFilter& filter, TextView expression, FindRange range, int& result) {
    const FindRange bounds = range;
    while (cm.FindWord(expression, range, IstWortFortsetzungsZeichen)) {
        if (filter.IsInComment(range.startLine, range.startColumn)) {
            result = kUsedInComments;
        } else if (!filter.IsInQuotes(range.startLine, range.startColumn)) {
            result = kUsed;
            return;
        }
        range = {range.startLine, range.startColumn + 1, bounds.endLine, bounds.endColumn};
    }
}

}  // namespace

bool IstWortFortsetzungsZeichen(char16_t zeichen) {
    if (zeichen < 0x80) return IsIndexCharacter(zeichen);
    return kWordCharacters.find(zeichen) != TextView::npos;
}

bool IstTrefferGanzesWort(const CodeModule& cm, TextView strAusdruck, int lngZeile, int lngSpalte) {
    bool result = false;
    Frame(cm.Parent().Project().Failures(), {kModule, u"IstTrefferGanzesWort", cm.Parent().Name()}, [&] {
        const TextView line = cm.Lines(lngZeile);
        const TextView before = Mid(line, lngSpalte - 1, 1);
        const TextView behind = Mid(line, lngSpalte + Len(strAusdruck), 1);
        const auto continues = [](TextView c) { return !c.empty() && IstWortFortsetzungsZeichen(c.front()); };
        result = !continues(before) && !continues(behind);
    });
    return result;
}

int WirdAusdruckInModulVerwendet(const VBComponent& vbc, HitFilter& filter, TextView strAusdruck, int lngZeile,
                                 int lngSpalte) {
    int result = kNotUsed;
    Frame(vbc.Project().Failures(), {kModule, u"WirdAusdruckInModulVerwendet", vbc.Name()}, [&] {
        const CodeModule& cm = vbc.CodeModule();
        const int line = lngZeile == 0 ? cm.CountOfDeclarationLines() + 1 : lngZeile;
        SearchUse(cm, filter, strAusdruck, {line, lngSpalte, -1, kBehindEveryColumn}, result);
    });
    return result;
}

int WirdAusdruckInProzedurVerwendet(const VBComponent& vbc, HitFilter& filter, TextView strAusdruck, int lngZeile,
                                    int lngSpalte, int lngEndZeile) {
    int result = kNotUsed;
    Frame(vbc.Project().Failures(), {kModule, u"WirdAusdruckInProzedurVerwendet", vbc.Name()}, [&] {
        SearchUse(vbc.CodeModule(), filter, strAusdruck, {lngZeile, lngSpalte + 1, lngEndZeile, kBehindEveryColumn},
                  result);
    });
    return result;
}

TextView GibNaechsteZeichen(const CodeModule& cm, int lngZeile, int lngSpalte, int lngAnzahl) {
    TextView result;
    Frame(cm.Parent().Project().Failures(), {kModule, u"GibNaechsteZeichen", cm.Parent().Name()},
          [&] { result = Mid(cm.Lines(lngZeile), lngSpalte + 1, lngAnzahl); });
    return result;
}

}  // namespace zentlor
