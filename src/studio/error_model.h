#pragma once

// The errors of the last compilation as a table: module, line, column, sentence.

#include <QAbstractTableModel>

#include "studio/open_projects.h"
#include "studio/words.h"

namespace zentlor::studio {

class ErrorModel : public QAbstractTableModel {
    Q_OBJECT

  public:
    ErrorModel(const Words& words, const OpenProjects& projects);

    /// Shows the errors of the active project.
    void ShowActive();
    /// The words have changed.
    void Retranslate();
    const workspace::CompileError& Error(int row) const;
    const VBComponent& Component(int row) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  private:
    void Clear();

    const Words& words_;
    const OpenProjects& projects_;
    const workspace::OpenedProject* shown_ = nullptr;
};

}  // namespace zentlor::studio
