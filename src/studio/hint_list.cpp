#include "studio/hint_list.h"

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <QStyledItemDelegate>
#include <algorithm>

namespace zentlor::studio {

namespace {

constexpr int kSortTextColumn = 4;
constexpr int kRowPadding = 5;

// Rows with some air between them.
class RowDelegate : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        return QStyledItemDelegate::sizeHint(option, index) + QSize(0, kRowPadding);
    }
};

}  // namespace

HintList::HintList(QWidget* parent) : QTreeView(parent) {
    setModel(&hints_);
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setAlternatingRowColors(true);
    setSelectionBehavior(SelectRows);
    setSelectionMode(ExtendedSelection);
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false);
    setItemDelegate(new RowDelegate(this));
    setHorizontalScrollMode(ScrollPerPixel);
    header()->setStretchLastSection(false);
    header()->setSectionsMovable(false);
    header()->setSectionsClickable(true);
    header()->setSortIndicatorShown(true);
    header()->setMinimumSectionSize(10);
    // Behind all else that is said of the columns, or the hidden one keeps its room.
    setColumnHidden(kSortTextColumn, true);
    connect(header(), &QHeaderView::sectionClicked, this, [this](int section) { Q_EMIT SortWanted(section + 1); });
}

void HintList::ShowSorting(int key, bool ascending) {
    const int column = std::min(key, kVisibleColumns - 1);
    header()->setSortIndicator(column, ascending ? Qt::AscendingOrder : Qt::DescendingOrder);
}

void HintList::SetEmptyText(const QString& text) {
    emptyText_ = text;
    viewport()->update();
}

int HintList::SelectedRow() const {
    const QModelIndex current = currentIndex();
    return current.isValid() && selectionModel()->isSelected(current) ? current.row() : -1;
}

QString HintList::SelectedRowsText() const {
    std::vector<int> rows;
    for (const QModelIndex& index : selectionModel()->selectedRows()) rows.push_back(index.row());
    std::sort(rows.begin(), rows.end());
    QString text;
    for (const int row : rows) {
        for (int column = 0; column < kVisibleColumns; ++column) {
            text += hints_.index(row, column).data().toString() + (column + 1 < kVisibleColumns ? u'\t' : u'\n');
        }
    }
    return text;
}

void HintList::copy() const {
    if (selectionModel()->hasSelection()) QApplication::clipboard()->setText(SelectedRowsText());
}

void HintList::keyPressEvent(QKeyEvent* event) {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    const int column = event->key() - Qt::Key_0;
    const bool sorts = event->modifiers() == Qt::ControlModifier && column >= 1 && column <= kVisibleColumns;
    if (event->matches(QKeySequence::Copy)) {
        copy();
    } else if (sorts) {
        Q_EMIT SortWanted(column);
    } else if (enter) {
        // Also the row that a list has for its current one when it gets the focus, although nobody selected it yet.
        if (currentIndex().isValid()) Q_EMIT JumpWanted(currentIndex().row());
    } else {
        QTreeView::keyPressEvent(event);
    }
}

void HintList::mouseDoubleClickEvent(QMouseEvent* event) {
    QTreeView::mouseDoubleClickEvent(event);
    if (event->button() == Qt::LeftButton) Q_EMIT JumpWanted(SelectedRow());
}

void HintList::paintEvent(QPaintEvent* event) {
    QTreeView::paintEvent(event);
    if (hints_.rowCount() > 0 || emptyText_.isEmpty()) return;
    QPainter painter(viewport());
    QColor quiet = palette().color(QPalette::Text);
    quiet.setAlpha(120);
    painter.setPen(quiet);
    painter.drawText(viewport()->rect(), Qt::AlignCenter | Qt::TextWordWrap, emptyText_);
}

}  // namespace zentlor::studio
