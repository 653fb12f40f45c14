// Tables of lines with the tokens they are made of, and what must hold for the tokens of any text at all.

#include "vba/tokenizer.h"

#include <gtest/gtest.h>

#include <random>
#include <tuple>

#include "core/utilities/encoding.h"
#include "printed_tokens.h"

namespace zentlor::test {
namespace {

using vba::Keyword;
using vba::Operator;
using vba::Token;
using vba::Tokenize;
using vba::TokenKind;
using vba::Tokens;

struct Row {
    const char* why;
    TextView code;
    const char* expected;
};

template <std::size_t count>
void Check(const Row (&rows)[count]) {
    for (const Row& row : rows) EXPECT_EQ(PrintedTokens(row.code), row.expected) << row.why;
}

TEST(Tokenizer, Words) {
    Check({
        {"keywords in any case", u"DIM x aS lOnG", "K:DIM N:x K:aS K:lOnG /"},
        {"letters outside of ASCII", u"Größe_2 = straße", "N:Größe_2 = N:straße /"},
        {"a letter of another code page", u"za\u009D = \u008Fle", "N:za\u009D = N:\u008Fle /"},
        {"full-width forms are their ASCII characters", u"Ｄｉｍ　ａ１（２）", "K:Ｄｉｍ N:ａ１ （ I:２ ） /"},
        {"a keyword in a longer word", u"Dimension EndIfx", "N:Dimension N:EndIfx /"},
        {"a reserved word is a member behind a dot", u"rs.Close: x!Next", "N:rs . M:Close : N:x ! M:Next /"},
        {"also across a continuation", u"rs. _\nClose", "N:rs . ~ M:Close /"},
        {"bracketed names", u"Me![A 'b].[c] = [_New]", "N:Me ! M:[A 'b] . M:[c] = N:[_New] /"},
        {"a bracket that stays open", u"a = [b", "N:a = U:[ N:b /"},
        {"an underscore begins no name", u"_a = 1", "U:_a = I:1 /"},
    });
}

TEST(Tokenizer, TypeCharacters) {
    Check({
        {"each of them", u"a%, b&, c!, d#, e@, f$",
         "N:a%{type} , N:b&{type} , N:c!{type} , N:d#{type} , N:e@{type} , "
         "N:f${type} /"},
        {"a function of the library", u"Left$(Mid$(s, 1), 2)", "N:Left${type} ( N:Mid${type} ( N:s , I:1 ) , I:2 ) /"},
        {"a mark in front of a name asks for a member", u"a!b!c", "N:a ! M:b ! M:c /"},
        {"an ampersand between operands joins them", u"a&b & c&\"d\"", "N:a & N:b & N:c & S:\"d\" /"},
        {"an ampersand behind a type character joins", u"a$&b", "N:a${type} & N:b /"},
        {"LongLong and power", u"a^ = b^2 + c^", "N:a^{type} = N:b ^ I:2 + N:c^{type} /"},
        {"a function of type LongLong", u"Function f^(x)", "K:Function N:f^{type} ( N:x ) /"},
        {"a keyword carries none", u"Print#1, x", "K:Print # I:1 , N:x /"},
        {"neither does Input in front of a file number", u"Line Input#1, x", "N:Line N:Input # I:1 , N:x /"},
    });
}

TEST(Tokenizer, Numbers) {
    Check({
        {"suffixes", u"1%, 2&, 3^, 4!, 5#, 6@", "I:1% , I:2& , I:3^ , I:4! , I:5# , I:6@ /"},
        {"floats", u"1.5 .5 1. 1E5 1.5d-3 2e+7#", "F:1.5 F:.5 F:1. F:1E5 F:1.5d-3 F:2e+7# /"},
        {"no exponent without digits", u"If a = 1Else", "K:If N:a = I:1 K:Else /"},
        {"bases", u"&HFF, &hff&, &O17, &17", "H:&HFF , H:&hff& , O:&O17 , O:&17 /"},
        {"a function behind the joining mark", u"s &Hex(x) &Oct(y)", "N:s & N:Hex ( N:x ) & N:Oct ( N:y ) /"},
        {"digits behind the joining mark of a string", u"\"a\"&1", "S:\"a\" & I:1 /"},
        {"a joining mark is no suffix in front of a string", u"1&\"a\"", "I:1 & S:\"a\" /"},
        {"a power is no suffix", u"2^3", "I:2 ^ I:3 /"},
        {"a member is no fraction", u"a(1).b", "N:a ( I:1 ) . M:b /"},
        {"a line number", u"10 x = 1", "I:10 N:x = I:1 /"},
    });
}

TEST(Tokenizer, DatesAndFileNumbers) {
    Check({
        {"dates", u"#1/31/2000# #5:00 PM# #Jan 1, 2000# #2000-01-31 10:00#",
         "D:#1/31/2000# D:#5:00 PM# D:#Jan 1, 2000# D:#2000-01-31 10:00# /"},
        {"file numbers", u"Close #1, #2, #3", "K:Close # I:1 , # I:2 , # I:3 /"},
        {"a type character ends no date", u"Print #1, a#", "K:Print # I:1 , N:a#{type} /"},
        {"a date behind a file number", u"Print #1, #1/2/2000#", "K:Print # I:1 , D:#1/2/2000# /"},
        {"a file's length", u"Open f For Random As #1 Len = n#",
         "K:Open N:f K:For N:Random K:As # I:1 N:Len = N:n#{type} /"},
        {"a word that belongs to no date", u"x = #foo bar#", "N:x = # N:foo N:bar#{type} /"},
    });
}

TEST(Tokenizer, Strings) {
    Check({
        {"doubled marks", u"\"a\"\"b\" \"\" \"\"\"\"", "S:\"a\"\"b\" S:\"\" S:\"\"\"\" /"},
        {"comment marks inside", u"x = \"it's\"", "N:x = S:\"it's\" /"},
        {"an open string ends with its line", u"x = \"a _\ny", "N:x = S:\"a _{open} / N:y /"},
        {"an open string behind a doubled mark", u"\"\"\"", "S:\"\"\"{open} /"},
    });
}

TEST(Tokenizer, CommentsAndLines) {
    Check({
        {"to the line's end", u"x 'a: b\ny", "N:x C:'a: b / N:y /"},
        {"Rem", u"Rem a\nrem\nRemark: Rem b", "C:Rem a / C:rem / N:Remark : C:Rem b /"},
        {"continued", u"'a _\n  b _\nc\nd", "C:'a  ~ C:  b  ~ C:c / N:d /"},
        {"a name's underscore continues no comment", u"' a_\nb", "C:' a_ / N:b /"},
        {"a continuation needs no text", u"x = _\n _\n1", "N:x = ~ ~ I:1 /"},
        {"blanks behind the mark", u"x = _  \n1", "N:x = ~ I:1 /"},
        {"a continuation at the end", u"x = _", "N:x = ~ /"},
        {"empty lines", u"\n\n a\n", "/ N:a /"},
        {"no line at all", u"", ""},
        {"a foreign line end is a blank", u"a\r\nb\r\n", "N:a / N:b /"},
    });
}

TEST(Tokenizer, OperatorsAndDirectives) {
    Check({
        {"pairs", u"a <= b >= c <> d := e", "N:a <= N:b >= N:c <> N:d := N:e /"},
        {"pairs the other way round", u"a =< b => c >< d", "N:a =< N:b => N:c >< N:d /"},
        {"pairs with a blank", u"a < = b", "N:a < = N:b /"},
        {"single ones", u"a+b-c*d/e\\f=g<h>i", "N:a + N:b - N:c * N:d / N:e \\ N:f = N:g < N:h > N:i /"},
        {"directives", u"#If VBA7 Then\n # elseif x Then\n#Else\n#End If\n#Const a = 1",
         "X:#If N:VBA7 K:Then / X:# elseif N:x K:Then / X:#Else / X:#End K:If / X:#Const N:a = I:1 /"},
        {"a directive begins a line", u"x #If", "N:x # K:If /"},
        {"characters without a use", u"a = {b} ~ “c”", "N:a = U:{ N:b U:} U:~ U:“ N:c U:” /"},
    });
    const Text blanks = u"a < = b > < c";
    const Tokens tokens = Tokenize(blanks);
    EXPECT_EQ(tokens[1].op(), Operator::LessEqual);
    EXPECT_EQ(tokens[3].op(), Operator::NotEqual);
}

TEST(Tokenizer, KnowsEveryKeywordInAnyCase) {
    for (std::size_t id = 1; id <= vba::kKeywordCount; ++id) {
        const auto keyword = static_cast<Keyword>(id);
        Text word(vba::Spelling(keyword));
        EXPECT_EQ(vba::FindKeyword(word), keyword) << ToUtf8(word);
        for (char16_t& c : word) c = c >= u'a' && c <= u'z' ? static_cast<char16_t>(c - 32) : c;
        EXPECT_EQ(vba::FindKeyword(word), keyword) << ToUtf8(word);
        EXPECT_EQ(vba::FindKeyword(word + u"x"), Keyword::None) << ToUtf8(word);
    }
    for (TextView word : {u"", u"a", u"D@m", u"Do_", u"EndIff", u"ParamArrayAndMore"}) {
        EXPECT_EQ(vba::FindKeyword(word), Keyword::None) << ToUtf8(word);
    }
}

bool IsBlank(char16_t c) {
    return c == u' ' || c == u'\t' || c == u'　' || c == u'\r';
}

// The project's words give the same tokens as the text alone, and a word keeps its number.
void CheckNumbers(TextView code, WordTable& words, vba::Tokenizer& tokenizer) {
    Tokens numbered;
    tokenizer.Read(code, words.Read(code), numbered);
    const Tokens plain = Tokenize(code);
    ASSERT_EQ(numbered.size(), plain.size()) << ToUtf8(code);
    for (std::size_t i = 0; i < plain.size(); ++i) {
        const Token& token = numbered[i];
        ASSERT_EQ(std::tie(token.offset, token.length, token.kind, token.flags, token.id),
                  std::tie(plain[i].offset, plain[i].length, plain[i].kind, plain[i].flags, plain[i].id))
            << ToUtf8(code);
        const bool hasNumber = token.word != kNoWord;
        ASSERT_EQ(token.word, hasNumber ? words.Find(vba::NameOf(token, code)) : kNoWord) << ToUtf8(code);
    }
}

// The tokens lie in order and apart, nothing but blanks lies between them, and each line feed ends one token.
void CheckCover(TextView code) {
    const Tokens tokens = Tokenize(code);
    std::size_t place = 0;
    std::size_t lines = 0;
    for (const Token& token : tokens) {
        for (; place < token.offset; ++place) ASSERT_TRUE(IsBlank(code[place])) << ToUtf8(code) << " at " << place;
        ASSERT_EQ(place, token.offset) << ToUtf8(code);
        place = token.End();
        const bool mayEndLine = token.kind == TokenKind::EndOfLine || token.kind == TokenKind::Continuation;
        const bool endsLine = mayEndLine && token.length > 0 && code[place - 1] == u'\n';
        ASSERT_EQ(vba::TextOf(token, code).find(u'\n') != TextView::npos, endsLine) << ToUtf8(code);
        if (endsLine) lines += token.kind == TokenKind::EndOfLine ? token.length : 1;
    }
    EXPECT_EQ(place, code.size());
    EXPECT_EQ(lines, static_cast<std::size_t>(std::count(code.begin(), code.end(), u'\n')));
    EXPECT_EQ(tokens.back().kind, TokenKind::EndOfText);
}

TEST(Tokenizer, CoversAnyText) {
    const TextView characters = u"aZ_0919\"'#&.!:=<>()[]$%@^+-*/\\,;?{ \t\n_\n ÄＡ１　“";
    std::mt19937 random(7);
    for (int round = 0; round < 4000; ++round) {
        Text code;
        for (std::size_t length = random() % 60; length > 0; --length) code += characters[random() % characters.size()];
        CheckCover(code);
    }
}

TEST(Tokenizer, TakesTheWordsOfTheProject) {
    const TextView pieces[] = {u"a",
                               u"dim",
                               u"Dim",
                               u"Rem",
                               u"Left$",
                               u"einRechtLangerName",
                               u"einRechtLangerName2",
                               u"sechzehnZeichen1",
                               u"Müller",
                               u"é",
                               u"Ａ",
                               u"_",
                               u"12",
                               u"x",
                               u" ",
                               u"\n",
                               u".",
                               u"\"",
                               u"'",
                               u"[",
                               u"]",
                               u"#",
                               u"&H"};
    WordTable words;
    vba::Tokenizer tokenizer;
    std::mt19937 random(5);
    for (int round = 0; round < 4000; ++round) {
        Text code;
        for (std::size_t count = random() % 20; count > 0; --count) code += pieces[random() % std::size(pieces)];
        CheckNumbers(code, words, tokenizer);
    }
}

// Each of these would take minutes if any part of the line were read again and again.
TEST(Tokenizer, IsLinear) {
    const std::size_t size = 1'000'000;
    for (TextView piece :
         {u"a", u"#", u"#1", u"& ", u"^ ", u"_ ", u"[", u"\"\"", u"(", u": ", u"< ", u"' _\n", u"1E", u"a. "}) {
        Text code;
        while (code.size() < size) code += piece;
        CheckCover(code);
    }
}

}  // namespace
}  // namespace zentlor::test
