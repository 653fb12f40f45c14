#pragma once

// The open projects as a tree: projects, groups by type of component, components.

#include <QAbstractItemModel>

#include "studio/open_projects.h"
#include "studio/words.h"

namespace zentlor::studio {

class ProjectModel : public QAbstractItemModel {
    Q_OBJECT

  public:
    ProjectModel(const Words& words, const OpenProjects& projects);

    /// The languages' words or the projects have changed.
    void Refresh();

    /// The project that an index stands in; -1 for no index.
    int ProjectOf(const QModelIndex& index) const;
    /// nullptr for an index that is no component.
    const VBComponent* ComponentOf(const QModelIndex& index) const;
    QModelIndex IndexOf(const VBComponent& component) const;

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& child) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

  private:
    struct Node {
        int parent = -1;
        int row = 0;  ///< below its parent
        std::size_t project = 0;
        Word group{};                            ///< of a group
        const VBComponent* component = nullptr;  ///< of a component
        std::vector<int> children{};
    };
    int AddNode(int parent, Node node);
    void AddProject(std::size_t project);
    const Node& NodeOf(const QModelIndex& index) const { return nodes_[static_cast<std::size_t>(index.internalId())]; }
    QString ToolTip(const Node& node) const;

    const Words& words_;
    const OpenProjects& projects_;
    std::vector<Node> nodes_;
    std::vector<int> roots_;
};

}  // namespace zentlor::studio
