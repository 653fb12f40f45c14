#pragma once

// The editor's user interface as the add-in sees it: command bars with their controls, tool windows, the selection in
// the project window. Failures of these operations are thrown as RuntimeError.

#include <functional>
#include <memory>
#include <vector>

#include "core/utilities/text.h"

namespace zentlor {

class VBComponent;

/// A menu entry or a button. A deleted control stays a valid object, and its operations throw.
class CommandBarControl {
  public:
    virtual ~CommandBarControl() = default;
    virtual Text Caption() const = 0;
    virtual void SetCaption(TextView caption) = 0;
    virtual void SetFaceId(int faceId) = 0;           ///< a built-in picture
    virtual void SetBeginGroup(bool beginGroup) = 0;  ///< a separator in front of the control
    /// Removes the control from its bar.
    virtual void Delete() = 0;
};

/// The control type of a button.
inline constexpr int msoControlButton = 1;

class CommandBar {
  public:
    virtual ~CommandBar() = default;
    /// The controls of the moment, in their order on the bar.
    virtual std::vector<std::shared_ptr<CommandBarControl>> Controls() = 0;
    /// A new control at the end of the bar. A temporary one is not kept by the editor.
    virtual std::shared_ptr<CommandBarControl> Add(int type, bool temporary) = 0;
};

/// The click source of one control: the click arrives for as long as this object lives.
class CommandBarEvents {
  public:
    virtual ~CommandBarEvents() = default;
};

/// A tool window. The editor keeps its place and size under the window's GUID.
class Window {
  public:
    virtual ~Window() = default;
    virtual void SetVisible(bool visible) = 0;
};

/// The members of the pane object that the add-in calls through its reference to it.
class PaneObject {
  public:
    virtual ~PaneObject() = default;
    virtual void OberflächeZurücksetzen() = 0;
    /// `vbc` nullptr, nothing selected, gives the failure report.
    virtual void EinModulPrüfen(const VBComponent* vbc) = 0;
    virtual bool IstCodeKompiliert() = 0;
    /// An operation of the pane is on the stack: a run, or a dialog that it has opened. The object must not go now.
    virtual bool Busy() const = 0;
    /// Lets a run that is under way end at its next yield point.
    virtual void StopRun() = 0;
};

/// What the add-in manager hands to an add-in, and the add-in to CreateToolWindow.
struct AddInInstance {
    Text progId;
};

/// The editor.
class EditorUi {
  public:
    virtual ~EditorUi() = default;
    /// The command bar of that literal name, or nullptr.
    virtual CommandBar* CommandBars(TextView name) = 0;
    /// Throws for no control.
    virtual std::unique_ptr<zentlor::CommandBarEvents> CommandBarEvents(
        const std::shared_ptr<CommandBarControl>& control, std::function<void()> click) = 0;
    /// Creates a dockable tool window, hidden unless the editor restores it by itself, with a new instance of the class
    /// `progId` in it; `docObj` receives that instance, initialised.
    virtual std::unique_ptr<Window> CreateToolWindow(const AddInInstance& addInInst, TextView progId, TextView caption,
                                                     TextView guidPosition, std::unique_ptr<PaneObject>& docObj) = 0;
    /// The component selected in the project window, or nullptr.
    virtual const VBComponent* SelectedVBComponent() = 0;
    /// Runs `action` once, later, from the outermost event loop: not inside of DoEvents, nor while a modal dialog is
    /// open.
    virtual void WhenIdle(std::function<void()> action) = 0;
};

}  // namespace zentlor
