#include "readers/attributes.h"

#include <gtest/gtest.h>

#include "core/utilities/encoding.h"

namespace zentlor::readers {
namespace {

struct Row {
    const char* why;
    TextView text;
    TextView code;
    std::vector<std::uint32_t> fileLines;
};

// Nothing where all lines have their own number.
std::vector<std::uint32_t> MovedLines(const FileLines& lines) {
    std::vector<std::uint32_t> moved;
    bool isMoved = false;
    for (std::uint32_t line = 1; line <= lines.Count(); ++line) {
        moved.push_back(lines.Of(line));
        isMoved = isMoved || moved.back() != line;
    }
    return isMoved ? moved : std::vector<std::uint32_t>();
}

TEST(Attributes, HidesAttributeLinesAndNothingElse) {
    const Row rows[] = {
        {"nothing to hide", u"Option Explicit\r\nDim a\r\n", u"Option Explicit\nDim a\n", {}},
        {"a last line without end is a line", u"Dim a", u"Dim a\n", {}},
        {"an empty line in the middle counts", u"Dim a\n\nDim b\n", u"Dim a\n\nDim b\n", {}},
        {"CR alone ends a line", u"Attribute VB_Name = \"M\"\rDim a\rDim b\r", u"Dim a\nDim b\n", {2, 3}},
        {"at the top", u"Attribute VB_Name = \"M\"\r\nDim a\r\n", u"Dim a\n", {2}},
        {"inside of a procedure",
         u"Sub A()\nAttribute A.VB_Description = \"x\"\nBeep\nEnd Sub\n",
         u"Sub A()\nBeep\nEnd Sub\n",
         {1, 3, 4}},
        {"of a nested name", u"Attribute A.VB_ProcData.VB_Invoke_Func = \"a\\n14\"\nBeep\n", u"Beep\n", {2}},
        {"continued over lines", u"Attribute VB_Ext = \"a\" _\n , \"b\"\nDim a\n", u"Dim a\n", {3}},
        {"any case of letters", u"attribute vb_name = \"M\"\nDim a\n", u"Dim a\n", {2}},
        {"a name without VB_ is code", u"Attribute X = 1\n", u"Attribute X = 1\n", {}},
        {"a variable of that name is code", u"Attribute = VB_Name\n", u"Attribute = VB_Name\n", {}},
        {"a call without = is code", u"Attribute VB_Name\n", u"Attribute VB_Name\n", {}},
        {"a longer word is code", u"Attributes VB_Name = 1\n", u"Attributes VB_Name = 1\n", {}},
        {"in a comment", u"' Attribute VB_Name = \"M\"\n", u"' Attribute VB_Name = \"M\"\n", {}},
        {"behind a statement", u"x = 1: Attribute VB_N = 1\n", u"x = 1: Attribute VB_N = 1\n", {}},
        {"continuing a comment", u"' a _\nAttribute VB_N = 1\n", u"' a _\nAttribute VB_N = 1\n", {}},
        {"continuing a statement", u"x = _\nAttribute VB_N = 1\n", u"x = _\nAttribute VB_N = 1\n", {}},
        {"behind a continued one", u"x = _\n1\nAttribute VB_N = 1\n", u"x = _\n1\n", {}},
        {"an underscore of a name continues nothing", u"x_\nAttribute VB_N = 1\nDim a\n", u"x_\nDim a\n", {1, 3}},
        {"nothing but attributes", u"Attribute VB_Name = \"M\"\n", u"", {}},
        {"nothing at all", u"", u"", {}},
    };
    for (const Row& row : rows) {
        const StrippedCode stripped = StripAttributes(Text(row.text));
        EXPECT_EQ(ToUtf8(stripped.code), ToUtf8(row.code)) << row.why;
        EXPECT_EQ(MovedLines(stripped.fileLines), row.fileLines) << row.why;
    }
}

TEST(Attributes, HidesTheHeaderOfAnExport) {
    const Row rows[] = {
        {"of a class",
         u"VERSION 1.0 CLASS\r\nBEGIN\r\n  MultiUse = -1  'True\r\nEND\r\nAttribute VB_Name = \"C\"\r\nDim a\r\n",
         u"Dim a\n",
         {6}},
        {"of a form, with blocks in blocks",
         u"VERSION 5.00\nObject = \"{X}#1.0#0\"; \"A.OCX\"\nBegin {C6} F \n   Begin B\n   End\n   BeginProperty Font\n"
         u"   EndProperty\nEnd\nAttribute VB_Name = \"F\"\nDim a\n",
         u"Dim a\n",
         {10}},
        {"blank lines in front of it", u"\n \nVERSION 1.0 CLASS\nBEGIN\nEND\nDim a\n", u"Dim a\n", {6}},
        {"without attributes behind it", u"VERSION 1.0 CLASS\nBEGIN\nEND\nDim a\n", u"Dim a\n", {4}},
        {"a block without end costs no code",
         u"VERSION 1.0 CLASS\nBEGIN\nDim a\nSub B()\n",
         u"BEGIN\nDim a\nSub B()\n",
         {2, 3, 4}},
        {"a block without end stops at the attributes",
         u"VERSION 1.0 CLASS\nBEGIN\nAttribute VB_Name = \"C\"\nDim a\n",
         u"Dim a\n",
         {4}},
        {"code that begins like it", u"Version = 3\nDim a\n", u"Version = 3\nDim a\n", {}},
        {"END in the code stays",
         u"VERSION 1.0 CLASS\nBEGIN\nEND\nSub A()\nEnd\nEnd Sub\n",
         u"Sub A()\nEnd\nEnd Sub\n",
         {4, 5, 6}},
    };
    for (const Row& row : rows) {
        const StrippedCode stripped = StripAttributes(Text(row.text));
        EXPECT_EQ(ToUtf8(stripped.code), ToUtf8(row.code)) << row.why;
        EXPECT_EQ(MovedLines(stripped.fileLines), row.fileLines) << row.why;
    }
}

TEST(Attributes, KeepsWhatAnExportHasToGiveBack) {
    const StrippedCode stripped = StripAttributes(
        u"VERSION 1.0 CLASS\r\nBEGIN\r\n  MultiUse = -1\r\nEND\r\nAttribute VB_Name = \"Kunde\"\r\n"
        u"Attribute VB_PredeclaredId = True\r\nAttribute VB_Exposed = False\r\nDim a\r\n"
        u"Attribute a.VB_VarHelpID = -1\r\n");
    EXPECT_EQ(ToUtf8(stripped.header),
              "VERSION 1.0 CLASS\nBEGIN\n  MultiUse = -1\nEND\nAttribute VB_Name = \"Kunde\"\n"
              "Attribute VB_PredeclaredId = True\nAttribute VB_Exposed = False\n")
        << "the attribute of a variable belongs to its line and not to the top";
    EXPECT_EQ(ToUtf8(stripped.code), "Dim a\n");
}

TEST(Attributes, TellsTheModulesOwn) {
    const StrippedCode stripped = StripAttributes(
        u"VERSION 5.00\nBegin F\nEnd\nAttribute VB_Name = \"Maske\"\nAttribute VB_Base = \"0{A}{B}\"\n"
        u"Attribute VB_GlobalNameSpace = True\nAttribute VB_Creatable = true\nAttribute VB_PredeclaredId = False\n"
        u"Attribute VB_Exposed = True\n");
    EXPECT_EQ(ToUtf8(stripped.name), "Maske");
    EXPECT_EQ(ToUtf8(stripped.base), "0{A}{B}");
    EXPECT_EQ(stripped.kind, ExportHeader::Form);
    EXPECT_FALSE(stripped.predeclaredId);
    EXPECT_TRUE(stripped.exposed);
    EXPECT_EQ(ToUtf8(stripped.code), "") << "the attributes that nobody asks for are hidden too";
    EXPECT_EQ(StripAttributes(u"VERSION 1.0 CLASS\nBEGIN\nEND\n").kind, ExportHeader::Class);
    EXPECT_EQ(StripAttributes(u"Attribute VB_Name = \"M\"\n").kind, ExportHeader::None);
}

}  // namespace
}  // namespace zentlor::readers
