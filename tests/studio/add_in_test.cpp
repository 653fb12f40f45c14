// The add-in in the studio: loaded, unloaded, loaded again, with its entries and its tool window.

#include <QMenuBar>

#include "studio_fixture.h"

namespace zentlor::studio {

namespace {

const QString kGuid = QStringLiteral("{C67CE673-F07B-41e6-9D73-A2DC12E791CE}");

class AddInTest : public StudioTest {
  protected:
    QDockWidget* Dock() { return Window().findChild<QDockWidget*>(kGuid); }
    static int CountEntries(const QMenu& menu) {
        int count = 0;
        for (const QAction* entry : menu.actions()) count += entry->text().contains(QStringLiteral("Zentlor")) ? 1 : 0;
        return count;
    }
    static QAction* AddInEntry(const QMenu& menu) { return menu.actions().back(); }
    void ExpectEntries(int count) {
        for (const QMenu* menu : {Entries().addIns, Entries().codeWindow, Entries().projectWindow}) {
            EXPECT_EQ(CountEntries(*menu), count);
        }
    }
};

}  // namespace

TEST_F(AddInTest, IsUnloadedWithoutATraceAndLoadedAgain) {
    ASSERT_TRUE(OpenExample());
    for (int round = 0; round < 3; ++round) {
        ExpectEntries(1);
        ASSERT_NE(Dock(), nullptr);
        Click(kRefresh);
        EXPECT_GT(Hints().Count(), 0);
        studio_->Manager().Unload();
        EXPECT_EQ(Dock(), nullptr);
        EXPECT_EQ(studio_->AddIn().Results(), nullptr) << "the hints end with the pane";
        ExpectEntries(0);
        studio_->Manager().Load();
    }
    EXPECT_TRUE(Dock()->isHidden()) << "the window is shown by a menu entry";
    AddInEntry(*Entries().addIns)->trigger();
    EXPECT_FALSE(Dock()->isHidden());
    EXPECT_EQ(boxes, QStringList());
}

TEST_F(AddInTest, UnloadingStopsARunFirst) {
    ASSERT_TRUE(OpenExample());
    AtYield(20, [&] {
        studio_->Manager().Unload();
        EXPECT_TRUE(studio_->Manager().Loaded()) << "not under the run";
    });
    Click(kRefresh);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !studio_->Manager().Loaded(); }));
    EXPECT_EQ(Dock(), nullptr);
    EXPECT_EQ(boxes, QStringList());
}

TEST_F(AddInTest, LoadBehaviourDecidesAtTheNextStart) {
    inDialog = [](QDialog& dialog) {
        const auto ticks = dialog.findChildren<QCheckBox*>();
        ASSERT_EQ(ticks.size(), 2);
        for (QCheckBox* tick : ticks) tick->click();
        dialog.accept();
    };
    Entries().addInManager->trigger();
    EXPECT_FALSE(studio_->Manager().Loaded());
    Restart();
    EXPECT_FALSE(studio_->Manager().Loaded());
    inDialog = [](QDialog& dialog) {
        for (QCheckBox* tick : dialog.findChildren<QCheckBox*>()) tick->click();
        dialog.accept();
    };
    Entries().addInManager->trigger();
    EXPECT_TRUE(studio_->Manager().Loaded());
    Restart();
    EXPECT_TRUE(studio_->Manager().Loaded());
}

TEST_F(AddInTest, TheToolWindowKeepsItsPlace) {
    Window().addDockWidget(Qt::RightDockWidgetArea, Dock());
    ASSERT_EQ(Window().dockWidgetArea(Dock()), Qt::RightDockWidgetArea);
    studio_->Manager().Unload();
    studio_->Manager().Load();
    EXPECT_EQ(Window().dockWidgetArea(Dock()), Qt::RightDockWidgetArea) << "when it is loaded again";
    Dock()->show();
    Restart();
    EXPECT_EQ(Window().dockWidgetArea(Dock()), Qt::RightDockWidgetArea) << "when the program is started again";
    EXPECT_FALSE(Dock()->isHidden());
    Dock()->close();
    Restart();
    EXPECT_TRUE(Dock()->isHidden()) << "a closed window stays closed";
}

TEST_F(AddInTest, ShowingThePaneFromAMenuEmptiesTheList) {
    ASSERT_TRUE(OpenExample());
    Click(kRefresh);
    AddInEntry(*Entries().codeWindow)->trigger();
    EXPECT_EQ(Pane().List().model()->rowCount(), 0);
}

TEST_F(AddInTest, OneComponentIsCheckedFromTheProjectWindow) {
    ASSERT_TRUE(OpenExample());
    const VBComponent& marked = studio_->Projects().Active()->project->Item(u"mdl_Pruefziffern");
    Window().SelectComponent(marked);
    AddInEntry(*Entries().projectWindow)->trigger();
    ASSERT_GT(Hints().Count(), 0) << "the marker does not count for a component that is named";
    for (const Hint& hint : Hints().Emitted()) EXPECT_EQ(hint.strNameVBC, marked.Name());
    EXPECT_EQ(Pane().List().model()->rowCount(), Hints().Count());

    Window().Tree().setCurrentIndex(Window().Tree().model()->index(0, 0));
    AddInEntry(*Entries().projectWindow)->trigger();
    ASSERT_EQ(boxes.size(), 1) << "the project's own node is no component";
    EXPECT_TRUE(boxes[0].contains(QStringLiteral("EinModulPrüfen")));
}

}  // namespace zentlor::studio
