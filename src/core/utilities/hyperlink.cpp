// The looks of a link, which change with every mouse move, and the way from its target to an application.

#include "core/utilities/hyperlink.h"

namespace zentlor {

namespace {

constexpr int kNoApplication = 31;
constexpr TextView kHttp = u"http://";
constexpr TextView kApp = u"App:";

void ShowNormal(LinkBox& txt, std::optional<int> colour) {
    txt.SetForeColor(colour.value_or(kLinkNormal));
    txt.SetUnderline(false);
}

}  // namespace

void HyperlinkEinrichten(LinkBox& txt, TextView strText, TextView strZiel, std::optional<int> backColor) {
    txt.SetText(strText);
    txt.SetLocked(true);
    txt.SetTag(strZiel);
    txt.SetTabStop(false);
    txt.SetBorder(false);
    if (backColor) txt.SetBackColor(*backColor);
}

void HyperlinkFormatieren(LinkBox& txt, std::optional<int> lngFarbe) {
    ShowNormal(txt, lngFarbe);
    if (txt.SetMouseIcon(kLinkCursor)) txt.SetMousePointer(kCustomPointer);
}

// The box has no timer and no leave event: once the pointer is inside, the capture brings it the move that leaves.
void HyperlinkMouseMove(LinkBox& txt, float x, float y, std::optional<int> lngFarbeNormal,
                        std::optional<int> lngFarbeAktiv) {
    const bool inside = x >= 0 && y >= 0 && x <= txt.Width() && y <= txt.Height();
    if (inside) {
        txt.SetCapture();
        txt.SetForeColor(lngFarbeAktiv.value_or(kLinkHover));
        txt.SetUnderline(true);
    } else {
        txt.ReleaseCapture();
        ShowNormal(txt, lngFarbeNormal);
    }
}

void HyperlinkClick(LinkBox& txt, Shell& shell, std::optional<int> lngFarbeNormal) {
    txt.SetEnabled(false);
    txt.SetEnabled(true);
    HyperlinkMouseMove(txt, -1, -1, lngFarbeNormal);
    const Text tag = txt.Tag();
    const TextView target(tag);
    if (target.starts_with(u"www.")) {
        shell.ShellExecuteA(u"Open", Text(kHttp) + tag, {}, {}, SW_SHOWMAXIMIZED);
    } else if (target.starts_with(kHttp) || target.starts_with(u"https://")) {
        shell.ShellExecuteA(u"Open", tag, {}, {}, SW_SHOWMAXIMIZED);
    } else if (target.starts_with(u"mailto:")) {
        shell.ShellExecuteA(u"Open", tag, {}, {}, SW_SHOWNORMAL);
    } else if (target.starts_with(kApp)) {
        DateiOeffnen(shell, target.substr(kApp.size()));
    }
}

void DateiOeffnen(Shell& shell, TextView strDatei) {
    if (shell.ShellExecuteA(u"open", strDatei, {}, {}, SW_SHOWNORMAL) != kNoApplication) return;
    const Text parameters = u"shell32.dll,OpenAs_RunDLL " + Text(strDatei);
    shell.ShellExecuteA({}, u"RUNDLL32.EXE", parameters, shell.GetSystemDirectoryA(), SW_SHOWNORMAL);
}

}  // namespace zentlor
