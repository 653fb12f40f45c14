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

void AppendTxt(const ColumnWords& words, const Hint& hint, Text& text) {
    text.append(words.modul).append(u": ").append(hint.strNameVBC).append(kLineEnd);
    text.append(u"    ").append(words.prozedur).append(u": ").append(hint.strProzedur).append(kLineEnd);
    text.append(u"        ").append(words.hinweis).append(u": ").append(hint.strHinweis);
    text.append(u" (").append(words.zeile).append(u" ").append(ToText(hint.lngZeile)).append(u")");
    text.append(kLineEnd).append(kLineEnd);
}

void AppendCsv(TextView a, TextView b, TextView c, TextView d, Text& text) {
    text.append(a).append(u";").append(b).append(u";").append(c).append(u";").append(d).append(kLineEnd);
}

}  // namespace

void ForEachRecord(Session& session, RecordForm form, const std::function<void(TextView record)>& take) {
    const ColumnWords words(session);
    Text text;
    if (form == RecordForm::Csv) {
        AppendCsv(words.modul, words.prozedur, words.hinweis, words.zeile, text);
        take(text);
    }
    HintSequence::Iterator place = session.lvwErgebnis.Emitted().begin();
    for (const std::uint32_t number : session.lvwErgebnis.Order()) {
        place.GoTo(number);
        const Hint& hint = *place;
        text.clear();
        if (form == RecordForm::Csv) {
            AppendCsv(hint.strNameVBC, hint.strProzedur, hint.strHinweis, ToText(hint.lngZeile), text);
        } else {
            AppendTxt(words, hint, text);
        }
        take(text);
    }
}

}  // namespace zentlor
