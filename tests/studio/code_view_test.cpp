// The code pane: colours by tokens, text line for line, selection, marks.

#include "studio/code_view.h"
#include "studio_fixture.h"

namespace zentlor::studio {

namespace {

// Each stretch of a line as its colour's letter and its text.
std::string Coloured(TextView code, std::size_t line) {
    constexpr std::string_view kLetters = "pkcsnu";
    std::size_t start = 0;
    for (std::size_t i = 1; i < line; ++i) start = code.find(u'\n', start) + 1;
    std::string shown;
    const std::vector<std::vector<Stretch>> lines = ColourStretches(code);
    for (const Stretch& stretch : lines.at(line - 1)) {
        const TextView text =
            code.substr(start + static_cast<std::size_t>(stretch.start), static_cast<std::size_t>(stretch.length));
        shown += kLetters[static_cast<std::size_t>(stretch.colour)] + ("[" + ToUtf8(text) + "]");
    }
    return shown;
}

}  // namespace

TEST(Highlighter, ColoursByTheTokensOfTheWholeModule) {
    struct Row {
        const char* why;
        TextView code;
        std::size_t line;
        const char* expected;
    };
    const std::array rows = {
        Row{"keywords and a string", u"Dim a As Long: a = \"Dim\"", 1, "k[Dim]k[As]k[Long]s[\"Dim\"]"},
        Row{"a comment behind code", u"x = 1 ' If \"\n", 1, "n[1]c[' If \"]"},
        Row{"a comment that goes on in the next line", u"' eins _\nDim zwei\nDim x\n", 2, "c[Dim zwei]"},
        Row{"and ends there", u"' eins _\nDim zwei\nDim x\n", 3, "k[Dim]"},
        Row{"a statement that goes on", u"Dim a, _\n    b As Byte\n", 2, "k[As]k[Byte]"},
        Row{"behind empty lines", u"\n\n\nDim x _\n\n\nDim y\n", 7, "k[Dim]"},
        Row{"a member is no keyword", u"x.Print \"a\"\n", 1, "s[\"a\"]"},
        Row{"numbers of all kinds", u"x = &HFF + 1.5E3 + #1/31/2000#\n", 1, "n[&HFF]n[1.5E3]n[#1/31/2000#]"},
        Row{"a directive", u"#If VBA7 Then\n", 1, "k[#If]k[Then]"},
        Row{"umlauts count as one column", u"äöü = \"ß\"\n", 1, "s[\"ß\"]"},
    };
    for (const Row& row : rows) EXPECT_EQ(Coloured(row.code, row.line), row.expected) << row.why;
}

TEST(CodeView, HasTheLinesOfTheModule) {
    struct Row {
        const char* why;
        TextView code;
        int lines;
    };
    const std::array rows = {
        Row{"a last line end makes no line", u"a\nb\n", 2},
        Row{"no last line end", u"a\nb", 2},
        Row{"characters that end a line elsewhere", u"'a\r\u2028\u2029\ufdd0\ufdd1\u000b\u000c\u0085b\nc\n", 2},
        Row{"empty lines at the end count", u"a\n\n\n", 3},
    };
    for (const Row& row : rows) {
        CodeView view;
        view.SetCode(row.code);
        EXPECT_EQ(view.LineCount(), row.lines) << row.why;
        EXPECT_EQ(ShownCode(row.code).size() + (row.code.ends_with(u'\n') ? 1 : 0), row.code.size()) << row.why;
    }
}

TEST(CodeView, SelectsWholeLinesAndRefusesThoseThatAreNotThere) {
    CodeView view;
    view.SetCode(u"eins\nzwei\ndrei\n");
    EXPECT_TRUE(view.Select(2, 1, 2, 1024));
    EXPECT_EQ(view.textCursor().selectedText(), QStringLiteral("zwei"));
    EXPECT_EQ(view.CurrentLine(), 2);
    EXPECT_FALSE(view.Select(4, 1, 4, 1));
    EXPECT_FALSE(view.Select(0, 1, 0, 1));
    EXPECT_EQ(view.CurrentLine(), 2) << "a refusal moves nothing";
}

class CodePanes : public StudioTest {
  protected:
    const VBComponent& Component(TextView name) { return studio_->Projects().Active()->project->Item(name); }
};

TEST_F(CodePanes, FindGoesRoundAndCounts) {
    WriteModule(QStringLiteral("Suche.bas"), "Sub A()\r\n    wert = Wert + 1\r\nEnd Sub\r\n' wert\r\n");
    ASSERT_TRUE(Open(folder_.path()));
    CodeView& view = Window().Tabs().Show(Component(u"Suche"));
    Entries().find->trigger();
    auto* text = qobject_cast<QLineEdit*>(Window().focusWidget());
    ASSERT_NE(text, nullptr);
    text->setText(QStringLiteral("wert"));
    std::vector<int> places;
    for (int i = 0; i < 4; ++i) {
        Entries().findNext->trigger();
        places.push_back(view.textCursor().selectionStart());
    }
    EXPECT_EQ(places[0], places[3]) << "behind the last place comes the first";
    EXPECT_LT(places[0], places[1]);
    Entries().findPrevious->trigger();
    EXPECT_EQ(view.textCursor().selectionStart(), places[2]);
    QTest::keyClick(text, Qt::Key_Escape);
    EXPECT_FALSE(text->isVisible());
}

TEST_F(CodePanes, GoToLine) {
    ASSERT_TRUE(OpenExample());
    CodeView& view = Window().Tabs().Show(*studio_->Projects().Active()->project->VBComponents().front());
    inDialog = [](QDialog& dialog) {
        QTest::keyClicks(dialog.focusWidget(), QStringLiteral("7"));
        dialog.accept();
    };
    Entries().goToLine->trigger();
    EXPECT_EQ(view.CurrentLine() % 10, 7);
    EXPECT_EQ(Window().focusWidget(), &view);
}

TEST_F(CodePanes, OneTabForEachModule) {
    ASSERT_TRUE(OpenExample());
    const auto& components = studio_->Projects().Active()->project->VBComponents();
    CodeView& first = Window().Tabs().Show(*components[0]);
    Window().Tabs().Show(*components[1]);
    EXPECT_EQ(&Window().Tabs().Show(*components[0]), &first);
    EXPECT_EQ(Window().Tabs().count(), 2);
    Entries().closeTab->trigger();
    EXPECT_EQ(Window().Tabs().count(), 1);
}

}  // namespace zentlor::studio
