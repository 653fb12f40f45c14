#include "studio/editor_host.h"

#include <QAction>

#include "studio/qtext.h"

namespace zentlor::studio {

namespace {

// The failure of an object that cannot be created.
RuntimeError CannotCreateObject() {
    return {429, "ActiveX component can't create object"};
}

class ToolWindow : public Window {
  public:
    ToolWindow(MainWindow& window, QDockWidget& dock) : window_(window), dock_(dock) {}
    ~ToolWindow() override { window_.RemoveToolWindow(&dock_); }
    ToolWindow(const ToolWindow&) = delete;
    ToolWindow& operator=(const ToolWindow&) = delete;

    void SetVisible(bool visible) override {
        dock_.setVisible(visible);
        if (visible) dock_.raise();
    }

  private:
    MainWindow& window_;
    QDockWidget& dock_;
};

}  // namespace

VBProject* EditorHost::ActiveVBProject() {
    return projects_.Active() == nullptr ? nullptr : projects_.Active()->project.get();
}

// The setting is one for all versions.
Text EditorHost::RequireDeclaration(TextView) {
    return settings_.RequireDeclaration();
}

void EditorHost::ShowSelection(const VBComponent& component, int startLine, int startColumn, int endLine,
                               int endColumn) {
    CodeView& view = window_.Tabs().Show(component);
    if (!view.Select(startLine, startColumn, endLine, endColumn)) throw SubscriptOutOfRange();
    view.setFocus();
}

void EditorHost::ExecuteMenuEntry(int menu, int entry) {
    QAction* action = window_.Menus().Entry(menu, entry);
    if (action == nullptr) throw SubscriptOutOfRange();
    action->trigger();
}

std::unique_ptr<zentlor::CommandBarEvents> EditorHost::CommandBarEvents(
    const std::shared_ptr<CommandBarControl>& control, std::function<void()> click) {
    return CommandBarSet::Events(control, std::move(click));
}

std::unique_ptr<Window> EditorHost::CreateToolWindow(const AddInInstance&, TextView progId, TextView caption,
                                                     TextView guidPosition, std::unique_ptr<PaneObject>& docObj) {
    const auto factory = classes_.find(Text(progId));
    if (factory == classes_.end()) throw CannotCreateObject();
    QWidget* surface = factory->second(docObj);
    QDockWidget* dock = window_.AddToolWindow(ToQString(guidPosition), ToQString(caption), surface);
    return std::make_unique<ToolWindow>(window_, *dock);
}

}  // namespace zentlor::studio
