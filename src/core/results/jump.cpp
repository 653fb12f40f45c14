#include "core/results/jump.h"

#include "core/analysis/source_model.h"

namespace zentlor {

namespace {

// "Extras / Optionen" by position in the editor's menu bar.
constexpr int kExtrasMenu = 7;
constexpr int kOptionenEntry = 3;
constexpr int kBehindEveryColumn = 1024;

}  // namespace

void lvwErgebnis_DblClick(Session& session, std::size_t row) {
    Frame(session, {u"docAddIn", u"lvwErgebnis_DblClick"}, [&] {
        if (row >= session.lvwErgebnis.Count()) throw ObjectNotSet();
        const Hint hint = session.lvwErgebnis.Row(row);
        const int line = hint.lngZeile == 0 ? 1 : hint.lngZeile;
        Editor& editor = session.host().editor;
        if (hint.strNameVBC == session.GetResourceString(170)) {
            const bool aboutSettings = hint.strProzedur == session.GetResourceString(171);
            if (aboutSettings) editor.ExecuteMenuEntry(kExtrasMenu, kOptionenEntry);
            return;
        }
        const VBComponent& component = session.ActiveVBProject().Item(hint.strNameVBC);
        editor.ShowSelection(component, line, 1, line, kBehindEveryColumn);
    });
}

}  // namespace zentlor
