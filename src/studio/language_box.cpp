#include "studio/language_box.h"

#include "studio/icons.h"
#include "studio/qtext.h"

namespace zentlor::studio {

void QtLanguageBox::AddItem(int position, TextView text, TextView imageKey) {
    const QString flag = imageKey == u"English" ? QStringLiteral("en") : QStringLiteral("de");
    insertItem(position - 1, StrokeIcon(flag), ToQString(text));
}

Text QtLanguageBox::SelectedText() const {
    return FromQString(currentText());
}

}  // namespace zentlor::studio
