// The item models keep the rules of Qt's model tester while rows come, go and change their order.

#include <QAbstractItemModelTester>
#include <QItemSelectionModel>

#include "studio_fixture.h"

namespace zentlor::studio {

namespace {

Hint MakeHint(const char16_t* module, int line) {
    return {module, u"Laden", u"Text", line, CheckId::CmdVergessenerBefehlStop};
}

}  // namespace

TEST(HintModel, ShowsTheRowsOfTheLastPublish) {
    ResultList results;
    HintModel model;
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    model.SetResults(&results);
    model.Publish();
    results.Add(MakeHint(u"b", 10));
    results.Add(MakeHint(u"a", 9));
    EXPECT_EQ(model.rowCount(), 0) << "nothing before the list comes back";
    model.Publish();
    ASSERT_EQ(model.rowCount(), 2);
    EXPECT_EQ(model.index(0, 0).data().toString(), QStringLiteral("a"));
    EXPECT_EQ(model.index(1, 4).data().toString(), QStringLiteral("   10"));
    results.Clear();
    EXPECT_TRUE(model.index(0, 0).data().toString().isEmpty()) << "rows that are gone already have no text";
    model.Publish();
    EXPECT_EQ(model.rowCount(), 0);
    results.Add(MakeHint(u"c", 1));
    model.Publish();
    model.SetResults(nullptr);
    EXPECT_EQ(model.rowCount(), 0);
}

TEST(HintModel, SelectionGoesWithItsRowsWhenTheyAreSorted) {
    ResultList results;
    for (const int line : {30, 7, 200, 1}) results.Add(MakeHint(u"m", line));
    HintModel model;
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    model.SetResults(&results);
    model.Publish();
    QItemSelectionModel selection(&model);
    selection.select(model.index(1, 0), QItemSelectionModel::Select | QItemSelectionModel::Rows);
    const auto selectedLine = [&] { return selection.selectedRows(3).value(0).data().toInt(); };
    ASSERT_EQ(selectedLine(), 7);
    for (int click = 0; click < 3; ++click) {
        results.lvwErgebnis_ColumnClick(4);
        model.Publish();
        EXPECT_EQ(selectedLine(), 7);
        EXPECT_EQ(selection.selectedRows().size(), 1);
        EXPECT_EQ(model.index(0, 3).data().toInt(), click % 2 == 0 ? 1 : 200);
    }
}

TEST(HintModel, HundredThousandRowsCanBeReached) {
    ResultList results;
    const Text modules = u"ABCDEFGH";
    for (int i = 0; i < 100000; ++i) {
        results.Add({Text(1, modules[static_cast<std::size_t>(i) % 8]), u"p", u"h", i * 7919 % 60000, CheckId{}});
    }
    HintList list;
    list.Hints().SetResults(&results);
    list.resize(700, 400);
    list.show();
    list.Hints().Publish();
    EXPECT_EQ(list.Hints().rowCount(), 100000);
    list.scrollToBottom();
    QApplication::processEvents();
    const QRect last = list.visualRect(list.Hints().index(99999, 0));
    EXPECT_TRUE(list.viewport()->rect().contains(last.center())) << "the last row cannot be reached";
}

class ModelsTest : public StudioTest {};

TEST_F(ModelsTest, TreeAndErrorsFollowTheOpenProjects) {
    const QAbstractItemModelTester tree(Window().Tree().model(), QAbstractItemModelTester::FailureReportingMode::Fatal);
    const QAbstractItemModelTester errors(Window().Errors().model(),
                                          QAbstractItemModelTester::FailureReportingMode::Fatal);
    ASSERT_TRUE(OpenExample());
    ASSERT_EQ(Window().Tree().model()->rowCount(), 1);
    const auto& components = studio_->Projects().Active()->project->VBComponents();
    int shown = 0;
    const QModelIndex project = Window().Tree().model()->index(0, 0);
    for (int group = 0; group < Window().Tree().model()->rowCount(project); ++group) {
        shown += Window().Tree().model()->rowCount(Window().Tree().model()->index(group, 0, project));
    }
    EXPECT_EQ(shown, components.size()) << "every component stands in a group";
    for (const auto& component : components) {
        Window().SelectComponent(*component);
        EXPECT_EQ(Window().SelectedComponent(), component.get());
    }
    WriteModule(QStringLiteral("Kaputt.bas"), "Sub A()\r\n    If x Then\r\nEnd Sub\r\n");
    ASSERT_TRUE(Open(folder_.path()));
    EXPECT_EQ(Window().SelectedComponent(), nullptr);
    Entries().compile->trigger();
    EXPECT_GT(Window().Errors().model()->rowCount(), 0);
    Entries().closeProject->trigger();
    ASSERT_TRUE(QTest::qWaitFor([&] { return studio_->Projects().Empty(); }));
    EXPECT_EQ(Window().Tree().model()->rowCount(), 0);
    EXPECT_EQ(Window().Errors().model()->rowCount(), 0);
}

}  // namespace zentlor::studio
