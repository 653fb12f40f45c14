// What attackers send: chains and trees that run in circles, and little files that unpack to much. Each has to end, and
// to say what is wrong. Time is not measured here; what would not end would hang the test.

#include <gtest/gtest.h>

#include "core/utilities/encoding.h"
#include "readers/office_document.h"
#include "support/documents/bytes.h"
#include "support/documents/compound_file_writer.h"
#include "support/documents/ovba_writer.h"
#include "support/documents/ppt_writer.h"
#include "support/documents/zip_writer.h"

namespace zentlor::readers {
namespace {

using test::CompoundFile;
using test::StandardModule;
using test::StorageTree;
using test::TestModule;
using test::TestProject;

/// What reading says: the failure's sentence, or the problems' and how many modules were read.
std::string Verdict(const std::string& bytes, const Limits& limits = {}) {
    try {
        const Document document = ReadOfficeDocument(bytes, "x", limits);
        std::string verdict = std::to_string(document.modules.size()) + " modules";
        for (const Sentence& problem : document.problems) verdict += "; " + problem.english;
        return verdict;
    } catch (const ReadError& error) {
        return error.sentence.english;
    }
}

void ExpectVerdict(const std::string& verdict, const std::string& part, const std::string& why) {
    EXPECT_NE(verdict.find(part), std::string::npos) << why << ": " << verdict;
}

/// A project whose first module is in large sectors and whose second is in small ones.
CompoundFile TwoModules() {
    TestProject project;
    TestModule large = StandardModule(u"Gross", "Dim a\r\n");
    large.cache = std::string(9000, 'c');
    TestModule small = StandardModule(u"Klein", "Dim b\r\n");
    small.cache = std::string(300, 'c');
    project.modules = {large, small};
    return test::WriteCompoundFile(test::WriteProject(project));
}

std::size_t EntryOf(const CompoundFile& file, const Text& name) {
    for (std::size_t at = file.directory; at + 128 <= file.bytes.size(); at += 128) {
        bool same = true;
        for (std::size_t i = 0; i < name.size(); ++i) same &= file.bytes[at + 2 * i] == static_cast<char>(name[i]);
        if (same && file.bytes[at + 2 * name.size()] == 0) return at;
    }
    ADD_FAILURE() << "no entry " << ToUtf8(name);
    return file.directory;
}

std::uint32_t Number(const std::string& bytes, std::size_t at) {
    std::uint32_t value = 0;
    for (std::size_t i = 4; i > 0; --i) value = value << 8 | static_cast<std::uint8_t>(bytes[at + i - 1]);
    return value;
}

TEST(HostileOffice, EndsChainsThatRunInCircles) {
    const CompoundFile good = TwoModules();
    ExpectVerdict(Verdict(good.bytes), "2 modules", "the file before it is bent");
    const std::uint32_t large = Number(good.bytes, EntryOf(good, u"Gross") + 116);
    const std::uint32_t small = Number(good.bytes, EntryOf(good, u"Klein") + 116);
    const std::uint32_t directory = Number(good.bytes, 0x30);
    struct Row {
        const char* why;
        std::size_t at;
        std::uint32_t value;
        const char* verdict;
    };
    const Row rows[] = {
        {"sectors of a stream", good.fat + 4ull * (large + 3), large, "1 modules"},
        {"a sector that follows itself", good.fat + 4ull * large, large, "1 modules"},
        {"small sectors", good.miniFat + 4ull * (small + 2), small, "1 modules"},
        {"sectors of the directory", good.fat + 4ull * directory, directory, "is damaged or cut off"},
        {"a table of tables", 0x44, directory, "2 modules"},
    };
    for (const Row& row : rows) {
        std::string bytes = good.bytes;
        test::Set32(bytes, row.at, row.value);
        ExpectVerdict(Verdict(bytes), row.verdict, row.why);
    }
}

TEST(HostileOffice, EndsDirectoriesThatRunInCircles) {
    const CompoundFile good = TwoModules();
    const std::size_t entry = EntryOf(good, u"Klein");
    const auto number = static_cast<std::uint32_t>((entry - good.directory) / 128);
    const auto vba = static_cast<std::uint32_t>((EntryOf(good, u"VBA") - good.directory) / 128);
    struct Row {
        const char* why;
        std::size_t at;
        std::uint32_t value;
    };
    const Row rows[] = {
        {"an entry left of itself", entry + 68, number},
        {"an entry right of itself", entry + 72, number},
        {"the storage among its own streams", entry + 72, vba},
        {"a storage in itself", good.directory + 128ull * vba + 76, vba},
        {"the root below itself", good.directory + 76, 0},
        {"an entry outside of the directory", entry + 68, 4711},
        {"a project that nothing leads to", good.directory + 76, 0xFFFFFFFF},
    };
    for (const Row& row : rows) {
        std::string bytes = good.bytes;
        test::Set32(bytes, row.at, row.value);
        ExpectVerdict(Verdict(bytes), "is damaged or cut off", row.why);
    }
}

TEST(HostileOffice, ReadsTenThousandModulesInTheirOrder) {
    TestProject project;
    for (int i = 0; i < 10000; ++i)
        project.modules.push_back(StandardModule(u"M" + ToText((i * 7919) % 10000), "Dim a\r\n"));
    const Document document = ReadOfficeDocument(test::WriteCompoundFile(test::WriteProject(project)).bytes, "x", {});
    EXPECT_TRUE(document.problems.empty());
    ASSERT_EQ(document.modules.size(), 10000u);
    EXPECT_EQ(ToUtf8(document.modules[1].name), "M7919");
    EXPECT_EQ(ToUtf8(document.modules[9999].name), "M2081");
}

TEST(HostileOffice, RefusesStoragesWithoutEnd) {
    // Written side by side and linked one below the other afterwards: neither writer nor tree is recursive then.
    const auto nested = [](std::uint32_t depth) {
        constexpr std::uint32_t kNone = 0xFFFFFFFF;
        StorageTree tree;
        tree.Put(u"WordDocument", "x");
        for (std::uint32_t i = 0; i < depth; ++i) tree.storages.push_back({u"s" + ToText(i), {}});
        CompoundFile file = test::WriteCompoundFile(tree, {true, true});
        const auto link = [&](std::uint32_t entry, std::uint32_t right, std::uint32_t child) {
            test::Set32(file.bytes, file.directory + 128ull * entry + 68, kNone);
            test::Set32(file.bytes, file.directory + 128ull * entry + 72, right);
            test::Set32(file.bytes, file.directory + 128ull * entry + 76, child);
        };
        link(0, kNone, 1);
        link(1, 2, kNone);
        for (std::uint32_t i = 2; i <= depth + 1; ++i) link(i, kNone, i <= depth ? i + 1 : kNone);
        return file.bytes;
    };
    ExpectVerdict(Verdict(nested(16)), "0 modules", "as deep as allowed");
    ExpectVerdict(Verdict(nested(17)), "--max-storage-depth", "one too deep");
    ExpectVerdict(Verdict(nested(10400)), "--max-storage-depth", "far too deep");
    ExpectVerdict(Verdict(nested(20000)), "more than 10500 storages", "too many for the library's stack");
    Limits limits;
    limits.storageDepth = 17;
    ExpectVerdict(Verdict(nested(17), limits), "0 modules", "raised");
    limits.storageEntries = 30000;
    ExpectVerdict(Verdict(nested(20000), limits), "is damaged", "deeper than a library's stack");
}

TEST(HostileOffice, RefusesEntriesWithoutEnd) {
    StorageTree tree;
    for (int i = 0; i < 40000; ++i) tree.streams.push_back({u"s" + ToText(i), ""});
    for (bool list : {false, true}) {
        ExpectVerdict(Verdict(test::WriteCompoundFile(tree, {true, list}).bytes), "more than 10500 storages", "many");
    }
    tree.streams.resize(10600);
    tree.Put(u"WordDocument", "x");
    Limits limits;
    limits.storageEntries = 10700;
    ExpectVerdict(Verdict(test::WriteCompoundFile(tree).bytes), "--max-storage-entries raises the limit", "a few more");
    ExpectVerdict(Verdict(test::WriteCompoundFile(tree).bytes, limits), "0 modules", "raised");
}

TEST(HostileOffice, BoundsWhatAZipUnpacksTo) {
    const std::string signature("\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1", 8);
    const std::string bomb = signature + std::string(20 << 20, '\0');
    ExpectVerdict(Verdict(test::WriteZip(test::WorkbookParts(bomb))), "--max-zip-ratio raises the limit", "one part");
    std::vector<test::ZipTestPart> parts = test::WorkbookParts("");
    std::string halfBomb = signature + std::string(1000000, '\0');
    for (int i = 0; i < 60; ++i) parts.push_back({"xl/" + std::to_string(i) + ".bin", halfBomb});
    ExpectVerdict(Verdict(test::WriteZip(parts)), "--max-zip-part-size raises the limit", "many parts");
    Limits limits;
    limits.zipParts = 10;
    ExpectVerdict(Verdict(test::WriteZip(parts), limits), "--max-zip-parts raises the limit", "too many parts");
}

TEST(HostileOffice, BoundsTheEntriesOfAllInnerFilesTogether) {
    for (const bool named : {false, true}) {
        StorageTree inner;
        for (int i = 0; i < 1000; ++i) inner.streams.push_back({u"s" + ToText(i), ""});
        if (named) inner.Put(u"dir", "x");
        std::vector<test::ZipTestPart> parts = test::WorkbookParts("");
        for (int i = 0; i < 12; ++i)
            parts.push_back({"xl/" + std::to_string(i) + ".bin", test::WriteCompoundFile(inner).bytes});
        ExpectVerdict(Verdict(test::WriteZip(parts)), named ? "--max-storage-entries raises the limit" : "0 modules",
                      named ? "each may hold a project" : "none names a project, and none is opened");
    }
}

TEST(HostileOffice, BoundsWhatAPresentationUnpacksTo) {
    const std::string bomb = std::string("\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1", 8) + std::string(60 << 20, '\0');
    StorageTree tree;
    tree.Put(u"PowerPoint Document", test::PptStorageRecord(bomb, true));
    ExpectVerdict(Verdict(test::WriteCompoundFile(tree).bytes), "raises the limit", "a packed storage");
}

TEST(HostileOffice, BoundsWhatModulesUnpackTo) {
    TestProject one;
    one.modules = {StandardModule(u"M", std::string(17 << 20, '\''))};
    ExpectVerdict(Verdict(test::WriteCompoundFile(test::WriteProject(one)).bytes), "raises the limit", "one module");
    TestProject many;
    const std::string container = test::CompressContainer("Attribute VB_Name = \"M\"\r\n" + std::string(1 << 20, '\''));
    for (int i = 0; i < 300; ++i) {
        many.modules.push_back(StandardModule(u"M" + ToText(i), ""));
        many.modules.back().container = container;
    }
    ExpectVerdict(Verdict(test::WriteCompoundFile(test::WriteProject(many)).bytes), "--max-source-size",
                  "many modules");
    TestProject shared;
    for (int i = 0; i < 10000; ++i) {
        shared.modules.push_back(StandardModule(u"M" + ToText(i), ""));
        shared.modules.back().streamName = u"Alle";
    }
    StorageTree tree;
    tree.Below(u"VBA").Put(u"dir", test::CompressContainer(test::WriteDir(shared)));
    tree.Below(u"VBA").Put(u"Alle", "compiled form" + container);
    ExpectVerdict(Verdict(test::WriteCompoundFile(tree).bytes), "--max-source-size", "one stream for all modules");
}

}  // namespace
}  // namespace zentlor::readers
