// Real databases, in the folder that ZENTLOR_REAL_DATA names. What they hold was found out by a second, independent
// program.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <string>
#include <vector>

#include "core/utilities/encoding.h"
#include "readers/reader.h"
#include "support/real_modules.h"

namespace zentlor::readers {
namespace {

using test::ExpectModules;
using test::RealModule;

struct RealDatabase {
    const char* path;
    const char* description;
    const char* project;
    std::vector<RealModule> modules;
    /// Forms and reports as "name:number of controls", one a line.
    const char* controls = "";
};

const RealDatabase kDatabases[] = {
    {"access/empty2003.mdb", "Access 2002–2003 database (Jet 4)", "empty", {}},
    {"access/empty2019.accdb", "Access database, 2019 or later (ACE)", "Database1", {}},
    {"access/fixedNumericTestV2000.mdb", "Access 2000 database (Jet 4)", "prova", {}},
    {"access/testV1997.mdb", "Access 97 database (Jet 3)", "test", {}},
    {"encrypted/db-enc.mdb", "Access 2000 database (Jet 4)", "db", {}},
    {"msaccess-vcs/demo.accdb",
     "Access database, 2010 or later (ACE)",
     "work",
     {
         {"DemoModule", 1, 90, 0x300df3ffae9c0259ull},
         {"Form_people", 100, 7, 0xf54befbd40b52243ull},
         {"clsPerson", 2, 11, 0x31fc790ec8b5ff52ull},
     },
     "people:5\npeople:7\n"},
    {"vba-date/Date.accdb",
     "Access database, 2007 or later (ACE)",
     "DateAndTime",
     {
         {"DateBase", 1, 634, 0xe156efc4b2c43116ull},
         {"DateCalc", 1, 2123, 0x923236fc14feed91ull},
         {"DateCore", 1, 2210, 0x9b5caafbd4220665ull},
         {"DateFind", 1, 1643, 0xe861a374b8d5474cull},
         {"DateSpan", 1, 1163, 0xb648ef444f1957b3ull},
         {"Form_CallbackDemoUltimoMonths", 100, 87, 0xf857224ff18d4ccaull},
         {"DateText", 1, 1408, 0x4deabf19da2706e5ull},
         {"DateTest", 1, 717, 0x17be9bc10312a77dull},
         {"VDateCalc", 1, 1344, 0xc0b4cdc033fcf2dcull},
         {"VDateSpan", 1, 196, 0x485bc0d325c13ff4ull},
         {"VDateText", 1, 344, 0xb9af9835350ad4aaull},
         {"VDateFind", 1, 1349, 0x33e684af0be10991ull},
         {"DateWork", 1, 590, 0x2def040064ae7513ull},
         {"VDateCore", 1, 1074, 0xccb10e726be72ae2ull},
         {"VDateBase", 1, 192, 0xe411775d97bdd6bdull},
         {"DateSets", 1, 385, 0x99a37c29d0f75422ull},
         {"DateBank", 1, 322, 0xea331a7f956b8c6eull},
         {"DateMsec", 1, 1196, 0x4130a646f3150513ull},
         {"Date9597", 1, 77, 0xa9a450a2da99b38cull},
         {"DateCall", 1, 861, 0xb91f575100daa04eull},
         {"VDateTime", 1, 334, 0x209f70e889a33c2cull},
         {"Form_CallbackDemoWeekdayDates", 100, 340, 0x17b47d8e78a80ec9ull},
         {"DateZonk", 1, 251, 0x9b78b4d62f8b4555ull},
         {"Form_CallbackDemoThisWeekDates", 100, 15, 0xfb2c43bcb0c2aec4ull},
         {"VDateWork", 1, 255, 0x00de504acd3cbe81ull},
     },
     "CallbackDemoUltimoMonths:13\nCallbackDemoThisWeekDates:8\nCallbackDemoWeekdayDates:38\n"},
};

class RealDatabaseTest : public testing::TestWithParam<RealDatabase> {};

TEST_P(RealDatabaseTest, HoldsWhatAnotherProgramFound) {
    const char* folder = std::getenv("ZENTLOR_REAL_DATA");
    if (folder == nullptr) GTEST_SKIP() << "ZENTLOR_REAL_DATA names no folder";
    const Document document = ReadDocument(std::string(folder) + "/" + GetParam().path, Limits{});
    EXPECT_EQ(document.description.english, GetParam().description);
    EXPECT_EQ(ToUtf8(document.projectName), GetParam().project);
    EXPECT_EQ(document.codePage, 1252);
    EXPECT_TRUE(document.problems.empty()) << document.problems.front().english;
    ExpectModules(document, GetParam().modules);
    std::string controls;
    for (const FormLayout& layout : document.layouts) {
        controls += ToUtf8(layout.name) + ":" + std::to_string(layout.controls.size()) + "\n";
    }
    EXPECT_EQ(controls, GetParam().controls);
}

INSTANTIATE_TEST_SUITE_P(All, RealDatabaseTest, testing::ValuesIn(kDatabases), [](const auto& test) {
    std::string name = test.param.path;
    std::ranges::replace_if(
        name, [](unsigned char c) { return !std::isalnum(c); }, '_');
    return name;
});

TEST(RealDatabases, WithAPasswordSaySo) {
    const char* folder = std::getenv("ZENTLOR_REAL_DATA");
    if (folder == nullptr) GTEST_SKIP() << "ZENTLOR_REAL_DATA names no folder";
    try {
        ReadDocument(std::string(folder) + "/encrypted/db2007-enc.accdb", Limits{});
        FAIL() << "was read without its password";
    } catch (const ReadError& error) {
        EXPECT_EQ(error.failure, ReadFailure::Encrypted);
    }
}

}  // namespace
}  // namespace zentlor::readers
