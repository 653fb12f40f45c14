#include "studio/error_model.h"

#include <array>

#include "studio/icons.h"
#include "studio/qtext.h"

namespace zentlor::studio {

namespace {

constexpr std::array kHeaders = {Word::ErrorModule, Word::ErrorLine, Word::ErrorColumn, Word::ErrorText};

}  // namespace

ErrorModel::ErrorModel(const Words& words, const OpenProjects& projects) : words_(words), projects_(projects) {
    connect(&projects, &OpenProjects::Replaced, this, [this] { Clear(); });
}

void ErrorModel::ShowActive() {
    beginResetModel();
    shown_ = projects_.Active();
    endResetModel();
}

void ErrorModel::Clear() {
    beginResetModel();
    shown_ = nullptr;
    endResetModel();
}

void ErrorModel::Retranslate() {
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
    if (rowCount() > 0) Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
}

const workspace::CompileError& ErrorModel::Error(int row) const {
    return shown_->errors[static_cast<std::size_t>(row)];
}

const VBComponent& ErrorModel::Component(int row) const {
    return *shown_->project->VBComponents()[Error(row).component];
}

int ErrorModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() || shown_ == nullptr ? 0 : static_cast<int>(shown_->errors.size());
}

int ErrorModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(kHeaders.size());
}

QVariant ErrorModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) return {};
    const vba::SyntaxError& error = Error(index.row()).error;
    if (role == Qt::DecorationRole && index.column() == 0) return StrokeIcon(QStringLiteral("error"));
    if (role == Qt::ToolTipRole) return words_.Of(error.Words());
    if (role != Qt::DisplayRole) return {};
    switch (index.column()) {
        case 0:
            return ToQString(Component(index.row()).Name());
        case 1:
            return error.line;
        case 2:
            return error.column;
        default:
            return words_.Of(error.Words());
    }
}

QVariant ErrorModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
    return words_(kHeaders[static_cast<std::size_t>(section)]);
}

}  // namespace zentlor::studio
