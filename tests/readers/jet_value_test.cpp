// Texts and long values, and long values that lie about their length or lead in circles.

#include "readers/jet_value.h"

#include <gtest/gtest.h>

#include <string>

#include "readers/jet_table.h"
#include "support/documents/bytes.h"
#include "support/documents/jet_writer.h"

namespace zentlor::test {
namespace {

using readers::JetFile;
using readers::JetTable;

TEST(JetText, DecodesWhatEachFormatWrites) {
    using namespace std::string_literals;
    const struct {
        const char* why;
        std::string value;
        JetFormat format;
        Text expected;
    } rows[] = {
        {"UTF-16", "H\0i\0"s, JetFormat::Jet4, u"Hi"},
        {"single bytes", "\xFF\xFEH\xFC"s, JetFormat::Jet4, u"H\u00FC"},
        {"to pairs and back",
         "\xFF\xFE"
         "A\0\x16\x04\0B"s,
         JetFormat::Jet4, u"A\u0416B"},
        {"pairs from the start", "\xFF\xFE\0\x16\x04"s, JetFormat::Jet4, u"\u0416"},
        {"half a pair at the end",
         "\xFF\xFE"
         "A\0\x16"s,
         JetFormat::Jet4, u"A\u0016"},
        {"a mark and nothing else", "\xFF\xFE"s, JetFormat::Ace, u""},
        {"an odd byte at the end", "H\0i"s, JetFormat::Ace, u"H"},
        {"bytes of the code page", "\xC6\xFF\xFE"s, JetFormat::Jet3, u"\u0416\u044F\u044E"},
        {"nothing", ""s, JetFormat::Jet4, u""},
    };
    for (const auto& row : rows) {
        const JetDatabase database = WriteJetDatabase({}, {.format = row.format, .codePage = 1251});
        EXPECT_EQ(readers::JetText(row.value, JetFile(database.bytes)), row.expected) << row.why;
    }
}

/// A database with one long value, and that value's head.
struct LongValueProbe {
    explicit LongValueProbe(const std::string& content, const JetOptions& options = {})
        : database(WriteJetDatabase({{"Probe", {{"Lv", kJetOle, false, 0}}, {{content}}}}, options)) {}

    std::string Read(std::uint64_t maximum, bool* damaged = nullptr) {
        file.emplace(database.bytes);
        const auto table = JetTable::Open(*file, database.places.definitions.at("Probe"));
        std::string read;
        table->ForEachRow([&](const readers::JetRow& row) {
            read = readers::JetLongValue(row.Value(*table->Column(u"Lv")).value(), *file, maximum, damaged);
        });
        return read;
    }

    JetDatabase database;
    std::optional<JetFile> file;
};

std::string Digits(std::size_t count) {
    std::string digits;
    for (std::size_t i = 0; digits.size() < count; ++i) digits += std::to_string(i) + ",";
    return digits.substr(0, count);
}

TEST(JetLongValue, IsReadFromWhereverItLies) {
    for (const std::size_t size : {0, 1, 32, 33, 500, 501, 1000, 1001, 2000, 50'000}) {
        for (const JetFormat format : {JetFormat::Jet3, JetFormat::Jet4}) {
            LongValueProbe probe(Digits(size), {.format = format});
            bool damaged = false;
            EXPECT_EQ(probe.Read(UINT64_MAX, &damaged), Digits(size)) << size;
            EXPECT_EQ(probe.Read(700, &damaged), Digits(size).substr(0, 700)) << size;
            EXPECT_FALSE(damaged) << size;
        }
    }
}

TEST(JetLongValue, GivesWhatThereIsOfAChainThatLies) {
    const std::string content = Digits(5000);
    const struct {
        const char* why;
        /// The piece whose pointer is bent: 0 is the chain's end.
        std::size_t piece;
        std::uint32_t pointer;
        std::size_t expected;
        bool endless;
    } rows[] = {
        {"the chain ends early", 2, 0, 3000, false},
        {"the chain leads behind the end", 3, 0x7FFFFF00, 2000, false},
        {"the chain leads to a row that is none", 3, 0x000002FE, 2000, false},
        {"the chain ends where it should although it leads on", 0, 0x7FFFFF00, 5000, false},
    };
    for (const auto& row : rows) {
        LongValueProbe probe(content);
        JetDatabase& database = probe.database;
        Set32(database.bytes, database.RowAt(database.places.longValueRows.at(row.piece)), row.pointer);
        bool damaged = false;
        EXPECT_EQ(probe.Read(UINT64_MAX, &damaged), content.substr(0, row.expected)) << row.why;
        EXPECT_EQ(damaged, row.expected < content.size()) << row.why;
        EXPECT_EQ(probe.file->Damage().brokenRows, damaged) << row.why;
    }
}

TEST(JetLongValue, EndsThoughTheChainDoesNot) {
    LongValueProbe probe(Digits(5000));
    JetDatabase& database = probe.database;
    const std::uint32_t last = database.places.longValueRows.front();
    Set32(database.bytes, database.RowAt(last), last);
    // The head claims the most that it can.
    const std::size_t row = database.RowAt(database.places.dataPages.at("Probe") << 8);
    Set32(database.bytes, row + 2, 0x3FFFFFFF);
    bool damaged = false;
    EXPECT_LT(probe.Read(UINT64_MAX, &damaged).size(), 3 * database.bytes.size() + 100'000);
    EXPECT_TRUE(damaged);
    EXPECT_TRUE(probe.file->Damage().endlessChain);
}

TEST(JetLongValue, DoesNotTrustALengthInItsRow) {
    LongValueProbe probe("short");
    const std::size_t row = probe.database.RowAt(probe.database.places.dataPages.at("Probe") << 8);
    Set32(probe.database.bytes, row + 2, 0xBFFFFFFF);
    bool damaged = false;
    EXPECT_EQ(probe.Read(UINT64_MAX, &damaged), "short");
    EXPECT_TRUE(damaged);
}

}  // namespace
}  // namespace zentlor::test
