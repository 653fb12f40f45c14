#include "studio/words.h"

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

}  // namespace zentlor::studio
