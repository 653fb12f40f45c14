// The source model: extents, searches, and the index against the plain walk.

#include "core/analysis/source_model.h"

#include <gtest/gtest.h>

#include <deque>
#include <random>

#include "core/scanning/comments_and_strings.h"
#include "core/scanning/use_search.h"
#include "core/utilities/encoding.h"

namespace zentlor {
namespace {

constexpr FindFlags kWhole{.wholeWord = true, .matchCase = true};

std::string Extents(TextView code) {
    VBProject project(u"P");
    const CodeModule& cm = project.Add(u"M", 1, Text(code)).CodeModule();
    std::string text = "declarations " + std::to_string(cm.CountOfDeclarationLines());
    for (const Procedure& p : cm.Procedures()) {
        text += "; " + ToUtf8(p.name) + "/" + std::to_string(p.kind) + " " + std::to_string(p.firstLine) + "-" +
                std::to_string(p.bodyLine) + "-" + std::to_string(p.lastLine);
    }
    return text;
}

TEST(Extents, FollowTheLanguage) {
    struct Row {
        const char* why;
        TextView code;
        const char* expected;
    };
    const Row rows[] = {
        {"no lines", u"", "declarations 0"},
        {"declarations alone, and a comment behind them", u"Option Explicit\nDim a\n' Ende\n", "declarations 3"},
        {"procedure on line 1", u"Sub A()\nEnd Sub\n", "declarations 0; A/0 1-1-2"},
        {"blank and comment lines belong to the procedure below, the last lines to the last one",
         u"Dim a\n\n' c\nSub A()\nEnd Sub\n\n' d\nSub B()\nEnd Sub\n\n", "declarations 1; A/0 2-4-5; B/0 6-8-10"},
        {"a continued declaration ends with its last line", u"Dim a, _\n  b\nSub A()\nEnd Sub",
         "declarations 2; A/0 3-3-4"},
        {"a continued header, its words on two lines", u"Public _\n    Function F$()\nEnd Function",
         "declarations 0; F/0 1-1-3"},
        {"property triple",
         u"Property Get X()\nEnd Property\nProperty Let X(v)\nEnd Property\nProperty Set X(v)\nEnd "
         u"Property",
         "declarations 0; X/3 1-1-2; X/1 3-3-4; X/2 5-5-6"},
        {"two procedures of one name keep an extent each",
         u"#If A Then\nSub X()\nEnd Sub\n#Else\nSub X()\nEnd Sub\n#End If", "declarations 1; X/0 2-2-3; X/4 4-5-7"},
        {"two headers over one body: the second opens nothing",
         u"#If A Then\nSub X(a)\n#Else\nSub X(b)\n#End If\nStop\nEnd Sub\nSub Y()\nEnd Sub",
         "declarations 1; X/0 2-2-7; Y/0 8-8-9"},
        {"a comment line of underscores continues nothing", u"'______\nSub A()\nEnd Sub", "declarations 0; A/0 1-2-3"},
        {"a continued comment swallows the next line", u"' text _\nSub A()\nSub B()\nEnd Sub",
         "declarations 0; B/0 1-3-4"},
        {"end behind a colon", u"Sub A(): Beep: End Sub\nSub B()\nBeep: End Sub ' c\nSub C()\nEnd Sub",
         "declarations 0; A/0 1-1-1; B/0 2-2-3; C/0 4-4-5"},
        {"other ends, and parts of words, are none; the words of an end stand apart in many ways",
         u"Sub A()\nEnd If\nEnds Sub\nxEnd Sub\nEndSub\nEnd Subs\nEnd  Sub\nSub B()\neND\tsUB\nSub C()\nEnd _\nSub\n"
         u"Sub D()\nEnd",
         "declarations 0; A/0 1-1-7; B/0 8-8-9; C/0 10-10-12; D/0 13-13-14"},
        {"an end in a string or a comment is none",
         u"Sub A()\nx = \":End Sub\"\n'x: End Sub\nEnd Sub\nSub B()\nEnd Sub", "declarations 0; A/0 1-1-4; B/0 5-5-6"},
        {"nor in a Rem that begins where a statement may",
         u"Sub A()\na: Rem b: End Sub\nIf x Then y Else Rem _\n: End Sub\nx.Else.Rem: End Sub\nSub "
         u"B()\nEnd Sub",
         "declarations 0; A/0 1-1-5; B/0 6-6-7"},
        {"where none may begin, Rem is a word", u"Sub A()\nx = 1 _\nRem: End Sub\nSub B()\n10 Rem: End Sub\nEnd Sub",
         "declarations 0; A/0 1-1-3; B/0 4-4-6"},
        {"nor in a bracketed name, whatever that holds",
         u"Sub A()\nx = [a: End Sub]\nx = [[b]: End Sub]\nx = [it's \"]: End Sub\nSub B()\nx = [: End Sub",
         "declarations 0; A/0 1-1-4; B/0 5-5-6"},
        {"words behind a line of nothing but a continuation",
         u"Dim a\n _\n Sub A()\n _\nEnd Sub\n _\n\n _\n' c\nSub B()\nEnd Sub",
         "declarations 1; A/0 2-2-5; B/0 6-10-11"},
        {"a blank logical line declares nothing, nor does a continued comment", u" _\n\n _\nRem c\nSub A()\nEnd Sub",
         "declarations 0; A/0 1-5-6"},
        {"API declarations are no procedures",
         u"Private Declare Sub S Lib \"x\" ()\nFriend Static Function F()\nEnd "
         u"Function",
         "declarations 1; F/0 2-2-3"},
    };
    for (const Row& row : rows) EXPECT_EQ(Extents(row.code), row.expected) << row.why;
}

TEST(CodeModule, AnswersByLineAndByName) {
    VBProject project(u"P");
    const CodeModule& cm =
        project.Add(u"M", 1, u"Dim a\n' c\nProperty Get X()\nEnd Property\nProperty Let X(v)\nEnd Property\n\n")
            .CodeModule();
    EXPECT_EQ(cm.CountOfLines(), 7);
    EXPECT_EQ(cm.Lines(5), u"Property Let X(v)");
    int kind = -1;
    EXPECT_EQ(cm.ProcOfLine(1, kind), u"");
    EXPECT_EQ(kind, 0);
    EXPECT_EQ(cm.ProcOfLine(2, kind), u"X");
    EXPECT_EQ(cm.ProcBodyLine(u"X", kind), 3);
    EXPECT_EQ(cm.ProcCountLines(u"X", kind), 3);
    EXPECT_EQ(cm.ProcOfLine(7, kind), u"X");
    EXPECT_EQ(cm.ProcBodyLine(u"X", kind), 5);
    EXPECT_EQ(cm.ProcCountLines(u"X", kind), 3);
    for (const int line : {0, -1, 8}) {
        EXPECT_THROW(cm.Lines(line), RuntimeError) << line;
        EXPECT_THROW(cm.ProcOfLine(line, kind), RuntimeError) << line;
    }
    EXPECT_THROW(cm.ProcBodyLine(u"Y", 0), RuntimeError);
    EXPECT_THROW(project.Item(u"m"), RuntimeError);
}

TEST(Find, KeepsItsPositionRules) {
    VBProject project(u"P");
    const CodeModule& cm =
        project.Add(u"M", 1, u"Stop: Stopped Full_Stop\n  stop Stop'x\nLeft$(x) äStop Stopé Stop€\n").CodeModule();
    struct Row {
        const char* why;
        TextView target;
        FindRange range;
        FindFlags flags;
        int line, column;  ///< 0 for no hit
    };
    const Row rows[] = {
        {"column 0 is the line's start", u"Stop", {1, 0, -1, -1}, kWhole, 1, 1},
        {"inclusive start", u"Stop", {1, 1, -1, -1}, kWhole, 1, 1},
        {"parts of words do not count", u"Stop", {1, 2, -1, -1}, kWhole, 2, 8},
        {"a fragment counts anywhere", u"Stop", {1, 2, -1, -1}, {.matchCase = true}, 1, 7},
        {"case can be ignored", u"STOP", {2, 0, -1, -1}, {}, 2, 3},
        {"a start behind the line goes on with the next", u"Stop", {1, 99, -1, -1}, kWhole, 2, 8},
        {"the end column is inclusive", u"Stop", {1, 1, 1, 4}, kWhole, 1, 1},
        {"a match must end in front of it", u"Stop", {1, 1, 1, 3}, kWhole, 0, 0},
        {"an end column behind the line is the line's end", u"Stop", {2, 1, 2, 1024}, kWhole, 2, 8},
        {"no line 0 to end on", u"Stop", {1, 0, 0, 0}, kWhole, 0, 0},
        {"a start behind the module finds nothing", u"Stop", {4, 0, -1, -1}, kWhole, 0, 0},
        {"letters outside of ASCII continue a word, signs do not", u"Stop", {3, 0, -1, -1}, kWhole, 3, 22},
        {"a word ends in front of a type character", u"Left", {1, 0, -1, -1}, kWhole, 3, 1},
        {"nothing is everywhere and nowhere", u"", {1, 0, -1, -1}, kWhole, 0, 0},
    };
    for (Row row : rows) {
        const bool found = cm.Find(row.target, row.range, row.flags);
        EXPECT_EQ(found, row.line != 0) << row.why;
        if (!found || row.line == 0) continue;
        EXPECT_EQ(row.range.startLine, row.line) << row.why;
        EXPECT_EQ(row.range.startColumn, row.column) << row.why;
        EXPECT_EQ(row.range.endColumn, row.column + Len(row.target) - 1) << row.why;
    }
}

// Random texts over an alphabet in which words touch everything that can stand beside them.
class RandomText {
  public:
    explicit RandomText(unsigned seed) : random_(seed) {}

