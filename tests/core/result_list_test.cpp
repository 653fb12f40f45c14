// The rows of hints that repeat: they share the memory of one, and nobody may notice.

#include "core/results/result_list.h"

#include <gtest/gtest.h>

#include "core/utilities/encoding.h"

namespace zentlor {
namespace {

Hint HintAt(TextView module, int line) {
    return {module, u"A", u"Stop", line, CheckId::CmdVergessenerBefehlStop, 0};
}

std::string Emitted(const ResultList& list) {
    std::string text;
    for (const Hint& hint : list.Emitted()) text += ToUtf8(hint.strNameVBC) + std::to_string(hint.lngZeile) + " ";
    return text;
}

std::string Rows(const ResultList& list) {
    std::string text;
    for (std::size_t row = 0; row < list.Count(); ++row) {
        text += ToUtf8(list.Row(row).strNameVBC) + std::to_string(list.Row(row).lngZeile) + " ";
    }
    return text;
}

TEST(ResultList, CountsHintsThatRepeat) {
    ResultList list;
    for (int i = 0; i < 3; ++i) list.Add(HintAt(u"b", 7));
    list.Add(HintAt(u"a", 2));
    EXPECT_EQ(Rows(list), "a2 b7 b7 b7 ");
    list.Add(HintAt(u"a", 2));
    list.Add(HintAt(u"b", 7));
    EXPECT_EQ(list.Count(), 6U);
    EXPECT_EQ(Emitted(list), "b7 b7 b7 a2 a2 b7 ");
    EXPECT_EQ(Rows(list), "a2 a2 b7 b7 b7 b7 ");
    EXPECT_EQ(list.Emitted()[4].lngZeile, 2);
    EXPECT_EQ(list.Emitted()[5].lngZeile, 7);
    list.lvwErgebnis_ColumnClick(1);
    EXPECT_EQ(Rows(list), "b7 b7 b7 b7 a2 a2 ");
    list.Clear();
    EXPECT_EQ(Emitted(list) + Rows(list), "");
    list.Add(HintAt(u"c", 1));
    EXPECT_EQ(Rows(list), "c1 ");
}

}  // namespace
}  // namespace zentlor
