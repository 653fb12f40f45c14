// Paths to projects: which files are read, what they are called, and in which order they come. And the settings file.

#include "workspace/workspace.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "core/utilities/encoding.h"
#include "readers/exported_module.h"
#include "support/documents/compound_file_writer.h"
#include "support/documents/ovba_writer.h"
#include "support/run_program.h"
#include "workspace/settings_file.h"

namespace zentlor::workspace {
namespace {

using test::TemporaryFolder;
using test::WriteFile;

std::string Describe(const std::optional<readers::SourceModule>& read) {
    if (!read) return "none";
    const readers::SourceModule& module = *read;
    return ToUtf8(module.name) + "/" + std::to_string(static_cast<int>(module.type)) + " " +
           ToUtf8(ReplaceAll(module.code, u"\n", u"|"));
}

TEST(ExportedModule, IsReadInEveryForm) {
    const std::string classHead =
        "VERSION 1.0 CLASS\r\nBEGIN\r\n  MultiUse = -1  'True\r\nEND\r\nAttribute VB_Name = \"K\"\r\n";
    const std::string shown = "Attribute VB_PredeclaredId = True\r\nAttribute VB_Exposed = True\r\n";
    const std::string utf16 = {'\xFF', '\xFE', 'a', '\0', '\n', '\0', '\xFC', '\0'};
    struct Row {
        const char* why;
        const char* path;
        std::string bytes;
        const char* expected;
    };
    const Row rows[] = {
        {"standard module", "x/m.bas", "Attribute VB_Name = \"M\"\r\nDim a\r\n\r\n", "M/1 Dim a||"},
        {"without attributes: the file's stem", "x/mdl.Alt.bas", "Dim a", "mdl.Alt/1 Dim a|"},
        {"class", "k.cls", classHead + "Dim a\r\n", "K/2 Dim a|"},
        {"document module", "k.cls", classHead + shown + "Dim a\r\n", "K/100 Dim a|"},
        {"form by its name", "Form_Kunden.cls", "Dim a\n", "Form_Kunden/100 Dim a|"},
        {"user form, its layout nested", "f.frm",
         "VERSION 5.00\r\nObject = \"{1}\"; \"x.ocx\"\r\nBegin {2} F \r\n   Begin X\r\n   End\r\nEnd\r\nAttribute "
         "VB_Name = "
         "\"F\"\r\nDim a\r\n",
         "F/3 Dim a|"},
        {"attributes inside of procedures", "m.bas",
         "Sub A()\nAttribute A.VB_Description = \"x\"\n  x = \"Attribute VB_Name = 1\"\nEnd Sub\n",
         "m/1 Sub A()|  x = \"Attribute VB_Name = 1\"|End Sub|"},
        {"Access export", "Kunden.txt",
         "Version =20\r\nBegin Form\r\nEnd\r\nCodeBehindForm\r\nAttribute VB_Exposed = False\r\nDim a\r\n",
         "Form_Kunden/100 Dim a|"},
        {"Access export of a report", "Liste.bas", "Version =20\nBegin Report\n    Begin Form\nCodeBehindForm\nDim a\n",
         "Report_Liste/100 Dim a|"},
        {"Access export that is called like its module", "form_Kunden.frm",
         "Version =20\nBegin Form\nEnd\nCodeBehindForm\nDim a\n", "form_Kunden/100 Dim a|"},
        {"Access export of a form whose name begins like a report's module", "Report_Wahl.txt",
         "Version =20\nBegin Form\nEnd\nCodeBehindForm\nDim a\n", "Form_Report_Wahl/100 Dim a|"},
        {"Access export with its module's name", "Kunden.cls",
         "Version =20\nBegin Form\nEnd\nCodeBehindForm\nAttribute VB_Name = \"Form_Kunde\"\nDim a\n",
         "Form_Kunde/100 Dim a|"},
        {"Access export of a query", "Abfrage.bas", "Operation =1\r\nOption =0\r\nBegin InputTables\r\nEnd\r\n",
         "none"},
        {"Access export of a query in SQL", "Abfrage.bas", "dbMemo \"SQL\" =\"SELECT 1;\\015\\012\"\r\n", "none"},
        {"Access export of a form without a module", "Kunden.form", "Version =20\nBegin Form\nEnd\n", "none"},
        {"Windows-1252", "m.bas", "Dim \xFC\x80", "m/1 Dim ü€|"},
        {"Japanese", "m.bas", "Dim \x83{\x83^\x83\x93", "m/1 Dim ボタン|"},
        {"UTF-8 without a mark", "m.bas", "Dim ü", "m/1 Dim ü|"},
        {"UTF-8 with a mark", "m.bas",
         "\xEF\xBB\xBF"
         "Dim ü",
         "m/1 Dim ü|"},
        {"UTF-16", "m.bas", utf16, "m/1 a|ü|"},
        {"line ends of the old Macintosh", "m.bas", "Dim a\rDim b\r", "m/1 Dim a|Dim b|"},
        {"empty", "m.bas", "", "m/1 "},
    };
    for (const Row& row : rows)
        EXPECT_EQ(Describe(readers::ReadExportedModule(row.bytes, row.path)), row.expected) << row.why;
    EXPECT_THROW(readers::ReadExportedModule(std::string("a\0b", 3), "m.bas"), readers::ReadError);
    EXPECT_THROW(readers::ReadExportedModule("Version =20\nBegin Form\nEnd\nCode", "a.txt"), readers::ReadError);
}

TEST(Workspace, RemembersTheLinesOfTheFile) {
    const TemporaryFolder folder;
    WriteFile(folder.path / "m.bas", "Attribute VB_Name = \"M\"\nSub A()\nAttribute A.VB_X = 1\nEnd Sub\n");
    const Workspace opened = Open({folder.path.string()}, {});
    ASSERT_EQ(opened.projects.size(), 1U);
    const ModuleOrigin& origin = opened.projects[0].origins[0];
    EXPECT_EQ(origin.FileLine(1), 2);
    EXPECT_EQ(origin.FileLine(2), 4);
}

TEST(Workspace, FolderIsReadInByteOrder) {
    const TemporaryFolder folder;
    for (const char* name : {"b.bas", "a/z.bas", "B.bas", "a/.hidden.bas", ".git/x.bas", "readme.txt", "c.CLS"}) {
        WriteFile(folder.path / name, "Dim x\n");
    }
    const auto names = [](const OpenedProject& project) {
        std::string text;
        for (const auto& component : project.project->VBComponents()) text += ToUtf8(component->Name()) + " ";
        return text;
    };
    const Workspace opened = Open({folder.path.string()}, {});
    ASSERT_EQ(opened.projects.size(), 1U);
    EXPECT_EQ(names(opened.projects[0]), "B z b c ");
    EXPECT_TRUE(opened.Complete());
    OpenOptions options;
    options.projectPerFolder = true;
    EXPECT_EQ(Open({folder.path.string()}, options).projects.size(), 2U);
    const Workspace named =
        Open({(folder.path / "b.bas").string(), "/nirgends.bas", (folder.path / "B.bas").string()}, {});
    ASSERT_EQ(named.projects.size(), 1U);
    EXPECT_EQ(names(named.projects[0]), "b B ");
    ASSERT_EQ(named.unreadable.size(), 1U);
    EXPECT_EQ(named.unreadable[0].failure, readers::ReadFailure::NotFound);
}

TEST(Workspace, FormWithoutModuleIsNoModule) {
    const TemporaryFolder folder;
    WriteFile(folder.path / "Kunden.txt", "Version =20\nBegin Form\nEnd\nCodeBehindForm\nDim a\n");
    WriteFile(folder.path / "Start.txt", "Version =20\nBegin Form\nEnd\n");
    WriteFile(folder.path / "Liste.bas",
              "Version =20\r\nBegin Form\r\nEnd\r\nCodeBehindForm\r\n' See \"Liste.cls\"\r\n");
    const Workspace opened = Open({folder.path.string()}, {});
    ASSERT_EQ(opened.projects.size(), 1U);
    EXPECT_EQ(opened.projects[0].project->VBComponents().size(), 1U);
    EXPECT_EQ(opened.projects[0].origins[0].FileLine(1), 5);
    EXPECT_EQ(opened.empty.size(), 2U);
    EXPECT_TRUE(opened.Complete());
}

TEST(Workspace, DocumentWhoseCodeALimitKeptIsNotEmpty) {
    const TemporaryFolder folder;
    test::TestProject project;
    project.modules = {test::StandardModule(u"M", std::string(10000, '\''))};
    WriteFile(folder.path / "a.xls", test::WriteCompoundFile(test::WriteProject(project)).bytes);
    OpenOptions options;
    options.limits.sourceBytes = 1000;
    const Workspace opened = Open({folder.path.string()}, options);
    EXPECT_TRUE(opened.empty.empty());
    EXPECT_EQ(opened.unreadable.size(), 1U);
}

// A module of ever new names, which takes far more memory than code that people write. Its lines are not canonical, and
// the last one is an error.
TEST(Workspace, TakesNoMoreOfADocumentThanItsMemoryAllows) {
    const TemporaryFolder folder;
    std::string dense = "Sub S()\r\n";
    for (int i = 0; i < 10000; ++i) dense += "n" + std::to_string(i) + "=1\r\n";
    test::TestProject project;
    project.modules = {test::StandardModule(u"A", "Dim a"), test::StandardModule(u"B", dense + "x(\r\nEnd Sub\r\n"),
                       test::StandardModule(u"C", "Dim c")};
    const std::string path = (folder.path / "a.xls").string();
    WriteFile(path, test::WriteCompoundFile(test::WriteProject(project)).bytes);
    std::size_t before = 0;
    for (std::uint64_t memory = 250'000; memory <= 5'000'000; memory += 125'000) {
        OpenOptions options;
        options.limits.checkBytes = memory;
        const Workspace opened = Open({path}, options);
        ASSERT_EQ(opened.projects.size(), 1U) << memory;
        const std::size_t modules = opened.projects[0].project->VBComponents().size();
        EXPECT_GE(modules, before) << memory;
        EXPECT_EQ(opened.projects[0].errors.size(), modules == 3 ? 1U : 0U) << memory;
        EXPECT_EQ(opened.Complete(), modules == 3) << memory;
        if (modules < 3) {
            EXPECT_NE(opened.problems.at(0).english.find("--max-memory"), std::string::npos);
        }
        before = modules;
    }
    EXPECT_EQ(before, 3U);

    project.modules.erase(project.modules.begin());
    WriteFile(path, test::WriteCompoundFile(test::WriteProject(project)).bytes);
    OpenOptions options;
    options.limits.checkBytes = 250'000;
    const Workspace opened = Open({path}, options);
    EXPECT_TRUE(opened.projects.empty());
    ASSERT_EQ(opened.unreadable.size(), 1U);
    EXPECT_EQ(opened.unreadable[0].failure, readers::ReadFailure::Limit);
}

TEST(Workspace, DocumentIsKnownByItsContent) {
    const TemporaryFolder folder;
    test::TestProject project;
    project.modules = {test::StandardModule(u"M", "Dim a")};
    const std::string document = test::WriteCompoundFile(test::WriteProject(project)).bytes;
    for (const char* name : {"a.bas", "b", "c.txt"}) WriteFile(folder.path / name, document);
    WriteFile(folder.path / "m.bas", "Dim a\n");
    const Workspace opened = Open({folder.path.string()}, {});
    EXPECT_TRUE(opened.Complete());
    EXPECT_EQ(std::count_if(opened.projects.begin(), opened.projects.end(),
                            [](const OpenedProject& one) { return one.isDocument; }),
              3);
    EXPECT_EQ(opened.projects.size(), 4U);
}

TEST(Workspace, NothingToReadIsNoCleanResult) {
    const TemporaryFolder folder;
    WriteFile(folder.path / "readme.txt", "x");
    EXPECT_FALSE(Open({folder.path.string()}, {}).Complete());
    std::filesystem::create_directory(folder.path / "m.bas");
    EXPECT_FALSE(Open({(folder.path / "m.bas").string()}, {}).Complete());
}

TEST(SettingsFile, KeepsWhatTwoProcessesWrite) {
    const TemporaryFolder folder;
    const std::string path = (folder.path / "deep/settings.ini").string();
    SettingsFile first(path);
    SettingsFile second(path);
    first.SaveSetting(u"App", u"S", u"a", u"1=ü\n\\");
    second.SaveSetting(u"App", u"S", u"b", u"2");
    first.Flush();
    second.Flush();
    first.SaveSetting(u"App", u"S", u"a", u"3");
    EXPECT_EQ(first.GetSetting(u"App", u"S", u"a"), u"3");
    SettingsFile third(path);
    EXPECT_EQ(third.GetSetting(u"App", u"S", u"a"), u"1=ü\n\\") << "not flushed yet";
    EXPECT_EQ(third.GetSetting(u"App", u"S", u"b"), u"2");
    EXPECT_EQ(third.GetSetting(u"App", u"T", u"b"), u"");
    EXPECT_FALSE(first.Problem() || second.Problem() || third.Problem());
}

TEST(SettingsFile, TakesTheLineEndsOfOtherSystems) {
    const TemporaryFolder folder;
    WriteFile(folder.path / "settings.ini", "[App\\S]\r\na=0\r\nb=x\\r\r\n");
    SettingsFile store((folder.path / "settings.ini").string());
    EXPECT_EQ(store.GetSetting(u"App", u"S", u"a"), u"0");
    EXPECT_EQ(store.GetSetting(u"App", u"S", u"b"), u"x\r") << "a value's own line end is escaped";
}

TEST(SettingsFile, TellsWhatItCannotWrite) {
    const TemporaryFolder folder;
    WriteFile(folder.path / "file", "x");
    SettingsFile store((folder.path / "file/settings.ini").string());
    store.SaveSetting(u"App", u"S", u"a", u"1");
    store.Flush();
    EXPECT_EQ(store.Problem(), "Not a directory");
    EXPECT_EQ(store.GetSetting(u"App", u"S", u"a"), u"1") << "the value holds for this run";
}

}  // namespace
}  // namespace zentlor::workspace
