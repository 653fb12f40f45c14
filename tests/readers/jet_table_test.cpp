// Tables as the writer lays them out, in all formats and with everything that real pages show.

#include "readers/jet_table.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/documents/bytes.h"
#include "support/documents/jet_writer.h"

namespace zentlor::test {
namespace {

using readers::JetFile;
using readers::JetRow;
using readers::JetTable;

std::string NameOf(JetFormat format) {
    return format == JetFormat::Jet3 ? "Jet 3" : format == JetFormat::Jet4 ? "Jet 4" : "ACE";
}

JetTableSpec ProbeTable() {
    return {"Probe",
            {{"Id", kJetInt32, true, 4},
             {"Word", kJetBinary, false, 255},
             {"Small", kJetInt16, true, 2},
             {"More", kJetBinary, false, 255},
             {"Most", kJetBinary, false, 255}},
            {}};
}

/// All rows, each as "value|value|…", with "-" for null.
std::vector<std::string> ReadRows(JetFile& file, const JetTable& table, const JetTableSpec& spec) {
    std::vector<std::string> rows;
    table.ForEachRow([&](const JetRow& row) {
        std::string line;
        for (const JetColumnSpec& column : spec.columns) {
            const auto* found = table.Column(Text(column.name.begin(), column.name.end()));
            const auto value = found ? row.Value(*found) : std::nullopt;
            line += std::string(value ? *value : "-") + "|";
        }
        rows.push_back(line);
    });
    EXPECT_FALSE(file.Damage().endlessChain);
    return rows;
}

std::vector<std::string> ExpectedRows(const JetTableSpec& spec) {
    std::vector<std::string> rows;
    for (const auto& cells : spec.rows) {
        std::string line;
        for (const JetCell& cell : cells) line += cell.value_or("-") + "|";
        rows.push_back(line);
    }
    return rows;
}

TEST(JetTable, GivesEveryRowOfEveryFormat) {
    JetTableSpec spec = ProbeTable();
    for (std::size_t i = 0; i < 200; ++i) {
        // Widths up to three times 255, so that the offsets of Jet 3 pass 256 and 512 at every column and at none.
        spec.rows.push_back({JetNumber(static_cast<int>(i) - 9, 4), i % 5 == 0 ? JetCell() : std::string(i, 'w'),
                             i % 3 == 0 ? JetCell() : JetNumber(-7, 2), std::string(255 - i, 'm'),
                             i % 7 == 0 ? JetCell() : std::string(i * 37 % 256, 'x')});
    }
    for (const JetFormat format : {JetFormat::Jet3, JetFormat::Jet4, JetFormat::Ace}) {
        for (const bool pointers : {false, true}) {
            for (const bool deleted : {false, true}) {
                const JetDatabase database = WriteJetDatabase(
                    {spec}, {.format = format, .rowsBehindPointers = pointers, .deletedRows = deleted});
                JetFile file(database.bytes);
                const auto table = JetTable::Open(file, database.places.definitions.at("Probe"));
                ASSERT_TRUE(table) << NameOf(format);
                EXPECT_EQ(ReadRows(file, *table, spec), ExpectedRows(spec)) << NameOf(format) << pointers << deleted;
                EXPECT_FALSE(file.Damage().brokenRows || file.Damage().missingPages) << NameOf(format);
            }
        }
    }
}

TEST(JetTable, ReadsDefinitionsOfSeveralPages) {
    JetTableSpec spec{"Probe", {}, {{}}};
    for (int i = 0; i < 200; ++i) {
        spec.columns.push_back({"AColumnWithALongName" + std::to_string(i), kJetInt16, i % 2 == 0, 2});
        spec.rows[0].push_back(i % 3 == 0 ? JetCell() : JetNumber(i, 2));
    }
    for (const JetFormat format : {JetFormat::Jet3, JetFormat::Jet4}) {
        const JetDatabase database = WriteJetDatabase({spec}, {.format = format});
        JetFile file(database.bytes);
        const auto table = JetTable::Open(file, database.places.definitions.at("Probe"));
        ASSERT_TRUE(table) << NameOf(format);
        EXPECT_EQ(ReadRows(file, *table, spec), ExpectedRows(spec)) << NameOf(format);
    }
}

TEST(JetTable, RefusesDefinitionsThatLie) {
    const struct {
        const char* why;
        std::size_t at;
        std::uint32_t value;
        bool endless;
    } rows[] = {
        {"no definition page", 0, 0x00000101, false},
        {"the chain leads back to its start", 4, 0xFFFFFFFF, true},
        {"the chain leads to a data page", 4, 0, false},
        {"the chain leads behind the end", 4, 0x00FFFFFF, false},
        {"more columns than there is room for", 0x2D, 0xFFFF, false},
        {"no columns", 0x2D, 0, false},
        {"more indexes than there is room for", 0x33, 0xFFFFFFFF, false},
        {"names behind the end", 0x3F + 5 * 25, 0xFFFF, false},
    };
    for (const auto& row : rows) {
        JetDatabase database = WriteJetDatabase({ProbeTable()}, {});
        const std::uint32_t page = database.places.definitions.at("Probe");
        std::uint32_t value = row.value;
        if (row.at == 4 && row.value == 0xFFFFFFFF) value = page;
        if (row.at == 4 && row.value == 0) value = database.places.dataPages.at("Probe");
        Set32(database.bytes, database.PageAt(page) + row.at, value);
        JetFile file(database.bytes);
        EXPECT_FALSE(JetTable::Open(file, page)) << row.why;
        EXPECT_TRUE(file.Damage().brokenRows) << row.why;
        EXPECT_EQ(file.Damage().endlessChain, row.endless) << row.why;
    }
}

TEST(JetTable, LeavesOutRowsThatLieAndSaysSo) {
    JetTableSpec spec = ProbeTable();
    for (int i = 0; i < 3; ++i) spec.rows.push_back({JetNumber(i, 4), "word", std::nullopt, std::nullopt, "most"});
    for (const JetFormat format : {JetFormat::Jet3, JetFormat::Jet4}) {
        JetDatabase database = WriteJetDatabase({spec}, {.format = format});
        const std::size_t row = database.RowAt(database.places.dataPages.at("Probe") << 8 | 1);
        database.bytes[row] = '\xF0';
        JetFile file(database.bytes);
        const auto table = JetTable::Open(file, database.places.definitions.at("Probe"));
        ASSERT_TRUE(table);
        EXPECT_EQ(ReadRows(file, *table, spec).size(), 2u) << NameOf(format);
        EXPECT_TRUE(file.Damage().brokenRows) << NameOf(format);
    }
}

TEST(JetTable, NoticesPagesThatWereCutOff) {
    JetTableSpec spec = ProbeTable();
    for (int i = 0; i < 100; ++i) {
        spec.rows.push_back({JetNumber(i, 4), std::string(200, 'w'), std::nullopt, std::nullopt, std::nullopt});
    }
    for (const JetFormat format : {JetFormat::Jet3, JetFormat::Jet4}) {
        const JetDatabase database = WriteJetDatabase({spec}, {.format = format});
        const std::size_t secondDataPage = database.PageAt(database.places.dataPages.at("Probe") + 1);
        const std::string cut = database.bytes.substr(0, secondDataPage);
        JetFile file(cut);
        const auto table = JetTable::Open(file, database.places.definitions.at("Probe"));
        ASSERT_TRUE(table) << NameOf(format);
        const std::size_t rows = ReadRows(file, *table, spec).size();
        EXPECT_GT(rows, 0u) << NameOf(format);
        EXPECT_LT(rows, spec.rows.size()) << NameOf(format);
        EXPECT_TRUE(file.Damage().missingPages) << NameOf(format);
    }
}

TEST(JetRow, ReadsNothingOutsideOfItsBytes) {
    const struct {
        const char* why;
        std::string bytes;
        bool jet3;
    } rows[] = {
        {"nothing", "", false},
        {"nothing, Jet 3", "", true},
        {"a column count alone", std::string("\5\0", 2), false},
        {"a column count alone, Jet 3", "\5", true},
        {"more columns than bits", std::string("\xFF\xFF\0\0\0\0\0\0", 8), false},
        {"more offsets than bytes", std::string("\1\0\0\0\xFF\xFF\1", 7), false},
        {"more offsets than bytes, Jet 3", std::string("\1\0\xFF\1", 4), true},
    };
    for (const auto& row : rows) {
        const auto generation = row.jet3 ? readers::JetGeneration::Jet3 : readers::JetGeneration::Jet4;
        EXPECT_FALSE(JetRow::Parse(row.bytes, generation)) << row.why;
    }
    const std::string sound("\1\0ab\x04\0\x02\0\1\0\1", 11);
    const auto row = JetRow::Parse(sound, readers::JetGeneration::Jet4);
    ASSERT_TRUE(row);
    EXPECT_EQ(row->Value({.name = {}, .number = 0, .fixed = false}), "ab");
    EXPECT_FALSE(row->Value({.name = {}, .number = 1, .fixed = false})) << "a column added later";
    EXPECT_FALSE(row->Value({.name = {}, .number = 0, .fixed = false, .variableIndex = 1})) << "no such variable value";
    EXPECT_FALSE(row->Value({.name = {}, .number = 0, .fixed = true, .fixedOffset = 5, .length = 5}))
        << "a fixed value too long";
    const std::string crossed("\1\0ab\x02\0\x04\0\1\0\1", 11);
    EXPECT_FALSE(JetRow::Parse(crossed, readers::JetGeneration::Jet4)->Value({.name = {}, .number = 0}))
        << "ends before it begins";
}

}  // namespace
}  // namespace zentlor::test
