// One user's way through the program, from the opened example to an export in another language.

#include <QHeaderView>
#include <QScrollBar>

#include "core/options/option_store.h"
#include "studio/options_dialog.h"
#include "studio_fixture.h"

namespace zentlor::studio {

namespace {

class ClickThrough : public StudioTest {
  protected:
    HintList& List() { return Pane().List(); }
    QString Cell(int row, int column) { return List().model()->index(row, column).data().toString(); }

    void ClickHeader(int column) {
        QHeaderView& header = *List().header();
        const QPoint at(header.sectionViewportPosition(column) + 5, header.height() / 2);
        QTest::mouseClick(header.viewport(), Qt::LeftButton, {}, at);
    }

    void DoubleClickRow(int row) {
        const QModelIndex index = List().model()->index(row, 0);
        List().scrollTo(index);
        const QPoint at = List().visualRect(index).center();
        QTest::mouseClick(List().viewport(), Qt::LeftButton, {}, at);
        QTest::mouseDClick(List().viewport(), Qt::LeftButton, {}, at);
    }

    // The hint's module is in front, with the hint's line selected.
    void ExpectJumpFrom(int row) {
        const int line = std::max(Cell(row, 3).toInt(), 1);
        CodeView* view = Window().Tabs().CurrentView();
        ASSERT_NE(view, nullptr);
        EXPECT_EQ(Window().Tabs().tabText(Window().Tabs().currentIndex()), Cell(row, 0));
        EXPECT_EQ(view->CurrentLine(), line);
        const VBComponent& component = studio_->Projects().Active()->project->Item(FromQString(Cell(row, 0)));
        EXPECT_EQ(view->textCursor().selectedText(), ToQString(component.CodeModule().Lines(line)));
        EXPECT_TRUE(view->Marks().contains(line)) << "the margin marks the hint";
        EXPECT_EQ(Window().SelectedComponent(), &component) << "the project window follows";
    }
};

}  // namespace

TEST_F(ClickThrough, FromRefreshToAnEnglishExport) {
    ASSERT_TRUE(OpenExample());
    Click(kRefresh);
    const int germanRows = List().model()->rowCount();
    ASSERT_GT(germanRows, 10);
    EXPECT_EQ(germanRows, Hints().Count());
    EXPECT_TRUE(Pane().PanelText(1).startsWith(QString::number(germanRows) + QStringLiteral(" Hinweise in ")));

    QApplication::processEvents();
    EXPECT_EQ(List().horizontalScrollBar()->maximum(), 0) << "all columns have room";
    QTest::keyClick(&List(), Qt::Key_Return);
    ExpectJumpFrom(0);
    ClickHeader(3);
    for (int row = 1; row < germanRows; ++row) ASSERT_LE(Cell(row - 1, 3).toInt(), Cell(row, 3).toInt());
    EXPECT_EQ(List().header()->sortIndicatorSection(), 3);
    DoubleClickRow(germanRows / 2);
    ExpectJumpFrom(germanRows / 2);

    List().setCurrentIndex(List().model()->index(germanRows - 1, 0));
    QTest::keyClick(&List(), Qt::Key_Return);
    ExpectJumpFrom(germanRows - 1);

    PickLanguage(2);
    ASSERT_TRUE(QTest::qWaitFor([&] { return boxes.size() == 1; }));
    EXPECT_TRUE(boxes[0].startsWith(QStringLiteral("There may be some translation bugs")));
    EXPECT_EQ(List().model()->rowCount(), 0) << "a change of language empties the list";
    EXPECT_EQ(Entries().tools->title(), QStringLiteral("&Tools")) << "the studio follows";

    Click(kRefresh);
    ASSERT_EQ(List().model()->rowCount(), germanRows);
    EXPECT_TRUE(Pane().PanelText(1).contains(QStringLiteral(" hints in "))) << Pane().PanelText(1).toStdString();
    QTest::keyClick(&List(), Qt::Key_4, Qt::ControlModifier);
    EXPECT_EQ(List().header()->sortIndicatorOrder(), Qt::DescendingOrder) << "the second sort by line";
    const QString file = folder_.filePath(QStringLiteral("hints.csv"));
    inDialog = [&](QDialog& dialog) {
        auto* name = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        ASSERT_NE(name, nullptr);
        name->setText(file);
        QTest::keyClick(name, Qt::Key_Return);
    };
    Click(kExport);
    QFile exported(file);
    ASSERT_TRUE(exported.open(QIODevice::ReadOnly));
    const QStringList lines = QString::fromLatin1(exported.readAll()).split(QStringLiteral("\r\n"));
    ASSERT_EQ(lines.size(), germanRows + 2) << "a header, the rows, and what follows the last line end";
    EXPECT_EQ(lines[0], QStringLiteral("Module;Procedure;Hint;Line"));
    EXPECT_TRUE(lines[1].startsWith(Cell(0, 0) + u';')) << "the order of the list";
    EXPECT_TRUE(lines[germanRows].endsWith(u';' + Cell(germanRows - 1, 3)));
}

TEST_F(ClickThrough, AnOptionThatIsSwitchedOffGivesNoHints) {
    ASSERT_TRUE(OpenExample());
    Click(kRefresh);
    const auto hintsOf = [&](CheckId id) {
        return std::count_if(Hints().Emitted().begin(), Hints().Emitted().end(),
                             [id](const Hint& hint) { return hint.check == id; });
    };
    const std::size_t before = Hints().Count();
    const auto gone = static_cast<std::size_t>(hintsOf(CheckId::ProcFehlerbehandlungFehlt));
    ASSERT_GT(gone, 0);
    inDialog = [&](QDialog& dialog) {
        auto& options = dynamic_cast<OptionsDialog&>(dialog);
        EXPECT_FALSE(options.Apply().isEnabled());
        options.Tabs().setCurrentIndex(1);
        options.Box(CheckId::ProcFehlerbehandlungFehlt).click();
        EXPECT_TRUE(options.Apply().isEnabled());
        QTest::mouseClick(&options.Ok(), Qt::LeftButton);
    };
    Click(kOptionen);
    EXPECT_EQ(Hints().Count(), before) << "closing the dialog changes no hint";
    Click(kRefresh);
    EXPECT_EQ(Hints().Count(), before - gone);
    EXPECT_EQ(hintsOf(CheckId::ProcFehlerbehandlungFehlt), 0);
    Restart();
    EXPECT_EQ(studio_->Settings().GetSetting(kApplication, kSection, u"ProcFehlerbehandlungFehlt"), u"0");
}

TEST_F(ClickThrough, CopiedRowsStandInTheOrderOfTheList) {
    ASSERT_TRUE(OpenExample());
    Click(kRefresh);
    const auto select = [&](int row) {
        List().selectionModel()->select(List().model()->index(row, 0),
                                        QItemSelectionModel::Select | QItemSelectionModel::Rows);
    };
    List().clearSelection();
    select(4);
    select(1);
    const QStringList lines = List().SelectedRowsText().split(u'\n');
    ASSERT_EQ(lines.size(), 3);
    EXPECT_EQ(lines[0], QStringList({Cell(1, 0), Cell(1, 1), Cell(1, 2), Cell(1, 3)}).join(u'\t'));
    EXPECT_TRUE(lines[1].startsWith(Cell(4, 0) + u'\t'));
    const QString copied = List().SelectedRowsText();
    ClickHeader(0);
    EXPECT_NE(List().SelectedRowsText(), copied) << "the list is the other way round";
    ClickHeader(0);
    EXPECT_EQ(List().SelectedRowsText(), copied) << "the selection stays with its rows";
}

}  // namespace zentlor::studio
