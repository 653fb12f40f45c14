// The dialogs of the add-in as windows: options, about box, help.

#include "core/host/pane_layout.h"
#include "studio/about_dialog.h"
#include "studio/options_dialog.h"
#include "studio_fixture.h"

namespace zentlor::studio {

class DialogsTest : public StudioTest {};

TEST_F(DialogsTest, OptionsShowEveryCaptionWhole) {
    for (const int language : {1, 2}) {
        PickLanguage(language);
        inDialog = [](QDialog& dialog) {
            auto& options = dynamic_cast<OptionsDialog&>(dialog);
            for (const CheckInfo& check : kCatalogue) {
                const QCheckBox& box = options.Box(check.id);
                EXPECT_GE(box.width(), box.sizeHint().width()) << ToUtf8(check.key);
                EXPECT_TRUE(box.parentWidget()->rect().contains(box.geometry())) << ToUtf8(check.key);
            }
            for (const CheckGroup group : {CheckGroup::Module, CheckGroup::Procedures, CheckGroup::Commands}) {
                for (int box = 2; box <= CountOf(group); ++box) {
                    EXPECT_FALSE(options.Box(CheckOfBox(group, box))
                                     .geometry()
                                     .intersects(options.Box(CheckOfBox(group, box - 1)).geometry()));
                }
            }
            dialog.reject();
        };
        Click(kOptionen);
    }
}

TEST_F(DialogsTest, OptionsFollowTheirButtons) {
    inDialog = [this](QDialog& dialog) {
        auto& options = dynamic_cast<OptionsDialog&>(dialog);
        QTest::mouseClick(&options.AlleAn(CheckGroup::Module), Qt::LeftButton);
        EXPECT_FALSE(options.Apply().isEnabled()) << "all were on";
        QTest::mouseClick(&options.AlleAus(CheckGroup::Module), Qt::LeftButton);
        EXPECT_TRUE(options.Apply().isEnabled());
        EXPECT_FALSE(options.Box(CheckId::ModLeer).isChecked());
        EXPECT_TRUE(options.Box(CheckId::ProcLeer).isChecked()) << "the other tabs stay";
        QTest::mouseClick(&options.Apply(), Qt::LeftButton);
        EXPECT_FALSE(options.Apply().isEnabled());
        options.Box(CheckId::ProcLeer).click();
        QTest::keyClick(&dialog, Qt::Key_Escape);
    };
    Click(kOptionen);
    inDialog = [](QDialog& dialog) {
        auto& options = dynamic_cast<OptionsDialog&>(dialog);
        EXPECT_FALSE(options.Box(CheckId::ModLeer).isChecked()) << "what was applied stays";
        EXPECT_TRUE(options.Box(CheckId::ProcLeer).isChecked()) << "what was cancelled does not";
        dialog.reject();
    };
    Click(kOptionen);
}

TEST_F(DialogsTest, OptionsExplainTheBoxUnderThePointerAndInFocus) {
    inDialog = [](QDialog& dialog) {
        auto& options = dynamic_cast<OptionsDialog&>(dialog);
        const QString general = options.ExplanationText();
        MovePointer(options.Box(CheckId::ModLeer), QPoint(5, 5));
        const QString first = options.ExplanationText();
        // Only the active window gives the focus away, and it becomes active in its own time.
        dialog.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
        options.Box(CheckId::ModDeklarationAsAny).setFocus();
        const QString second = options.ExplanationText();
        // Beside an absent file every box has the general text.
        if (QFile::exists(DataFolder() + QStringLiteral("/Erlaeuterungen.xml"))) {
            EXPECT_NE(first, general);
            EXPECT_NE(second, first);
            EXPECT_TRUE(second.contains(QStringLiteral("As Any")));
        } else {
            EXPECT_EQ(first, general);
        }
        dialog.reject();
    };
    Click(kOptionen);
}

TEST_F(DialogsTest, TheLinkOfTheAboutBoxReactsToThePointer) {
    inDialog = [](QDialog& dialog) {
        auto* link = dialog.findChild<QLineEdit*>();
        ASSERT_NE(link, nullptr);
        EXPECT_TRUE(link->isReadOnly());
        EXPECT_EQ(link->focusPolicy(), Qt::NoFocus);
        EXPECT_EQ(link->cursor().shape(), Qt::PointingHandCursor);
        const QColor normal = link->palette().color(QPalette::Text);
        EXPECT_EQ(normal, QColor(0, 0, 255));
        MovePointer(*link, QPoint(3, 3));
        EXPECT_EQ(link->palette().color(QPalette::Text), QColor(255, 0, 0));
        EXPECT_TRUE(link->font().underline());
        EXPECT_EQ(QWidget::mouseGrabber(), link);
        MovePointer(*link, QPoint(3, link->height() + 20));
        EXPECT_EQ(link->palette().color(QPalette::Text), normal);
        EXPECT_FALSE(link->font().underline());
        EXPECT_EQ(QWidget::mouseGrabber(), nullptr);
        QTest::keyClick(&dialog, Qt::Key_Return);
    };
    Click(kInfo);
}

class HelpTest : public testing::Test {
  protected:
    void Write(const QString& name, const QByteArray& html) {
        QFile file(folder_.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(html);
    }
    QTemporaryDir folder_;
    Words words_;
};

TEST_F(HelpTest, ContentsAreThePagesInTheOrderOfTheFirstOne) {
    Write(
        QStringLiteral("index.html"),
        "<html><head><title>Hilfe</title></head><body><a href=\"b.html\">Zwei &amp; drei</a> <a href=\"a.html#x\">Eins"
        "</a> <a href=\"b.html\">noch einmal</a> <a href=\"https://example.org/c.html\">fremd</a></body></html>");
    Write(QStringLiteral("a.html"), "<h1>Eins</h1><p>Größe und <b>Farbe</b></p>");
    Write(QStringLiteral("b.html"), "<h1>Zwei</h1><p>Farbe</p>");
    const std::vector<HelpPage> pages = ReadHelp(folder_.path());
    ASSERT_EQ(pages.size(), 3);
    EXPECT_EQ(pages[0].title, QStringLiteral("Hilfe"));
    EXPECT_EQ(pages[1].file, QStringLiteral("b.html"));
    EXPECT_EQ(pages[1].title, QStringLiteral("Zwei & drei"));
    EXPECT_EQ(pages[2].file, QStringLiteral("a.html"));

    HelpWindow help(words_, nullptr);
    help.ShowHelp(folder_.path());
    struct Row {
        const char* why;
        QString words;
        QStringList hits;
    };
    const std::array rows = {Row{"in any case", QStringLiteral("FARBE"), {"Zwei & drei", "Eins"}},
                             Row{"all words count, in any order", QStringLiteral("farbe größe"), {"Eins"}},
                             Row{"markup is no text", QStringLiteral("h1"), {"Keine Seite enthält diese Wörter."}},
                             Row{"blanks alone find nothing", QStringLiteral("  "), {}}};
    for (const Row& row : rows) {
        help.Search(row.words);
        QStringList hits;
        for (int i = 0; i < help.Hits().count(); ++i) hits << help.Hits().item(i)->text();
        EXPECT_EQ(hits, row.hits) << row.why;
    }
    help.Contents().setCurrentRow(2);
    EXPECT_TRUE(help.Browser().toPlainText().contains(QStringLiteral("Größe")));
}

TEST_F(HelpTest, AMissingHelpIsSaid) {
    HelpWindow help(words_, nullptr);
    help.ShowHelp(folder_.filePath(QStringLiteral("zentlor.chm")));
    EXPECT_TRUE(help.Browser().toPlainText().contains(folder_.filePath(QStringLiteral("zentlor.chm"))));
    EXPECT_EQ(help.Contents().count(), 0);
}

}  // namespace zentlor::studio
