#pragma once

// The studio in the place of the editor: what an add-in and a run ask of an editor, answered by the window and the open
// projects.

#include <map>

#include "core/host/editor_ui.h"
#include "core/host/host.h"
#include "studio/main_window.h"
#include "studio/platform.h"
#include "studio/settings.h"

namespace zentlor::studio {

/// Makes the surface and the object of a class that tool windows can hold. The surface outlives the tool window.
using PaneFactory = std::function<QWidget*(std::unique_ptr<PaneObject>& docObj)>;

class EditorHost : public Editor, public EditorUi {
  public:
    EditorHost(MainWindow& window, OpenProjects& projects, StudioSettings& settings, IdleQueue& idle)
        : window_(window), projects_(projects), settings_(settings), idle_(idle) {}

    void RegisterClass(TextView progId, PaneFactory factory) { classes_[Text(progId)] = std::move(factory); }

    VBProject* ActiveVBProject() override;
    Text Version() override { return u"7.1"; }
    Text RequireDeclaration(TextView version) override;
    bool CompileCommandEnabled() override { return projects_.NeedsCompiling(); }
    void ShowSelection(const VBComponent& component, int startLine, int startColumn, int endLine,
                       int endColumn) override;
    void ExecuteMenuEntry(int menu, int entry) override;

    CommandBar* CommandBars(TextView name) override { return window_.CommandBars().Find(name); }
    std::unique_ptr<zentlor::CommandBarEvents> CommandBarEvents(const std::shared_ptr<CommandBarControl>& control,
                                                                std::function<void()> click) override;
    std::unique_ptr<Window> CreateToolWindow(const AddInInstance& addInInst, TextView progId, TextView caption,
                                             TextView guidPosition, std::unique_ptr<PaneObject>& docObj) override;
    const VBComponent* SelectedVBComponent() override { return window_.SelectedComponent(); }
    void WhenIdle(std::function<void()> action) override { idle_.Add(std::move(action)); }

  private:
    MainWindow& window_;
    OpenProjects& projects_;
    StudioSettings& settings_;
    IdleQueue& idle_;
    std::map<Text, PaneFactory> classes_;
};

}  // namespace zentlor::studio
