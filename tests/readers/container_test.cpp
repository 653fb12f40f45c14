#include "readers/container.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "core/utilities/encoding.h"
#include "readers/compound_layout.h"
#include "readers/zip_directory.h"
#include "support/documents/bytes.h"
#include "support/documents/compound_file_writer.h"
#include "support/documents/zip_writer.h"

namespace zentlor::readers {
namespace {

using test::CompoundFile;
using test::StorageTree;
using test::WriteCompoundFile;
using test::WriteZip;

StorageTree Sample() {
    StorageTree tree;
    tree.Put(u"kurz", "ein kleiner Strom");
    tree.Put(u"lang", std::string(9000, 'x') + "Ende");
    tree.Put(u"leer", "");
    tree.Below(u"Ordner").Below(u"Unten").Put(u"Blatt", "tief");
    return tree;
}

TEST(CompoundFile, GivesStoragesAndStreams) {
    for (bool small : {true, false}) {
        const CompoundFile file = WriteCompoundFile(Sample(), {small, false});
        const auto root = OpenCompoundFile(file.bytes, "x", {});
        ASSERT_TRUE(root) << small;
        std::vector<Text> streams = root->StreamNames();
        std::sort(streams.begin(), streams.end());
        EXPECT_EQ(streams, (std::vector<Text>{u"kurz", u"lang", u"leer"}));
        EXPECT_EQ(root->StorageNames(), std::vector<Text>{u"Ordner"});
        EXPECT_EQ(root->ReadStream(u"kurz", 100).value_or("-"), "ein kleiner Strom");
        EXPECT_EQ(root->ReadStream(u"lang", 100000).value_or("-"), std::string(9000, 'x') + "Ende");
        EXPECT_EQ(root->ReadStream(u"lang", 5).value_or("-"), "xxxxx") << "no more than asked for";
        EXPECT_EQ(root->ReadStream(u"leer", 5).value_or("-"), "");
        EXPECT_FALSE(root->ReadStream(u"fehlt", 5).has_value());
        EXPECT_FALSE(root->ReadStream(u"Ordner", 5).has_value()) << "a storage is no stream";
        EXPECT_FALSE(root->OpenStorage(u"kurz")) << "a stream is no storage";
    }
}

TEST(CompoundFile, ComparesNamesWithoutCase) {
    const CompoundFile file = WriteCompoundFile(Sample());
    const auto root = OpenCompoundFile(file.bytes, "x", {});
    ASSERT_TRUE(root);
    EXPECT_TRUE(root->ReadStream(u"KURZ", 5).has_value());
    const auto below = OpenPath(*root, {u"ORDNER", u"unten"});
    ASSERT_TRUE(below);
    EXPECT_EQ(below->ReadStream(u"Blatt", 5).value_or("-"), "tief");
    EXPECT_FALSE(OpenPath(*root, {u"Ordner", u"Oben"}));
}

TEST(CompoundFile, ReadsATableWithSectorsBeyondTheHeader) {
    StorageTree tree;
    tree.Put(u"gross", std::string(9 << 20, 'y'));
    const CompoundFile file = WriteCompoundFile(tree);
    const auto root = OpenCompoundFile(file.bytes, "x", {});
    ASSERT_TRUE(root);
    EXPECT_EQ(root->ReadStream(u"gross", 1 << 30).value_or("").size(), std::size_t{9} << 20);
}

TEST(CompoundFile, RefusesWhatTheLibraryWouldTrust) {
    const CompoundFile file = WriteCompoundFile(Sample());
    struct Row {
        const char* why;
        std::size_t offset;
        std::uint32_t value;
    };
    const Row rows[] = {
        {"a storage beside the root, which the library would never let go", file.directory + 0x44, 1},
        {"more table sectors than the file has", 0x2C, 0x7FFFFFFF},
        {"a size of sectors that is none", 0x1C, 0x0015FFFE},
        {"a size of small sectors that is none", 0x20, 12},
        {"another border between small and large", 0x38, 0xFFFFFFFF},
        {"a small table larger than the file", 0x40, 0x7FFFFFFF},
        {"a directory outside of the file", 0x30, 0x00FFFFFF},
    };
    ASSERT_TRUE(OpenCompoundFile(file.bytes, "x", {}));
    for (const Row& row : rows) {
        std::string bytes = file.bytes;
        test::Set32(bytes, row.offset, row.value);
        EXPECT_FALSE(MeasureCompoundFile(bytes).sound) << row.why;
        EXPECT_FALSE(OpenCompoundFile(bytes, "x", {})) << row.why;
    }
    EXPECT_FALSE(OpenCompoundFile(file.bytes.substr(0, 400), "x", {})) << "half a header";
    EXPECT_FALSE(OpenCompoundFile("", "x", {}));
}

TEST(CompoundFile, TellsThatItsEndIsMissing) {
    StorageTree tree = Sample();
    const CompoundFile file = WriteCompoundFile(tree);
    EXPECT_FALSE(MeasureCompoundFile(file.bytes).truncated);
    // The table of this writer lies at the end, so it is made to speak of a sector more.
    std::string bytes = file.bytes;
    const std::size_t sectors = bytes.size() / 512 - 1;
    test::Set32(bytes, file.fat + 4 * sectors, 0xFFFFFFFE);
    bool truncated = false;
    EXPECT_TRUE(OpenCompoundFile(bytes, "x", {}, &truncated));
    EXPECT_TRUE(truncated);
}

TEST(CompoundFile, GivesTheBytesInFrontOfDamage) {
    StorageTree tree;
    tree.Put(u"lang", std::string(5000, 'a') + std::string(5000, 'b'));
    const CompoundFile file = WriteCompoundFile(tree);
    std::string bytes = file.bytes;
    test::Set32(bytes, file.fat + 4ull * 15, 0xFFFFFFFE);  // the chain of twenty sectors ends behind sixteen
    const auto root = OpenCompoundFile(bytes, "x", {});
    ASSERT_TRUE(root);
    bool damaged = false;
    const std::string read = root->ReadStream(u"lang", 1 << 20, &damaged).value_or("");
    EXPECT_TRUE(damaged);
    EXPECT_GE(read.size(), 7500u);
    EXPECT_EQ(read.substr(0, 5001), std::string(5000, 'a') + "b");
}

TEST(Zip, GivesItsParts) {
    const std::string bytes = WriteZip({{"a/b/stored.bin", "so wie es ist", false},
                                        {"a/", ""},
                                        {"packed.xml", std::string(100000, 'z')},
                                        {"leer", ""}});
    const auto zip = OpenZip(bytes, "x", {});
    ASSERT_TRUE(zip);
    ASSERT_EQ(zip->Parts().size(), 3u) << "a folder is no part";
    EXPECT_EQ(zip->Parts()[0].name, "a/b/stored.bin");
    EXPECT_EQ(zip->Read(0, 1000), "so wie es ist");
    EXPECT_EQ(zip->Read(1, 1 << 20), std::string(100000, 'z'));
    EXPECT_EQ(zip->Read(1, 3), "zzz");
    EXPECT_EQ(zip->Read(2, 3), "");
}

TEST(Zip, SaysWhereAPartIsDamaged) {
    const std::string good = WriteZip({{"erster", ""}, {"teil", std::string(50000, 'z') + "ende"}});
    const std::size_t head = good.find("PK\3\4", 4);
    std::string noHead = good, badData = good;
    noHead[head + 2] = 'X';
    badData.replace(head + 40, 12, 12, '\xFF');
    struct Row {
        const char* why;
        std::string bytes;
    };
    const Row rows[] = {{"no head in front of the part", noHead},
                        {"its data mean nothing", badData},
                        {"it claims more than it holds", WriteZip({{"erster", ""}, {"teil", "kurz", true, 5000}})}};
    for (const Row& row : rows) {
        const auto zip = OpenZip(row.bytes, "x", {});
        ASSERT_TRUE(zip) << row.why;
        bool damaged = false;
        zip->Read(1, 1 << 20, &damaged);
        EXPECT_TRUE(damaged) << row.why;
    }
}

TEST(Zip, LetsTheLibraryComplainToNobody) {
    std::string bytes = WriteZip({{"erster", ""}, {"teil", "inhalt"}});
    // A date that is none, and a part without a head.
    test::Set32(bytes, bytes.find("PK\1\2") + 12, 0xFFFFFFFF);
    bytes[bytes.find("PK\3\4", 4) + 2] = 'X';
    testing::internal::CaptureStderr();
    const auto zip = OpenZip(bytes, "x", {});
    ASSERT_TRUE(zip);
    for (std::size_t i = 0; i < zip->Parts().size(); ++i) zip->Read(i, 100);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST(Zip, FindsPartsWithoutTheDirectory) {
    const std::string inner = WriteZip({{"innen", "PK\3\4 steht auch hier"}});
    for (const bool sizesFollow : {false, true}) {
        const std::string whole = WriteZip({{"a/", ""},
                                            {"a/xml", std::string(100000, 'z'), true, std::nullopt, sizesFollow},
                                            {"a/stored.zip", inner, false},
                                            {"leer", "", true, std::nullopt, sizesFollow},
                                            {"letzter", std::string(50000, 'y') + "ende", true}});
        const std::size_t directory = whole.find("PK\1\2\x14", whole.find("letzter"));
        struct Row {
            const char* why;
            std::size_t length;
            std::size_t parts;
            bool lastDamaged;
        };
        const Row rows[] = {{"the end record is missing", whole.size() - 30, 4, false},
                            {"all of the directory is missing", directory, 4, false},
                            {"the last part is cut off", directory - 9, 4, true},
                            {"and its head", whole.find("letzter") + 3, 3, false}};
        for (const Row& row : rows) {
            const std::string bytes = whole.substr(0, row.length);
            bool salvaged = false;
            const auto zip = OpenZip(bytes, "x", {}, &salvaged);
            ASSERT_TRUE(zip && salvaged) << row.why;
            ASSERT_EQ(zip->Parts().size(), row.parts) << row.why;
            EXPECT_EQ(zip->Parts()[0].name, "a/xml");
            bool damaged = false;
            EXPECT_EQ(zip->Read(0, 1 << 20, &damaged), std::string(100000, 'z')) << row.why;
            EXPECT_EQ(zip->Read(0, 3, &damaged), "zzz");
            EXPECT_EQ(zip->Read(1, 1 << 20, &damaged), inner) << "a head inside of a part is none";
            EXPECT_EQ(zip->Read(2, 1 << 20, &damaged), "");
            EXPECT_FALSE(damaged) << row.why;
            const std::string last = zip->Read(row.parts - 1, 1 << 20, &damaged);
            EXPECT_EQ(damaged, row.lastDamaged) << row.why;
            EXPECT_EQ(last.substr(0, 50000), std::string(std::min<std::size_t>(last.size(), 50000), 'y'));
        }
    }
    EXPECT_FALSE(OpenZip("PK\3\4", "x", {}));
    EXPECT_FALSE(OpenZip("PK\3\4" + std::string(100, '\0'), "x", {})) << "a head without a name";
}

TEST(Zip, RefusesDirectoriesThatNoOfficeProgramWrites) {
    const std::string good = WriteZip({{"teil", "inhalt"}});
    ASSERT_TRUE(ReadZipDirectory(good, 10).sound);
    EXPECT_FALSE(ReadZipDirectory(good.substr(0, good.size() - 30), 10).sound) << "cut off";
    EXPECT_FALSE(ReadZipDirectory(good.substr(0, 10), 10).sound);
    EXPECT_FALSE(ReadZipDirectory("", 10).sound);
    EXPECT_FALSE(ReadZipDirectory(WriteZip({{std::string(600, 'n'), ""}}), 10).sound) << "an endless name";
    std::string deep;
    for (int i = 0; i < 100; ++i) deep += "a/";
    EXPECT_FALSE(ReadZipDirectory(WriteZip({{deep + "b", ""}}), 10).sound) << "folders without end";
    EXPECT_FALSE(ReadZipDirectory(WriteZip({{std::string("a\0b", 3), ""}}), 10).sound) << "a name that ends early";
    std::string promises = good;
    promises[promises.size() - 12] = 9;
    EXPECT_FALSE(ReadZipDirectory(promises, 10).sound) << "fewer entries than it promises";
}

TEST(Zip, CountsPartsBeforeItUnpacksAny) {
    std::vector<test::ZipTestPart> parts;
    parts.reserve(20);
    for (int i = 0; i < 20; ++i) parts.push_back({"p" + std::to_string(i), ""});
    const std::string bytes = WriteZip(parts);
    Limits limits;
    limits.zipParts = 20;
    EXPECT_TRUE(OpenZip(bytes, "x.xlsm", limits));
    limits.zipParts = 19;
    for (const std::string& zip : {bytes, bytes.substr(0, bytes.size() - 1)}) {
        try {
            OpenZip(zip, "x.xlsm", limits);
            ADD_FAILURE() << "the limit was passed over";
        } catch (const ReadError& error) {
            EXPECT_EQ(error.failure, ReadFailure::Limit);
            EXPECT_EQ(error.sentence.english, "“x.xlsm” holds more than 19 parts; --max-zip-parts raises the limit.");
        }
    }
}

}  // namespace
}  // namespace zentlor::readers
