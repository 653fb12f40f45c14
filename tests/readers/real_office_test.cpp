// Real documents, in the folder that ZENTLOR_REAL_DATA names. What they hold was found out by a second, independent
// program.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "core/utilities/encoding.h"
#include "readers/ovba_decompress.h"
#include "readers/reader.h"
#include "support/real_modules.h"

namespace zentlor::readers {
namespace {

using test::ExpectModules;
using test::RealModule;

struct RealDocument {
    const char* path;
    std::vector<RealModule> modules;
};

const RealDocument kDocuments[] = {
    {"poi/12561-2.xls",
     {
         {"Sheet1", 100, 0, 0xcbf29ce484222325ull},
         {"ThisWorkbook", 100, 0, 0xcbf29ce484222325ull},
     }},
    {"poi/31749.xls",
     {
         {"frmRROptions", 3, 107, 0x5c4585a1be89773cull},
         {"UW_Workbook", 100, 21, 0x1260f9fa09c27ce3ull},
         {"UW_Code", 1, 3949, 0xeee474457a3f2f39ull},
         {"Proj_Template", 100, 7, 0x845903d53f838d58ull},
         {"frmSummaryOptions", 3, 481, 0x9f2d9cad7f37e337ull},
         {"frmMFULogin", 3, 25, 0xa217901a44e52605ull},
     }},
    {"poi/45690.docm",
     {
         {"ThisDocument", 100, 0, 0xcbf29ce484222325ull},
         {"NewMacros", 1, 19, 0x3f49d4c8a254b814ull},
     }},
    {"poi/57181.xlsm",
     {
         {"CCSInfo", 100, 372, 0x74e184b9608d11b2ull},
         {"General", 100, 49, 0x093db7cdbd65ba79ull},
         {"Detailed_report", 100, 337, 0xb5caa99b2ce4f1c1ull},
         {"Summary_report", 100, 1, 0xaf63c74c8601c8ddull},
         {"Detailed_graph", 100, 145, 0x3e0f2104243bf060ull},
         {"Summary_graph", 100, 103, 0x2cb698638b993bd4ull},
         {"DieseArbeitsmappe", 100, 47, 0x8d775915f3282c44ull},
         {"Tabelle1", 100, 0, 0xcbf29ce484222325ull},
         {"Tabelle2", 100, 0, 0xcbf29ce484222325ull},
         {"Tabelle3", 100, 0, 0xcbf29ce484222325ull},
     }},
    {"poi/59302.ppt",
     {
         {"Module1", 1, 17, 0x461a137dceaeb703ull},
         {"Module2", 1, 5, 0xa919f17153cef494ull},
     }},
    {"poi/60273.xls",
     {
         {"Module1", 1, 9, 0xe8defcf96ce2e319ull},
         {"ThisWorkbook", 100, 1, 0xaf63c74c8601c8ddull},
     }},
    {"poi/62624.bin",
     {
         {"EstaPasta_de_trabalho", 100, 0, 0xcbf29ce484222325ull},
         {"Plan1", 100, 0, 0xcbf29ce484222325ull},
         {"Plan2", 100, 0, 0xcbf29ce484222325ull},
         {"Módulo1", 1, 912, 0x28dc5c3c0e4d515full},
         {"Plan4", 100, 0, 0xcbf29ce484222325ull},
         {"Plan5", 100, 0, 0xcbf29ce484222325ull},
         {"Plan6", 100, 0, 0xcbf29ce484222325ull},
         {"Plan7", 100, 0, 0xcbf29ce484222325ull},
         {"Plan3", 100, 0, 0xcbf29ce484222325ull},
         {"Módulo2", 1, 82, 0xe224451f0755bf33ull},
         {"Plan8", 100, 0, 0xcbf29ce484222325ull},
         {"Módulo3", 1, 47, 0xb6c025b8acd551b5ull},
         {"Módulo4", 1, 136, 0x141de7bd52aba7e4ull},
     }},
    {"poi/SimpleMacro.doc",
     {
         {"ThisDocument", 100, 0, 0xcbf29ce484222325ull},
         {"Module1", 1, 10, 0xd9b25203785ec7b1ull},
     }},
    {"poi/SimpleMacro.docm",
     {
         {"ThisDocument", 100, 0, 0xcbf29ce484222325ull},
         {"Module1", 1, 10, 0xd9b25203785ec7b1ull},
     }},
    {"poi/SimpleMacro.pptm",
     {
         {"Module1", 1, 14, 0x725ccb3b55d077a3ull},
     }},
    {"poi/SimpleMacro.vsdm",
     {
         {"ThisDocument", 100, 0, 0xcbf29ce484222325ull},
         {"Module1", 1, 12, 0x69fafd041d687becull},
     }},
    {"poi/SimpleMacro.xls",
     {
         {"Module1", 1, 10, 0xef8d7f4cc5f8296full},
         {"ThisWorkbook", 100, 0, 0xcbf29ce484222325ull},
         {"Sheet1", 100, 0, 0xcbf29ce484222325ull},
         {"Sheet2", 100, 0, 0xcbf29ce484222325ull},
         {"Sheet3", 100, 0, 0xcbf29ce484222325ull},
     }},
    {"poi/SimpleMacro.xlsm",
     {
         {"Module1", 1, 10, 0xef8d7f4cc5f8296full},
         {"ThisWorkbook", 100, 0, 0xcbf29ce484222325ull},
         {"Sheet1", 100, 0, 0xcbf29ce484222325ull},
         {"Sheet2", 100, 0, 0xcbf29ce484222325ull},
         {"Sheet3", 100, 0, 0xcbf29ce484222325ull},
     }},
    {"poi/testVarious.xlsb",
     {
         {"Module1", 1, 16, 0x422c622025252f9aull},
         {"ThisWorkbook", 100, 0, 0xcbf29ce484222325ull},
         {"Sheet1", 100, 0, 0xcbf29ce484222325ull},
     }},
    {"libreoffice/tdf107885.xlsm",
     {
         {"Module1", 1, 24, 0x4126ecb7a13cdb45ull},
         {"DieseArbeitsmappe", 100, 2, 0x08547e07b5084555ull},
         {"Sheet1", 100, 4, 0x591942d2de944f05ull},
         {"Tabelle1", 100, 2, 0x08547e07b5084555ull},
         {"ThisWorkbook", 100, 4, 0x591942d2de944f05ull},
     }},
    {"libreoffice/tdf131562.xlsm",
     {
         {"ThisWorkbook", 100, 0, 0xcbf29ce484222325ull},
         {"Munka1", 100, 8, 0x6258e7d0aacd91f5ull},
     }},
    {"corrupt/poi-60279.doc",
     {
         {"ThisDocument", 100, 0, 0xcbf29ce484222325ull},
     }},
};

class RealOffice : public ::testing::Test {
  protected:
    void SetUp() override {
        const char* folder = std::getenv("ZENTLOR_REAL_DATA");
        if (folder == nullptr) GTEST_SKIP() << "ZENTLOR_REAL_DATA names no folder";
        folder_ = folder;
    }
    std::string Path(const std::string& name) const { return (folder_ / name).string(); }
    std::string Bytes(const std::string& name) const {
        std::ifstream file(Path(name), std::ios::binary);
        EXPECT_TRUE(file) << name;
        return (std::ostringstream() << file.rdbuf()).str();
    }