    Text Make(int pieces) {
        static const std::vector<Text> kPieces = {u"a",  u"ab",  u"b_1",         u"Ü",    u"é",
                                                  u"€",  u"§",   u" ",           u"  ",   u"\n",
                                                  u"\"", u"'",   u":",           u"Rem ", u": Rem",
                                                  u"$",  u".",   u"(",           u"_\n",  u" _\n",
                                                  u"x",  u"Имя", u"RaiseEvent ", u"As ",  u"WortMitVielenZeichen"};
        Text text;
        for (int i = 0; i < pieces; ++i) text += kPieces[Below(kPieces.size())];
        return text;
    }
    std::size_t Below(std::size_t limit) { return std::uniform_int_distribution<std::size_t>(0, limit - 1)(random_); }

  private:
    std::mt19937 random_;
};

// The use search as its contract tells it: a plain search, and the look at the characters beside each hit.
int UseByWalk(const VBComponent& vbc, TextView target, int line, int column) {
    const CodeModule& cm = vbc.CodeModule();
    FindRange range{line == 0 ? cm.CountOfDeclarationLines() + 1 : line, column, -1, 1024};
    int result = kNotUsed;
    while (cm.FindByWalk(target, range, {.matchCase = true})) {
        const int l = range.startLine;
        const int c = range.startColumn;
        if (IstTrefferGanzesWort(cm, target, l, c)) {
            if (IstPosInKommentar(cm, l, c)) {
                result = kUsedInComments;
            } else if (!IstPosInQuotes(cm.Lines(l), c)) {
                return kUsed;
            }
        }
        range = {l, c + 1, -1, 1024};
    }
    return result;
}

class SilentReporter : public FailureReporter {
  public:
    void Report(const Routine& routine, int, TextView) override { ADD_FAILURE() << ToUtf8(routine.name); }
};

TEST(Index, AnswersWhatAWalkOverTheTextAnswers) {
    RandomText random(20260701);
    SilentReporter reporter;
    for (int round = 0; round < 150; ++round) {
        VBProject project(u"P");
        project.ReportFailuresTo(reporter);
        for (const char16_t* name : {u"A", u"B", u"C"}) {
            project.Add(name, 1, random.Make(round % 3 == 0 ? 60 : 400));  // a short text is not worth an index
        }
        for (const TextView target : {u"a ", u"ab(", u"1\"", u"b_1.", u"Ü: ", u"xé", u"aWortMitVielenZeichen "}) {
            for (const auto& vbc : project.VBComponents()) {
                const CodeModule& cm = vbc->CodeModule();
                FindRange byIndex{1, static_cast<int>(random.Below(6)), -1, -1};
                for (bool found = true; found;) {
                    FindRange byWalk = byIndex;
                    found = cm.FindByWalk(target, byWalk, {.matchCase = true});
                    ASSERT_EQ(cm.Find(target, byIndex, {.matchCase = true}), found)
                        << ToUtf8(cm.AllText()) << ToUtf8(target);
                    if (!found) break;
                    ASSERT_EQ(byIndex.startLine, byWalk.startLine);
                    ASSERT_EQ(byIndex.startColumn, byWalk.startColumn);
                    byIndex = {byWalk.startLine, byWalk.startColumn + 1, -1, -1};
                }
            }
        }
        std::deque<HitFilter> filters;  // for all targets, so that questions come in any order
        for (const auto& vbc : project.VBComponents()) filters.emplace_back(vbc->CodeModule());
        for (const TextView target :
             {u"a", u"ab", u"b_1", u"Ü", u"aé", u"Имя", u"a$", u"As a", u"RaiseEvent ab", u"x"}) {
            int swept = kNotUsed;
            for (const auto& vbc : project.VBComponents()) {
                const CodeModule& cm = vbc->CodeModule();
                FindRange byIndex{1, 0, -1, -1};
                FindRange byWalk = byIndex;
                while (cm.FindByWalk(target, byWalk, kWhole)) {
                    ASSERT_TRUE(cm.Find(target, byIndex, kWhole)) << ToUtf8(cm.AllText()) << ToUtf8(target);
                    ASSERT_EQ(byIndex.startLine, byWalk.startLine);
                    ASSERT_EQ(byIndex.startColumn, byWalk.startColumn);
                    byIndex = byWalk = {byWalk.startLine, byWalk.startColumn + 1, -1, -1};
                }
                ASSERT_FALSE(cm.Find(target, byIndex, kWhole)) << ToUtf8(cm.AllText()) << ToUtf8(target);

                const int line = static_cast<int>(random.Below(3));
                const int column = static_cast<int>(random.Below(6));
                ASSERT_EQ(WirdAusdruckInModulVerwendet(*vbc, filters[vbc->Index()], target, line, column),
                          UseByWalk(*vbc, target, line, column))
                    << ToUtf8(cm.AllText()) << ToUtf8(target) << line << "," << column;
                swept = std::max(swept, UseByWalk(*vbc, target, 1, 1));
            }
            const auto use = [&](const VBComponent& vbc) {
                return WirdAusdruckInModulVerwendet(vbc, filters[vbc.Index()], target, 1, 1);
            };
            ASSERT_EQ(SweepProject(project, target, use), swept) << ToUtf8(target);
        }
    }
}

// More words end like the target than are asked one by one.
TEST(Index, AnswersForManyWordsThatEndAlike) {
    VBProject project(u"P");
    Text code;
    for (int i = 0; i < 20000; ++i) code += u"a" + ToText(i) + u"GoTo x\n";
    const CodeModule& cm = project.Add(u"A", 1, code).CodeModule();
    FindRange range{1, 0, -1, -1};
    int found = 0;
    while (cm.Find(u"GoTo ", range, {.matchCase = true})) {
        ASSERT_EQ(range.startLine, ++found);
        range = {range.startLine, range.startColumn + 1, -1, -1};
    }
    EXPECT_EQ(found, 20000);
}

// Slots of the index move when it grows, and a name that occurs in the very first module must still be found.
TEST(Index, HoldsManyWords) {
    VBProject project(u"P");
    Text code;
    for (int i = 0; i < 5000; ++i) code += u"w" + ToText(i) + u"\n";
    project.Add(u"A", 1, code);
    const VBComponent& b = project.Add(u"B", 1, u"w4999\n");
    const auto placesOf = [&](TextView word) {
        return project.Words().PlacesOf(project.Words().FindLeading(word).number);
    };
    EXPECT_EQ(placesOf(u"w0").size(), 1U);
    ASSERT_EQ(placesOf(u"w4999").size(), 2U);
    EXPECT_EQ(project.Words().ModuleOf(placesOf(u"w4999")[1]), b.Index());
    EXPECT_EQ(placesOf(u"w5000").size(), 0U);
}

}  // namespace
}  // namespace zentlor
