// Pages, rows and pointers of a database file, and what becomes of them when the file lies.

#include "readers/jet_file.h"

#include <gtest/gtest.h>

#include <string>

#include "readers/jet_rc4.h"
#include "support/documents/bytes.h"
#include "support/documents/jet_writer.h"

namespace zentlor::test {
namespace {

using readers::JetFile;
using readers::JetGeneration;

/// A table of two rows, "first" and "second".
JetDatabase WriteTwoRows(const JetOptions& options) {
    return WriteJetDatabase({{"Probe", {{"Word", kJetBinary, false, 255}}, {{"first"}, {"second"}}}}, options);
}

std::string FirstRow(JetFile& file, const JetDatabase& database) {
    const auto slot = file.Slot(file.Page(database.places.dataPages.at("Probe")), 0);
    return slot ? std::string(slot->bytes) : "no row";
}

TEST(Rc4, GivesThePublishedVectors) {
    const struct {
        std::string key, plain, cipher;
    } rows[] = {
        {"Key", "Plaintext", "\xBB\xF3\x16\xE8\xD9\x40\xAF\x0A\xD3"},
        {"Wiki", "pedia", "\x10\x21\xBF\x04\x20"},
        {"Secret", "Attack at dawn", "\x45\xA0\x1F\x64\x5F\xC3\x5B\x38\x35\x52\x54\x4B\x9B\xF5"},
    };
    for (const auto& row : rows) {
        std::string bytes = row.plain;
        readers::Rc4 cipher(row.key);
        cipher.Apply(bytes.data(), 2);
        cipher.Apply(bytes.data() + 2, bytes.size() - 2);
        EXPECT_EQ(bytes, row.cipher) << row.key;
    }
}

TEST(JetFile, RecognisesDatabasesByTheirSignature) {
    const struct {
        const char* why;
        std::string bytes;
        bool expected;
    } rows[] = {
        {"Jet", std::string("\0\1\0\0Standard Jet DB", 19), true},
        {"ACE", std::string("\0\1\0\0Standard ACE DB", 19), true},
        {"another engine", std::string("\0\1\0\0MSISAM Database", 19), false},
        {"signature at the start", "Standard Jet DB....", false},
        {"cut off", std::string("\0\1\0\0Standard Jet D", 18), false},
        {"nothing", "", false},
    };
    for (const auto& row : rows) EXPECT_EQ(JetFile::Recognises(row.bytes), row.expected) << row.why;
}

TEST(JetFile, ReadsHeadersOfAllGenerations) {
    const struct {
        const char* why;
        JetFormat format;
        JetGeneration generation;
        std::uint32_t pages;
    } rows[] = {
        {"Access 97", JetFormat::Jet3, JetGeneration::Jet3, 2048},
        {"Access 2000", JetFormat::Jet4, JetGeneration::Jet4, 4096},
        {"Access 2007", JetFormat::Ace, JetGeneration::Ace, 4096},
    };
    for (const auto& row : rows) {
        const JetDatabase database = WriteTwoRows({.format = row.format, .codePage = 1251});
        const JetFile file(database.bytes);
        EXPECT_EQ(file.Generation(), row.generation) << row.why;
        EXPECT_EQ(file.PageSize(), row.pages) << row.why;
        EXPECT_EQ(file.CodePage(), 1251) << row.why;
        EXPECT_EQ(file.PageCount(), database.bytes.size() / row.pages) << row.why;
        EXPECT_FALSE(file.NeedsPassword()) << row.why;
    }
}

TEST(JetFile, ReadsEncodedPagesAsIfTheyWereNot) {
    for (const JetFormat format : {JetFormat::Jet3, JetFormat::Jet4}) {
        const JetDatabase plain = WriteTwoRows({.format = format});
        const JetDatabase encoded = WriteTwoRows({.format = format, .pageKey = 0xA7B773E0});
        const JetFile plainFile(plain.bytes);
        const JetFile encodedFile(encoded.bytes);
        ASSERT_NE(plain.bytes.substr(4096), encoded.bytes.substr(4096));
        for (std::uint32_t page = 1; page < plainFile.PageCount(); ++page) {
            EXPECT_EQ(plainFile.Page(page), encodedFile.Page(page)) << page;
        }
        // A file that ends inside of a page is decoded as far as it goes.
        const std::string cut = encoded.bytes.substr(0, encoded.bytes.size() - 100);
        const JetFile cutFile(cut);
        const std::uint32_t last = cutFile.PageCount() - 1;
        EXPECT_EQ(cutFile.Page(last), plainFile.Page(last).substr(0, cutFile.Page(last).size()));
    }
}

TEST(JetFile, AsksForAPasswordOnlyWhereOneIsNeeded) {
    JetDatabase database = WriteTwoRows({.format = JetFormat::Ace});
    database.bytes[0x299] = 4;
    EXPECT_TRUE(JetFile(database.bytes).NeedsPassword());
    JetDatabase older = WriteTwoRows({.format = JetFormat::Jet4});
    older.bytes[0x299] = 4;
    EXPECT_FALSE(JetFile(older.bytes).NeedsPassword()) << "the place means nothing in an older file";
}

TEST(JetFile, GivesNoRowsThatContradictTheirPage) {
    const struct {
        const char* why;
        std::size_t at;
        std::uint32_t value;
        bool expected;
    } rows[] = {
        {"untouched", 12, 2, true},
        {"a row count beyond the page", 12, 0xFFFF, true},
        {"a row count of none", 12, 0, false},
        {"the row begins behind the page's end", 14, 0x1FFF, false},
        {"the row begins at the page's end and is empty", 14, 0x1000, true},
    };
    for (const auto& row : rows) {
        JetDatabase database = WriteTwoRows({});
        const std::size_t page = database.PageAt(database.places.dataPages.at("Probe"));
        database.bytes[page + row.at] = static_cast<char>(row.value);
        database.bytes[page + row.at + 1] = static_cast<char>(row.value >> 8);
        const JetFile file(database.bytes);
        const std::string_view view = file.Page(database.places.dataPages.at("Probe"));
        EXPECT_EQ(file.Slot(view, 0).has_value(), row.expected) << row.why;
        EXPECT_LE(file.RowCount(view), 2041u) << row.why;
        EXPECT_FALSE(file.Slot(view, 70000)) << row.why;
    }
}

TEST(JetFile, FollowsPointersOnlyToRows) {
    const JetDatabase database = WriteTwoRows({});
    JetFile file(database.bytes);
    const std::uint32_t page = database.places.dataPages.at("Probe");
    EXPECT_EQ(file.Follow(page << 8), FirstRow(file, database));
    EXPECT_FALSE(file.Damage().brokenRows);

    EXPECT_FALSE(file.Follow(page << 8 | 2)) << "no such row";
    EXPECT_TRUE(file.Damage().brokenRows);
    EXPECT_FALSE(file.Damage().missingPages);

    EXPECT_FALSE(file.Follow(database.places.definitions.at("Probe") << 8)) << "no data page";
    EXPECT_FALSE(file.Follow(0xFFFFFF00)) << "behind the end";
    EXPECT_TRUE(file.Damage().missingPages);
}

TEST(JetFile, StopsFollowingWhenMoreWasReadThanThereIs) {
    const JetDatabase database = WriteTwoRows({});
    JetFile file(database.bytes);
    const std::uint32_t pointer = database.places.dataPages.at("Probe") << 8;
    std::size_t steps = 0;
    while (file.Follow(pointer) && steps < 10'000'000) ++steps;
    EXPECT_GT(steps, 100u);
    EXPECT_LT(steps, database.bytes.size());
    EXPECT_TRUE(file.Damage().endlessChain);
}

TEST(JetFile, TakesAnyBytesWithoutComplaint) {
    for (const std::size_t size : {0, 1, 19, 20, 0x18, 0x3E, 0x298, 2047, 2048, 4096, 4097}) {
        std::string bytes(size, '\xFF');
        for (const char version : {'\0', '\1', '\2'}) {
            if (size > 0x14) bytes[0x14] = version;
            JetFile file(bytes);
            EXPECT_TRUE(file.DataPages(2).empty());
            EXPECT_FALSE(file.Follow(0x100)) << size;
        }
    }
}

}  // namespace
}  // namespace zentlor::test
