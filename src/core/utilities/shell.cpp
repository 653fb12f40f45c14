#include "core/utilities/shell.h"

namespace zentlor {

void HilfeAnzeigen(Session& session, Shell& shell, TextView strDatei, int lngThema) {
    constexpr int HH_DISPLAY_TOPIC = 0;
    Frame(session, {u"mdl_Hilfe", u"HilfeAnzeigen"}, [&] { shell.HtmlHelpA(strDatei, HH_DISPLAY_TOPIC, lngThema); });
}

}  // namespace zentlor
