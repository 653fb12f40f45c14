// The about box takes its words anew at each opening: the address and the description follow the language.

#include "core/utilities/about_box.h"

namespace zentlor {

namespace {

constexpr TextView kModule = u"frm_About";

}  // namespace

Text VersionLine() {
    return u"Version " ZENTLOR_VERSION;
}

TextView CopyrightLine() {
    return ZENTLOR_COPYRIGHT;
}

void frm_About::Form_Load() {
    Frame(session_, {kModule, u"Form_Load"}, [&] {
        view_.SetVersion(VersionLine());
        const Text address = session_.GetResourceString(238);
        HyperlinkEinrichten(view_.txtHyperlink(), address, address, view_.BackColor());
        HyperlinkFormatieren(view_.txtHyperlink());
        view_.SetBeschreibung(session_.GetResourceString(117));
    });
}

void frm_About::cmdOK_Click() {
    Frame(session_, {kModule, u"cmdOK_Click"}, [&] { view_.Unload(); });
}

void frm_About::txtHyperlink_Click() {
    Frame(session_, {kModule, u"txtHyperlink_Click"}, [&] { HyperlinkClick(view_.txtHyperlink(), shell_); });
}

void frm_About::txtHyperlink_MouseMove(float x, float y) {
    Frame(session_, {kModule, u"txtHyperlink_MouseMove"}, [&] { HyperlinkMouseMove(view_.txtHyperlink(), x, y); });
}

}  // namespace zentlor
