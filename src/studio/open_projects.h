#pragma once

// The projects that are open, which one of them is active, and whether each is compiled.

#include <QObject>
#include <functional>

#include "workspace/workspace.h"

namespace zentlor::studio {

/// What becomes of the compiled state when files are read.
enum class Reading {
    Opened,   ///< what was checked while it was read counts as compiled
    Changed,  ///< the user's change has to be compiled first
};

class OpenProjects : public QObject {
    Q_OBJECT

  public:
    /// Takes the place of everything that was open. The project of the old active one's name stays the active one.
    void Take(workspace::Workspace&& workspace, Reading reading);
    void Close();

    const std::vector<workspace::OpenedProject>& All() const { return workspace_.projects; }
    bool Empty() const { return workspace_.projects.empty(); }
    /// nullptr while nothing is open.
    const workspace::OpenedProject* Active() const;
    std::size_t ActiveIndex() const { return active_; }
    /// Ignored while the active project is pinned.
    void SetActive(std::size_t index);
    /// While pinned, as during a run, the active project stays.
    std::function<bool()> pinned = [] { return false; };

    /// The active project holds errors or was not compiled since it changed.
    bool NeedsCompiling() const;
    /// Compiles the active project; its errors are those that were found while it was read. False if there are any.
    bool Compile();

  Q_SIGNALS:
    /// Other projects are open than before; what pointed into the old ones points nowhere.
    void Replaced();
    void ActiveChanged();

  private:
    workspace::Workspace workspace_;
    std::vector<bool> compiled_;
    std::size_t active_ = 0;
};

}  // namespace zentlor::studio
