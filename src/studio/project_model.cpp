#include "studio/project_model.h"

#include <QFont>
#include <algorithm>
#include <array>

#include "studio/code_tabs.h"
#include "studio/icons.h"
#include "studio/qtext.h"

namespace zentlor::studio {

namespace {

struct Group {
    int type;
    Word word;
};

constexpr std::array kGroups = {Group{vbext_ct_Document, Word::Documents}, Group{vbext_ct_MSForm, Word::Forms},
                                Group{vbext_ct_StdModule, Word::Modules}, Group{vbext_ct_ClassModule, Word::Classes}};
constexpr int kNamedControls = 20;

}  // namespace

ProjectModel::ProjectModel(const Words& words, const OpenProjects& projects) : words_(words), projects_(projects) {
    connect(&projects, &OpenProjects::Replaced, this, [this] { Refresh(); });
    connect(&projects, &OpenProjects::ActiveChanged, this, [this] {
        if (!roots_.empty()) Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, 0), {Qt::FontRole});
    });
}

void ProjectModel::Refresh() {
    beginResetModel();
    nodes_.clear();
    roots_.clear();
    for (std::size_t project = 0; project < projects_.All().size(); ++project) AddProject(project);
    endResetModel();
}

int ProjectModel::AddNode(int parent, Node node) {
    const int number = static_cast<int>(nodes_.size());
    std::vector<int>& siblings = parent < 0 ? roots_ : nodes_[static_cast<std::size_t>(parent)].children;
    node.parent = parent;
    node.row = static_cast<int>(siblings.size());
    siblings.push_back(number);
    nodes_.push_back(std::move(node));
    return number;
}

void ProjectModel::AddProject(std::size_t project) {
    const int root = AddNode(-1, {.project = project});
    std::vector<const VBComponent*> sorted;
    for (const auto& component : projects_.All()[project].project->VBComponents()) sorted.push_back(component.get());
    std::stable_sort(sorted.begin(), sorted.end(),
                     [](const VBComponent* a, const VBComponent* b) { return CompareCells(a->Name(), b->Name()) < 0; });
    for (const Group& group : kGroups) {
        const auto ofGroup = [&](const VBComponent* component) { return component->Type() == group.type; };
        if (std::none_of(sorted.begin(), sorted.end(), ofGroup)) continue;
        const int parent = AddNode(root, {.project = project, .group = group.word});
        for (const VBComponent* component : sorted) {
            if (ofGroup(component)) AddNode(parent, {.project = project, .component = component});
        }
    }
}

int ProjectModel::ProjectOf(const QModelIndex& index) const {
    return index.isValid() ? static_cast<int>(NodeOf(index).project) : -1;
}

const VBComponent* ProjectModel::ComponentOf(const QModelIndex& index) const {
    return index.isValid() ? NodeOf(index).component : nullptr;
}

QModelIndex ProjectModel::IndexOf(const VBComponent& component) const {
    const auto found =
        std::find_if(nodes_.begin(), nodes_.end(), [&](const Node& node) { return node.component == &component; });
    if (found == nodes_.end()) return {};
    return createIndex(found->row, 0, static_cast<quintptr>(found - nodes_.begin()));
}

QModelIndex ProjectModel::index(int row, int column, const QModelIndex& parent) const {
    if (!hasIndex(row, column, parent)) return {};
    const std::vector<int>& siblings = parent.isValid() ? NodeOf(parent).children : roots_;
    return createIndex(row, column, static_cast<quintptr>(siblings[static_cast<std::size_t>(row)]));
}

QModelIndex ProjectModel::parent(const QModelIndex& child) const {
    if (!child.isValid() || NodeOf(child).parent < 0) return {};
    const int parent = NodeOf(child).parent;
    return createIndex(nodes_[static_cast<std::size_t>(parent)].row, 0, static_cast<quintptr>(parent));
}

int ProjectModel::rowCount(const QModelIndex& parent) const {
    if (parent.column() > 0) return 0;
    return static_cast<int>(parent.isValid() ? NodeOf(parent).children.size() : roots_.size());
}

int ProjectModel::columnCount(const QModelIndex&) const {
    return 1;
}

QVariant ProjectModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) return {};
    const Node& node = NodeOf(index);
    const bool isProject = node.parent < 0;
    if (role == Qt::DisplayRole) {
        if (isProject) return ToQString(projects_.All()[node.project].project->Name());
        return node.component != nullptr ? ToQString(node.component->Name()) : words_(node.group);
    }
    if (role == Qt::DecorationRole) {
        if (isProject) return StrokeIcon(QStringLiteral("project"));
        return node.component != nullptr ? ComponentIcon(node.component->Type()) : StrokeIcon(QStringLiteral("folder"));
    }
    if (role == Qt::FontRole && isProject && node.project == projects_.ActiveIndex()) {
        QFont bold;
        bold.setBold(true);
        return bold;
    }
    return role == Qt::ToolTipRole ? ToolTip(node) : QVariant();
}

QString ProjectModel::ToolTip(const Node& node) const {
    const workspace::OpenedProject& opened = projects_.All()[node.project];
    if (node.parent < 0) {
        QString text = QString::fromStdString(opened.document.path);
        if (opened.isDocument) text += u'\n' + words_.Of(opened.document.description);
        if (opened.document.locked) text += u'\n' + words_(Word::LockedProject);
        return text;
    }
    if (node.component == nullptr) return {};
    QString text = QString::fromStdString(opened.OriginOf(*node.component).path) + u'\n' +
                   words_.Counted(node.component->CodeModule().CountOfLines(), Word::OneLine, Word::ManyLines);
    for (const readers::FormLayout& layout : opened.document.layouts) {
        if (layout.ModuleName() != node.component->Name() || layout.controls.empty()) continue;
        QStringList names;
        for (const readers::FormControl& control : layout.controls) names << ToQString(control.name);
        const qsizetype more = names.size() - kNamedControls;
        text += u'\n' + words_(Word::Controls).arg(names.mid(0, kNamedControls).join(QStringLiteral(", ")));
        if (more > 0) text += words_(Word::MoreControls).arg(more);
    }
    return text;
}

}  // namespace zentlor::studio
