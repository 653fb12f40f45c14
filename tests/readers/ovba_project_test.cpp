#include "readers/ovba_project.h"

#include <gtest/gtest.h>

#include "core/utilities/encoding.h"
#include "support/documents/ovba_writer.h"

namespace zentlor::readers {
namespace {

using test::StandardModule;
using test::StorageTree;
using test::TestModule;
using test::TestProject;

OvbaProject Read(const StorageTree& tree, const Limits& limits = {}) {
    return ReadOvbaProject(*test::AsStorage(tree), "Kasse.xls", limits);
}

OvbaProject Read(const TestProject& project) {
    return Read(test::WriteProject(project));
}

std::string Problems(const OvbaProject& project) {
    std::string all;
    for (const Sentence& problem : project.problems) all += problem.english + "\n";
    return all;
}

TEST(OvbaProject, GivesModulesAsTheEditorShowsThem) {
    TestProject project;
    project.name = u"Kasse";
    project.modules = {
        StandardModule(u"Modul1",
                       "Option Explicit\r\n\r\nSub A()\r\nAttribute A.VB_Description = \"x\"\r\nEnd Sub\r\n"),
        {u"Kunde", "Attribute VB_Name = \"Kunde\"\r\nDim a\r\n", "Class"},
        {u"Maske", "Attribute VB_Name = \"Maske\"\r\nDim b\r\n", "BaseClass"},
        {u"Tabelle1", "Attribute VB_Name = \"Tabelle1\"\r\nDim c\r\n", "Document"},
        {u"Form_A", "Attribute VB_Name = \"Form_A\"\r\nDim d\r\n", "DocClass"}};
    const OvbaProject read = Read(project);
    EXPECT_EQ(Problems(read), "");
    EXPECT_EQ(ToUtf8(read.name), "Kasse");
    ASSERT_EQ(read.modules.size(), 5u);
    EXPECT_EQ(ToUtf8(read.modules[0].code), "Option Explicit\n\nSub A()\nEnd Sub\n");
    EXPECT_EQ(ToUtf8(read.modules[0].header), "Attribute VB_Name = \"Modul1\"\n");
    EXPECT_EQ(read.modules[0].path, "Kasse.xls");
    EXPECT_EQ(read.modules[0].fileLines.Of(2), 2U);
    const int types[] = {1, 2, 3, 100, 100};
    for (std::size_t i = 0; i < 5; ++i) EXPECT_EQ(static_cast<int>(read.modules[i].type), types[i]) << i;
}

TEST(OvbaProject, ReadsTheCodePageOfTheProject) {
    struct Row {
        int codePage;
        std::string bytes;
        const char* text;
    };
    const Row rows[] = {{0, "'\xE4", "'ä\n"},       {1251, "'\xCF", "'П\n"}, {932, "'\x83\x65", "'テ\n"},
                        {10000, "'\x8A\r", "'ä\n"}, {1255, "'\xF9", "'ש\n"}, {65001, "'\xC3\xA4", "'ä\n"}};
    for (const Row& row : rows) {
        TestProject project;
        project.codePage = row.codePage;
        project.modules = {StandardModule(u"M", row.bytes)};
        const OvbaProject read = Read(project);
        ASSERT_EQ(read.modules.size(), 1u);
        EXPECT_EQ(ToUtf8(read.modules[0].code), row.text) << row.codePage;
        EXPECT_EQ(read.codePage, row.codePage == 0 ? 1252 : row.codePage);
        EXPECT_EQ(Problems(read), "") << row.codePage;
    }
}

TEST(OvbaProject, ReportsBytesThatDoNotDecodeAndKeepsThem) {
    TestProject project;
    project.codePage = 932;
    project.modules = {StandardModule(u"Gut", "'a\r\n"), StandardModule(u"Schlecht", "'\xFF\xFF\r\n")};
    const OvbaProject read = Read(project);
    EXPECT_EQ(Problems(read),
              "2 bytes in “Kasse.xls” (first in module “Schlecht”) mean nothing in code page 932; they are shown as "
              "Windows-1252.\n");
    EXPECT_EQ(ToUtf8(read.modules.at(1).code), "'ÿÿ\n");
}

TEST(OvbaProject, ReportsAnUnknownCodePage) {
    TestProject project;
    project.codePage = 4711;
    project.modules = {StandardModule(u"M", "'\xE4\r\n")};
    const OvbaProject read = Read(project);
    EXPECT_NE(Problems(read).find("4711"), std::string::npos);
    EXPECT_EQ(ToUtf8(read.modules.at(0).code), "'ä\n");
}

TEST(OvbaProject, MatchesKindsByBytes) {
    TestProject project;
    project.codePage = 1251;
    TestModule module{u"Класс", "Attribute VB_Name = \"x\"\r\nDim a\r\n", "Class"};
    module.rawName = "\xCA\xEB\xE0\xF1\xF1";
    module.streamName = u"Strom";
    project.modules = {module};
    const OvbaProject read = Read(project);
    ASSERT_EQ(read.modules.size(), 1u);
    EXPECT_EQ(ToUtf8(read.modules[0].name), "Класс");
    EXPECT_EQ(static_cast<int>(read.modules[0].type), 2);
}

TEST(OvbaProject, TakesTheKindFromTheAttributesWhereProjectIsSilent) {
    const auto module = [](const Text& name, const std::string& base) {
        return TestModule{name, "Attribute VB_Name = \"" + ToUtf8(name) + "\"\r\n" + base, ""};
    };
    TestProject project;
    project.modules = {module(u"C", "Attribute VB_Creatable = False\r\n"),
                       module(u"D", "Attribute VB_Base = \"0{00020820-0000-0000-C000-000000000046}\"\r\n"),
                       module(u"F", "Attribute VB_Base = \"0{A}{B}\"\r\n"), StandardModule(u"S", "")};
    project.withProjectStream = false;
    const OvbaProject read = Read(project);
    ASSERT_EQ(read.modules.size(), 4u);
    const int types[] = {2, 100, 3, 1};
    for (std::size_t i = 0; i < 4; ++i) EXPECT_EQ(static_cast<int>(read.modules[i].type), types[i]) << i;
}

TEST(OvbaProject, FindsTheSourceBehindAWrongOffset) {
    for (std::uint32_t offset : {0u, 5u, 13u, 100000u, 0xFFFFFFFFu}) {
        TestProject project;
        TestModule module = StandardModule(u"M", "Dim a\r\n");
        module.cache = "Attribut in the cache, and \1\x05\xB0\1 more";
        module.offset = offset;
        project.modules = {module};
        const OvbaProject read = Read(project);
        ASSERT_EQ(read.modules.size(), 1u) << offset;
        EXPECT_EQ(ToUtf8(read.modules[0].code), "Dim a\n") << offset;
        EXPECT_EQ(Problems(read), "") << offset;
    }
}

TEST(OvbaProject, TellsSourceThatWasRemovedFromSourceThatIsDamaged) {
    struct Row {
        const char* why;
        std::string cache;
        std::string container;
        std::size_t compiledOnly;
        const char* problem;
    };
    const char* unreadable = "The source of module “M” in “Kasse.xls” cannot be read; take the file from a backup.\n";
    const Row rows[] = {
        {"nothing behind the cache", "compiled", "", 1, ""},
        {"zeros behind the cache", "compiled", std::string(50, '\0'), 1, ""},
        {"an empty container", "compiled", "\1", 1, ""},
        {"an empty container and no cache", "", "\1", 0, unreadable},
        {"something else behind the cache", "compiled", "garbage", 0, unreadable},
    };
    for (const Row& row : rows) {
        TestProject project;
        TestModule module = StandardModule(u"M", "");
        module.cache = row.cache;
        module.container = row.container;
        project.modules = {module};
        const OvbaProject read = Read(project);
        EXPECT_TRUE(read.modules.empty()) << row.why;
        EXPECT_EQ(read.compiledOnly, row.compiledOnly) << row.why;
        EXPECT_EQ(read.listed, 1u) << row.why;
        EXPECT_EQ(Problems(read), row.problem) << row.why;
    }
}

TEST(OvbaProject, DamageCostsTheModuleAndNoMore) {
    TestProject project;
    TestModule broken = StandardModule(u"Halb", "Dim a\r\n" + std::string(5000, '\''));
    const std::string container = test::CompressContainer(broken.source);
    broken.container = container.substr(0, container.size() - 3);
    project.modules = {StandardModule(u"Weg", ""), broken, StandardModule(u"Ganz", "Dim b\r\n")};
    StorageTree tree = test::WriteProject(project);
    tree.Below(u"VBA").Remove(u"Weg");
    const OvbaProject read = Read(tree);
    ASSERT_EQ(read.modules.size(), 2u);
    EXPECT_EQ(ToUtf8(read.modules[0].code.substr(0, 6)), "Dim a\n");
    EXPECT_EQ(ToUtf8(read.modules[1].code), "Dim b\n");
    EXPECT_EQ(Problems(read),
              "The source of module “Weg” in “Kasse.xls” is missing; take the file from a backup.\n"
              "The source of module “Halb” in “Kasse.xls” is damaged, its beginning was read; take the file from a "
              "backup.\n");
}

TEST(OvbaProject, DropsTheFillingOfAStoredChunk) {
    TestProject project;
    TestModule module = StandardModule(u"M", "Dim a\r\n");
    module.container = test::CompressContainer(module.source, true);
    project.modules = {module};
    EXPECT_EQ(ToUtf8(Read(project).modules.at(0).code), "Dim a\n");
}

TEST(OvbaProject, SaysThatAProjectWithoutModulesIsNoDamage) {
    const OvbaProject read = Read(TestProject{});
    EXPECT_TRUE(read.modules.empty());
    EXPECT_EQ(Problems(read), "");
    EXPECT_EQ(read.listed, 0u);
}

TEST(OvbaProject, ReportsADirThatBreaksOff) {
    TestProject project;
    for (int i = 0; i < 20; ++i) project.modules.push_back(StandardModule(u"M" + ToText(i), "Dim a\r\n"));
    StorageTree tree = test::WriteProject(project);
    const std::string dir = test::WriteDir(project);
    tree.Below(u"VBA").Put(u"dir", test::CompressContainer(dir.substr(0, dir.size() / 2)));
    const OvbaProject read = Read(tree);
    EXPECT_GT(read.modules.size(), 5u);
    EXPECT_LT(read.modules.size(), 20u);
    EXPECT_NE(Problems(read).find("breaks off"), std::string::npos) << Problems(read);
    tree.Below(u"VBA").Put(u"dir", "no container");
    EXPECT_THROW(Read(tree), ReadError);
}

TEST(OvbaProject, ReportsEachLimitAndTheOptionThatRaisesIt) {
    TestProject project;
    for (int i = 0; i < 4; ++i)
        project.modules.push_back(StandardModule(u"M" + ToText(i), std::string(3000, '\'') + "\r\n"));
    struct Row {
        const char* option;
        Limits limits;
        std::size_t modules;
    };
    Row rows[] = {{"--max-modules", {}, 2}, {"--max-module-size", {}, 4}, {"--max-source-size", {}, 2}};
    rows[0].limits.modules = 2;
    rows[1].limits.moduleBytes = 1000;
    rows[2].limits.sourceBytes = 7000;
    for (const Row& row : rows) {
        const OvbaProject read = Read(test::WriteProject(project), row.limits);
        EXPECT_EQ(read.modules.size(), row.modules) << row.option;
        ASSERT_FALSE(read.problems.empty()) << row.option;
        for (const std::string& sentence : {read.problems[0].english, read.problems[0].german}) {
            EXPECT_NE(sentence.find(row.option), std::string::npos) << sentence;
        }
    }
}

}  // namespace
}  // namespace zentlor::readers
