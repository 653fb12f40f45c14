// How a module as a whole is declared: empty modules, the statement Option Explicit, and the forms of declaration that
// hide errors (As New, As Any, DefType, no access word, Global).

#include <algorithm>
#include <array>

#include "core/checks/checks.h"
#include "core/scanning/logical_lines.h"

namespace zentlor {

void OptionExplicitAutomatisch(Session& session) {
    Frame(session, {kCheckModule, u"OptionExplicitAutomatisch"}, [&] {
        Editor& editor = session.host().editor;
        const Text version = editor.Version().substr(0, 3);
        // A setting that cannot be read counts as switched off.
        const Text setting = editor.RequireDeclaration(version);
        if (!setting.empty() && setting != u"0") return;
        ErgebnisAnzeige(session, {session.GetResourceString(170), session.GetResourceString(171),
                                  session.GetResourceString(172), 0, CheckId::ModOptionExplicitAutomatisch});
    });
}

namespace checks {

void ModLeer(const VBComponent& vbc, Hints& hints) {
    const CodeModule& cm = vbc.CodeModule();
    if (cm.CountOfLines() != cm.CountOfDeclarationLines()) return;
    for (int line = 1; line <= cm.CountOfLines(); ++line) {
        const TextView text = Trim(cm.Lines(line));
        const bool noContent =
            text.empty() || text.starts_with(u"Option") || text.starts_with(u"'") || text.starts_with(u"Rem");
        if (!noContent) return;
    }
    hints.Add(hints.Message(170), 0);
}

void ModOptionExplicitFehlt(const VBComponent& vbc, Hints& hints) {
    const CodeModule& cm = vbc.CodeModule();
    if (cm.CountOfLines() == 0) return;
    bool found = false;
    if (cm.CountOfDeclarationLines() > 0) {
        const FindForm form{
            u"Explicit", {1, 0, cm.CountOfDeclarationLines(), 1024}, {.wholeWord = true, .matchCase = true}};
        ForEachHit(cm, form, [&](const Hit& hit) {
            found = StandsBehind(cm, hit.line, hit.column, u"Option ", 7);
            return !found;
        });
    }
    if (!found) hints.Add(hints.Deklarationen(), 0);
}

void ModDimAsNewWirdVerwendet(const VBComponent& vbc, Hints& hints) {
    const CodeModule& cm = vbc.CodeModule();
    const FindForm form{u"New", {1, 0, -1, -1}, {.wholeWord = true, .matchCase = true}};
    ForEachHit(cm, form, [&](const Hit& hit) {
        if (!StandsBehind(cm, hit.line, hit.column, u" As ", 6)) return;
        if (hit.line <= cm.CountOfDeclarationLines()) {
            hints.Add(hints.Deklarationen(), hit.line);
        } else {
            hints.Add(hit);
        }
    });
}

void ModDeklarationAsAny(const VBComponent& vbc, Hints& hints) {
    const CodeModule& cm = vbc.CodeModule();
    if (cm.CountOfDeclarationLines() == 0) return;
    const FindForm form{u"Any", {1, 0, cm.CountOfDeclarationLines(), -1}, {.wholeWord = true, .matchCase = true}};
    ForEachHit(cm, form, [&](const Hit& hit) {
        if (StandsBehind(cm, hit.line, hit.column, u" As ", 4)) hints.Add(hints.Deklarationen(), hit.line);
    });
}

void ModDefTypeWirdVerwendet(const VBComponent& vbc, Hints& hints) {
    constexpr std::array<TextView, 12> kDefTypes = {u"DefBool", u"DefByte", u"DefInt", u"DefLng",
                                                    u"DefCur",  u"DefSng",  u"DefDbl", u"DefDec",
                                                    u"DefDate", u"DefStr",  u"DefObj", u"DefVar"};
    const CodeModule& cm = vbc.CodeModule();
    FindRange probe{0, 0, cm.CountOfDeclarationLines() + 1, 0};
    if (!cm.Find(u"Def", probe, {})) return;
    for (int line = 1; line <= cm.CountOfDeclarationLines();) {
        int count = 0;
        const LogicalText joined = GibGanzeZeile(vbc, line, count);
        ForEachStatement(KommentarEntfernen(joined), [&](TextView statement) {
            const auto defType = std::find_if(kDefTypes.begin(), kDefTypes.end(), [&](TextView word) {
                return statement.starts_with(word) && Mid(statement, Len(word) + 1, 1) == u" ";
            });
            if (defType != kDefTypes.end()) hints.Add(hints.Deklarationen(), line, *defType);
        });
        line += count;
    }
}

void ModObjectScopeNotExplicit(const VBComponent&, const ModDeclarations& arrModDeclarations, Hints& hints) {
    ForEachRecord(arrModDeclarations, [&](const typModDeclaration& record) {
        if (!record.blnScopeExplizit) hints.Add(hints.Deklarationen(), record.lngDeklZeile, record.strName);
    });
}

void ModGlobalWirdVerwendet(const VBComponent&, const ModDeclarations& arrModDeclarations, Hints& hints) {
    ForEachRecord(arrModDeclarations, [&](const typModDeclaration& record) {
        if (record.lngScope == kGlobal) hints.Add(hints.Deklarationen(), record.lngDeklZeile);
    });
}

}  // namespace checks

}  // namespace zentlor
