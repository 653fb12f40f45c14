#pragma once

// The view of the hints: rows are selected whole, Enter and double click lead to the code, Ctrl+C copies rows.

#include <QTreeView>

#include "studio/hint_model.h"

namespace zentlor::studio {

class HintList : public QTreeView {
    Q_OBJECT

  public:
    explicit HintList(QWidget* parent = nullptr);

    HintModel& Hints() { return hints_; }
    /// `key` is a sort key of the result list.
    void ShowSorting(int key, bool ascending);
    /// What stands in a list without rows.
    void SetEmptyText(const QString& text);
    /// The selected rows as text, in the list's order: one line a row, tabs between the visible columns.
    QString SelectedRowsText() const;

  public Q_SLOTS:
    /// Puts the selected rows on the clipboard. Named as the text widgets name it, for the menu's "Copy".
    void copy() const;

  Q_SIGNALS:
    /// A double click or Enter. `row` counts from 0; -1 without a selected row.
    void JumpWanted(int row);
    /// A click on a header, or Ctrl and the column's number; `column` counts from 1.
    void SortWanted(int column);

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    int SelectedRow() const;

    HintModel hints_;
    QString emptyText_;
};

}  // namespace zentlor::studio
