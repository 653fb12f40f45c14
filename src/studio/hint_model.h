#pragma once

// The pane's list as a table over the session's result list. The rows that the view knows are those of the last
// Publish: hints that arrive during a run, with the list hidden, cost the view nothing.

#include <QAbstractTableModel>
#include <array>

#include "core/results/result_list.h"

namespace zentlor::studio {

/// Columns of the list; the fifth, which is never shown, holds the sort texts.
inline constexpr int kHintColumns = 5;

class HintModel : public QAbstractTableModel {
    Q_OBJECT

  public:
    /// nullptr: no rows. `results` outlives the model or the next call.
    void SetResults(const ResultList* results);
    /// Takes the list's rows and their order into the view. Rows that stay keep their selection.
    void Publish();
    /// `column` counts from 0.
    void SetHeader(int column, const QString& text);
    /// The tool tip of the headers; %1 stands for the column, counted from 1.
    void SetSortTip(const QString& text) { sortTip_ = text; }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  private:
    void Reorder();

    const ResultList* results_ = nullptr;
    std::vector<std::uint32_t> shown_;  ///< for each row of the view its hint in order of emission
    std::array<QString, kHintColumns> headers_;
    QString sortTip_;
};

}  // namespace zentlor::studio
