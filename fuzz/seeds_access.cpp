// Small databases of every generation and layout, with long values in their row, in one row and in chains.

#include "seeds.h"
#include "support/documents/access_writer.h"

namespace zentlor::fuzz {

using namespace test;

void AddAccessSeeds(Seeds& seeds) {
    TestProject project;
    project.modules = {
        StandardModule(u"Tools", "Sub First()\r\nEnd Sub\r\n"),
        {.name = u"Form_Order",
         .source = "Attribute VB_Name = \"Form_Order\"\r\nPrivate x As Long\r\n",
         .kind = "DocClass"},
    };
    project.references = RegisteredReference("stdole", "*\\G{0002}#2.0#0#C:\\stdole2.tlb#OLE Automation");
    const std::vector<TestForm> forms{{u"Order", false, {{"txtName", "", 109}, {"cmd_OK", "cmd OK", 104}}}};
    const StorageTree tree = WriteAccessTree(project, forms);
    for (const JetFormat format : {JetFormat::Jet3, JetFormat::Jet4, JetFormat::Ace}) {
        const bool jet3 = format == JetFormat::Jet3;
        auto& documents = seeds[jet3 ? "jet3" : format == JetFormat::Jet4 ? "jet4" : "ace"];
        documents.push_back(WriteAccessStorage(tree, {.format = format}).bytes);
        documents.push_back(WriteAccessStorage(tree, {.format = format, .inRowBytes = 0, .oneRowBytes = 0}).bytes);
        documents.push_back(WriteAccessStorage(tree, {.format = format, .rowsBehindPointers = true}).bytes);
        documents.push_back(WriteAccessStorage(tree, {.format = format, .chainBytes = 100}).bytes);
        documents.push_back(WriteAccessObjects(tree, {.format = format}).bytes);
        documents.push_back(WriteAccessModules(project, {.format = format}).bytes);
        documents.push_back(WriteAccessModules(project, {.format = format, .oneRowBytes = 0}, &tree).bytes);
        if (format == JetFormat::Ace) continue;
        documents.push_back(WriteAccessStorage(tree, {.format = format, .pageKey = 0x12345678}).bytes);
    }
}

}  // namespace zentlor::fuzz
