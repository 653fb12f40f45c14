// The storages of a database as a tree, and trees that are none.

#include "readers/access_storage.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "support/documents/access_writer.h"
#include "support/documents/bytes.h"
#include "support/documents/compound_file_writer.h"

namespace zentlor::test {
namespace {

using readers::JetCatalog;
using readers::JetFile;
using readers::Storage;

/// A database's storages, with all that they look at.
struct OpenedStorage {
    explicit OpenedStorage(JetDatabase written) : database(std::move(written)), file(database.bytes) {
        const auto catalog = JetCatalog::Read(file);
        if (catalog) root = readers::OpenAccessStorage(file, *catalog);
    }
    JetDatabase database;
    JetFile file;
    std::unique_ptr<Storage> root;
};

void AddRow(JetTableSpec& table, int id, int parent, int type, TextView name, JetCell content = {}) {
    table.rows.push_back({JetNumber(id, 4), JetNumber(parent, 4), JetNumber(type, 4), JetTextValue(name, {}), content});
}

TEST(AccessStorage, IsWalkedByNameWithoutRegardToCase) {
    StorageTree tree;
    tree.Below(u"Forms").Below(u"0").Put(u"TypeInfo", "zero");
    tree.Below(u"Forms").Put(u"PropData", "forms");
    tree.Put(u"PropData", "root");
    tree.Put(u"Empty", "");
    OpenedStorage opened(WriteAccessStorage(tree, {}));
    ASSERT_TRUE(opened.root);
    EXPECT_EQ(opened.root->StorageNames(), std::vector<Text>{u"Forms"});
    EXPECT_EQ(opened.root->StreamNames().size(), 2u);
    EXPECT_EQ(opened.root->ReadStream(u"propdata", 100), "root");
    EXPECT_EQ(opened.root->ReadStream(u"PropData", 2), "ro");
    EXPECT_EQ(opened.root->ReadStream(u"Empty", 100), "");
    EXPECT_FALSE(opened.root->ReadStream(u"Forms", 100)) << "a storage is no stream";
    EXPECT_FALSE(opened.root->OpenStorage(u"PropData")) << "a stream is no storage";
    EXPECT_FALSE(opened.root->OpenStorage(u"MSysAccessStorage_ROOT")) << "the root is not below itself";
    const auto form = OpenPath(*opened.root, {u"FORMS", u"0"});
    ASSERT_TRUE(form);
    EXPECT_EQ(form->ReadStream(u"TYPEINFO", 100), "zero");
}

TEST(AccessStorage, IsNoTreeWithoutARoot) {
    JetTableSpec table = StorageTable();
    AddRow(table, 2, 2, 1, u"MSysAccessStorage_SCRATCH");
    OpenedStorage rootless(WriteJetDatabase({table}, {}));
    EXPECT_FALSE(rootless.root);
    EXPECT_TRUE(rootless.file.Damage().brokenRows);
    JetTableSpec narrow = StorageTable();
    narrow.columns.pop_back();
    narrow.rows.push_back(
        {JetNumber(1, 4), JetNumber(1, 4), JetNumber(1, 4), JetTextValue(u"MSysAccessStorage_ROOT", {})});
    OpenedStorage columnless(WriteJetDatabase({narrow}, {}));
    EXPECT_FALSE(columnless.root);
    EXPECT_TRUE(columnless.file.Damage().brokenRows);
}

TEST(AccessStorage, EndsWhereRowsHangInCircles) {
    JetTableSpec table = StorageTable();
    AddRow(table, 1, 1, 1, u"MSysAccessStorage_ROOT");
    AddRow(table, 3, 1, 1, u"A");
    AddRow(table, 1, 3, 1, u"A");  // the root again, below its own child
    AddRow(table, 5, 6, 1, u"B");  // two that hang on each other
    AddRow(table, 6, 5, 1, u"B");
    AddRow(table, 7, 7, 2, u"C", "self");
    AddRow(table, 3, 1, 1, u"a");  // one name twice
    OpenedStorage opened(WriteJetDatabase({table}, {}));
    ASSERT_TRUE(opened.root);
    EXPECT_EQ(opened.root->StorageNames().size(), 2u);
    EXPECT_FALSE(opened.root->OpenStorage(u"B"));
    EXPECT_FALSE(opened.root->ReadStream(u"C", 10));
    const auto circle = OpenPath(*opened.root, {u"A", u"A", u"A", u"A"});
    ASSERT_TRUE(circle);
    EXPECT_TRUE(circle->OpenStorage(u"A"));
}

TEST(AccessStorage, LeavesOutRowsWithoutIdOrName) {
    JetTableSpec table = StorageTable();
    AddRow(table, 1, 1, 1, u"MSysAccessStorage_ROOT");
    AddRow(table, 2, 1, 2, u"Sound", "bytes");
    AddRow(table, 3, 1, 2, u"Nameless", "bytes");
    table.rows.back()[3] = std::nullopt;
    OpenedStorage opened(WriteJetDatabase({table}, {}));
    ASSERT_TRUE(opened.root);
    EXPECT_EQ(opened.root->StreamNames(), std::vector<Text>{u"Sound"});
    EXPECT_TRUE(opened.file.Damage().brokenRows);
}

TEST(AccessObjects, AreJoinedAtTheirPlaces) {
    StorageTree tree;
    tree.Put(u"First", std::string(9000, 'a'));
    tree.Put(u"Zeros", std::string(20'000, '\0'));
    tree.Put(u"Last", std::string(9000, 'z'));
    const std::string expected = WriteCompoundFile(tree).bytes;
    for (const JetFormat format : {JetFormat::Jet3, JetFormat::Jet4}) {
        const JetDatabase database = WriteAccessObjects(tree, {.format = format});
        JetFile file(database.bytes);
        const auto catalog = JetCatalog::Read(file);
        ASSERT_TRUE(catalog);
        EXPECT_TRUE(readers::JoinAccessObjects(file, *catalog) == expected);
        EXPECT_FALSE(file.Damage().brokenRows);
    }
}

TEST(AccessObjects, DoNotBelieveTheirLength) {
    const struct {
        const char* why;
        std::string head;
        std::size_t number;
        bool damaged;
    } rows[] = {
        {"a length beyond all rows", std::string("\5\0\0\0\xFF\xFF\xFF\xFF", 8), 1, true},
        {"a piece behind the length", std::string("\5\0\0\0\x10\0\0\0", 8), 0x7FFFFFFF, false},
        {"a length of nothing", std::string("\5\0\0\0\0\0\0\0", 8), 1, false},
        {"a head that is cut off", std::string("\5\0", 2), 1, false},
    };
    for (const auto& row : rows) {
        JetTableSpec table{"MSysAccessObjects", {{"ID", kJetInt32, true, 4}, {"Data", kJetBinary, false, 100}}, {}};
        table.rows.push_back({JetNumber(0, 4), row.head});
        table.rows.push_back({JetNumber(static_cast<std::int64_t>(row.number), 4), std::string(100, 'x')});
        const JetDatabase database = WriteJetDatabase({table}, {});
        JetFile file(database.bytes);
        const auto catalog = JetCatalog::Read(file);
        ASSERT_TRUE(catalog);
        const auto joined = readers::JoinAccessObjects(file, *catalog);
        ASSERT_TRUE(joined) << row.why;
        EXPECT_LE(joined->size(), 2 * database.bytes.size() + (1 << 20)) << row.why;
        EXPECT_EQ(file.Damage().brokenRows, row.damaged) << row.why;
    }
}

}  // namespace
}  // namespace zentlor::test
