#include "core/results/records.h"

namespace zentlor {

namespace {

constexpr TextView kLineEnd = u"\r\n";

// Messages of the four columns, in their order.
struct ColumnWords {
    explicit ColumnWords(Session& session)
        : modul(session.GetResourceString(113)),
          prozedur(session.GetResourceString(114)),
          hinweis(session.GetResourceString(115)),
          zeile(session.GetResourceString(116)) {}
    Text modul, prozedur, hinweis, zeile;
};

}  // namespace

Text TxtRecords(Session& session) {
    const ColumnWords words(session);
    Text text;
    for (std::size_t row = 0; row < session.lvwErgebnis.Count(); ++row) {
        const Hint& hint = session.lvwErgebnis.Row(row);
        text.append(words.modul).append(u": ").append(hint.strNameVBC).append(kLineEnd);
        text.append(u"    ").append(words.prozedur).append(u": ").append(hint.strProzedur).append(kLineEnd);
        text.append(u"        ").append(words.hinweis).append(u": ").append(hint.strHinweis);
        text.append(u" (").append(words.zeile).append(u" ").append(ToText(hint.lngZeile)).append(u")");
        text.append(kLineEnd).append(kLineEnd);
    }
    return text;
}

Text CsvRecords(Session& session) {
    const ColumnWords words(session);
    Text text;
    const auto appendRow = [&text](TextView a, TextView b, TextView c, TextView d) {
        text.append(a).append(u";").append(b).append(u";").append(c).append(u";").append(d).append(kLineEnd);
    };
    appendRow(words.modul, words.prozedur, words.hinweis, words.zeile);
    for (std::size_t row = 0; row < session.lvwErgebnis.Count(); ++row) {
        const Hint& hint = session.lvwErgebnis.Row(row);
        appendRow(hint.strNameVBC, hint.strProzedur, hint.strHinweis, ToText(hint.lngZeile));
    }
    return text;
}

}  // namespace zentlor
