// Whole databases in all three layouts: what comes out is what was put in, wherever the rows lie.

#include "readers/access_database.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "core/utilities/encoding.h"
#include "readers/document.h"
#include "support/documents/access_writer.h"
#include "support/documents/bytes.h"

namespace zentlor::test {
namespace {

using readers::Document;
using readers::ReadAccessDatabase;
using readers::ReadError;
using readers::ReadFailure;

std::string ClassSource(const std::string& name, const std::string& code) {
    return "Attribute VB_Name = \"" + name +
           "\"\r\nAttribute VB_Base = \"0{3DC81CE5-7D9D-4E6B-A1D0-4C8B6F5C7A10}\"\r\n" + code;
}

/// A project with every kind of module that a database can hold.
TestProject ShopProject() {
    TestProject project;
    project.name = u"Shop";
    project.modules = {
        StandardModule(u"Tools", "Sub First()\r\nEnd Sub\r\n"),
        {.name = u"Form_Order", .source = ClassSource("Form_Order", "Private x As Long\r\n"), .kind = "DocClass"},
        {.name = u"Customer", .source = "Attribute VB_Name = \"Customer\"\r\nPublic Name\r\n", .kind = "Class"},
        {.name = u"Report_Bill", .source = ClassSource("Report_Bill", "' nothing\r\n"), .kind = "DocClass"},
        {.name = u"Gr\u00F6\u00DFe",
         .source = "Attribute VB_Name = \"Gr\xF6\xDF\x65\"\r\n" + std::string(9000, '\'') + "\r\n"},
    };
    project.references = RegisteredReference("stdole", "*\\G{0002}#2.0#0#C:\\stdole2.tlb#OLE Automation");
    return project;
}

std::vector<TestForm> ShopForms() {
    return {{u"Order", false, {{"txtName", "", 109}, {"cmd_OK", "cmd OK", 104}}},
            {u"Bill", true, {{"Label1", "", 100}}}};
}

/// Modules as "name:type:code length", one a line.
std::string Summary(const Document& document) {
    std::string summary;
    for (const auto& module : document.modules) {
        summary += ToUtf8(module.name) + ":" + std::to_string(static_cast<int>(module.type)) + ":" +
                   std::to_string(module.code.size()) + "\n";
    }
    return summary;
}

const char kShop[] = "Tools:1:20\nForm_Order:100:18\nCustomer:2:12\nReport_Bill:100:10\nGröße:1:9001\n";

std::string Problems(const Document& document) {
    std::string problems;
    for (const auto& problem : document.problems) problems += problem.english + "\n";
    return problems;
}

/// The failure with which reading ends, or nothing.
std::optional<ReadFailure> FailureOf(const std::string& bytes) {
    try {
        ReadAccessDatabase(bytes, "Shop.accdb", {});
    } catch (const ReadError& error) {
        EXPECT_NE(error.sentence.english.find("Shop.accdb"), std::string::npos) << error.sentence.english;
        EXPECT_NE(error.sentence.german.find("Shop.accdb"), std::string::npos) << error.sentence.german;
        return error.failure;
    }
    return std::nullopt;
}

TEST(AccessDatabase, IsReadInEveryLayout) {
    const StorageTree tree = WriteAccessTree(ShopProject(), ShopForms());
    const JetOptions jet3{.format = JetFormat::Jet3};
    const JetOptions jet4{.format = JetFormat::Jet4};
    const struct {
        const char* why;
        JetDatabase database;
        bool controls;
    } rows[] = {
        {"storage, ACE", WriteAccessStorage(tree, {.format = JetFormat::Ace}), true},
        {"storage, Jet 4", WriteAccessStorage(tree, jet4), true},
        {"storage, encoded", WriteAccessStorage(tree, {.format = JetFormat::Jet4, .pageKey = 0x1234}), true},
        {"storage, long chains", WriteAccessStorage(tree, {.inRowBytes = 0, .oneRowBytes = 0, .chainBytes = 7}), true},
        {"storage, rows elsewhere", WriteAccessStorage(tree, {.rowsBehindPointers = true, .deletedRows = true}), true},
        {"storage, uncompressed names", WriteAccessStorage(tree, {.compressText = false}), true},
        {"objects, Jet 4", WriteAccessObjects(tree, jet4), true},
        {"objects, encoded", WriteAccessObjects(tree, {.format = JetFormat::Jet4, .pageKey = 0xFFFFFFFF}), true},
        {"objects, Jet 3", WriteAccessObjects(tree, jet3), true},
        {"modules, Jet 3", WriteAccessModules(ShopProject(), jet3), false},
        {"modules, encoded", WriteAccessModules(ShopProject(), {.format = JetFormat::Jet3, .pageKey = 77}), false},
    };
    for (const auto& row : rows) {
        const Document document = ReadAccessDatabase(row.database.bytes, "C/Shop.mdb", {});
        EXPECT_EQ(Summary(document), kShop) << row.why;
        EXPECT_EQ(Problems(document), "") << row.why;
        EXPECT_EQ(document.projectName, u"Shop") << row.why;
        EXPECT_EQ(document.codePage, 1252) << row.why;
        EXPECT_EQ(document.references.size(), 1u) << row.why;
        EXPECT_EQ(document.path, "C/Shop.mdb") << row.why;
        ASSERT_EQ(document.layouts.size(), row.controls ? 2u : 0u) << row.why;
        if (!row.controls) continue;
        EXPECT_EQ(document.layouts[0].controls.at(1).name, u"cmd OK") << row.why;
        EXPECT_EQ(document.layouts[0].controls.at(1).type, 104) << row.why;
        EXPECT_TRUE(document.layouts[1].report) << row.why;
    }
}

TEST(AccessDatabase, TellsItsGeneration) {
    const StorageTree tree = WriteAccessTree({});
    const struct {
        JetDatabase database;
        std::string english, german;
    } rows[] = {
        {WriteAccessModules({}, {.format = JetFormat::Jet3}), "Access 97 database (Jet 3)",
         "Access-Datenbank 97 (Jet 3)"},
        {WriteAccessObjects(tree, {}), "Access 2000 database (Jet 4)", "Access-Datenbank 2000 (Jet 4)"},
        {WriteAccessStorage(tree, {}), "Access 2002–2003 database (Jet 4)", "Access-Datenbank 2002–2003 (Jet 4)"},
        {WriteAccessStorage(tree, {.format = JetFormat::Ace}), "Access database, 2007 or later (ACE)",
         "Access-Datenbank ab 2007 (ACE)"},
        {WriteAccessStorage(tree, {.format = JetFormat::Ace, .version = 6}), "Access database, 2019 or later (ACE)",
         "Access-Datenbank ab 2019 (ACE)"},
        {WriteAccessStorage(tree, {.format = JetFormat::Ace, .version = 9}), "Access database, 2019 or later (ACE)",
         "Access-Datenbank ab 2019 (ACE)"},
    };
    for (const auto& row : rows) {
        const Document document = ReadAccessDatabase(row.database.bytes, "Shop.mdb", {});
        EXPECT_EQ(document.description.english, row.english);
        EXPECT_EQ(document.description.german, row.german);
    }
}

TEST(AccessDatabase, WithoutCodeIsNoError) {
    const struct {
        const char* why;
        JetDatabase database;
    } rows[] = {
        {"no table for code", WriteJetDatabase({}, {.format = JetFormat::Ace})},
        {"storages without a project", WriteAccessStorage({}, {})},
        {"a project without modules", WriteAccessStorage(WriteAccessTree({}), {})},
        {"a project without modules, Access 2000", WriteAccessObjects(WriteAccessTree({}), {})},
        {"a project without modules, Access 97", WriteAccessModules({}, {.format = JetFormat::Jet3})},
    };
    for (const auto& row : rows) {
        const Document document = ReadAccessDatabase(row.database.bytes, "folder/Shop.mdb", {});
        EXPECT_TRUE(document.modules.empty()) << row.why;
        EXPECT_EQ(Problems(document), "") << row.why;
        EXPECT_TRUE(document.projectName == u"Shop" || document.projectName == u"VBAProject") << row.why;
    }
}

TEST(AccessDatabase, SaysWhyNothingCanBeRead) {
    JetDatabase password = WriteAccessStorage(WriteAccessTree(ShopProject()), {.format = JetFormat::Ace});
    password.bytes[0x299] = 100;
    TestProject wiped = ShopProject();
    for (TestModule& module : wiped.modules) module.container = "";
    const JetOptions jet3{.format = JetFormat::Jet3};
    const std::vector<JetCatalogEntry> compiled4{{"MSysDb", 2, std::string("MR2\0\x08\0\0\0\0\0\6\0M\0D\0E\0", 18)}};
    const std::vector<JetCatalogEntry> compiled3{{"MSysDb", 2, std::string("KKD\0\x08\0\0\0\0\0\3\0MDE", 15)}};
    const struct {
        const char* why;
        std::string bytes;
        ReadFailure failure;
    } rows[] = {
        {"a database password", password.bytes, ReadFailure::Encrypted},
        {"source removed", WriteAccessStorage(WriteAccessTree(wiped), {}).bytes, ReadFailure::CompiledOnly},
        {"marked compiled only", WriteJetDatabase({}, {}, compiled4).bytes, ReadFailure::CompiledOnly},
        {"marked compiled only, Jet 3", WriteJetDatabase({}, jet3, compiled3).bytes, ReadFailure::CompiledOnly},
        {"modules and no project", WriteJetDatabase({}, {}, {{"Tools", -32761, {}}}).bytes, ReadFailure::Damaged},
        {"no page but the first", password.bytes.substr(0, 0x200), ReadFailure::Damaged},
        {"another file", "Standard Jet DB", ReadFailure::NotADocument},
    };
    for (const auto& row : rows) EXPECT_EQ(FailureOf(row.bytes), row.failure) << row.why;
}

TEST(AccessDatabase, ReadsAMarkedDatabaseThatStillHasItsSource) {
    const JetDatabase database =
        WriteAccessStorage(WriteAccessTree(ShopProject()), {}, {{"MSysDb", 2, std::string("\6\0M\0D\0E\0", 8)}});
    EXPECT_EQ(Summary(ReadAccessDatabase(database.bytes, "Shop.mdb", {})), kShop);
}

TEST(AccessDatabase, NamesModulesWithoutSource) {
    TestProject project = ShopProject();
    project.modules[2].container = "";
    const JetDatabase database = WriteAccessStorage(WriteAccessTree(project), {});
    const Document document = ReadAccessDatabase(database.bytes, "Shop.mdb", {});
    EXPECT_EQ(document.modules.size(), 4u);
    EXPECT_NE(Problems(document).find("“Shop.mdb”: 1;"), std::string::npos) << Problems(document);
}

// A later version that opened an Access 97 database leaves a copy of the project behind, which is older than what
// Access 97 wrote since.
TEST(AccessDatabase, PrefersWhatAccess97Wrote) {
    TestProject copy;
    copy.name = u"Copy";
    copy.modules = {StandardModule(u"Old", "' old\r\n")};
    const StorageTree later = WriteAccessTree(copy, ShopForms());
    const JetOptions jet3{.format = JetFormat::Jet3};
    const Document both = ReadAccessDatabase(WriteAccessModules(ShopProject(), jet3, &later).bytes, "Shop.mdb", {});
    EXPECT_EQ(Summary(both), kShop);
    EXPECT_EQ(both.layouts.size(), 2u);
    const Document onlyCopy = ReadAccessDatabase(WriteAccessModules({}, jet3, &later).bytes, "Shop.mdb", {});
    EXPECT_EQ(Summary(onlyCopy), "Old:1:6\n");
}

TEST(AccessDatabase, ReadsOtherCodePages) {
    TestProject project;
    project.codePage = 1251;
    project.modules = {{.name = u"\u0416", .source = "Attribute VB_Name = \"\xC6\"\r\n' \xC6\r\n", .rawName = "\xC6"}};
    for (const bool access97 : {false, true}) {
        const JetOptions options{.format = access97 ? JetFormat::Jet3 : JetFormat::Ace, .codePage = 1251};
        const JetDatabase database =
            access97 ? WriteAccessModules(project, options) : WriteAccessStorage(WriteAccessTree(project), options);
        const Document document = ReadAccessDatabase(database.bytes, "Shop.mdb", {});
        ASSERT_EQ(document.modules.size(), 1u) << access97 << Problems(document);
        EXPECT_EQ(document.modules[0].name, u"\u0416") << access97;
        EXPECT_EQ(document.modules[0].code, u"' \u0416\n") << access97;
        EXPECT_EQ(document.modules[0].type, readers::ModuleType::Standard) << access97;
    }
}

}  // namespace
}  // namespace zentlor::test
