// Opening and reloading: errors leave everything as it was, changes on disk are noticed, a run is asked for first.

#include <QDir>
#include <QMimeData>

#include "studio_fixture.h"

namespace zentlor::studio {

namespace {

class OpeningTest : public StudioTest {
  protected:
    const VBProject* Project() {
        const workspace::OpenedProject* active = studio_->Projects().Active();
        return active == nullptr ? nullptr : active->project.get();
    }
    // Until the studio has read the files again.
    bool WaitForOtherProject(const VBProject* before) {
        return QTest::qWaitFor([&] { return Project() != before; }, 10000);
    }
    Text FirstLine() { return Text(Project()->VBComponents().front()->CodeModule().Lines(1)); }
};

}  // namespace

TEST_F(OpeningTest, WhatCannotBeOpenedLeavesTheProjectAsItWas) {
    ASSERT_TRUE(OpenExample());
    Click(kRefresh);
    const VBProject* before = Project();
    const std::size_t hints = Hints().Count();
    QFile noise(folder_.filePath(QStringLiteral("brief.docm")));
    ASSERT_TRUE(noise.open(QIODevice::WriteOnly));
    noise.write("PK\x03\x04 no zip at all");
    noise.close();
    struct Row {
        const char* why;
        QString path;
    };
    const std::array rows = {Row{"a damaged document", noise.fileName()},
                             Row{"no such file", folder_.filePath(QStringLiteral("fehlt.accdb"))},
                             Row{"an empty folder", folder_.path()}};
    QFile::remove(folder_.filePath(QStringLiteral("settings.ini")));
    for (const Row& row : rows) {
        boxes.clear();
        Open(row.path);
        EXPECT_EQ(boxes.size(), 1) << row.why;
        EXPECT_TRUE(boxes.value(0).contains(QFileInfo(row.path).fileName())) << boxes.value(0).toStdString();
        EXPECT_EQ(Project(), before) << row.why;
        EXPECT_EQ(Hints().Count(), hints) << row.why;
    }
    EXPECT_EQ(studio_->Settings().RecentPaths().size(), 1) << "what did not open is no recent path";
}

TEST_F(OpeningTest, HintsGoWithTheCodeThatIsNoLongerOpen) {
    ASSERT_TRUE(OpenExample());
    Click(kRefresh);
    const std::size_t hints = Hints().Count();
    ASSERT_TRUE(OpenExample());
    EXPECT_EQ(Hints().Count(), hints) << "the same code, read again";
    WriteModule(QStringLiteral("Modul1.bas"), "Sub A()\r\nEnd Sub\r\n");
    ASSERT_TRUE(Open(folder_.path()));
    EXPECT_EQ(Pane().List().model()->rowCount(), 0) << "other code";
    Click(kRefresh);
    ASSERT_GT(Pane().List().model()->rowCount(), 0);
    Entries().closeProject->trigger();
    EXPECT_TRUE(QTest::qWaitFor([&] { return Pane().List().model()->rowCount() == 0; })) << "no code";
}

// Both projects bear the name of their folder, and both have a module of one name.
TEST_F(OpeningTest, AHintLeadsToItsOwnProjectWhicheverIsActive) {
    QStringList paths;
    for (const char* name : {"eins/VBAProject", "zwei/VBAProject"}) {
        paths << folder_.filePath(QString::fromLatin1(name));
        QDir().mkpath(paths.back());
        WriteModule(QString::fromLatin1(name) + QStringLiteral("/Modul1.bas"), "Sub A()\r\nEnd Sub\r\n");
    }
    bool done = false;
    QObject::connect(&studio_->Opening(), &Opening::Done, [&done] { done = true; });
    studio_->Opening().Open(paths);
    ASSERT_TRUE(QTest::qWaitFor([&] { return done && studio_->Projects().All().size() == 2; }));
    const auto component = [&](std::size_t project) -> const VBComponent& {
        return *studio_->Projects().All()[project].project->VBComponents().front();
    };
    Click(kRefresh);
    CodeView& other = Window().Tabs().Show(component(1));
    EXPECT_EQ(studio_->Projects().ActiveIndex(), 1U) << "the project of the code that is read";
    EXPECT_TRUE(other.Marks().empty());
    Pane().List().setCurrentIndex(Pane().List().model()->index(0, 0));
    QTest::keyClick(&Pane().List(), Qt::Key_Return);
    EXPECT_EQ(Window().SelectedComponent(), &component(0));
    EXPECT_FALSE(Window().Tabs().CurrentView()->Marks().empty());
}

TEST_F(OpeningTest, AChangeOnDiskIsReadAgain) {
    const QString file = WriteModule(QStringLiteral("Modul1.bas"), "' alt\r\nSub A()\r\nEnd Sub\r\n");
    ASSERT_TRUE(Open(folder_.path()));
    CodeView& view = Window().Tabs().Show(*Project()->VBComponents().front());
    view.Select(2, 1, 2, 1);

    const VBProject* before = Project();
    WriteModule(QStringLiteral("Modul1.bas"), "' neu\r\nSub A()\r\nEnd Sub\r\n");
    ASSERT_TRUE(WaitForOtherProject(before));
    EXPECT_EQ(FirstLine(), u"' neu");
    EXPECT_TRUE(view.toPlainText().startsWith(QStringLiteral("' neu")));
    EXPECT_EQ(view.CurrentLine(), 2) << "the reader stays where he was";

    before = Project();
    WriteModule(QStringLiteral("Modul2.bas"), "Sub B()\r\nEnd Sub\r\n");
    ASSERT_TRUE(WaitForOtherProject(before)) << "a new file in the folder";
    EXPECT_EQ(Project()->VBComponents().size(), 2);

    before = Project();
    const QString other = WriteModule(QStringLiteral("neu.tmp"), "' ersetzt\r\n");
    QFile::remove(file);
    ASSERT_TRUE(QFile::rename(other, file)) << "as editors save";
    ASSERT_TRUE(WaitForOtherProject(before));
    EXPECT_EQ(FirstLine(), u"' ersetzt");
}

TEST_F(OpeningTest, AChangeInTheMiddleOfTheReadingIsNotLost) {
    WriteModule(QStringLiteral("Modul1.bas"), "' alt\r\n");
    ASSERT_TRUE(Open(folder_.path()));
    // By the time the window hears of what was read, the file is a newer one.
    const VBProject* before = Project();
    bool written = false;
    QObject::connect(&studio_->Projects(), &OpenProjects::Replaced, &studio_->Projects(), [&] {
        if (!std::exchange(written, true)) WriteModule(QStringLiteral("Modul1.bas"), "' neu\r\n");
    });
    Entries().reload->trigger();
    ASSERT_TRUE(WaitForOtherProject(before));
    EXPECT_TRUE(QTest::qWaitFor([&] { return FirstLine() == u"' neu"; }, 10000));
}

TEST_F(OpeningTest, ARunIsNotTakenAwayUnasked) {
    for (int i = 0; i < 30; ++i) {
        WriteModule(QStringLiteral("Modul%1.bas").arg(i), "Sub A()\r\n    Stop\r\nEnd Sub\r\n");
    }
    ASSERT_TRUE(Open(folder_.path()));
    Click(kRefresh);
    const std::size_t all = Hints().Count();
    const VBProject* before = Project();
    const QString example = QStringLiteral(ZENTLOR_SOURCE_DIR "/examples/kunden");

    answer = QMessageBox::No;
    AtYield(40, [&] { studio_->Opening().Open({example}); });
    Click(kRefresh);
    EXPECT_EQ(boxes.size(), 1);
    EXPECT_EQ(Hints().Count(), all) << "the run goes on";
    EXPECT_EQ(Project(), before);

    answer = QMessageBox::Yes;
    AtYield(40, [&] { studio_->Opening().Open({example}); });
    Click(kRefresh);
    EXPECT_LT(Hints().Count(), all) << "the run was stopped";
    ASSERT_TRUE(WaitForOtherProject(before));
    EXPECT_EQ(Project()->Name(), u"kunden");
}

TEST_F(OpeningTest, ClosingTheWindowInTheMiddleOfARunWaitsForItsEnd) {
    ASSERT_TRUE(OpenExample());
    AtYield(40, [&] {
        Window().close();
        EXPECT_TRUE(Window().isVisible());
    });
    Click(kRefresh);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !Window().isVisible(); }));
}

