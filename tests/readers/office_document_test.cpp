#include "readers/office_document.h"

#include <gtest/gtest.h>

#include "core/utilities/encoding.h"
#include "readers/inflate.h"
#include "readers/ppt_records.h"
#include "readers/property_set.h"
#include "support/documents/access_writer.h"
#include "support/documents/bytes.h"
#include "support/documents/compound_file_writer.h"
#include "support/documents/ovba_writer.h"
#include "support/documents/ppt_writer.h"
#include "support/documents/zip_writer.h"

namespace zentlor::readers {
namespace {

using test::StandardModule;
using test::StorageTree;
using test::TestProject;

StorageTree Project(const Text& module = u"Modul1") {
    TestProject project;
    project.name = u"Kasse";
    project.modules = {StandardModule(module, "Dim a\r\n")};
    return test::WriteProject(project);
}

std::string Compound(const StorageTree& tree) {
    return test::WriteCompoundFile(tree).bytes;
}

/// A compound file with one stream that names the program, and the project at `place`.
std::string Binary(const Text& stream, const std::vector<Text>& place) {
    StorageTree tree;
    StorageTree* at = &tree;
    for (const Text& name : place) at = &at->Below(name);
    *at = Project();
    tree.Put(stream, "x");
    return Compound(tree);
}

std::string Presentation(const std::string& records) {
    StorageTree tree;
    tree.Put(u"PowerPoint Document", records);
    return Compound(tree);
}

std::string Zip(const std::string& contentType, const std::string& part, const std::string& bytes) {
    return test::WriteZip({{"[Content_Types].xml", contentType}, {part, bytes}});
}

Document Read(const std::string& bytes, const Limits& limits = {}) {
    return ReadOfficeDocument(bytes, "Ablage/Kasse.doc", limits);
}

TEST(OfficeDocument, FindsTheProjectWhereverAProgramPutsIt) {
    const std::string project = Compound(Project());
    struct Row {
        const char* english;
        std::string bytes;
    };
    const Row rows[] = {
        {"Excel workbook (97–2003)", Binary(u"Workbook", {u"_VBA_PROJECT_CUR"})},
        {"Excel workbook (5.0/95)", Binary(u"Book", {u"_VBA_PROJECT_CUR"})},
        {"Word document (97–2003)", Binary(u"WordDocument", {u"Macros"})},
        {"Word document (97–2003)", Binary(u"WordDocument", {u"ObjectPool", u"_1", u"Macros"})},
        {"Visio drawing (up to 2010)", Binary(u"VisioDocument", {u"Anderswo"})},
        {"VBA project by itself", project},
        {"PowerPoint presentation (97–2003)", Presentation(test::PptStorageRecord(project, true))},
        {"PowerPoint presentation (97–2003)",
         Presentation(test::PptRecord(1000, 0, "x") + test::PptStorageRecord(project, false))},
        {"Excel macro-enabled workbook (2007 and later)", test::WriteZip(test::WorkbookParts(project))},
        {"Excel binary workbook (2007 and later)",
         Zip("application/vnd.ms-excel.sheet.binary.macroEnabled.main", "xl/vbaProject.bin", project)},
        {"Word macro-enabled template (2007 and later)",
         Zip("application/vnd.ms-word.template.macroEnabledTemplate.main+xml", "word/anders.dat", project)},
        {"PowerPoint add-in (2007 and later)",
         Zip("application/vnd.ms-powerpoint.addin.macroEnabled.main+xml", "ppt/vbaProject.bin", project)},
        {"Visio macro-enabled drawing (2013 and later)",
         Zip("application/vnd.ms-visio.drawing.macroEnabled.main+xml", "visio/vbaProject.bin", project)},
        {"Excel workbook (2007 and later)",
         Zip("?", "xl/embeddings/oleObject1.bin", Binary(u"Workbook", {u"_VBA_PROJECT_CUR"}))},
    };
    for (const Row& row : rows) {
        const Document document = Read(row.bytes);
        EXPECT_EQ(document.description.english, row.english);
        EXPECT_FALSE(document.description.german.empty());
        ASSERT_EQ(document.modules.size(), 1u) << row.english;
        EXPECT_EQ(ToUtf8(document.modules[0].code), "Dim a\n") << row.english;
        EXPECT_EQ(document.modules[0].path, "Ablage/Kasse.doc");
        EXPECT_EQ(ToUtf8(document.projectName), "Kasse");
        EXPECT_EQ(document.codePage, 1252);
        EXPECT_TRUE(document.problems.empty()) << document.problems[0].english;
    }
}

TEST(OfficeDocument, ReadsAnAccessProjectWithItsForms) {
    TestProject project;
    project.modules = {{u"Form_Kunden", "Attribute VB_Name = \"Form_Kunden\"\r\nDim a\r\n", "DocClass"}};
    const Document document = Read(Compound(test::WriteAccessTree(project, {{u"Kunden", false, {{"Ort", "", 109}}}})));
    EXPECT_EQ(document.description.english, "Access project (2000–2010)");
    ASSERT_EQ(document.modules.size(), 1u);
    EXPECT_EQ(document.modules[0].type, ModuleType::Document);
    ASSERT_EQ(document.layouts.size(), 1u);
    EXPECT_EQ(document.layouts[0].controls.size(), 1u);
    EXPECT_TRUE(document.problems.empty());
    project.modules[0].container = "";
    const std::string compiledOnly = Compound(test::WriteAccessTree(project));
    EXPECT_THROW(Read(compiledOnly), ReadError) << "an .ade";
}

TEST(OfficeDocument, PrefersItsOwnProjectToOneOfAnEmbeddedDocument) {
    const std::string embedded = Binary(u"Workbook", {u"_VBA_PROJECT_CUR"});
    const Document zip = Read(test::WriteZip({{"[Content_Types].xml", ""},
                                              {"word/embeddings/oleObject1.bin", embedded},
                                              {"word/vbaProject.bin", Compound(Project(u"Eigenes"))}}));
    ASSERT_EQ(zip.modules.size(), 1u);
    EXPECT_EQ(ToUtf8(zip.modules[0].name), "Eigenes");
    StorageTree tree;
    tree.Below(u"AObjekte").Below(u"_1") = Project();
    tree.Below(u"Macros") = Project(u"Eigenes");
    tree.Put(u"WordDocument", "x");
    EXPECT_EQ(ToUtf8(Read(Compound(tree)).modules.at(0).name), "Eigenes");
}

TEST(OfficeDocument, SaysNothingAgainstADocumentWithoutMacros) {
    StorageTree plain;
    plain.Put(u"WordDocument", "x");
    for (const std::string& bytes : {Compound(plain), Zip("application/x.sheet.main+xml", "xl/workbook.xml", ""),
                                     Presentation(test::PptRecord(1000, 15, test::PptRecord(1, 0, "x")))}) {
        const Document document = Read(bytes);
        EXPECT_TRUE(document.modules.empty());
        EXPECT_TRUE(document.problems.empty());
        EXPECT_EQ(ToUtf8(document.projectName), "Kasse") << "the stem of the file";
    }
}

TEST(OfficeDocument, SaysWhyNothingCanBeRead) {
    StorageTree encrypted, other, wiped = Project();
    encrypted.Put(u"EncryptedPackage", "x");
    other.Put(u"__properties_version1.0", "x");
    wiped.Below(u"VBA").Put(u"Modul1", "compiled form");
    StorageTree damaged = Project();
    damaged.Below(u"VBA").Put(u"dir", "x");
    const std::string project = Compound(Project());
    const std::string zip = test::WriteZip(test::WorkbookParts(project));
    struct Row {
        const char* why;
        std::string bytes;
        ReadFailure failure;
    };
    const Row rows[] = {
        {"encrypted", Compound(encrypted), ReadFailure::Encrypted},
        {"a compound file of another program", Compound(other), ReadFailure::NotADocument},
        {"a zip of another program", test::WriteZip({{"mimetype", "application/x"}}), ReadFailure::NotADocument},
        {"a text", "Dim a\r\n", ReadFailure::NotADocument},
        {"the source removed", Compound(wiped), ReadFailure::CompiledOnly},
        {"no list of modules", Compound(damaged), ReadFailure::Damaged},
        {"a zip that is cut off", zip.substr(0, 600), ReadFailure::Damaged},
        {"and in front of its project", zip.substr(0, zip.find("xl/vbaProject.bin") - 10), ReadFailure::Damaged},
        {"a compound file that is cut off", project.substr(0, 1024), ReadFailure::Damaged},
        {"a project that is cut off", test::WriteZip(test::WorkbookParts(project.substr(0, 1024))),
         ReadFailure::Damaged},
    };
    for (const Row& row : rows) {
        try {
            Read(row.bytes);
            ADD_FAILURE() << row.why << " was read";
        } catch (const ReadError& error) {
            EXPECT_EQ(static_cast<int>(error.failure), static_cast<int>(row.failure)) << row.why;
            for (const std::string& sentence : {error.sentence.german, error.sentence.english}) {
                EXPECT_NE(sentence.find("Ablage/Kasse.doc"), std::string::npos) << sentence;
                EXPECT_NE(sentence.find("; "), std::string::npos) << "no way out: " << sentence;
                EXPECT_EQ(sentence.back(), '.') << sentence;
                EXPECT_EQ(sentence.find("[%"), std::string::npos) << sentence;
            }
        }
    }
}

TEST(OfficeDocument, TellsOfModulesThatLostTheirSource) {
    TestProject project;
    project.modules = {StandardModule(u"Da", "Dim a\r\n"), StandardModule(u"Weg", "")};
    project.modules[1].container = "";
    const Document document = Read(Compound(test::WriteProject(project)));
    EXPECT_EQ(document.modules.size(), 1u);
    ASSERT_EQ(document.problems.size(), 1u);
    EXPECT_EQ(document.problems[0].english,
              "Modules without source in “Ablage/Kasse.doc”: 1; only their compiled code is left, check the file that "
              "has the source.");
}

TEST(OfficeDocument, TellsProgramVersionAndLock) {
    TestProject project;
    project.modules = {StandardModule(u"M", "Dim a\r\n")};
    project.projectLines = "DPB=\"" + test::ObfuscateData(std::string(29, 'x'), 0x13) + "\"\r\n";
    const std::string bytes = Compound(test::WriteProject(project));
    const Document document = Read(test::WriteZip(test::WorkbookParts(bytes)));
    EXPECT_EQ(document.application, "Microsoft Excel 16");
    EXPECT_TRUE(document.locked);
    EXPECT_EQ(document.modules.size(), 1u) << "a lock hides no source";
}

TEST(OfficeDocument, ReadsWhatIsThereOfACutOffFile) {
    StorageTree tree;
    tree.Below(u"Macros") = Project();
    tree.Put(u"WordDocument", "x");
    test::CompoundFile file = test::WriteCompoundFile(tree);
    test::Set32(file.bytes, file.fat + 4 * (file.bytes.size() / 512 - 1), 0xFFFFFFFE);
    const Document document = Read(file.bytes);
    EXPECT_EQ(document.modules.size(), 1u);
    ASSERT_EQ(document.problems.size(), 1u);
    EXPECT_NE(document.problems[0].english.find("is damaged or cut off"), std::string::npos);
}

TEST(OfficeDocument, IsReadFromAZipWithoutItsEnd) {
    const std::string zip = test::WriteZip(test::WorkbookParts(Compound(Project())));
    const Document document = Read(zip.substr(0, zip.rfind("PK\1\2")));
    EXPECT_EQ(document.modules.size(), 1u);
    EXPECT_EQ(document.application, "Microsoft Excel 16");
    ASSERT_EQ(document.problems.size(), 1u);
    EXPECT_NE(document.problems[0].english.find("is damaged: the directory"), std::string::npos);
}

TEST(PptRecords, UnpacksWithoutCheckSumAndToAnEarlyEnd) {
    const std::string project = Compound(Project());
    std::string record = test::PptStorageRecord(project, true);
    record.back() = static_cast<char>(record.back() + 1);
    EXPECT_EQ(Read(Presentation(record)).modules.size(), 1u) << "a wrong check sum";
    const std::string packed = test::Deflate(project, true);
    const std::string most = InflateLeniently(packed.substr(0, packed.size() - 20), 1 << 20);
    EXPECT_GT(most.size(), project.size() / 2);
    EXPECT_EQ(most, project.substr(0, most.size())) << "an early end costs what follows it";
    EXPECT_EQ(InflateLeniently("no zlib data", 100), "");
    EXPECT_EQ(InflateLeniently(packed, 100).size(), 100u);
}

TEST(PptRecords, BoundsWhatItUnpacks) {
    const std::string project = Compound(Project());
    const std::string two = test::PptStorageRecord(project, true) + test::PptStorageRecord(project, true);
    EXPECT_EQ(FindPptStorages(two, 1 << 20).compoundFiles.size(), 2u);
    EXPECT_FALSE(FindPptStorages(two, 1 << 20).limitHit);
    EXPECT_TRUE(FindPptStorages(two, project.size() + 10).limitHit);
    EXPECT_TRUE(FindPptStorages(two.substr(0, two.size() - 1), 1 << 20).truncated);
}

// A property stream with one section: its properties' numbers and values, their types in front.
std::string PropertySet(const std::vector<std::pair<std::uint32_t, std::string>>& properties) {
    std::string stream;
    test::Put32(stream, 0xFFFE);
    stream.resize(44, '\0');
    test::Put32(stream, 48);
    std::string section, values;
    for (const auto& [id, value] : properties) {
        test::Put32(section, id);
        test::Put32(section, static_cast<std::uint32_t>(8 + properties.size() * 8 + values.size()));
        values += value;
    }
    std::string head;
    test::Put32(head, static_cast<std::uint32_t>(8 + section.size() + values.size()));
    test::Put32(head, static_cast<std::uint32_t>(properties.size()));
    return stream + head + section + values;
}

TEST(PropertySet, GivesProgramAndVersion) {
    const std::string page("\2\0\0\0\xE4\x04\0\0", 8);
    const std::string name("\x1E\0\0\0\x10\0\0\0Microsoft Word\0\0", 24);
    EXPECT_EQ(ApplicationName(PropertySet({{1, page}, {18, name}})), "Microsoft Word");
    EXPECT_EQ(ApplicationVersion(PropertySet({{23, std::string("\3\0\0\0\x22\x11\x0C\0", 8)}})), "12.4386");
    EXPECT_EQ(ApplicationName(""), "");
    EXPECT_EQ(ApplicationName(PropertySet({{18, std::string("\x1E\0\0\0\xFF\xFF\xFF\xFF", 8)}})), "");
    EXPECT_EQ(ApplicationVersion(PropertySet({{23, name}})), "");
}

}  // namespace
}  // namespace zentlor::readers
