// The pane's states, its layout and what it does in the middle of a run.

#include <QHeaderView>
#include <QProgressBar>

#include "core/host/pane_layout.h"
#include "studio/twips.h"
#include "studio_fixture.h"

namespace zentlor::studio {

namespace {

class PaneTest : public StudioTest {
  protected:
    // What is to be seen, in the words of the table of states.
    std::string State() {
        const auto shown = [&](const QWidget& widget) { return widget.isVisibleTo(&Pane()); };
        std::string state;
        state += shown(Pane().List()) ? "list" + std::to_string(Pane().List().model()->rowCount() > 0) : "labels";
        state += shown(*Pane().findChild<QProgressBar*>()) ? " bar" : "";
        state += shown(*Pane().findChild<QLabel*>(QStringLiteral("panel1"))) ? " status" : "";
        state += Pane().Button(kStop)->isEnabled() ? " stop" : "";
        state += dynamic_cast<QtLanguageBox&>(Pane().Sprache()).isEnabled() ? " language" : "";
        return state;
    }
};

}  // namespace

TEST_F(PaneTest, StatesOfARun) {
    EXPECT_EQ(State(), "list0 bar language") << "at the start";
    ASSERT_TRUE(OpenExample());
    std::string running;
    AtYield(3, [&] { running = State(); });
    Click(kRefresh);
    EXPECT_EQ(running, "labels bar stop");
    EXPECT_EQ(State(), "list1 status language") << "at the end";
    EXPECT_TRUE(Pane().PanelText(2).startsWith(QStringLiteral("Dauer: 00:")));
    EXPECT_EQ(QApplication::focusWidget(), &Pane().List());
}

TEST_F(PaneTest, StopIsServedInTheMiddleOfARun) {
    ASSERT_TRUE(OpenExample());
    Click(kRefresh);
    const std::size_t all = Hints().Count();
    std::string stopped;
    QString panel;
    AtYield(100, [&] {
        Click(kStop);
        stopped = State();
        panel = Pane().PanelText(1);
    });
    Click(kRefresh);
    EXPECT_EQ(stopped, "labels status language");
    EXPECT_EQ(panel, QStringLiteral("Verarbeitung abgebrochen."));
    EXPECT_LT(Hints().Count(), all);
    EXPECT_EQ(Pane().List().model()->rowCount(), Hints().Count());
    EXPECT_TRUE(Pane().PanelText(1).startsWith(QString::number(Hints().Count())));
}

TEST_F(PaneTest, ASecondStartIsRefusedInAllWays) {
    ASSERT_TRUE(OpenExample());
    Click(kRefresh);
    const std::size_t all = Hints().Count();
    Window().SelectComponent(*studio_->Projects().Active()->project->VBComponents().front());
    AtYield(50, [&] {
        Click(kRefresh);
        Entries().projectWindow->actions().back()->trigger();
        Entries().addIns->actions().back()->trigger();
    });
    Click(kRefresh);
    EXPECT_EQ(boxes.size(), 2) << "the entry that only shows the pane says nothing";
    EXPECT_EQ(Hints().Count(), all) << "the first run lost nothing";
}

TEST_F(PaneTest, AProjectThatDoesNotCompileIsRefusedAndItsErrorsAreListed) {
    WriteModule(QStringLiteral("Kaputt.bas"), "Option Explicit\r\n\r\nSub A()\r\n    If x Then\r\nEnd Sub\r\n");
    ASSERT_TRUE(Open(folder_.path()));
    EXPECT_TRUE(Entries().compile->isEnabled());
    Click(kRefresh);
    EXPECT_EQ(State(), "list0 status language");
    ASSERT_EQ(boxes.size(), 1);
    const QString name = ToQString(studio_->Projects().Active()->project->Name());
    EXPECT_TRUE(boxes[0].contains(QStringLiteral("\"Kompilieren von %1\".").arg(name))) << boxes[0].toStdString();
    EXPECT_EQ(Entries().compile->text().remove(u'&'), QStringLiteral("Kompilieren von %1").arg(name));

    Entries().compile->trigger();
    QAbstractItemModel& errors = *Window().Errors().model();
    ASSERT_EQ(errors.rowCount(), 1);
    const int line = errors.index(0, 1).data().toInt();
    EXPECT_TRUE(Entries().compile->isEnabled()) << "as long as there are errors";
    QTest::keyClick(&Window().Errors(), Qt::Key_Return);
    ASSERT_NE(Window().Tabs().CurrentView(), nullptr);
    EXPECT_EQ(Window().Tabs().CurrentView()->CurrentLine(), line);

    WriteModule(QStringLiteral("Kaputt.bas"), "Option Explicit\r\n\r\nSub A()\r\nEnd Sub\r\n");
    ASSERT_TRUE(QTest::qWaitFor([&] { return studio_->Projects().Active()->errors.empty(); }, 10000));
    EXPECT_TRUE(Entries().compile->isEnabled()) << "the change was not compiled yet";
    Entries().compile->trigger();
    EXPECT_FALSE(Entries().compile->isEnabled());
    Click(kRefresh);
    EXPECT_EQ(State(), "list1 status language");
}

TEST_F(PaneTest, StandsByTheRulesOfItsLayoutAtAnySize) {
    PaneWidget pane((Words()));
    const Twips twips(pane);
    const double scrollBar = twips.FromPixels(pane.style()->pixelMetric(QStyle::PM_ScrollBarExtent));
    for (const QSize size : {QSize(537, 243), QSize(900, 400), QSize(300, 60)}) {
        pane.resize(size);
        pane.show();
        const PaneLayout layout =
            UserDocument_Resize(twips.FromPixels(size.width()), twips.FromPixels(size.height()), scrollBar);
        EXPECT_EQ(pane.List().geometry(), twips.ToPixels(layout.lvwErgebnis));
        EXPECT_EQ(pane.findChild<QProgressBar*>()->geometry(), twips.ToPixels(layout.pbFortschritt));
        for (int column = 0; column < 4; ++column) {
            const int expected = twips.ToPixels(layout.columns[static_cast<std::size_t>(column)]);
            EXPECT_EQ(pane.List().header()->sectionSize(column), std::max(expected, 10)) << column;
        }
        EXPECT_TRUE(pane.List().header()->isSectionHidden(4));
    }
}

TEST_F(PaneTest, EveryControlHasAName) {
    for (const QWidget* widget : Pane().findChildren<QWidget*>()) {
        if (widget->focusPolicy() == Qt::NoFocus || widget->parentWidget()->inherits("QAbstractScrollArea")) continue;
        EXPECT_FALSE(widget->accessibleName().isEmpty()) << widget->metaObject()->className();
    }
}

}  // namespace zentlor::studio