TEST_F(OpeningTest, RecentPathsSurviveTheProgram) {
    ASSERT_TRUE(OpenExample());
    WriteModule(QStringLiteral("Modul1.bas"), "Sub A()\r\nEnd Sub\r\n");
    ASSERT_TRUE(Open(folder_.path()));
    Restart();
    const QStringList recent = studio_->Settings().RecentPaths();
    ASSERT_EQ(recent.size(), 2);
    EXPECT_EQ(recent[0], folder_.path());
    Entries().recent->actions().front()->trigger();
    ASSERT_TRUE(QTest::qWaitFor([&] { return Project() != nullptr; }));
    Entries().clearRecent->trigger();
    EXPECT_TRUE(studio_->Settings().RecentPaths().isEmpty());
}

TEST_F(OpeningTest, DroppedFilesAreOpened) {
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(WriteModule(QStringLiteral("Modul1.bas"), "Sub A()\r\nEnd Sub\r\n"))});
    QDropEvent drop(QPointF(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    // The application would look for the window under the pointer, and there is none.
    static_cast<QObject&>(Window()).event(&drop);
    ASSERT_TRUE(QTest::qWaitFor([&] { return Project() != nullptr; }));
    EXPECT_EQ(Project()->VBComponents().front()->Name(), u"Modul1");
}

}  // namespace zentlor::studio
