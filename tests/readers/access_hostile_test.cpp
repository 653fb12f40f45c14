// Databases that were cut off, bent or made to hurt: whatever they are, reading them ends soon, in modules or in an
// error, and never in a clean result that is not one.

#include <gtest/gtest.h>

#include <algorithm>
#include <ctime>
#include <random>
#include <string>

#include "readers/access_database.h"
#include "readers/document.h"
#include "support/documents/access_writer.h"
#include "support/documents/bytes.h"

namespace zentlor::test {
namespace {

using readers::Document;
using readers::ReadAccessDatabase;
using readers::ReadError;

constexpr std::size_t kModules = 12;

TestProject ManyModules(std::size_t count = kModules, int lines = 100) {
    TestProject project;
    for (std::size_t i = 0; i < count; ++i) {
        std::string code = "Sub S" + std::to_string(i) + "()\r\n";
        for (int line = 0; line < lines; ++line) code += "Debug.Print " + std::to_string(line * 7919 + 13) + "\r\n";
        project.modules.push_back(StandardModule(u"Module" + ToText(static_cast<long long>(i)), code + "End Sub\r\n"));
    }
    return project;
}

struct Sample {
    const char* why;
    std::string bytes;
    /// The list of modules comes before the modules, so that a file that was cut off holds some of them.
    bool listFirst = true;
};

/// A small database of each layout and format.
std::vector<Sample> Samples() {
    StorageTree tree = WriteAccessTree(ManyModules(), {{u"Order", false, {{"txtName", "", 109}}}});
    auto& streams = tree.Below(u"VBA").Below(u"VBAProject").Below(u"VBA").streams;
    std::ranges::stable_partition(streams, [](const auto& stream) { return stream.name == u"dir"; });
    return {
        {"storage, ACE", WriteAccessStorage(tree, {.format = JetFormat::Ace}).bytes},
        {"storage, encoded", WriteAccessStorage(tree, {.pageKey = 0x12345678, .chainBytes = 100}).bytes},
        {"storage, rows elsewhere", WriteAccessStorage(tree, {.rowsBehindPointers = true}).bytes},
        {"objects", WriteAccessObjects(tree, {}).bytes, false},
        {"modules", WriteAccessModules(ManyModules(), {.format = JetFormat::Jet3}).bytes},
    };
}

enum class Outcome { AllModules, SomeModules, Nothing, Error };

/// What reading `bytes` comes to. A result that lacks modules has to say so.
Outcome Read(const std::string& bytes, const std::string& why) {
    try {
        const Document document = ReadAccessDatabase(bytes, "Shop.mdb", {});
        if (document.modules.size() == kModules) return Outcome::AllModules;
        return document.problems.empty() ? Outcome::Nothing : Outcome::SomeModules;
    } catch (const ReadError& error) {
        EXPECT_FALSE(error.sentence.english.empty() || error.sentence.german.empty()) << why;
        return Outcome::Error;
    }
}

/// The processor's time, since a busy machine tells nothing about the reader.
double SecondsToRead(const std::string& bytes) {
    const std::clock_t start = std::clock();
    Read(bytes, "timed");
    return static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
}

TEST(HostileDatabase, CutOffAnywhereNeverLooksClean) {
    for (const Sample& sample : Samples()) {
        ASSERT_EQ(Read(sample.bytes, sample.why), Outcome::AllModules) << sample.why;
        std::size_t partial = 0;
        for (std::size_t size = 0; size < sample.bytes.size(); size += 512) {
            const Outcome outcome = Read(sample.bytes.substr(0, size), sample.why);
            EXPECT_NE(outcome, Outcome::Nothing) << sample.why << ", cut at " << size;
            if (outcome == Outcome::SomeModules) ++partial;
        }
        EXPECT_GE(partial, sample.listFirst ? 4u : 0u) << sample.why << ": what is readable is kept";
    }
}

TEST(HostileDatabase, WithoutOneOfItsPagesNeverLooksClean) {
    for (const Sample& sample : Samples()) {
        const std::size_t pageSize = sample.bytes[0x14] == 0 ? 2048 : 4096;
        for (std::size_t page = 2 * pageSize; page < sample.bytes.size(); page += pageSize) {
            std::string bytes = sample.bytes;
            bytes.replace(page, pageSize, pageSize, '\0');
            EXPECT_NE(Read(bytes, sample.why), Outcome::Nothing) << sample.why << ", page at " << page;
        }
    }
}

TEST(HostileDatabase, SurvivesRandomBytes) {
    std::mt19937 random(20240229);
    for (const Sample& sample : Samples()) {
        for (int round = 0; round < 600; ++round) {
            std::string bytes = sample.bytes;
            const std::size_t changes = 1 + random() % 20;
            for (std::size_t i = 0; i < changes; ++i) {
                bytes[random() % bytes.size()] = static_cast<char>(random() % 4 == 0 ? 0xFF : random());
            }
            if (round % 10 == 0) bytes.resize(random() % bytes.size());
            Read(bytes, sample.why);
        }
    }
}

TEST(HostileDatabase, SurvivesRandomHeadsOfPages) {
    std::mt19937 random(19970101);
    for (const Sample& sample : Samples()) {
        for (int round = 0; round < 400; ++round) {
            std::string bytes = sample.bytes;
            const std::size_t page = random() % (bytes.size() / 2048) * 2048;
            for (int i = 0; i < 6; ++i) bytes[page + random() % 80] = static_cast<char>(random());
            Read(bytes, sample.why);
        }
    }
}

/// A database whose table of storages is `rows` times the root, with `content`.
std::string WriteStorageRows(std::size_t rows, const JetOptions& options, const std::string& content) {
    JetTableSpec table = StorageTable();
    const std::string name = JetTextValue(u"MSysAccessStorage_ROOT", options);
    for (std::size_t i = 0; i < rows; ++i) {
        table.rows.push_back({JetNumber(1, 4), JetNumber(1, 4), JetNumber(1, 4), name, content});
    }
    return WriteJetDatabase({table}, options).bytes;
}

// Thousands of pointers may name one and the same large row: what they lead to is counted.
TEST(HostileDatabase, EndsSoonWhenAllPointersNameOneRow) {
    JetTableSpec table = StorageTable();
    table.rows.push_back({JetNumber(1, 4), JetNumber(1, 4), JetNumber(1, 4), std::string(3000, 'x'), std::nullopt});
    JetDatabase database = WriteJetDatabase({table}, {});
    const std::uint32_t definition = database.places.definitions.at("MSysAccessStorage");
    const std::uint32_t target = database.places.dataPages.at("MSysAccessStorage") << 8;
    std::string page(4096, '\0');
    Set32(page, 0, 0x0101);
    Set32(page, 4, definition);
    constexpr std::uint32_t kRows = 600;
    page[12] = static_cast<char>(kRows & 0xFF);
    page[13] = static_cast<char>(kRows >> 8);
    for (std::uint32_t row = 0; row < kRows; ++row) {
        const std::uint32_t at = 4096 - 4 * (row + 1);
        page[14 + 2 * row] = static_cast<char>(at);
        page[15 + 2 * row] = static_cast<char>(at >> 8 | 0x40);
        Set32(page, at, target);
    }
    for (int i = 0; i < 2500; ++i) database.bytes += page;
    EXPECT_LT(SecondsToRead(database.bytes), 2.0);
    EXPECT_NE(Read(database.bytes, "pointers"), Outcome::Nothing);
}

TEST(HostileDatabase, EndsSoonWhateverItsRowsClaim) {
    const struct {
        const char* why;
        std::string bytes;
    } rows[] = {
        {"a hundred thousand roots", WriteStorageRows(100'000, {}, "")},
        {"long values everywhere",
         WriteStorageRows(20'000, {.inRowBytes = 0, .oneRowBytes = 0, .chainBytes = 1}, "ab")},
        {"pages of nothing", WriteStorageRows(1, {}, "") + std::string(10 << 20, '\0')},
        {"pages of 0xFF", WriteStorageRows(1, {}, "") + std::string(10 << 20, '\xFF')},
        {"pages of ones", WriteStorageRows(1, {}, "") + std::string(10 << 20, '\1')},
        {"pages of twos", WriteStorageRows(1, {}, "") + std::string(10 << 20, '\2')},
    };
    for (const auto& row : rows) EXPECT_LT(SecondsToRead(row.bytes), 2.0) << row.why;
}

// Ten thousand modules that are found by name, and ten thousand that are all the same stream.
TEST(HostileDatabase, EndsSoonWithTenThousandModules) {
    TestProject project = ManyModules(10'000, 2);
    EXPECT_LT(SecondsToRead(WriteAccessStorage(WriteAccessTree(project), {.format = JetFormat::Ace}).bytes), 2.0);
    StorageTree tree = WriteAccessTree(ManyModules(1));
    for (TestModule& module : project.modules) module.streamName = u"Module0";
    StorageTree& vba = tree.Below(u"VBA").Below(u"VBAProject").Below(u"VBA");
    vba.BytesOf(u"Module0") += std::string(1 << 20, 'x');
    vba.BytesOf(u"dir") = CompressContainer(WriteDir(project));
    const std::string bytes = WriteAccessStorage(tree, {.format = JetFormat::Ace}).bytes;
    EXPECT_LT(SecondsToRead(bytes), 2.0);
    EXPECT_EQ(Read(bytes, "one stream"), Outcome::SomeModules) << "the file cannot hold what it claims";
}

TEST(HostileDatabase, BoundsItsSourceInProportionToItsSize) {
    TestProject project;
    project.modules = {StandardModule(u"A", std::string(1 << 20, '\'')),
                       StandardModule(u"B", std::string(1 << 20, 'b'))};
    const std::string bytes = WriteAccessStorage(WriteAccessTree(project), {}).bytes;
    const Document bounded = ReadAccessDatabase(bytes, "x", {});
    EXPECT_EQ(bounded.modules.size(), 1u);
    EXPECT_NE(bounded.problems.at(0).english.find("--max-source-size"), std::string::npos);
    readers::Limits limits;
    limits.sourceBytes = 7 << 20;
    EXPECT_EQ(ReadAccessDatabase(bytes, "x", limits).modules.size(), 2u) << "what is asked for counts as it is";
}

TEST(HostileDatabase, KeepsWhatADamagedRowDoesNotTouch) {
    const StorageTree tree = WriteAccessTree(ManyModules());
    JetDatabase database = WriteAccessStorage(tree, {.inRowBytes = 0, .oneRowBytes = 0, .chainBytes = 200});
    // The chain of the last stream that was written ends in a circle.
    const std::uint32_t row = database.places.longValueRows.back();
    Set32(database.bytes, database.RowAt(row), row);
    const Document document = ReadAccessDatabase(database.bytes, "Shop.mdb", {});
    EXPECT_GE(document.modules.size(), kModules - 1);
}

}  // namespace
}  // namespace zentlor::test
