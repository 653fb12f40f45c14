// The result list packs its hints, and nobody may notice.

#include "core/results/result_list.h"

#include <gtest/gtest.h>
#include <malloc.h>

#include <algorithm>
#include <random>

#include "core/utilities/encoding.h"

namespace zentlor {
namespace {

Hint HintAt(TextView module, int line) {
    return {Text(module), u"A", u"Stop", line, CheckId::CmdVergessenerBefehlStop, 0};
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

// Hints as a run gives them: the next one often shares the module, the line or a part of a text with the one in front.
std::vector<Hint> RandomHints(std::mt19937& random, std::size_t count) {
    const auto below = [&](unsigned bound) { return random() % bound; };
    const auto text = [&] {
        static const std::vector<Text> kParts = {u"a",      u"ab", u"",  u"aab", u"Ärger", u"\xD83D\xDE00",
                                                 u"\xFFFF", u"'",  u"\0"};
        Text whole;
        for (unsigned i = below(5); i > 0; --i) whole += kParts[below(static_cast<unsigned>(kParts.size()))];
        return below(200) == 0 ? whole + Text(1 + below(3000), u'x') : whole;
    };
    std::vector<Hint> hints(count);
    for (std::size_t i = 0; i < count; ++i) {
        Hint& hint = hints[i];
        if (i > 0) hint = hints[i - 1];
        if (below(8) == 0) hint.strNameVBC = text();
        if (below(3) == 0) hint.strProzedur = text();
        if (below(2) == 0) hint.strHinweis = text();
        if (below(3) == 0) hint.lngZeile = static_cast<int>(below(2) == 0 ? below(300) : random() >> 1);
        if (below(9) == 0) hint.check = static_cast<CheckId>(below(45));
        if (below(9) == 0) hint.component = static_cast<int>(below(100000)) - 1;
    }
    return hints;
}

TEST(ResultList, GivesBackEveryHintThatItPacked) {
    std::mt19937 random(7);
    for (const std::size_t count : {0U, 1U, 2U, 700U, 5000U}) {
        const std::vector<Hint> hints = RandomHints(random, count);
        ResultList list;
        for (const Hint& hint : hints) list.Add(hint);
        ASSERT_TRUE(std::equal(list.Emitted().begin(), list.Emitted().end(), hints.begin(), hints.end()));
        HintSequence::Iterator place = list.Emitted().begin();
        for (std::size_t i = 0; i < std::min<std::size_t>(count, 500); ++i) {
            const std::size_t index = i % 3 == 0 ? random() % count : std::min(count - 1, random() % 5 + i);
            place.GoTo(index);
            ASSERT_EQ(*place, hints[index]) << index;
            ASSERT_EQ(list.Emitted()[index], hints[index]) << index;
        }
    }
}

// Every hint on a procedure bears its name, and a hostile one is long.
TEST(ResultList, KeepsALongTextOnce) {
    constexpr std::size_t kLength = 100'000;
    constexpr std::size_t kHints = 2000;
    Hint hint = HintAt(u"M", 1);
    hint.strProzedur = Text(kLength, u'x');
    ResultList list;
    const std::size_t before = mallinfo2().uordblks;
    for (std::size_t i = 0; i < kHints; ++i) {
        hint.lngZeile = static_cast<int>(i);
        list.Add(hint);
    }
    EXPECT_LT(mallinfo2().uordblks, before + 20 * kLength);
    EXPECT_EQ(list.Emitted()[kHints - 1], hint);
}

TEST(ResultList, SortsByEachColumnWhileItGrows) {
    std::mt19937 random(11);
    const std::vector<Hint> hints = RandomHints(random, 400);
    for (int column = 1; column <= kVisibleColumns; ++column) {
        ResultList list;
        list.lvwErgebnis_ColumnClick(column);
        std::vector<Hint> expected;
        for (std::size_t i = 0; i < hints.size(); ++i) {
            list.Add(hints[i]);
            expected.push_back(hints[i]);
            if (i % 50 != 49) continue;
            const int cell = list.SortKey() + 1;
            std::vector<Hint> sorted = expected;
            std::stable_sort(sorted.begin(), sorted.end(), [&](const Hint& a, const Hint& b) {
                const int order = CompareCells(CellText(a, cell), CellText(b, cell));
                return list.Ascending() ? order < 0 : order > 0;
            });
            for (std::size_t row = 0; row < sorted.size(); ++row) ASSERT_EQ(list.Row(row), sorted[row]) << column;
        }
    }
}

}  // namespace
}  // namespace zentlor
