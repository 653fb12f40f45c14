#include "core/analysis/compile_gate.h"

#include "core/analysis/source_model.h"

namespace zentlor {

bool IstCodeKompiliert(Session& session) {
    bool compiled = false;
    Frame(session, {u"docAddIn", u"IstCodeKompiliert"}, [&] {
        Host& host = session.host();
        if (!host.editor.CompileCommandEnabled()) {
            compiled = true;
            return;
        }
        host.pane.ShowProgress(false);
        host.pane.ShowStatus(true);
        const Text& name = session.ActiveVBProject().Name();
        host.pane.SetPanel(1, session.GetResourceString(237, name));
        constexpr TextView kLineEnd = u"\r\n";
        Text text = session.GetResourceString(232);
        text.append(kLineEnd).append(session.GetResourceString(233));
        text.append(kLineEnd).append(kLineEnd).append(session.GetResourceString(234));
        text.append(kLineEnd).append(session.GetResourceString(235, name));
        text.append(kLineEnd).append(kLineEnd).append(session.GetResourceString(236));
        host.boxes.Show(text, BoxIcon::Exclamation, session.GetResourceString(231));
    });
    return compiled;
}

}  // namespace zentlor
