#include "core/declarations/declaration_lists.h"

#include "core/scanning/parameters.h"

namespace zentlor {

namespace {

int CountBlanks(TextView text, int column) {
    int count = 0;
    while (Mid(text, column + count, 1) == u" ") ++count;
    return count;
}

// Name and type, once a turn knows where they lie. `nameEnd` 0: the name runs to the end of the statement.
void Cut(TextView statement, int namePos, int nameEnd, int typePos, DeclaredName& name) {
    name.strName = nameEnd == 0 ? Mid(statement, namePos) : Mid(statement, namePos, nameEnd - namePos);
    name.blnKennzeichen = EndsInTypeCharacter(name.strName);
    name.blnDatentyp = name.blnKennzeichen || Mid(statement, typePos, 3) == u"As ";
}

}  // namespace

VariableList::VariableList(TextView statement, int lngPos)
    : statement_(statement),
      blanks_(statement, u' '),
      commas_(statement, u','),
      opening_(statement, u'('),
      closing_(statement, u')'),
      lngPos_(lngPos) {}

bool VariableList::Next(DeclaredName& name) {
    if (!more_) return false;
    int lngBlanks = 0;
    int lngKomma = 0;
    int lngKlammerZu = 0;
    int lngBlank = blanks_.From(lngPos_);
    const bool blankFollows = lngBlank > 0;
    int lngKlammerAuf = opening_.From(lngPos_);
    if (blankFollows && lngKlammerAuf > lngBlank) lngKlammerAuf = 0;
    if (lngKlammerAuf > 0) lngKlammerZu = closing_.From(lngKlammerAuf);
    if (blankFollows) {
        if (lngKlammerZu > 0) lngBlank = blanks_.From(lngKlammerZu);
        if (lngBlank > 0) lngBlanks = CountBlanks(statement_, lngBlank);
        lngKomma = commas_.From(lngKlammerZu > 0 ? lngKlammerZu : lngPos_);
    }

    int lngNameEnde = lngBlank;
    int lngTypPos = lngBlank + lngBlanks + (lngBlanks == 0 ? 1 : 0);
    if (lngKlammerAuf > 0) {
        lngNameEnde = lngKlammerAuf;
        lngTypPos = lngKlammerZu + lngBlanks + 1;
    } else if (lngKomma > 0 && lngKomma < lngBlank) {
        lngNameEnde = lngTypPos = lngKomma;
    }
    Cut(statement_, lngPos_, lngNameEnde, lngTypPos, name);
    lngPos_ = lngKomma + 2;
    more_ = lngKomma > 0;
    return true;
}

ConstantList::ConstantList(TextView statement, int lngPos)
    : statement_(statement), blanks_(statement, u' '), commas_(statement, u','), quotes_(statement), lngPos_(lngPos) {}

int ConstantList::NextComma() {
    int comma = commas_.From(lngPos_);
    while (comma != 0 && quotes_.IsQuoted(comma)) comma = commas_.From(comma + 1);
    return comma;
}

bool ConstantList::Next(DeclaredName& name) {
    if (!more_) return false;
    const int lngBlank = blanks_.From(lngPos_);
    const int lngKomma = NextComma();
    const int lngBlanks = lngBlank == 0 ? 0 : CountBlanks(statement_, lngBlank);
    int lngNameEnde = lngBlank;
    int lngTypPos = lngBlank + lngBlanks;
    if (lngKomma > 0 && lngKomma < lngBlank) lngNameEnde = lngTypPos = lngKomma;
    Cut(statement_, lngPos_, lngNameEnde, lngTypPos, name);
    lngPos_ = lngKomma + 2;
    more_ = lngKomma > 0;
    return true;
}

}  // namespace zentlor
