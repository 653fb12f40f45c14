#include "studio/open_projects.h"

namespace zentlor::studio {

void OpenProjects::Take(workspace::Workspace&& workspace, Reading reading) {
    const Text activeName = Active() == nullptr ? Text() : Active()->project->Name();
    // The old projects live until everybody has let go of them.
    const workspace::Workspace old = std::exchange(workspace_, std::move(workspace));
    compiled_.clear();
    active_ = 0;
    for (std::size_t i = 0; i < All().size(); ++i) {
        compiled_.push_back(reading == Reading::Opened && All()[i].errors.empty());
        if (All()[i].project->Name() == activeName) active_ = i;
    }
    Q_EMIT Replaced();
    Q_EMIT ActiveChanged();
}

void OpenProjects::Close() {
    Take({}, Reading::Opened);
}

const workspace::OpenedProject* OpenProjects::Active() const {
    return active_ < All().size() ? &All()[active_] : nullptr;
}

void OpenProjects::SetActive(std::size_t index) {
    if (index == active_ || index >= All().size() || pinned()) return;
    active_ = index;
    Q_EMIT ActiveChanged();
}

bool OpenProjects::NeedsCompiling() const {
    return Active() != nullptr && !compiled_[active_];
}

bool OpenProjects::Compile() {
    if (Active() == nullptr) return true;
    compiled_[active_] = Active()->errors.empty();
    Q_EMIT ActiveChanged();
    return compiled_[active_];
}

}  // namespace zentlor::studio
