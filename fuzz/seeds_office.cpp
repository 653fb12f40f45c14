// Small documents of every kind, and the pieces of them that have a target of their own.

#include "seeds.h"
#include "support/documents/compound_file_writer.h"
#include "support/documents/ovba_writer.h"
#include "support/documents/ppt_writer.h"
#include "support/documents/zip_writer.h"

namespace zentlor::fuzz {

using namespace test;

namespace {

TestProject SmallProject() {
    TestProject project;
    project.modules = {
        StandardModule(u"Tools", "Option Explicit\r\nSub A()\r\nAttribute A.VB_Description = \"x\"\r\nEnd Sub\r\n"),
        {u"Kunde", "Attribute VB_Name = \"Kunde\"\r\nAttribute VB_Base = \"0{A}{B}\"\r\nDim a\r\n", "Class"},
        {u"Tabelle1", "Attribute VB_Name = \"Tabelle1\"\r\n", "Document"}};
    project.references = RegisteredReference("stdole", "*\\G{0002}#2.0#0#C:\\stdole2.tlb#OLE Automation");
    project.projectLines = "CMG=\"" + ObfuscateData(std::string(4, '\0'), 0x0E) + "\"\r\nDPB=\"" +
                           ObfuscateData(std::string(29, 'x'), 0x13) + "\"\r\n";
    return project;
}

std::string Around(const Text& stream, const Text& storage, const TestProject& project) {
    StorageTree tree;
    tree.Put(stream, "x");
    tree.Below(storage) = WriteProject(project);
    return WriteCompoundFile(tree).bytes;
}

}  // namespace

void AddOfficeSeeds(Seeds& seeds) {
    const TestProject project = SmallProject();
    TestProject wiped = project, foreign = project;
    wiped.modules[0].container = "";
    wiped.modules[1].offset = 3;
    foreign.codePage = 932;
    const std::string bare = WriteCompoundFile(WriteProject(project)).bytes;
    StorageTree presentation, encrypted;
    const std::string records = PptRecord(1000, 15, "x") + PptStorageRecord(bare, true) + PptStorageRecord(bare, false);
    presentation.Put(u"PowerPoint Document", records);
    encrypted.Put(u"EncryptedPackage", "x");
    seeds["compound"] = {bare,
                         Around(u"Workbook", u"_VBA_PROJECT_CUR", foreign),
                         Around(u"WordDocument", u"Macros", wiped),
                         Around(u"WordDocument", u"ObjectPool", project),
                         WriteCompoundFile(presentation).bytes,
                         WriteCompoundFile(encrypted).bytes,
                         WriteCompoundFile(WriteProject(project), {false, true}).bytes};
    const auto parts = WorkbookParts(bare);
    auto stored = parts;
    for (ZipTestPart& part : stored) part.deflated = false;
    seeds["zip"] = {WriteZip(parts), WriteZip(stored),
                    WriteZip({{"[Content_Types].xml", ""}, {"word/document.xml", ""}})};
    seeds["document"] = seeds["zip"];
    seeds["document"].insert(seeds["document"].end(), seeds["compound"].begin(), seeds["compound"].end());
    for (const char* generation : {"jet3", "jet4", "ace"}) {
        if (!seeds[generation].empty()) seeds["document"].push_back(seeds[generation].front());
    }
    seeds["decompress"] = {CompressContainer(project.modules[0].source), CompressContainer(WriteDir(project)),
                           CompressContainer(std::string(10000, 'x')), CompressContainer("roh", true)};
    seeds["ppt"] = {records, PptStorageRecord(bare, true), PptStorageRecord(bare, false)};
    const auto pieces = [](const TestProject& from) {
        return WriteDir(from) + kSeparator + WriteProjectStream(from) + kSeparator + from.modules[0].source;
    };
    seeds["project"] = {pieces(project), pieces(foreign),
                        pieces(TestProject{u"P", 0, {project.modules[0]}, {}, {}, true})};
}

}  // namespace zentlor::fuzz
