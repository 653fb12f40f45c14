// Lines as careless tools write them, with the form in which the editor stores them; and what must hold for any text.

#include "vba/canonical.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "canonical_form.h"
#include "core/utilities/encoding.h"
#include "random_code.h"

namespace zentlor::test {
namespace {

struct Row {
    const char* why;
    TextView code;
    TextView expected;
};

template <std::size_t count>
void Check(const Row (&rows)[count]) {
    for (const Row& row : rows) {
        EXPECT_EQ(ToUtf8(CanonicalForm(row.code)), ToUtf8(row.expected)) << row.why;
        EXPECT_EQ(ToUtf8(CanonicalForm(row.expected)), ToUtf8(row.expected)) << "again: " << row.why;
    }
}

TEST(Canonical, Words) {
    Check({
        {"keywords and single blanks", u"private  CONST\tx  as integer=5", u"Private Const x  As Integer = 5"},
        {"the alignment of As stays", u"Dim a      As Long,  b    as string", u"Dim a      As Long, b    As String"},
        {"As that declares nothing", u"open f for input   as #1", u"Open f For Input As #1"},
        {"Name moves a file", u"name a   as b", u"Name a As b"},
        {"library names", u"x = iif(LEFT$(s, 1) = VBNULLSTRING, MSGBOX(1), dlookup(\"a\", \"b\"))",
         u"x = IIf(Left$(s, 1) = vbNullString, MsgBox(1), DLookup(\"a\", \"b\"))"},
        {"members that are reserved words", u"debug.print rs.CLOSE", u"Debug.Print rs.Close"},
        {"types", u"Dim a as NEW collection, b as object, c AS date * 5",
         u"Dim a As New Collection, b As Object, c As Date * 5"},
        {"brackets and strings stay", u"x=[aBc  d] & \"IF  then\"", u"x = [aBc  d] & \"IF  then\""},
        {"full-width forms", u"ｄｉｍ　Ａ１　ａｓ　ｌｏｎｇ", u"Dim A1 As Long"},
        {"one word and two words", u"go to a: endif: Go  sub b", u"GoTo a: End If: GoSub b"},
    });
}

TEST(Canonical, Operators) {
    Check({
        {"binary ones", u"a=b+c-d*e/f\\g&h", u"a = b + c - d * e / f \\ g & h"},
        {"written the other way round", u"If a=<b Or a=>c Or a><d Or a < = e Then",
         u"If a <= b Or a >= c Or a <> d Or a <= e Then"},
        {"signs", u"a=- b: c = (-  d) * - 1: e(- 1)=+ 2", u"a = -b: c = (-d) * -1: e(-1) = +2"},
        {"a sign behind a keyword", u"For i=10 To -5 Step - 1", u"For i = 10 To -5 Step -1"},
        {"power", u"a=b^2^- c", u"a = b ^ 2 ^ -c"},
        {"named arguments", u"Foo a := 1 ,b:= - 2, c:=.d", u"Foo a:=1, b:=-2, c:=.d"},
        {"numbers", u"a = &hff + 1e5 + 2d-3", u"a = &HFF + 1E5 + 2D-3"},
        {"dates", u"a = #jan 1, 2000 5:00 pm#", u"a = #Jan 1, 2000 5:00 PM#"},
        {"word operators", u"If not(a)and(b)Then", u"If Not (a) And (b) Then"},
    });
}

TEST(Canonical, ListsAndParentheses) {
    Check({
        {"lists", u"x = f( 1 ,2,,3 )", u"x = f(1, 2, , 3)"},
        {"left out in front", u"x = f( , 1)", u"x = f(, 1)"},
        {"left out behind a call", u"Foo,1", u"Foo , 1"},
        {"an argument in parentheses", u"Foo(1): a.b(2),3: Foo(a)+1", u"Foo (1): a.b (2), 3: Foo (a) + 1"},
        {"an index", u"Foo (1)=2: a.b (1).c (2) = 3", u"Foo(1) = 2: a.b(1).c(2) = 3"},
        {"without an argument", u"Foo ()", u"Foo()"},
        {"behind Then and Else", u"If a Then Foo(1) Else b (1)=2", u"If a Then Foo (1) Else b(1) = 2"},
        {"a call that says so", u"Call Foo (1)", u"Call Foo(1)"},
        {"a call with a sign", u"Foo - 1", u"Foo -1"},
        {"a member of With as argument", u"Foo .Bar, !b", u"Foo .Bar, !b"},
        {"members", u"a . b ! c=. d", u"a.b!c = .d"},
        {"print lists", u"Print #1,a;b ;: Debug.Print(a);b", u"Print #1, a; b;: Debug.Print (a); b"},
        {"the short form of Print", u"?a:  ?  b", u"Print a:  Print b"},
        {"drawing", u"Me.Line(0,0) - (x,y),,BF: Line - Step (1,2)", u"Me.Line (0, 0)-(x, y), , BF: Line -Step(1, 2)"},
        {"drawing on two lines", u"x.Line(a,b)_\n-(c,d),e", u"x.Line (a, b) _\n-(c, d), e"},
        {"letters, which are no names", u"defint a - c,x-z:defstr b\nb = A", u"DefInt A-C, X-Z: DefStr B\nb = A"},
        {"a file renamed, and other names",
         u"name(a&b)as(c):Name .p as !q:Name a   as b:name(1)=2\nname (a) as b\nname(9)  as b.T",
         u"Name (a & b) As (c): Name .p As !q: Name a As b: Name(1) = 2\nName (a) As b\nName(9)  As b.T"},
        {"bounds", u"ReDim Preserve x.y( -1 to n ,5)  As T", u"ReDim Preserve x.y(-1 To n, 5)  As T"},
        {"arrays", u"Function f ()   as string ()", u"Function f()   As String()"},
    });
}

TEST(Canonical, HeadersAndLines) {
    Check({
        {"a header without parentheses", u"sub Foo", u"Sub Foo()"},
        {"with a type", u"Private Static Function Foo as Long 'x", u"Private Static Function Foo() As Long 'x"},
        {"a property", u"property get Foo", u"Property Get Foo()"},
        {"an event", u"public event Foo", u"Public Event Foo()"},
        {"an API", u"Declare Function Foo Lib \"a\" alias \"b\" as Long",
         u"Declare Function Foo Lib \"a\" Alias \"b\" () As Long"},
        {"an API with parameters", u"declare ptrsafe sub Foo lib \"a\"(byval x as any)",
         u"Declare PtrSafe Sub Foo Lib \"a\" (ByVal x As Any)"},
        {"no header", u"Exit Sub: End Function", u"Exit Sub: End Function"},
        {"labels and numbers", u"Foo:x=1\n10   y=2\n20:z=3", u"Foo: x = 1\n10   y = 2\n20: z = 3"},
        {"colons, with what is aligned behind them", u"a=1 :b=2  :  c=3:\nCase 1:\tx=1\nL:  y=1",
         u"a = 1: b = 2:  c = 3:\nCase 1: x = 1\nL:  y = 1"},
        {"directives", u"#if VBA7 then\n#elseif x Then\n#ELSE\n# endif\n#const a=1",
         u"#If VBA7 Then\n#ElseIf x Then\n#Else\n#End If\n#Const a = 1"},
        {"indentation", u"\tx=1\n  \ty=2\n   \n", u"    x = 1\n    y = 2\n   \n"},
        {"blanks behind code", u"x = 1  \n", u"x = 1\n"},
        {"continuations", u"x=1+_\n\t2 +   _  \n 3", u"x = 1 + _\n    2 + _\n 3"},
        {"an open string", u"x=\"a ", u"x = \"a \""},
    });
}

TEST(Canonical, Comments) {
    Check({
        {"text stays", u"x=1   '  dim  A   b ", u"x = 1   '  dim  A   b "},
        {"a tab in front", u"x\t'a", u"x   'a"},
        {"no blank in front", u"x=1'a", u"x = 1 'a"},
        {"Rem", u"REM  a\nx=1:   rem b", u"Rem  a\nx = 1:   Rem b"},
        {"continued", u"'a _\n\tdim  b _\n c\nx=1", u"'a _\n\tdim  b _\n c\nx = 1"},
    });
}

TEST(Canonical, UnreadableLinesStay) {
    for (TextView code :
         {u"x=1+{2}", u"x=(1+2", u"x=1)", u"a . =  b", u"x=[a", u"  _a=1", u"attribute a.VB_X =  \"b\" ,\"c\""}) {
        EXPECT_EQ(ToUtf8(CanonicalForm(code)), ToUtf8(code));
        const Text between = u"x=1\n" + Text(code) + u"\nx=1";
        EXPECT_EQ(ToUtf8(CanonicalForm(between)), ToUtf8(u"x = 1\n" + Text(code) + u"\nx = 1"));
    }
}

struct NameRow {
    const char* why;
    std::vector<Text> modules;
    std::vector<Text> expected;
};

TEST(Canonical, OneCapitalisationForEachName) {
    const NameRow rows[] = {
        {"the declaration's, also in front of it",
         {u"x = WERT\nDim Wert", u"wert = 1"},
         {u"x = Wert\nDim Wert", u"Wert = 1"}},
        {"the first declaration's", {u"Dim wert", u"Dim WERT"}, {u"Dim wert", u"Dim wert"}},
        {"a declaration's before the library's", {u"Dim left", u"x = Left(y)"}, {u"Dim left", u"x = left(y)"}},
        {"the first one met", {u"Foo.Bar = 1\nfoo.bAR = 2"}, {u"Foo.Bar = 1\nFoo.Bar = 2"}},
        {"letters outside of ASCII", {u"Dim Größe\nGRÖSSE = 1\nGRÖßE = 2"}, {u"Dim Größe\nGRÖSSE = 1\nGröße = 2"}},
        {"with a type character", {u"Dim Wert$\nWERT$ = wert"}, {u"Dim Wert$\nWert$ = Wert"}},
        {"a keyword keeps its own",
         {u"Dim name, line\nName a As b\nx.Name = NAME\nLine Input #1, Line"},
         {u"Dim name, line\nName a As b\nx.name = name\nLine Input #1, line"}},
        {"every kind of declaration",
         {u"Private Declare Sub api Lib \"x\" (par1, ByVal par2)\nPublic Type typ\n  member(1 To 2) As Long\nEnd Type\n"
          u"Enum enu\n  eins = 1\nEnd Enum\nEvent evt(par3)\n#Const cnd = 1\nConst con = 1, con2 = 2\n"
          u"Property Get prop(par4, Optional par5 = 3)\nStatic sta\nlab: Stop\nEnd Property",
          u"API PAR1 PAR2 TYP MEMBER ENU EINS EVT PAR3 CND CON CON2 PROP PAR4 PAR5 STA LAB"},
         {u"Private Declare Sub api Lib \"x\" (par1, ByVal par2)\nPublic Type typ\n  member(1 To 2) As Long\nEnd Type\n"
          u"Enum enu\n  eins = 1\nEnd Enum\nEvent evt(par3)\n#Const cnd = 1\nConst con = 1, con2 = 2\n"
          u"Property Get prop(par4, Optional par5 = 3)\nStatic sta\nlab: Stop\nEnd Property",
          u"api par1 par2 typ member enu eins evt par3 cnd con con2 prop par4 par5 sta lab"}},
        {"no declarations: values, types, calls",
         {u"X = 1\nDim a(Foo) As Bar, b As Bar\nSub c(d As Long, Optional e = Foo)", u"Dim x, foo, bar"},
         {u"x = 1\nDim a(foo) As bar, b As bar\nSub c(d As Long, Optional e = foo)", u"Dim x, foo, bar"}},
    };
    for (const NameRow& row : rows) {
        const std::vector<Text> forms = CanonicalForms(row.modules);
        for (std::size_t i = 0; i < forms.size(); ++i) EXPECT_EQ(ToUtf8(forms[i]), ToUtf8(row.expected[i])) << row.why;
    }
    EXPECT_EQ(CanonicalForm(u"Dim x As New CLSKUNDE", {u"clsKunde"}), u"Dim x As New clsKunde") << "a component's name";
}

// Words that are keywords in some places follow their place even where the project declares them in small letters.
TEST(Canonical, ContextualKeywords) {
    const Text declared =
        u"Dim access, alias, append, base, beep, binary, compare, database, error, explicit, go, lib, "
        u"line, module, name, object, output, property, ptrsafe, random, read, reset, step, text, width\n";
    const Row rows[] = {
        {"files", u"open x for BINARY access READ write lock READ as #1",
         u"Open x For Binary Access Read Write Lock Read As #1"},
        {"output", u"Open x For APPEND As #1: Open x For OUTPUT As #1: width #1, 80",
         u"Open x For Append As #1: Open x For Output As #1: Width #1, 80"},
        {"options", u"option BASE 1: option COMPARE TEXT: option explicit: option private MODULE",
         u"Option Base 1: Option Compare Text: Option Explicit: Option Private Module"},
        {"an API", u"private declare PTRSAFE sub x LIB \"a\" ALIAS \"b\" ()",
         u"Private Declare PtrSafe Sub x Lib \"a\" Alias \"b\" ()"},
        {"errors", u"on ERROR goto 0: ERROR 5: x = ERROR", u"On Error GoTo 0: Error 5: x = error"},
        {"properties", u"public PROPERTY get x(): end PROPERTY: exit PROPERTY: PROPERTY = 1",
         u"Public Property Get x(): End Property: Exit Property: property = 1"},
        {"the rest", u"BEEP: RESET: go to 5: x.BEEP: dim y as OBJECT", u"Beep: Reset: GoTo 5: x.beep: Dim y As Object"},
        {"names", u"WIDTH = LINE + NAME(STEP): For i = STEP To READ STEP 2",
         u"width = line + name(step): For i = step To read Step 2"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(ToUtf8(CanonicalForm(declared + Text(row.code))), ToUtf8(declared + Text(row.expected))) << row.why;
    }
}

TEST(Canonical, DisorderLeavesNoTrace) {
    Random random(11);
    for (int round = 0; round < 600; ++round) {
        const Text code = RandomProcedure(random, 12);
        ASSERT_EQ(ToUtf8(CanonicalForm(code, RandomNames())), ToUtf8(code));
        const Text scrambled = Scramble(code, random);
        ASSERT_EQ(ToUtf8(CanonicalForm(scrambled, RandomNames())), ToUtf8(code)) << ToUtf8(scrambled);
    }
}

// Any text: the second pass changes nothing, and the number of lines stays.
TEST(Canonical, OnceIsEnough) {
    const TextView pieces[] = {
        u"a",    u"Wert", u"left$", u"Sub",  u"As",   u"Step", u"For",   u"1",     u"#1", u"&HF", u"\"s\"", u"'x",
        u"Rem",  u"(",    u")",     u".",    u"!",    u",",    u";",     u":",     u"-",  u"=",   u"<",     u"&",
        u"^",    u"#",    u"\n",    u" _\n", u"\t",   u" ",    u"  ",    u"[a]",   u"%",  u"Go",  u"To",    u"If",
        u"?",    u"Line", u"1.5",   u"_",    u"Name", u"Open", u"{",     u"　",    u"Ä",  u"１",  u"Then",  u"Dim",
        u"Long", u"True", u"Else",  u"+",    u">=",   u":=",   u"Print", u"DefInt"};
    Random random(3);
    for (int round = 0; round < 30000; ++round) {
        Text code;
        for (std::size_t count = 1 + random() % 25; count > 0; --count) code += pieces[random() % std::size(pieces)];
        const Text once = CanonicalForm(code);
        ASSERT_EQ(ToUtf8(CanonicalForm(once)), ToUtf8(once)) << ToUtf8(code);
        ASSERT_EQ(std::count(once.begin(), once.end(), u'\n'), std::count(code.begin(), code.end(), u'\n'))
            << ToUtf8(code);
    }
}

// Each of these would take minutes if any part of the line were read again and again.
TEST(Canonical, IsLinear) {
    for (TextView piece :
         {u"a(", u"a)", u"(", u"a:", u"a.", u"If a(1 Then ", u"\tAs ", u"x _\n", u"Dim a\tAs b,", u"f (x), "}) {
        Text code;
        while (code.size() < 500'000) code += piece;
        const Text once = CanonicalForm(code);
        EXPECT_EQ(std::count(once.begin(), once.end(), u'\n'), std::count(code.begin(), code.end(), u'\n'));
    }
    Text deep = u"x = ";
    for (int i = 0; i < 200'000; ++i) deep += u"f(";
    deep += u"1" + Text(200'000, u')');
    EXPECT_EQ(CanonicalForm(deep), deep);
}

}  // namespace
}  // namespace zentlor::test
