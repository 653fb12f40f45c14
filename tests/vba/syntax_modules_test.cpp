// Modules as a whole: declarations that the editor takes, the branches of conditional compilation, and what one cause
// of several faults is reported as.

#include <gtest/gtest.h>

#include "core/utilities/encoding.h"
#include "vba/syntax_report.h"

namespace zentlor::test {
namespace {

struct Module {
    const char* why;
    const char16_t* code;
};

struct FaultyModule {
    const char* why;
    const char16_t* code;
    const char* report;
};

constexpr Module kModules[] = {
    {"empty", u""},
    {"comments alone", u"' nothing\nRem here\n"},
    {"options and default types",
     u"Option Compare Database\nOption Explicit\nOption Base 1\nOption Private Module\nDefInt A-Z\nDefStr S, T-U\n"},
    {"attributes", u"Attribute VB_Name = \"M\"\nSub A()\nAttribute A.VB_Description = \"x\"\nEnd Sub\n"},
    {"procedures on one line", u"Sub A(): End Sub\nPrivate Sub B(): A: End Sub\nSub C(): A\nEnd Sub\n"},
    {"header without parentheses", u"Sub A\nEnd Sub\nFunction B As Long\nEnd Function\n"},
    {"words in front of a header",
     u"Static Function A(x) As Long\nEnd Function\nPrivate Static Sub B()\nEnd Sub\n"
     u"Friend Property Get C() As Long\nEnd Property\nPublic Function D() As String()\nEnd Function\n"},
    {"three sides of a property",
     u"Property Get P(Optional i)\nEnd Property\nProperty Let P(Optional i, v)\nEnd Property\n"
     u"Property Set P(Optional i, v As Object)\nEnd Property\n"},
    {"the new value of a property behind its ParamArray",
     u"Property Let P(ParamArray i(), ByVal v)\nEnd Property\nProperty Set P(k, ParamArray i(), v As Object)\nEnd "
     u"Property\n"},
    {"parameters",
     u"Sub A(a%, b$, ByVal c As Long, ByRef d() As Byte, Optional e As Long = -1, Optional f = \"x,)\")\nEnd Sub\n"
     u"Sub B(x, ParamArray y() As Variant)\nEnd Sub\n"},
    {"library procedures",
     u"Private Declare PtrSafe Function F Lib \"k\" Alias \"#12\" (ByVal a As Any, b() As Byte) As LongPtr\n"
     u"Declare Function G% CDecl Lib \"x\" ()\nDeclare Sub H Lib \"y\"\n"
     u"Declare Sub I Lib \"z\" (ByVal dwReserved As Long, ByVal dwReserved As Long)\n"},
    {"types with members that are keywords",
     u"Private Type T\nName As String * 10\nType As Long\nEnd As Long\nNext(1 To 3) As Byte: Get As Object\nEnd "
     u"Type\n"},
    {"type on one line", u"Type T: a As Long: End Type\n"},
    {"enumeration", u"Enum E\n[_First] = 0\nA: B = 2\n[Mit Blank] = A Or B\nError\nEnd Enum\n"},
    {"variable named like its type", u"Private Type T\na As Long\nEnd Type\nPrivate T As T\n"},
    {"events and interfaces",
     u"Implements IFoo\nImplements a.b\nPublic Event Changed(ByVal x As Long)\nEvent Plain\n"
     u"Private WithEvents app As Application\nDim WithEvents c As Button, d As Long\n"},
    {"constants", u"Private Const a = 5, b As String = \"x\" & vbCrLf\nGlobal Const c As Long = 1\nGlobal d\n"},
    {"Implements behind a procedure", u"Sub A()\nEnd Sub\nImplements IFoo\n"},
    {"line number in front of End Sub", u"Sub A()\n10 Beep\n20 End Sub\n"},
};

TEST(SyntaxModules, AreAccepted) {
    for (const Module& row : kModules) EXPECT_EQ(SyntaxReport(row.code), "") << row.why << "\n" << ToUtf8(row.code);
}

constexpr Module kBranches[] = {
    {"declarations for both",
     u"#If VBA7 Then\nDeclare PtrSafe Sub S Lib \"k\" ()\n#Else\nDeclare Sub S Lib \"k\" ()\n#End If\n"},
    {"two headers over one body",
     u"#If VBA7 Then\nFunction F(a As LongPtr) As Long\n#Else\nFunction F(a As Long) As Long\n#End If\nF = 1\nEnd "
     u"Function\n"},
    {"two starts of one block", u"Sub A()\n#If X Then\nIf b Then\n#Else\nIf c Then\n#End If\nBeep\nEnd If\nEnd Sub\n"},
    {"two ends of one procedure", u"Sub A()\n#If X Then\nBeep\nEnd Sub\n#Else\nEnd Sub\n#End If\n"},
    {"two whole procedures", u"#If Mac Then\nSub A()\nEnd Sub\n#Else\nSub A()\nEnd Sub\n#End If\n"},
    {"foreign text in a branch that never counts",
     u"#If False Then\nThis is no program at all.\n#End If\nSub A()\nEnd Sub\n"},
    {"foreign text in the branch that does not count", u"#If VBA7 Then\nSub A()\n#Else\nsub a {\n#End If\nEnd Sub\n"},
    {"nested, decided by a constant of the module",
     u"#Const Stufe = 2\n#If Stufe > 1 And Not Mac Then\n#If Win64 Then\nSub A()\n#Else\nSub A(\n#End If\n"
     u"#ElseIf Stufe = 1 Then\nSub A(x\n#Else\nSub A(y\n#End If\nEnd Sub\n"},
    {"a function around a constant",
     u"#If CBool(VBA7) And Not CBool(Mac) Then\nSub A()\n#Else\nSub (\n#End If\nEnd Sub\n"},
    {"constant of text",
     u"#Const L = \"de\"\n#If L = \"en\" Then\nSub (\n#ElseIf L = \"de\" Then\nSub A()\n#End If\nEnd Sub\n"},
    {"arithmetic",
     u"#If (1 + 2) * 3 = 9 And 7 Mod 4 = 3 And 2 ^ 3 = 8 And -1 < 0 Then\nSub A()\n#Else\nSub (\n#End If\nEnd Sub\n"},
    {"constant set in a branch that does not count",
     u"#If Mac Then\n#Const X = 1\n#End If\n#If X Then\nSub (\n#Else\nSub A()\n#End If\nEnd Sub\n"},
    {"strings of a condition count in any capitals",
     u"#Const L = \"de\"\n#If L <> \"DE\" Or L & \"-\" <> \"De-\" Or Len(\"a\"\"b\") <> 3 Then\nSub (\n#End If\n"},
    {"literals of a condition",
     u"#If &HFFFF <> -1 Or &HFFFF& <> 65535 Or &O17 <> 15 Or &17 <> 15 Or &HFFFFFFFF <> -1 Or 1D2 <> 100 Then\nSub (\n"
     u"#End If\n"},
    {"functions and division",
     u"#If 3 / 2 <> 1.5 Or 7 \\ 2 <> 3 Or CBool(5) <> True Or CInt(\"5\") <> 5 Or CStr(5) <> \"5\" Or Abs(-1) <> 1 Or "
     u"Sgn(-5) <> -1 Or Int(-1.5) <> -2 Or Fix(-1.5) <> -1 Or CLng(2.5) <> 2 Or \"10\" <> 10 Then\nSub (\n#End If\n"},
    {"EndIf in one word", u"#If VBA7 Then\n#EndIf\n"},
    {"fits an editor of 32 bits", u"#If Win64 Then\nSub A(\n#Else\nSub A()\n#End If\nEnd Sub\n"},
    {"fits a constant of the project's settings",
     u"#If Excel Then\nSub A()\n#ElseIf Access Then\nSub A(x)\n#End If\nEnd Sub\n"},
    {"the constant is a number", u"#If Host = 1 Then\nSub A()\n#ElseIf Host = 2 Then\nSub A(x)\n#End If\nEnd Sub\n"},
};

TEST(SyntaxModules, BranchesThatCannotStandTogetherAreDecided) {
    for (const Module& row : kBranches) EXPECT_EQ(SyntaxReport(row.code), "") << row.why << "\n" << ToUtf8(row.code);
}

constexpr FaultyModule kFaultyBranches[] = {
    {"fault in the branch that counts", u"Sub A()\n#If VBA7 Then\nx = (1\n#Else\nx = 2\n#End If\nEnd Sub\n",
     "3:7 The statement ends here; still expected is \")\".\n"},
    {"block left open in the branch that counts", u"Sub A()\n#If VBA7 Then\nIf x Then\n#End If\nEnd Sub\n",
     "5:1 \"If\" of line 3 is not closed before this line.\n"},
    {"the same name twice in one branch", u"#If VBA7 Then\nPrivate a\nPrivate a\n#End If\n",
     "3:9 \"a\" is already declared in line 2 of this module.\n"},
    {"else without if", u"#Else\n#ElseIf x Then\n#End If\n",
     "1:1 \"#Else\" has no \"#If\".\n2:1 \"#ElseIf\" has no \"#If\".\n3:1 \"#End If\" has no \"#If\".\n"},
    {"two else", u"#If x Then\n#Else\n#Else\n#End If\n", "3:1 \"#End If\" is expected behind \"#Else\".\n"},
};

TEST(SyntaxModules, FaultsOfBranchesAreReported) {
    for (const FaultyModule& row : kFaultyBranches) EXPECT_EQ(SyntaxReport(row.code), row.report) << row.why;
}

constexpr FaultyModule kOneCause[] = {
    {"one fault per logical line, the next line has its own", u"Sub A()\nx = 1 2: y = 3 4\nz = 5 6\nEnd Sub\n",
     "2:7 Expected here is the end of the statement, not \"2\".\n"
     "3:7 Expected here is the end of the statement, not \"6\".\n"},
    {"the head of a block is faulty, its end fits", u"Sub A()\nFor i = 1 9\nIf x\nEnd If\nNext i\nEnd Sub\n",
     "2:11 Expected here is \"To\" and the end value of the loop, not \"9\".\n"
     "3:5 The statement ends here; still expected is \"Then\" behind the condition.\n"},
    {"a crossing is reported where it is met", u"Sub A()\nWith x\nFor i = 1 To 2\nEnd With\nNext\nEnd Sub\n",
     "4:1 \"For\" of line 3 is not closed before this line.\n"},
    {"the wrong end of a loop closes it", u"Sub A()\nDo\nWend\nEnd Sub\n", "3:1 \"Wend\" has no block to close.\n"},
    {"blocks of a procedure without end are not reported", u"Sub A()\nIf x Then\nSub B()\nEnd Sub\n",
     "3:1 \"End Sub\" is missing in front of this line for the procedure of line 1.\n"},
    {"lines outside of procedures in a row", u"Sub A()\nEnd Sub\nx = 1\ny = 2\nEnd Sub\nz = 3\n",
     "3:1 This statement stands outside of a procedure.\n6:1 This statement stands outside of a procedure.\n"},
    {"a whole type in a procedure", u"Sub A()\nPrivate Type T\na As Long\nEnd Type\nEnd Sub\n",
     "2:1 \"Private\" is not allowed inside of a procedure.\n"},
    {"a misspelt end", u"Sub A()\nWith x\nEnd Wiht\nEnd Sub\n",
     "3:5 Expected here is the end of the statement, not \"Wiht\".\n"},
    {"columns count characters", u"Sub A()\nä = \"ü\" \"ö\"\nEnd Sub\n",
     "2:9 Expected here is the end of the statement, not \"\"ö\"\".\n"},
    {"the place behind a continued line's last word", u"Sub A()\nx = 1 + _\n    (2 ' two\nEnd Sub\n",
     "3:7 The statement ends here; still expected is \")\".\n"},
    {"long words are cut", u"Sub A()\nx = 1 \"0123456789012345678901234567890123456789\"\nEnd Sub\n",
     "2:7 Expected here is the end of the statement, not \"\"012345678901234567890123456789012345678…\".\n"},
    {"labels belong to their procedure", u"Sub A()\nL:\nEnd Sub\nSub B()\nGoTo L\nEnd Sub\n",
     "5:6 There is no label \"L\" in this procedure.\n"},
};

TEST(SyntaxModules, OneCauseGivesOneError) {
    for (const FaultyModule& row : kOneCause) EXPECT_EQ(SyntaxReport(row.code), row.report) << row.why;
}

TEST(SyntaxModules, SentencesExistInBothLanguages) {
    const Text code = u"Sub A()\nExit Function\nx = \nEnd Sub\n";
    EXPECT_EQ(GermanSyntaxReport(code),
              "2:1 „Exit Function“ passt nicht zur Art dieser Prozedur.\n"
              "3:4 Die Anweisung endet hier; erwartet wird noch ein Ausdruck.\n");
    EXPECT_EQ(SyntaxReport(code),
              "2:1 \"Exit Function\" does not fit this kind of procedure.\n"
              "3:4 The statement ends here; still expected is an expression.\n");
}

}  // namespace
}  // namespace zentlor::test
