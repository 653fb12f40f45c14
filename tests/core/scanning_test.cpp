// The scanners, by tables of code and answers.

#include <gtest/gtest.h>

#include <random>

#include "core/declarations/procedure_declarations.h"
#include "core/scanning/find_walk.h"
#include "core/scanning/logical_lines.h"
#include "core/scanning/parameters.h"
#include "core/utilities/encoding.h"
#include "support/fake_host.h"

namespace zentlor {
namespace {

// Column of the first character of a line that is no blank: no hit begins in front of it.
int FirstColumn(TextView line) {
    return Len(line) - Len(LTrim(line)) + 1;
}

class Scanning : public testing::Test {
  protected:
    const VBComponent& Module(TextView code, int type = 1) {
        host.project = std::make_unique<VBProject>(u"P");
        host.project->ReportFailuresTo(session);
        return host.project->Add(u"M", type, Text(code));
    }
    test::FakeHost host;
    Session session{host.AsHost()};
};

TEST_F(Scanning, LogicalLineIsTheSameFromEachOfItsLines) {
    const VBComponent& vbc = Module(u"x = 1\n    Dim a, _\n    b, _\n    c As Long\nDim x_\ny\n\nletzte _");
    int count = 0;
    for (const int line : {2, 3, 4}) {
        EXPECT_EQ(GibGanzeZeile(vbc, line, count), u"Dim a, b, c As Long") << line;
        EXPECT_EQ(count, 3) << line;
    }
    EXPECT_EQ(GibGanzeZeile(vbc, 5, count), u"Dim xy") << "a name that ends in the mark is joined too";
    EXPECT_EQ(GibGanzeZeile(vbc, 7, count), u"");
    EXPECT_EQ(count, 1);
    EXPECT_EQ(GibGanzeZeile(vbc, 8, count), u"letzte ") << "a mark on the module's last line";
    EXPECT_EQ(count, 1);

    int column = 7;
    EXPECT_EQ(GibGanzeZeileVorh(vbc.CodeModule(), 4, column), u"Dim a, b, c As Long");
    EXPECT_EQ(column, 13);
    column = 5;
    EXPECT_EQ(GibGanzeZeileVorh(vbc.CodeModule(), 3, column), u"Dim a, b, _");
    EXPECT_EQ(column, 8);
    EXPECT_EQ(GibGanzeZeileBisEnde(vbc, 2, 9, count), u"a, b, c As Long");
    EXPECT_EQ(count, 3);
    EXPECT_EQ(GibGanzeZeileBisEnde(vbc, 3, 5, count), u"b, c As Long");
    EXPECT_EQ(count, 2);
    EXPECT_EQ(host.trace, "");
}

TEST_F(Scanning, WhatStandsBehindAgreesWithTheJoinedText) {
    const VBComponent& vbc = Module(u"a_\n  b As _\n   New X\n\tAs New Y\nAs New Z");
    const CodeModule& cm = vbc.CodeModule();
    for (int line = 1; line <= cm.CountOfLines(); ++line) {
        for (int column = FirstColumn(cm.Lines(line)); column <= Len(cm.Lines(line)) + 1; ++column) {
            int joinedColumn = column;
            const Text joined = GibGanzeZeileVorh(cm, line, joinedColumn);
            const bool expected = joinedColumn > 6 && Mid(joined, joinedColumn - 4, 4) == u" As ";
            EXPECT_EQ(StandsBehind(cm, line, column, u" As ", 6), expected) << line << "," << column;
        }
    }
}

TEST_F(Scanning, CommentsAndStatements) {
    struct Row {
        const char* why;
        TextView line;
        TextView code;
        int colon;
    };
    const Row rows[] = {
        {"apostrophe in a string", u"x = \"a'b\"", u"x = \"a'b\"", 0},
        {"apostrophe outside", u"x = \"a\" ' Text \"b\"", u"x = \"a\"", 0},
        {"Rem behind a colon", u"x = 1 : Rem Text", u"x = 1", 7},
        {"what begins with Rem behind a colon counts", u"x = 1: Remark = 2", u"x = 1", 6},
        {"Rem at the start needs its blank", u"Rem", u"Rem", 0},
        {"Rem line", u"Rem Text", u"", 0},
        {"exact case", u"REM Text", u"REM Text", 0},
        {"an earlier Rem mark wins over a quoted apostrophe", u"x: Rem it\"s ' foo", u"x", 2},
        {"colon in a string", u"Debug.Print \"a:b\": x = 1", u"Debug.Print \"a:b\": x = 1", 18},
        {"nothing", u"", u"", 0},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(KommentarEntfernen(row.line), row.code) << row.why;
        EXPECT_EQ(PosErsterDoppelPunkt(row.line), row.colon) << row.why;
    }
    EXPECT_TRUE(IstPosInQuotes(u"x = \"a\"\"b\"", 9));
    EXPECT_FALSE(IstPosInQuotes(u"x = \"a\"\"b\"", 11));
    EXPECT_FALSE(IstPosInQuotes(u"\"", 0));
    std::string statements;
    ForEachStatement(u"a : b: \":\":", [&](TextView s) { statements += "[" + ToUtf8(s) + "]"; });
    EXPECT_EQ(statements, "[a ][b][\":\"]");
}

// One scanner that goes through a module answers like a fresh one for every place, in whatever order it is asked.
TEST_F(Scanning, ScannersOfLinesNeedNoFreshStart) {
    std::mt19937 random(7);
    const std::vector<Text> pieces = {u"'",   u"\"",   u": Rem", u": ", u"R",  u"Re", u"Rem ",
                                      u"em ", u" _\n", u"_\n",   u"\n", u"  ", u"x",  u":"};
    for (int round = 0; round < 400; ++round) {
        Text code;
        for (int i = 0; i < 40; ++i) code += pieces[random() % pieces.size()];
        const CodeModule& cm = Module(code).CodeModule();
        CommentScanner scanner(cm), wanderer(cm);
        LogicalLineQuotes quotes(cm);
        for (int line = 1; line <= cm.CountOfLines(); ++line) {
            const int mark = scanner.MarkColumn(line);
            const int any = 1 + static_cast<int>(random() % static_cast<unsigned>(cm.CountOfLines()));
            ASSERT_EQ(wanderer.MarkColumn(any), CommentScanner(cm).MarkColumn(any)) << ToUtf8(code) << "\n" << any;
            for (int column = FirstColumn(cm.Lines(line)); column <= Len(cm.Lines(line)); ++column) {
                int joinedColumn = column;
                const Text joined = GibGanzeZeileVorh(cm, line, joinedColumn);
                ASSERT_EQ(quotes.IsQuoted(line, column), IstPosInQuotes(joined, joinedColumn)) << ToUtf8(code);
                bool expected = joined.starts_with(u"Rem ");
                for (int i = 1; i < joinedColumn && !expected; ++i) {
                    const bool isMark = Mid(joined, i, 1) == u"'" || Mid(joined, i, 5) == u": Rem";
                    expected = isMark && !IstPosInQuotes(joined, i);
                }
                ASSERT_EQ(mark < column, expected) << ToUtf8(code) << "\n" << line << "," << column;
                ASSERT_EQ(IstPosInKommentar(cm, line, column), expected);
            }
        }
    }
}

std::string Show(const std::vector<typParameter>& table) {
    std::string text;
    for (const typParameter& p : table) {
        text += ToUtf8(p.strName) + (p.blnDatentyp ? " typed" : "") + (p.blnKennzeichen ? " char" : "") +
                (p.blnByValByRef ? " explicit" : "") + ";";
    }
    return text;
}

TEST_F(Scanning, Parameters) {
    struct Row {
        TextView header;
        const char* expected;
    };
    const Row rows[] = {
        {u"Sub Foo()", ""},
        {u"Sub Foo(a)", "a;"},
        {u"Sub Foo(ByVal a As Long, ByRef b As String)", "a typed explicit;b typed explicit;"},
        {u"Sub Foo(Optional a As Long = 5)", "a typed;"},
        {u"Sub Foo(Optional ByVal a As Long = 5)", "a typed explicit;"},
        {u"Sub Foo(ParamArray a() As Variant)", "a typed explicit;"},
        {u"Sub Foo(a$, b%)", "a$ typed char;b% typed char;"},
        {u"Sub Foo(a() As Long, b(), c)", "a typed;b;c;"},
        {u"Sub Foo(Optional a As String = \"x, y\", b As Long)", "a typed;b typed;"},
        {u"Sub Foo(Optional a = \"As \")", "a typed;"},
        {u"Sub Foo(Optional a = \")\", b)", "a;"},
        {u"Function Foo(a) As Long", "a;"},
        {u"Function Foo(a) As Long ' x, y", "a typed;"},
        {u"Property Get X", ""},
    };
    for (const Row& row : rows) EXPECT_EQ(Show(GetParameters(row.header)), row.expected) << ToUtf8(row.header);
}

std::string ShowModule(const ModDeclarations& table) {
    std::string text;
    for (const typModDeclaration& d : table) {
        text += std::to_string(d.lngArt) + " " + ToUtf8(d.strName) + " " + std::to_string(d.lngScope) +
                (d.blnScopeExplizit ? "x" : "") + (d.blnDatentyp ? "t" : "") + (d.blnKennzeichen ? "c" : "") + " " +
                std::to_string(d.lngDeklZeile) + "," + std::to_string(d.lngDeklSpalte) + ";";
    }
    return text;
}

TEST_F(Scanning, ModuleDeclarations) {
    struct Row {
        TextView code;
        const char* expected;
        int type = 1;
    };
    const Row rows[] = {
        {u"Dim a, b As Long", "1 a 1 1,5;1 b 1t 1,8;"},
        {u"Dim a(1 To 5, 2 To 3) As Long, b", "1 a 1t 1,5;1 b 1 1,32;"},
        {u"Dim a(UBound(x)) As Long", "1 a 1 1,5;"},
        {u"Dim a(5)", "1 a 1 1,5;"},
        {u"Dim a$, b&", "1 a$ 1tc 1,5;1 b& 1tc 1,9;"},
        {u"Private WithEvents app As Application", "1 app 1xt 1,20;"},
        {u"Dim x    As Long", "1 x 1t 1,5;"},
        {u"Public Const A = 1, B As String = \"x, y\"", "2 A 2x 1,14;2 B 2xt 1,21;"},
        {u"Global Const X = 1", "2 X 3x 1,14;"},
        {u"Const A = \"a:b\"", "2 A 1 1,7;"},
        {u"Type T\n  a As Long\nEnd Type\nDim b", "6 T 2 1,6;1 b 1 4,5;"},
        {u"Type T\n  a As Long\nEnd Type", "6 T 1 1,6;", 2},
        {u"Enum E: A: End Enum", "5 E 2 1,6;"},
        {u"Event Ev()\nPublic Event F(a As Long)", "3 Ev 2 1,7;3 F 2x 2,14;"},
        {u"Private Declare PtrSafe Function Foo Lib \"x\" () As Long", "4 Foo 1x 1,34;"},
        {u"Declare Sub Foo", "4 ??? 2 0,0;"},
        {u"Dim a, _\n  b As Long ' c", "1 a 1 1,5;1 b 1t 2,3;"},
        {u"Dim a: Dim b", "1 a 1 1,5;1 b 1 1,12;"},
        {u"Private  x As Long", "1  1x 0,0;"},
        {u"Const a=1\nprivate x\nOption Explicit\nDefInt A-Z\n#Const X = 1", "2 a=1 1 1,7;"},
    };
    for (const Row& row : rows) {
        const VBComponent& vbc = Module(row.code, row.type);
        EXPECT_EQ(ShowModule(GetModDeclarations(vbc, host)), row.expected) << ToUtf8(row.code);
    }
    EXPECT_EQ(host.trace, "");
}

TEST_F(Scanning, BlockWithoutEndEndsTheTable) {
    const VBComponent& vbc = Module(u"Dim a\nEnum E\n  x\nDim b");
    EXPECT_EQ(ShowModule(GetModDeclarations(vbc, host)), "1 a 1 1,5;5 E 2 2,6;");
    EXPECT_EQ(host.trace, "box critical [Bitte Programmierer verständigen!] Fehler Nr. 1\n");
}

TEST_F(Scanning, ProcedureDeclarations) {
    struct Row {
        TextView code;
        const char* expected;
    };
    const Row rows[] = {
        {u"Const k = 1, m As Long = 2: Dim a, b As Long", "1a1,33 1b1,36t 2k1,7 2m1,14t "},
        {u"Dim a: ReDim b(1)", "1a1,5 1b1,14 "},
        {u"ReDim a(1)\nStatic s As Long", ""},
        {u"If x Then Dim a As Long Else Dim b As Long", "1a1,15t "},
        {u"' Dim a\nx = \"Dim b\"\nRem Dim c", ""},
        {u"#Const DEBUG_MODE = 1\nConst a% = 1", "2a%2,7t "},
        {u"Dim _\n  a As Long", "1a2,3t "},
    };
    for (const Row& row : rows) {
        const VBComponent& vbc = Module(row.code);
        std::string text;
        for (const typProcDeclaration& d : GetProcDeclarations(vbc, 1, vbc.CodeModule().CountOfLines())) {
            text += std::to_string(d.lngArt) + ToUtf8(d.strName) + std::to_string(d.lngDeklZeile) + "," +
                    std::to_string(d.lngDeklSpalte) + (d.blnDatentyp ? "t " : " ");
        }
        EXPECT_EQ(text, row.expected) << ToUtf8(row.code);
    }
}

}  // namespace
}  // namespace zentlor
