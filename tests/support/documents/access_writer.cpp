#include "support/documents/access_writer.h"

#include <algorithm>

#include "core/utilities/encoding.h"
#include "support/documents/bytes.h"
#include "support/documents/compound_file_writer.h"

namespace zentlor::test {
namespace {

const Text kDirectoryStream = u"\u0003DirData";

std::string Utf16(TextView text) {
    std::string bytes;
    for (const char16_t c : text) Put16(bytes, c);
    return bytes;
}

void PutForms(StorageTree& tree, const std::vector<TestForm>& forms, bool report) {
    StorageTree& folder = tree.Below(report ? u"Reports" : u"Forms");
    std::string directory(4, '\0');
    int number = 0;
    for (const TestForm& form : forms) {
        if (form.report != report) continue;
        const std::string name = Utf16(form.name);
        directory.push_back(4);
        directory.push_back(static_cast<char>(name.size() + 4));
        directory += name;
        Put32(directory, static_cast<std::uint32_t>(number));
        folder.Below(ToText(number)).Put(u"TypeInfo", WriteTypeInfo(form.controls));
        ++number;
    }
    folder.Put(kDirectoryStream, directory);
}

class StorageRows {
  public:
    explicit StorageRows(const JetOptions& options) : options_(options) {
        table_ = {"MSysAccessStorage",
                  {{"DateCreate", kJetInt32, true, 4},
                   {"Id", kJetInt32, true, 4},
                   {"Lv", kJetOle, false, 0},
                   {"Name", kJetText, false, 510},
                   {"ParentId", kJetInt32, true, 4},
                   {"Type", kJetInt32, true, 4}},
                  {}};
        Add(1, u"MSysAccessStorage_ROOT", 1, std::nullopt);
        Add(2, u"MSysAccessStorage_SCRATCH", 1, std::nullopt);
    }

    void AddTree(const StorageTree& tree, int parent) {
        for (const auto& child : tree.storages) {
            const int id = Add(parent, child.name, 1, std::nullopt);
            AddTree(child.tree, id);
        }
        for (const auto& stream : tree.streams) Add(parent, stream.name, 2, stream.bytes);
    }

    const JetTableSpec& Table() const { return table_; }

  private:
    int Add(int parent, TextView name, int type, const JetCell& content) {
        const int id = static_cast<int>(table_.rows.size()) + 1;
        table_.rows.push_back({std::nullopt, JetNumber(id, 4), content, JetTextValue(name, options_),
                               JetNumber(parent, 4), JetNumber(type, 4)});
        return id;
    }

    const JetOptions& options_;
    JetTableSpec table_;
};

JetTableSpec ObjectRows(const StorageTree& tree, const JetOptions& options) {
    const std::string file = WriteCompoundFile(tree).bytes;
    const bool jet3 = options.format == JetFormat::Jet3;
    const std::size_t width = jet3 ? 241 : 3992;
    JetTableSpec table{"MSysAccessObjects",
                       {{"Data", jet3 ? kJetBinary : kJetFixedBinary, !jet3, static_cast<std::uint32_t>(width)},
                        {"ID", kJetInt32, true, 4}},
                       {}};
    std::string head;
    Put32(head, 5);
    Put32(head, static_cast<std::uint32_t>(file.size()));
    table.rows.push_back({head, JetNumber(0, 4)});
    for (std::size_t at = 0; at < file.size(); at += width) {
        const std::string piece = file.substr(at, width);
        if (piece.find_first_not_of('\0') == std::string::npos) continue;
        table.rows.push_back({piece, JetNumber(static_cast<std::int64_t>(at / width) + 1, 4)});
    }
    return table;
}

/// `entries` as the long value of a module's row lists them.
std::string WriteEntries(const std::vector<std::pair<Text, std::string>>& entries) {
    std::string bytes("\x69\x12\x04\0\1\0\0\0", 8);
    for (const auto& [name, content] : entries) {
        const std::string nameBytes = Utf16(name + u'\0');
        bytes.push_back(static_cast<char>(nameBytes.size()));
        bytes += nameBytes;
        Put32(bytes, static_cast<std::uint32_t>(content.size()));
        bytes += content;
    }
    return bytes + '\0';
}

int RowTypeOf(const TestModule& module) {
    if (module.name.starts_with(u"Form_")) return 32768;
    return module.name.starts_with(u"Report_") ? 32772 : 32775;
}

}  // namespace

std::string WriteTypeInfo(const std::vector<TestControl>& controls) {
    std::string bytes(0x20, '\x11');
    Set32(bytes, 0x0C, static_cast<std::uint32_t>(controls.size()));
    std::uint32_t index = 0;
    for (const TestControl& control : controls) {
        Put32(bytes, 0x2FF30D00u | static_cast<std::uint32_t>(control.type));
        Put32(bytes, index++);
        bytes += control.identifier + '\0' + control.realName + '\0';
    }
    return bytes;
}

StorageTree WriteAccessTree(const TestProject& project, const std::vector<TestForm>& forms) {
    StorageTree tree;
    tree.Below(u"VBA").Put(u"AcessVBAData", std::string(12, '\1'));
    tree.Below(u"VBA").Below(u"VBAProject") = WriteProject(project);
    PutForms(tree, forms, false);
    PutForms(tree, forms, true);
    return tree;
}

JetTableSpec StorageTable() {
    return {"MSysAccessStorage",
            {{"Id", kJetInt32, true, 4},
             {"ParentId", kJetInt32, true, 4},
             {"Type", kJetInt32, true, 4},
             {"Name", kJetText, false, 510},
             {"Lv", kJetOle, false, 0}},
            {}};
}

JetDatabase WriteAccessStorage(const StorageTree& tree, const JetOptions& options,
                               const std::vector<JetCatalogEntry>& objects) {
    StorageRows rows(options);
    rows.AddTree(tree, 1);
    return WriteJetDatabase({rows.Table()}, options, objects);
}

JetDatabase WriteAccessObjects(const StorageTree& tree, const JetOptions& options) {
    return WriteJetDatabase({ObjectRows(tree, options)}, options);
}

JetDatabase WriteAccessModules(TestProject project, const JetOptions& options, const StorageTree* later) {
    for (TestModule& module : project.modules) module.streamName = u"_VBA_MODULE";
    JetTableSpec table{"MSysModules2",
                       {{"Name", kJetText, false, 255},
                        {"Type", kJetInt32, true, 4},
                        {"Module", kJetOle, false, 0},
                        {"Form", kJetOle, false, 0}},
                       {}};
    const std::string dir = CompressContainer(WriteDir(project));
    table.rows.push_back({JetTextValue(u"MSysDb", options), JetNumber(2, 4),
                          WriteEntries({{u"_VBA_PROJECT", "cache"}, {u"dir", dir}, {u"__SRP_0", "cache"}}),
                          std::nullopt});
    for (const TestModule& module : project.modules) {
        const auto type = RowTypeOf(module);
        table.rows.push_back({module.rawName ? *module.rawName : JetTextValue(module.name, options), JetNumber(type, 4),
                              WriteEntries({{u"__SRP_0", "cache"}, {u"_VBA_MODULE", WriteModuleStream(module)}}),
                              std::nullopt});
    }
    std::vector<JetTableSpec> tables{table};
    if (later) tables.push_back(ObjectRows(*later, options));
    return WriteJetDatabase(tables, options);
}

}  // namespace zentlor::test
