#include "studio/words.h"

#include <QLocale>
#include <array>

namespace zentlor::studio {

namespace {

struct Row {
    const char* german;
    const char* english;
};

constexpr std::array kRows = {
#define WORD(name, german, english) Row{german, english},
#include "studio/words.def"
#undef WORD
};

}  // namespace

QString Words::operator()(Word word) const {
    const Row& row = kRows[static_cast<std::size_t>(word)];
    return QString::fromUtf8(english_ ? row.english : row.german);
}

QString Words::Counted(int number, Word one, Word many) const {
    const QLocale locale(english_ ? QLocale::English : QLocale::German);
    return number == 1 ? (*this)(one) : (*this)(many).arg(locale.toString(number));
}

}  // namespace zentlor::studio
