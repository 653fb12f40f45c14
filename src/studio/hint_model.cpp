#include "studio/hint_model.h"

#include "studio/qtext.h"

namespace zentlor::studio {

namespace {

constexpr int kLineColumn = 3;

}  // namespace

void HintModel::SetResults(const ResultList* results) {
    beginResetModel();
    results_ = results;
    shown_.clear();
    endResetModel();
}

void HintModel::Publish() {
    if (results_ == nullptr) return;
    const bool sameRows = shown_.size() == results_->Count() && !shown_.empty();
    if (sameRows) {
        Reorder();
        return;
    }
    beginResetModel();
    shown_ = results_->Order();
    endResetModel();
}

void HintModel::Reorder() {
    if (shown_ == results_->Order()) return;
    Q_EMIT layoutAboutToBeChanged({}, VerticalSortHint);
    std::vector<int> rowOfHint(shown_.size());
    const std::vector<std::uint32_t>& order = results_->Order();
    for (std::size_t row = 0; row < order.size(); ++row) rowOfHint[order[row]] = static_cast<int>(row);
    QModelIndexList moved;
    const QModelIndexList kept = persistentIndexList();
    for (const QModelIndex& index : kept) {
        const std::size_t hint = shown_[static_cast<std::size_t>(index.row())];
        moved << createIndex(rowOfHint[hint], index.column());
    }
    shown_ = order;
    changePersistentIndexList(kept, moved);
    Q_EMIT layoutChanged({}, VerticalSortHint);
}

void HintModel::SetHeader(int column, const QString& text) {
    headers_[static_cast<std::size_t>(column)] = text;
    Q_EMIT headerDataChanged(Qt::Horizontal, column, column);
}

int HintModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(shown_.size());
}

int HintModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : kHintColumns;
}

QVariant HintModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) return {};
    if (role == Qt::TextAlignmentRole) {
        const bool isNumber = index.column() >= kLineColumn;
        return QVariant::fromValue(Qt::AlignVCenter | (isNumber ? Qt::AlignRight : Qt::AlignLeft));
    }
    const bool wantsText = role == Qt::DisplayRole || (role == Qt::ToolTipRole && index.column() < kLineColumn);
    const std::size_t hint = shown_[static_cast<std::size_t>(index.row())];
    // The list may have lost its rows just now, with the view not yet told.
    if (!wantsText || hint >= results_->Count()) return {};
    return ToQString(CellText(results_->Emitted()[hint], index.column() + 1));
}

QVariant HintModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || section < 0 || section >= kHintColumns) return {};
    if (role == Qt::DisplayRole) return headers_[static_cast<std::size_t>(section)];
    if (role == Qt::ToolTipRole) return sortTip_.arg(section + 1);
    if (role == Qt::TextAlignmentRole) {
        return QVariant::fromValue(Qt::AlignVCenter | (section >= kLineColumn ? Qt::AlignRight : Qt::AlignLeft));
    }
    return {};
}

}  // namespace zentlor::studio
