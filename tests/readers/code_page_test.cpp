#include "readers/code_page.h"

#include <gtest/gtest.h>

#include "core/utilities/encoding.h"

namespace zentlor::readers {
namespace {

TEST(CodePage, GivesTheCharactersOfEachPage) {
    struct Row {
        int codePage;
        std::string bytes;
        const char* text;
    };
    const Row rows[] = {
        {0, "\xE4\x80", "ä€"},
        {1252, "\xE4\x80\x81", "ä€\xC2\x81"},
        {1250, "\xF8\xE4", "řä"},
        {1251, "\xCF\xF0\xE8", "При"},
        {1253, "\xE1", "α"},
        {1254, "\xFE", "ş"},
        {1255, "\xF9", "ש"},
        {1256, "\xC7", "ا"},
        {1257, "\xE0", "ą"},
        {1258, "\xFE", "₫"},
        {874, "\xA1", "ก"},
        {932, "\x83\x65\x83\x58\x83\x67 \\", "テスト \\"},
        {936, "\xB2\xE2", "测"},
        {949, "\xC5\xD7", "테"},
        {950, "\xB4\xFA", "測"},
        {10000, "\x8A\xA5", "ä•"},
        {10001, "\x83\x65", "テ"},
        {10007, "\x80", "А"},
        {10029, "\x8A", "ä"},
        {20127, "abc", "abc"},
        {28591, "\xE4", "ä"},
        {65001, "\xC3\xA4\xE2\x82\xAC", "ä€"},
        {1200, std::string("a\0\xE4\0", 4), "aä"},
    };
    for (const Row& row : rows) {
        const DecodedText decoded = DecodeCodePage(row.bytes, row.codePage);
        EXPECT_EQ(ToUtf8(decoded.text), row.text) << row.codePage;
        EXPECT_EQ(decoded.undecodable, 0u) << row.codePage;
        EXPECT_TRUE(CodePageIsKnown(row.codePage)) << row.codePage;
    }
}

TEST(CodePage, KeepsBytesWithoutMeaningVisibleAndCountsThem) {
    struct Row {
        const char* why;
        int codePage;
        std::string bytes;
        const char* text;
        std::size_t undecodable;
    };
    const Row rows[] = {
        {"UTF-8 with a byte of Latin-1", 65001, "a\xE4z", "aäz", 1},
        {"half of a pair at the end", 932, "a\x83", "a\xC6\x92", 1},
        {"no ASCII", 20127, "\xFCx", "üx", 1},
        {"one of many", 65001, "\xC3\xA4\xFF\xC3\xA4\xFF", "äÿäÿ", 2},
    };
    for (const Row& row : rows) {
        const DecodedText decoded = DecodeCodePage(row.bytes, row.codePage);
        EXPECT_EQ(ToUtf8(decoded.text), row.text) << row.why;
        EXPECT_EQ(decoded.undecodable, row.undecodable) << row.why;
    }
}

TEST(CodePage, ReadsAnUnknownOneAsWindows1252) {
    EXPECT_FALSE(CodePageIsKnown(4711));
    EXPECT_EQ(ToUtf8(DecodeCodePage("\xE4", 4711).text), "ä");
}

TEST(CodePage, DecodesTextsLongerThanItsBuffer) {
    std::string bytes;
    for (int i = 0; i < 5000; ++i) bytes += "\xCF\xF0";
    const DecodedText decoded = DecodeCodePage(bytes, 1251);
    ASSERT_EQ(decoded.text.size(), 10000u);
    EXPECT_EQ(decoded.text.substr(9998), u"Пр");
}

}  // namespace
}  // namespace zentlor::readers