    std::filesystem::path folder_;
};

TEST_F(RealOffice, GivesNamesTypesLinesAndText) {
    for (const RealDocument& expected : kDocuments) {
        const Document document = ReadDocument(Path(expected.path), {});
        EXPECT_TRUE(document.problems.empty()) << expected.path << ": " << document.problems[0].english;
        EXPECT_FALSE(document.description.english.empty()) << expected.path;
        ExpectModules(document, expected.modules);
    }
}

TEST_F(RealOffice, TellsCodePagesLocksAndPrograms) {
    struct Row {
        const char* path;
        int codePage;
        bool locked;
        const char* application;
        const char* description;
    };
    const Row rows[] = {
        {"poi/12561-2.xls", 932, false, "Microsoft Excel 9", "Excel workbook (97–2003)"},
        {"poi/31749.xls", 1252, true, "Microsoft Excel 9", "Excel workbook (97–2003)"},
        {"poi/45690.docm", 1251, false, "Microsoft Office Word 12", "Word macro-enabled document (2007 and later)"},
        {"poi/60273.xls", 10000, false, "Microsoft Excel 16", "Excel workbook (97–2003)"},
        {"poi/59302.ppt", 1252, false, "Microsoft Office PowerPoint 16", "PowerPoint presentation (97–2003)"},
        {"poi/SimpleMacro.vsdm", 1252, false, "Microsoft Visio 15", "Visio macro-enabled drawing (2013 and later)"},
        {"poi/testVarious.xlsb", 1252, false, "Microsoft Excel 16", "Excel binary workbook (2007 and later)"},
        {"poi/62624.bin", 1252, false, "", "VBA project by itself"},
        {"libreoffice/tdf131562.xlsm", 1250, false, "Microsoft Excel 15",
         "Excel macro-enabled workbook (2007 and later)"},
    };
    for (const Row& row : rows) {
        const Document document = ReadDocument(Path(row.path), {});
        EXPECT_EQ(document.codePage, row.codePage) << row.path;
        EXPECT_EQ(document.locked, row.locked) << row.path;
        EXPECT_EQ(document.application, row.application) << row.path;
        EXPECT_EQ(document.description.english, row.description) << row.path;
        EXPECT_GE(document.references.size(), 2u) << row.path;
    }
}

TEST_F(RealOffice, SaysWhatCannotBeRead) {
    const std::pair<const char*, ReadFailure> rows[] = {
        {"corrupt/lo-ofz45140-1.doc", ReadFailure::Damaged},
        {"corrupt/made-truncated-SimpleMacro.xls", ReadFailure::Damaged},
        {"corrupt/made-truncated-SimpleMacro.xlsm", ReadFailure::Damaged},
        {"encrypted/poi-protect.xlsx", ReadFailure::Encrypted},
    };
    for (const auto& [path, failure] : rows) {
        try {
            ReadDocument(Path(path), {});
            ADD_FAILURE() << path << " was read";
        } catch (const ReadError& error) {
            EXPECT_EQ(static_cast<int>(error.failure), static_cast<int>(failure)) << path;
        }
    }
}

TEST_F(RealOffice, UnpacksTheVectorsOfAnotherProgram) {
    for (const char* name : {"complex1", "simple1", "simple2", "simple3", "spec321", "spec322", "spec323"}) {
        const std::string folder = "libreoffice/ovba-vectors/";
        const Decompressed result = DecompressContainer(Bytes(folder + "reference/" + name + ".bin"), 1 << 20);
        EXPECT_EQ(result.bytes, Bytes(folder + name + ".bin")) << name;
        EXPECT_EQ(static_cast<int>(result.end), static_cast<int>(DecompressEnd::Complete)) << name;
    }
}

}  // namespace
}  // namespace zentlor::readers
