// Menus, command bars and the words of the studio.

#include <QMap>
#include <QMenuBar>

#include "studio_fixture.h"

namespace zentlor::studio {

namespace {

QChar AccessKey(const QString& caption) {
    const qsizetype at = caption.indexOf(u'&');
    return at < 0 || at + 1 == caption.size() ? QChar() : caption[at + 1].toUpper();
}

}  // namespace

TEST(Words, BothLanguagesFillInTheSameValues) {
    Words german, english;
    english.SetLanguage(2);
    for (int i = 0; i <= static_cast<int>(Word::UsagePath); ++i) {
        const Word word = static_cast<Word>(i);
        EXPECT_NE(german(word), QString()) << i;
        for (const char* mark : {"%1", "%2"}) {
            EXPECT_EQ(german(word).contains(QLatin1String(mark)), english(word).contains(QLatin1String(mark)))
                << german(word).toStdString();
        }
    }
}

TEST(Words, NumbersAreWrittenInTheLanguage) {
    Words words;
    const auto lines = [&words](int number) {
        return words.Counted(number, Word::OneLine, Word::ManyLines).toStdString();
    };
    EXPECT_EQ(lines(0) + ", " + lines(1) + ", " + lines(3708), "0 Zeilen, 1 Zeile, 3.708 Zeilen");
    words.SetLanguage(2);
    EXPECT_EQ(lines(0) + ", " + lines(1) + ", " + lines(3708), "0 lines, 1 line, 3,708 lines");
}

class MenusTest : public StudioTest {
  protected:
    // The captions in which one key may stand only once.
    void ExpectDifferentKeys(const QStringList& captions, const char* where) {
        QMap<QChar, QString> taken;
        for (const QString& caption : captions) {
            const QChar key = AccessKey(caption);
            if (key.isNull()) continue;
            EXPECT_FALSE(taken.contains(key))
                << where << ": " << taken[key].toStdString() << " and " << caption.toStdString();
            taken[key] = caption;
        }
    }
    void ExpectDifferentKeysEverywhere() {
        QStringList window;
        for (QAction* title : Window().menuBar()->actions()) {
            window << title->text();
            QStringList entries;
            for (QAction* entry : title->menu()->actions()) entries << entry->text();
            ExpectDifferentKeys(entries, qPrintable(title->text()));
        }
        for (const QAbstractButton* button : Window().findChildren<QAbstractButton*>()) {
            if (button->isVisibleTo(&Window())) window << button->text();
        }
        EXPECT_GT(window.size(), 8 + 6) << "the buttons were not found";
        ExpectDifferentKeys(window, "menu bar and window");
    }
};

TEST_F(MenusTest, NoAccessKeyStandsTwice) {
    ASSERT_EQ(Pane().window(), &Window()) << "a pane that floats has keys of its own";
    for (const bool opened : {false, true}) {
        if (opened) {
            ASSERT_TRUE(OpenExample());
            Entries().find->trigger();
        }
        for (const int language : {1, 2}) {
            PickLanguage(language);
            ExpectDifferentKeysEverywhere();
        }
    }
}

TEST_F(MenusTest, TheEditorsOptionsAreEntryThreeOfMenuSeven) {
    EXPECT_EQ(Entries().Entry(7, 3), Entries().options);
    EXPECT_EQ(Entries().Entry(7, 4), nullptr);
    EXPECT_EQ(Entries().Entry(9, 1), nullptr);
}

TEST_F(MenusTest, TheHintAboutTheSettingLeadsToTheEditorsOptions) {
    ASSERT_TRUE(OpenExample());
    studio_->Settings().SetRequireDeclaration(false);
    Click(kRefresh);
    ASSERT_EQ(Pane().List().model()->index(0, 0).data().toString(), QStringLiteral("Allgemein"));
    Pane().List().setCurrentIndex(Pane().List().model()->index(0, 0));
    inDialog = [](QDialog& dialog) {
        dialog.findChild<QCheckBox*>()->click();
        dialog.accept();
    };
    QTest::keyClick(&Pane().List(), Qt::Key_Return);
    EXPECT_EQ(studio_->Settings().RequireDeclaration(), u"1");
    Click(kRefresh);
    EXPECT_NE(Pane().List().model()->index(0, 0).data().toString(), QStringLiteral("Allgemein"));
}

TEST(CommandBars, ControlsComeAndGo) {
    QMenu menu;
    menu.addAction(QStringLiteral("own"));
    CommandBarSet bars;
    bars.Add(u"Add-Ins", menu);
    EXPECT_EQ(bars.Find(u"add-ins"), nullptr) << "names are literal";
    CommandBar* bar = bars.Find(u"Add-Ins");
    ASSERT_NE(bar, nullptr);
    const auto control = bar->Add(msoControlButton, true);
    control->SetCaption(u"&Zentlor");
    control->SetBeginGroup(true);
    ASSERT_EQ(menu.actions().size(), 3);
    EXPECT_TRUE(menu.actions()[1]->isSeparator());

    int clicks = 0;
    auto events = CommandBarSet::Events(control, [&] { ++clicks; });
    menu.actions()[2]->trigger();
    EXPECT_EQ(clicks, 1);
    events.reset();
    menu.actions()[2]->trigger();
    EXPECT_EQ(clicks, 1) << "no click without its source";

    control->Delete();
    EXPECT_EQ(menu.actions().size(), 1) << "the separator goes with its control";
    EXPECT_TRUE(bar->Controls().empty());
    EXPECT_THROW(control->Caption(), RuntimeError);
    EXPECT_THROW(CommandBarSet::Events(control, [] {}), RuntimeError);
    EXPECT_THROW(CommandBarSet::Events(nullptr, [] {}), RuntimeError);
}

}  // namespace zentlor::studio
