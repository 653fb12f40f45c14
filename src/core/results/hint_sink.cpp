// How a hint gets into the list: forwarded by the checks' side, counted and added on the pane's side.

#include "core/checks/hints.h"

namespace zentlor {

namespace {

void ErgebnisAnzeigeAddIn(Session& session, const Hint& hint) {
    Frame(session, {u"docAddIn", u"ErgebnisAnzeigeAddIn"}, [&] {
        if (hint.strNameVBC != session.strLetztesObjekt) {
            session.strLetztesObjekt = hint.strNameVBC;
            ++session.lngAnzahlObjekte;
        }
        ++session.lngAnzahlHinweise;
        session.lvwErgebnis.Add(hint);
    });
}

}  // namespace

void ErgebnisAnzeige(Session& session, const Hint& hint) {
    Frame(session, {u"mdl_ErgebnisAnzeige", u"ErgebnisAnzeige"}, [&] { ErgebnisAnzeigeAddIn(session, hint); });
}

}  // namespace zentlor
