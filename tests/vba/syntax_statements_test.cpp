// Statements that the editor takes, above all the ones that look as if it did not. Each row stands in a procedure of
// its own and must be accepted as it is.

#include <gtest/gtest.h>

#include "core/utilities/encoding.h"
#include "vba/syntax_report.h"

namespace zentlor::test {
namespace {

struct Row {
    const char* why;
    const char16_t* statements;
};

void ExpectAccepted(const Row& row) {
    EXPECT_EQ(BodySyntaxReport(row.statements), "") << row.why << "\n" << ToUtf8(row.statements);
}

constexpr Row kIf[] = {
    {"single line", u"If x Then y = 1"},
    {"single line with Else and colons", u"If x Then y = 1: z = 2 Else y = 3: z = 4"},
    {"colon in front of a single line's Else", u"If x Then y = 1: Else y = 2"},
    {"ElseIf on a single line", u"If x Then y = 1 ElseIf z Then y = 2: A Else y = 3"},
    {"nothing between Then and Else", u"If x Then Else y = 1"},
    {"nested on one line", u"If x Then If y Then A Else B Else C"},
    {"line number behind Then", u"10 If x Then 10"},
    {"line numbers behind Then and Else", u"10 If x Then 10 Else 20\n20 Beep"},
    {"GoTo in place of Then", u"L: If x GoTo L"},
    {"End as the statement of a single line", u"If x Then End Else y = 1"},
    {"loop inside of a single line", u"If x Then For i = 1 To 3: A i: Next"},
    {"With inside of a single line", u"If x Then With rs: .MoveNext: End With"},
    {"colon behind Then begins a block", u"If x Then:\ny = 1\nEnd If"},
    {"colon behind Then begins a single line", u"If x Then: y = 1"},
    {"colon behind Then, closed on the line", u"If x Then: y = 1: End If"},
    {"single line with a colon inside of a block", u"If x Then\nIf y Then: z = 1\nEnd If"},
    {"ElseIf and Else behind an If whose Else holds a single line with a colon",
     u"If x Then\nIf y Then\nA\nElse\nIf z Then: B\nEnd If\nElseIf u Then\nC\nElse\nD\nEnd If"},
    {"colons up to End If, in three branches", u"If x Then: A: ElseIf y Then: B: Else: C: End If"},
    {"comment behind Then", u"If x Then ' why\ny = 1\nEnd If"},
    {"statements behind ElseIf and Else", u"If x Then\nA\nElseIf y Then B\nElseIf z Then: C\nElse D\nEnd If"},
    {"colon behind Else", u"If x Then\nA\nElse: B\nEnd If"},
    {"Else If with two ends", u"If x Then\nElse If y Then\nEnd If\nEnd If"},
    {"Else If meant as ElseIf", u"If x Then\nElse If y Then\nEnd If"},
    {"EndIf in one word", u"If x Then\nEndIf"},
    {"continued condition", u"If x And _\n   y Then\nEnd If"},
    {"continued behind Then", u"If x Then _\n    y = 1"},
};

constexpr Row kSelect[] = {
    {"all on one line", u"Select Case x: Case 1: A: Case Else: B: End Select"},
    {"comparisons, ranges and lists",
     u"Select Case x\nCase Is > 3, 5 To 7, Is <= 9\nCase \"a\" To \"b\", -1\nEnd Select"},
    {"comparison without Is", u"Select Case x\nCase > 5\nEnd Select"},
    {"no case at all", u"Select Case True\nEnd Select"},
    {"comment and blank line in front of the first case", u"Select Case x\n' first\n\nCase 1\nEnd Select"},
    {"line numbers", u"10 Select Case x\n20 Case 1\n30 End Select"},
    {"nested", u"Select Case x\nCase 1\nSelect Case y\nCase 2\nEnd Select\nEnd Select"},
};

constexpr Row kLoops[] = {
    {"For on one line", u"For i = 10 To 1 Step -1: A i: Next i"},
    {"two loops closed at once", u"For i = 1 To 2\nFor j = 1 To 3\nA i, j\nNext j, i"},
    {"Next without a name", u"For Each f In rs.Fields: A f: Next"},
    {"typed name", u"For i% = 1 To 3\nNext i"},
    {"other capitalisation", u"For i = 1 To 3\nNext I"},
    {"member of Me counts", u"For Me.x = 1 To 2: Next"},
    {"Exit For inside of a block", u"For i = 1 To 3\nIf x Then Exit For\nNext"},
    {"Do in its five forms", u"Do: Loop\nDo While x: Loop\nDo Until x: Loop\nDo\nLoop While x\nDo\nLoop Until x"},
    {"Exit Do from an inner For", u"Do\nFor i = 1 To 2\nExit Do\nNext\nLoop"},
    {"While", u"While Not rs.EOF\nrs.MoveNext\nWend"},
    {"Step as a name", u"For Step = 1 To Step Step Step\nNext Step"},
};

constexpr Row kWith[] = {
    {"members in all places", u"With rs\n.x = 1: !y = .z\nSet .p = !q\nx = .a.b!c(.d)(\"e\").f\nEnd With"},
    {"With in With", u"With rs\nWith .Fields(!x)\n.y = 1\nEnd With\n.z = 2\nEnd With"},
    {"New", u"With New Collection\n.Add 1\nEnd With"},
    {"blank in front of a point begins an argument", u"With rs\nShow .x, !y\nShow .x\nDebug.Print .x; !y\nEnd With"},
    {"ReDim of a member", u"With rs\nReDim Preserve .x(1 To 3)\nEnd With"},
    {"members that are keywords", u"With rs\n.End(1).Select\n.Print \"x\"\n.Next\n.Type = .Name\nEnd With"},
};

constexpr Row kCalls[] = {
    {"first argument in parentheses", u"A (x), y"},
    {"first argument begins with parentheses", u"A (x) + 1, y\nA (x) & \"b\""},
    {"only argument in parentheses", u"A (x)"},
    {"first argument in parentheses with a member", u"A (x).b & c, d\nA (x).b(1) And c\nA x(1).b (c).d * 2"},
    {"omitted arguments", u"A , , x\nA x, , y\nz = A(, , x)"},
    {"named arguments with keywords", u"A Type:=8, End:=x, Name:=\"a\", If:=3\nz = A(Next:=1)"},
    {"signed argument", u"A -1\nA Not x"},
    {"ByVal in a call", u"A ByVal x, ByVal 0&"},
    {"AddressOf and TypeOf", u"A AddressOf B, TypeOf x Is Collection"},
    {"Call", u"Call A: Call A(x, y): Call rs(1).A(x): Call Me.A"},
    {"call of an indexed object's method", u"rs(1).A x, y\nrs.Items(1, 2).A (x), y\nrs(1, 2).A"},
    {"members that are keywords", u"rs.Open \"x\": rs.Close: rs.Get 1: DoCmd.Close 2, \"F\": rs.Print x"},
    {"members in brackets", u"x = [Forms]![Kunden]![Name]: x = Forms!Kunden.[Feld mit Blank]\n[A1:B2].Select"},
    {"brackets in brackets", u"x = [Table1[Col]].Count + [[Book2]Sheet1!Test]"},
    {"member on a continued line", u"Range(\"A1\") _\n    .Font _\n    .Bold = True"},
    {"RaiseEvent", u"RaiseEvent Changed(x, 1): RaiseEvent Done"},
    {"Debug", u"Debug.Print: Debug.Print x; y,: Debug.Print \"x\" Tab(3) y: Debug.Assert x > 1"},
    {"Debug.Print begins with parentheses",
     u"Debug.Print (x); (y): Debug.Print (x) = (y); x\nDebug.Print (x + 1) * 2\nDebug.Print (x).y; z: Debug.Print "
     u"(x).y Like z; x"},
    {"error raised", u"Err.Raise 5, , \"x\": Error 5"},
    {"SendKeys, Unload, Load", u"SendKeys \"x\", True: Unload Me: Load x"},
};

constexpr Row kAssignments[] = {
    {"Let, Set, LSet, RSet", u"Let x = 1: Set x = New Collection: LSet x = y: RSet x = y"},
    {"Mid as target", u"Mid$(x, 1, 2) = \"a\": Mid(x, 2) = y: MidB(x, 1) = y"},
    {"Date and Time as targets", u"Date = x: Time = x: Date$ = \"1\": Time$ = \"2\""},
    {"indexed targets", u"x(1) = 2: x(1, 2) = 3: x(1)(2).y = 3: rs!a = 1: rs(\"a\") = 2"},
    {"names that are keywords elsewhere",
     u"Name = 1: Line = 2: Error = 3: Seek = 4: Text = 5: Width = 6: Base = 7: Access = 8: Output = 9: Property = 10\n"
     u"Attribute = 11: Object = 12: Database = 13: Alias = 14: Reset = 15: Binary = 16: Scale = 17: Circle(1) = 18"},
    {"chain of comparisons", u"x = y = z <> 1 >= 2 =< 3 >< 4 => 5"},
    {"signs and Not in a row", u"x = - -y + +z And Not Not x"},
    {"all binary operators", u"x = a + b - c * d / e \\ f ^ g & h Mod i And j Or k Xor l Eqv m Imp n Like o"},
    {"Is and Nothing", u"x = a Is Nothing Or Not b Is c"},
    {"literals",
     u"x = &HFF& + &O17 + 1# + 1.5E+10 + 1D-5 + .5 + 5. + #1/31/2000 5:00:00 PM# & \"a\"\"b\" & True & Empty & Null"},
    {"New in an expression", u"Set x = New Collection: x = (New Foo).Bar"},
    {"type characters", u"x$ = y$ & z%: a& = b&: c# = d#: e! = f!: g@ = h@"},
    {"names outside of ASCII", u"größe = Überschrift.Länge: имя = 1: 変数 = 2"},
    {"functions named like types and statements",
     u"x = String(5, \"a\") & String$(5, 32) & Error$(3) & Date & Input$(3, 1)"},
};

constexpr Row kFiles[] = {
    {"Open in full", u"Open f For Binary Access Read Lock Read As #n Len = 5"},
    {"Open in parts",
     u"Open f For Input As 1: Open f For Append Shared As #n: Open f As #1 Len = 20: Open f For Output As #FreeFile\n"
     u"Open f For Random Access Read Write Lock Read Write As n Len = Len(x): Open f For Input Lock Write As #1"},
    {"Close and Reset", u"Close: Close #1: Close #1, #2, 3, #4: Close 1, n: Reset"},
    {"Get and Put", u"Get #1, , x: Put #1, 5, x.y: Get 1, , b(): Put f, , x"},
    {"Print", u"Print #1,: Print #1: Print #1, x; y, z;: Print #n, Tab(5); x;: Print #1, Spc(3) x"},
    {"Write", u"Write #1,: Write #1, x, y: Write #1"},
    {"Input", u"Input #1, x, y: Line Input #1, s: Line Input 1, s: s = Input(5, #1): s = Input$(LOF(1), 1)"},
    {"Seek, Lock, Unlock, Width",
     u"Seek #1, 5: n = Seek(1): Lock #1: Lock #1, 1 To 2: Lock #1, To 2: Unlock 1, 2: Width #1, 80"},
    {"Name",
     u"Name \"a\" As \"b\": Name x As y: Name (x) As y: Name x & \"a\" As y & \"b\": Name x.y As z: "
     u"Name (x) & \"a\" As y: With f: Name .x & \"a\" As .y: Name !x As !y: End With"},
};

constexpr Row kDrawing[] = {
    {"Line", u"Line (x, y)-(z, a), b, BF: Line -(x, y): Line Step(1, 2)-Step(3, 4), , B: Me.Line (1, 2)-(3, 4)"},
    {"Circle", u"Circle (x, y), r, , , , 5: Me.Circle Step(0, 0), 5"},
    {"PSet and Scale", u"PSet (x, y), c: rs.PSet Step(1, 1): Scale (1, 2)-(3, 4): Scale"},
    {"Print of a form", u"Print \"x\": Print x; y: Me.Print x, y;"},
};

constexpr Row kJumps[] = {
    {"On Error", u"On Error GoTo 0: On Error GoTo -1: On Error Resume Next: On Error GoTo L\nL:"},
    {"On Local Error", u"On Local Error Resume Next"},
    {"On with a list", u"On x GoTo L, 10: On x + 1 GoSub L, 10\nL:\n10 Return"},
    {"Resume", u"L: Resume: Resume Next: Resume 0: Resume L: Resume 10\n10 Beep"},
    {"Go To", u"L: Go To L: Go Sub L: GoTo L: GoSub L"},
    {"number and name on one line", u"10 L: GoTo L: GoTo 10"},
    {"line numbers count by their value", u"010 Beep\n20 On Error GoTo 00\nIf x Then 10 Else 0020"},
    {"label in other capitalisation", u"GoTo FEHLER\nFehler:"},
    {"calls that look like labels may be repeated", u"DoEvents: x = 1\nDoEvents: x = 2\nA : x = 3\nA : x = 4"},
    {"empty statements", u":: x = 1 :: y = 2 ::"},
};

constexpr Row kDeclarations[] = {
    {"Dim",
     u"Dim a(1 To 2, 0 To 3) As New Collection, b(), c$, d%, e As String * 20, f As String * kLen, g As DAO.Field"},
    {"names that are keywords elsewhere",
     u"Dim Text, Width, Base, Access, Step, Output, Object, Database, Alias, Line"},
    {"Static and Const", u"Static n As Long, m\nConst a As String = \"b\", c = 2 * 3, d& = &HFF&"},
    {"ReDim",
     u"ReDim a(1 To 3) As Long, b(2): ReDim Preserve x.y(1 To n) As T: ReDim a(LBound(b) To UBound(b) + 1, 2)"},
    {"Erase", u"Erase a, b: Erase x.y"},
    {"two names that differ in their type characters", u"Dim a$, a%"},
};

constexpr Row kComments[] = {
    {"the end mark of DOS", u"x = 1\x1A"},
    {"Rem behind a colon", u"x = 1: Rem then\nRem so"},
    {"continued comment", u"' one _\ntwo \" three\nx = 1 ' four _\nfive"},
};

TEST(SyntaxStatements, AreAccepted) {
    for (const Row& row : kIf) ExpectAccepted(row);
    for (const Row& row : kSelect) ExpectAccepted(row);
    for (const Row& row : kLoops) ExpectAccepted(row);
    for (const Row& row : kWith) ExpectAccepted(row);
    for (const Row& row : kCalls) ExpectAccepted(row);
    for (const Row& row : kAssignments) ExpectAccepted(row);
    for (const Row& row : kFiles) ExpectAccepted(row);
    for (const Row& row : kDrawing) ExpectAccepted(row);
    for (const Row& row : kJumps) ExpectAccepted(row);
    for (const Row& row : kDeclarations) ExpectAccepted(row);
    for (const Row& row : kComments) ExpectAccepted(row);
}

}  // namespace
}  // namespace zentlor::test
