#pragma once

// The code panes that are open, one tab for each module.

#include <QTabWidget>
#include <functional>

#include "core/results/result_list.h"
#include "studio/code_view.h"
#include "studio/open_projects.h"
#include "studio/words.h"

namespace zentlor::studio {

class CodeTabs : public QTabWidget {
    Q_OBJECT

  public:
    CodeTabs(const Words& words, OpenProjects& projects, QWidget* parent = nullptr);

    /// Brings the component's code pane to the front, opening it if need be.
    CodeView& Show(const VBComponent& component);
    /// nullptr while no module is shown.
    CodeView* CurrentView() const;
    /// The component that it shows, or nullptr.
    const VBComponent* CurrentComponent() const;
    void CloseCurrent() { Close(currentIndex()); }
    /// Marks the lines of `hints`, which were found in `project`; nullptr takes all marks away.
    void SetHints(const ResultList* hints, const VBProject* project);
    void Zoom(int steps);
    void Retranslate();

  Q_SIGNALS:
    void ViewChanged();
    void CaretMoved();
    void ContextMenuWanted(const QPoint& globalPosition);

  private:
    // Projects may bear one name, as those of two new workbooks do: the component is what counts, and names and place
    // find it again when the projects were read anew.
    struct Pane {
        CodeView* view = nullptr;
        const VBComponent* shown = nullptr;
        std::size_t projectIndex = 0;
        Text project;
        Text component;
    };
    CodeView* Create(const VBComponent& component);
    void Close(int index);
    void FollowProjects();
    void Mark(const Pane& pane) const;
    const VBComponent* FindComponent(const Pane& pane) const;

    const Words& words_;
    OpenProjects& projects_;
    std::vector<Pane> panes_;  ///< in the order in which they were opened
    const ResultList* hints_ = nullptr;
    const VBProject* hintsProject_ = nullptr;
    int zoom_ = 0;
};

/// The picture of a component's kind.
QIcon ComponentIcon(int type);

}  // namespace zentlor::studio
