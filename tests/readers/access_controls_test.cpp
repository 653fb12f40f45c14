// The controls of forms and reports, and lists of them that end early or lie.

#include "readers/access_controls.h"

#include <gtest/gtest.h>

#include <string>

#include "core/utilities/encoding.h"
#include "support/documents/access_writer.h"
#include "support/documents/bytes.h"

namespace zentlor::test {
namespace {

/// Forms and reports as "F name: control=type …" lines.
std::string Describe(const std::vector<readers::FormLayout>& layouts) {
    std::string text;
    for (const auto& layout : layouts) {
        text += (layout.report ? "R " : "F ") + ToUtf8(layout.name) + ":";
        for (const auto& control : layout.controls) {
            text += " " + ToUtf8(control.name) + "=" + std::to_string(control.type);
        }
        text += "\n";
    }
    return text;
}

readers::Document LayoutsOf(const StorageTree& tree) {
    readers::Document document;
    readers::AddFormLayouts(*AsStorage(tree), 1252, 16 << 20, document);
    return document;
}

TEST(AccessControls, AreReadWithTheirRealNamesAndTypes) {
    const StorageTree tree = WriteAccessTree({}, {{u"Orders",
                                                   false,
                                                   {{"Detail", "", 0x98},
                                                    {"Text_1", "Text 1", 109},
                                                    {"M\xE6rkat86", "", 100},
                                                    {"Id", "", 0xFF},
                                                    {"Tree", "", 119},
                                                    {"GroupFooter", "", 0x9F}}},
                                                  {u"Bill", true, {{"cmd", "", 104}}},
                                                  {u"\u00DCbersicht", false, {}}});
    EXPECT_EQ(Describe(LayoutsOf(tree).layouts),
              "F Orders: Text 1=109 Mærkat86=100 Tree=119\nF Übersicht:\nR Bill: cmd=104\n");
}

TEST(AccessControls, AreReadAsFarAsTheListGoes) {
    const std::string sound = WriteTypeInfo({{"a", "", 109}, {"b", "real", 104}, {"c", "", 100}});
    std::string more = sound;
    Set32(more, 0x0C, 0xFFFFFFFF);
    std::string fewer = sound;
    Set32(fewer, 0x0C, 2);
    const struct {
        const char* why;
        std::string bytes;
        std::size_t expected;
    } rows[] = {
        {"sound", sound, 3},
        {"the count is too large", more, 3},
        {"the count is too small", fewer, 2},
        {"the last name has no end", sound.substr(0, sound.size() - 1), 2},
        {"the list ends in a record's head", sound.substr(0, 0x20 + 13), 1},
        {"no list", sound.substr(0, 0x20), 0},
        {"nothing", "", 0},
    };
    for (const auto& row : rows) EXPECT_EQ(readers::ParseTypeInfo(row.bytes, 1252).size(), row.expected) << row.why;
}

TEST(AccessControls, SurviveDirectoriesThatLie) {
    const struct {
        const char* why;
        std::string directory;
        std::string expected;
    } rows[] = {
        {"a name that goes on behind the end",
         std::string("\0\0\0\0\4\xFF"
                     "A\0",
                     8),
         ""},
        {"no room for a number", std::string("\0\0\0\0\4\2A\0", 8), ""},
        {"a number that no storage has", std::string("\0\0\0\0\4\6A\0\x09\0\0\0", 12), "F A:\n"},
        {"another kind of record", std::string("\0\0\0\0\5\6A\0\0\0\0\0", 12), ""},
        {"an empty stream", "", ""},
        {"a last record that is cut off", std::string("\0\0\0\0\4\6A\0\0\0\0\0\4\6B", 15), "F A: x=109\n"},
    };
    for (const auto& row : rows) {
        StorageTree tree = WriteAccessTree({}, {{u"A", false, {{"x", "", 109}}}});
        tree.Below(u"Forms").BytesOf(u"\u0003DirData") = row.directory;
        EXPECT_EQ(Describe(LayoutsOf(tree).layouts), row.expected) << row.why;
    }
}

// A directory may name one list again and again, and each time its controls take memory anew.
TEST(AccessControls, EndWhereNoDatabaseGoes) {
    const std::string record("\4\6A\0\0\0\0\0", 8);
    const struct {
        const char* why;
        std::size_t entries;
        std::size_t controls;
        std::size_t expected;
    } rows[] = {
        {"as many forms as there can be", 32768, 0, 32768},
        {"more forms", 40'000, 0, 32768},
        {"one long list again and again", 2000, 10'000, 170},
    };
    for (const auto& row : rows) {
        StorageTree tree = WriteAccessTree({}, {{u"A", false, {}}});
        std::string directory(4, '\0');
        for (std::size_t i = 0; i < row.entries; ++i) directory += record;
        tree.Below(u"Forms").BytesOf(u"\u0003DirData") = directory;
        tree.Below(u"Forms").Below(u"0").BytesOf(u"TypeInfo") =
            WriteTypeInfo(std::vector<TestControl>(row.controls, {"x", "", 109}));
        const readers::Document document = LayoutsOf(tree);
        EXPECT_LE(document.layouts.size(), row.expected) << row.why;
        EXPECT_EQ(!document.problems.empty(), document.layouts.size() < row.entries) << row.why;
    }
}

}  // namespace
}  // namespace zentlor::test
