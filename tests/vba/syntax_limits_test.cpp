// Texts that nobody writes: the check must neither run out of stack nor take more than linear time.

#include <gtest/gtest.h>

#include <algorithm>

#include "core/utilities/encoding.h"
#include "vba/syntax.h"
#include "vba/syntax_report.h"
#include "vba/tokenizer.h"

namespace zentlor::test {
namespace {

Text Repeat(TextView piece, int count) {
    Text text;
    text.reserve(piece.size() * static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) text += piece;
    return text;
}

std::size_t ErrorsOfBody(const Text& statements) {
    const Text code = u"Sub Test()\n" + statements + u"\nEnd Sub\n";
    return vba::CheckSyntax(code, vba::Tokenize(code)).size();
}

TEST(SyntaxLimits, DeepNestingIsNoFaultAndNeedsNoStack) {
    constexpr int kDepth = 200000;
    const Text open = Repeat(u"(", kDepth);
    const Text close = Repeat(u")", kDepth);
    EXPECT_EQ(ErrorsOfBody(u"x = " + open + u"1" + close), 0u);
    EXPECT_EQ(ErrorsOfBody(u"x = f" + open + u"1" + close), 0u);
    EXPECT_EQ(ErrorsOfBody(u"x = " + Repeat(u"f(", kDepth) + u"1" + close), 0u);
    EXPECT_EQ(ErrorsOfBody(u"x = " + Repeat(u"Not -", kDepth) + u"1"), 0u);
    EXPECT_EQ(ErrorsOfBody(u"x = " + open + u"1"), 1u);
    EXPECT_EQ(ErrorsOfBody(Repeat(u"If x Then ", kDepth) + u"y"), 0u);
    EXPECT_EQ(ErrorsOfBody(Repeat(u"Do\n", 50000) + Repeat(u"Loop\n", 50000)), 0u);
    const Text directive = u"#If " + open + u"1" + close + u" Then\n#End If\n";
    EXPECT_EQ(SyntaxReport(directive), "");
    EXPECT_EQ(SyntaxReport(Repeat(u"#If VBA7 Then\n", 30000) + Repeat(u"#End If\n", 30000)), "");
}

TEST(SyntaxLimits, LongLinesAndLongModulesAreRead) {
    EXPECT_EQ(ErrorsOfBody(u"x = 1" + Repeat(u" + 1", 250000)), 0u);
    EXPECT_EQ(ErrorsOfBody(u"x = \"" + Repeat(u"a", 1000000) + u"\""), 0u);
    EXPECT_EQ(ErrorsOfBody(Repeat(u":", 10000) + u"x = 1" + Repeat(u": x = 2", 10000)), 0u);
    EXPECT_EQ(ErrorsOfBody(Repeat(u"x = x + 1\n", 65000)), 0u);
    EXPECT_EQ(ErrorsOfBody(u"x = 1 + " + Repeat(u"_\n", 50000) + u"2"), 0u);
}

// The second module of a project holds words that the first one had already.
TEST(SyntaxLimits, NamesHaveAtMost255CharactersInEveryModule) {
    struct Row {
        Text statement;
        std::size_t errors;
    };
    const Row rows[] = {
        {Repeat(u"n", 255) + u" = 1", 0},         {Repeat(u"n", 256) + u" = 1", 1},
        {Repeat(u"n", 255) + u"$ = x", 0},        {u"x." + Repeat(u"n", 256) + u" = 1", 1},
        {u"[" + Repeat(u"n", 300) + u"] = 1", 0}, {u"x = \"" + Repeat(u"n", 300) + u"\" '" + Repeat(u"n", 300), 0},
    };
    WordTable words;
    vba::Tokenizer tokenizer;
    vba::Tokens tokens;
    for (int module = 0; module < 2; ++module) {
        for (const Row& row : rows) {
            const Text code = u"Sub Test()\n" + row.statement + u"\nEnd Sub\n";
            tokenizer.Read(code, words.Read(code), tokens);
            EXPECT_EQ(vba::CheckSyntax(code, tokens).size(), row.errors) << module << ": " << ToUtf8(row.statement);
        }
    }
}

TEST(SyntaxLimits, ErrorsAreCountedUpToALimit) {
    EXPECT_EQ(ErrorsOfBody(Repeat(u"x = 1 2\n", 5000)), vba::kMaximumSyntaxErrors);
    EXPECT_EQ(ErrorsOfBody(Repeat(u"GoTo Nirgends\n", 5000)), vba::kMaximumSyntaxErrors);
    EXPECT_EQ(ErrorsOfBody(Repeat(u"End If\n", 5000)), vba::kMaximumSyntaxErrors);
}

// Errors on every line, and names and labels without end: what takes the square of the text here does not come back
// before the runner's patience ends.
TEST(SyntaxLimits, FaultyTextWithoutEndIsReadToItsEnd) {
    EXPECT_EQ(ErrorsOfBody(Repeat(u"For i = 1 To 2\nEnd If\nNext j\nL: GoTo M\nDim a, b\n", 40000)),
              vba::kMaximumSyntaxErrors);
}

}  // namespace
}  // namespace zentlor::test
