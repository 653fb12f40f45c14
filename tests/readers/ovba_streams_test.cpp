#include <gtest/gtest.h>

#include "core/utilities/encoding.h"
#include "readers/ovba_dir.h"
#include "readers/ovba_project_stream.h"
#include "support/documents/ovba_writer.h"

namespace zentlor::readers {
namespace {

using test::DirRecord;
using test::TestModule;
using test::TestProject;

TEST(OvbaDir, GivesModulesInItsOwnOrder) {
    TestProject project;
    project.name = u"Kasse";
    project.modules = {test::StandardModule(u"Zuletzt", ""), {u"Anfang", "", "Class"}};
    project.modules[0].streamName = u"Strom";
    project.modules[0].offset = 77;
    const OvbaDir dir = ParseOvbaDir(test::WriteDir(project), 100);
    EXPECT_EQ(ToUtf8(dir.projectName), "Kasse");
    EXPECT_EQ(dir.codePage, 1252);
    EXPECT_FALSE(dir.truncated);
    ASSERT_EQ(dir.modules.size(), 2u);
    EXPECT_EQ(ToUtf8(dir.modules[0].name), "Zuletzt");
    EXPECT_EQ(ToUtf8(dir.modules[0].streamName), "Strom");
    EXPECT_EQ(dir.modules[0].sourceOffset, 77u);
    EXPECT_TRUE(dir.modules[0].standard);
    EXPECT_EQ(ToUtf8(dir.modules[1].name), "Anfang");
    EXPECT_FALSE(dir.modules[1].standard);
}

TEST(OvbaDir, TakesTheUnicodeNameWhereTheOtherIsInAForeignCodePage) {
    TestProject project;
    project.codePage = 1251;
    TestModule module = test::StandardModule(u"Модуль", "");
    module.rawName = "\xCC\xEE\xE4\xF3\xEB\xFC";
    project.modules = {module};
    const OvbaDir dir = ParseOvbaDir(test::WriteDir(project), 100);
    ASSERT_EQ(dir.modules.size(), 1u);
    EXPECT_EQ(ToUtf8(dir.modules[0].name), "Модуль");
    EXPECT_EQ(dir.modules[0].rawName, "\xCC\xEE\xE4\xF3\xEB\xFC");
}

TEST(OvbaDir, FallsBackToTheNameInTheCodePage) {
    const std::string bytes =
        DirRecord(3, std::string("\xE3\x04", 2)) + DirRecord(0x19, "\xCC") + DirRecord(0x2B, "") + DirRecord(0x10, "");
    const OvbaDir dir = ParseOvbaDir(bytes, 100);
    ASSERT_EQ(dir.modules.size(), 1u);
    EXPECT_EQ(ToUtf8(dir.modules[0].name), "М");
    EXPECT_EQ(ToUtf8(dir.modules[0].streamName), "М");
}

TEST(OvbaDir, TellsReferencesAsAPersonReadsThem) {
    TestProject project;
    const std::string control = std::string("\x03\0\0\0*\\G", 7) + std::string(6, '\0');
    project.references =
        test::RegisteredReference("stdole",
                                  "*\\G{00020430-0000-0000-C000-000000000046}#2.0#0#C:\\stdole2.tlb#OLE Automation") +
        // A control's library: the one it was made from, its twin, and a name for the twin.
        DirRecord(0x16, "MSForms") + DirRecord(0x33, "*\\G{0D45}#C.1a#0#C:\\FM20.DLL#Forms Library") +
        DirRecord(0x2F, control) + DirRecord(0x16, "MSForms") + DirRecord(0x30, control) + DirRecord(0x16, "Basis") +
        DirRecord(0x0E, std::string("\x0D\0\0\0", 4) + "*\\CC:\\Bib.xla" + std::string(10, '\0'));
    project.modules = {test::StandardModule(u"M", "")};
    const OvbaDir dir = ParseOvbaDir(test::WriteDir(project), 100);
    ASSERT_EQ(dir.references.size(), 3u) << "the twin of a control's library is no reference of its own";
    EXPECT_EQ(ToUtf8(dir.references[0]), "stdole: OLE Automation 2.0 (C:\\stdole2.tlb)");
    EXPECT_EQ(ToUtf8(dir.references[1]), "MSForms: Forms Library 12.26 (C:\\FM20.DLL)");
    EXPECT_EQ(ToUtf8(dir.references[2]), "Basis: C:\\Bib.xla");
    EXPECT_EQ(dir.modules.size(), 1u);
}

TEST(OvbaDir, KeepsWhatStandsInFrontOfDamage) {
    TestProject project;
    for (int i = 0; i < 5; ++i) project.modules.push_back(test::StandardModule(u"M" + ToText(i), ""));
    const std::string whole = test::WriteDir(project);
    const OvbaDir cut = ParseOvbaDir(whole.substr(0, whole.size() - 30), 100);
    EXPECT_TRUE(cut.truncated);
    EXPECT_EQ(cut.modules.size(), 5u) << "the last one has lost no more than what follows its name";
    const OvbaDir many = ParseOvbaDir(whole, 3);
    EXPECT_TRUE(many.tooManyModules);
    EXPECT_EQ(many.modules.size(), 3u);
    EXPECT_TRUE(ParseOvbaDir("", 3).truncated);
    EXPECT_TRUE(ParseOvbaDir(std::string("\x19\0\xFF\xFF\xFF\xFF", 6) + "M", 3).truncated);
}

TEST(OvbaProjectStream, TellsTheKindOfEachModule) {
    const OvbaProjectStream project = ParseOvbaProjectStream(
        "ID=\"{0}\"\r\nDocument=Tabelle1/&H00000000\r\nModule=Modul1\r\nClass=Kunde\r\nBaseClass=Maske\r\n"
        "DocClass=Form_A/&H00000000\r\nName=\"Module=Nein\"\r\n\r\n[Workspace]\r\nModule=Fenster\r\n");
    ASSERT_EQ(project.modules.size(), 5u) << "the sections in brackets tell of windows";
    const std::pair<const char*, ModuleType> expected[] = {{"Tabelle1", ModuleType::Document},
                                                           {"Modul1", ModuleType::Standard},
                                                           {"Kunde", ModuleType::Class},
                                                           {"Maske", ModuleType::Form},
                                                           {"Form_A", ModuleType::Document}};
    for (std::size_t i = 0; i < 5; ++i) {
        EXPECT_EQ(project.modules[i].rawName, expected[i].first);
        EXPECT_EQ(static_cast<int>(project.modules[i].type), static_cast<int>(expected[i].second)) << expected[i].first;
    }
    EXPECT_FALSE(project.locked);
}

TEST(OvbaProjectStream, TellsWhetherItIsLocked) {
    const std::string zero(4, '\0');
    struct Row {
        const char* why;
        std::string line;
        bool locked;
    };
    const Row rows[] = {
        {"nothing said", "", false},
        {"no protection", "CMG=\"" + test::ObfuscateData(zero, 0x0E) + "\"\r\n", false},
        {"by the user", "CMG=\"" + test::ObfuscateData(std::string("\1\0\0\0", 4), 0x0E) + "\"\r\n", true},
        {"by the editor", "CMG=\"" + test::ObfuscateData(std::string("\4\0\0\0", 4), 0xF0) + "\"\r\n", true},
        {"no password", "DPB=\"" + test::ObfuscateData(std::string(1, '\0'), 0x13) + "\"\r\n", false},
        {"a password", "DPB=\"" + test::ObfuscateData(std::string(29, 'x'), 0x13) + "\"\r\n", true},
        {"shown", "GC=\"" + test::ObfuscateData("\xFF", 0x66) + "\"\r\n", false},
        {"hidden", "GC=\"" + test::ObfuscateData(std::string(1, '\0'), 0x66) + "\"\r\n", true},
        {"no hexadecimal digits", "CMG=\"XYZ\"\r\n", false},
        {"too short", "CMG=\"0E0C\"\r\n", false},
    };
    for (const Row& row : rows) EXPECT_EQ(ParseOvbaProjectStream(row.line).locked, row.locked) << row.why;
}

TEST(OvbaProjectStream, RevealsWhatWasObfuscatedWithAnySeed) {
    for (int seed = 0; seed < 256; ++seed) {
        const auto revealed = RevealObfuscatedData(test::ObfuscateData("Geheimnis", static_cast<std::uint8_t>(seed)));
        ASSERT_TRUE(revealed.has_value()) << seed;
        EXPECT_EQ(*revealed, "Geheimnis") << seed;
    }
}

}  // namespace
}  // namespace zentlor::readers
