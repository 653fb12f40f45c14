#include "core/language/messages.h"

#include <array>
#include <iterator>

// clang-format off
#define kBlanks56 u"                                                        "
// clang-format on
#ifndef ZENTLOR_HOME_PAGE
#define ZENTLOR_HOME_PAGE u"https://example.org/zentlor"
#endif
#define kHomePage ZENTLOR_HOME_PAGE

namespace zentlor {

namespace {

struct Message {
    int id;
    TextView german;
    TextView english;
};

constexpr std::array kMessages = {
#define MESSAGE(id, german, english) Message{id, german, english},
#include "core/language/messages.def"
#undef MESSAGE
};

constexpr int kFirst = kMessages.front().id;

constexpr bool IdsAreDense() {
    for (std::size_t i = 0; i < kMessages.size(); ++i) {
        if (kMessages[i].id != kFirst + static_cast<int>(i)) return false;
    }
    return true;
}
static_assert(IdsAreDense(), "the look-up takes the id for a position");
static_assert(2 * kMessages.size() == 298);

}  // namespace

const TextView* FindMessage(int id) {
    const bool english = id >= kFirst + kEnglishOffset;
    const int position = id - kFirst - (english ? kEnglishOffset : 0);
    if (position < 0 || position >= static_cast<int>(kMessages.size())) return nullptr;
    const Message& message = kMessages[static_cast<std::size_t>(position)];
    return english ? &message.english : &message.german;
}

Text GetResourceString(int sprache, int lngID, TextView strWert1, TextView strWert2) {
    int offset = (sprache - 1) * kEnglishOffset;
    const TextView* row = FindMessage(lngID + offset);
    if (row == nullptr && offset > 0) row = FindMessage(lngID);
    if (row == nullptr) return u"???";
    Text text(*row);
    if (!strWert1.empty()) text = ReplaceAll(text, u"[%1]", strWert1);
    if (!strWert2.empty()) text = ReplaceAll(text, u"[%2]", strWert2);
    return text;
}

}  // namespace zentlor
