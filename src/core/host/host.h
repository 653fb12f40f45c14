#pragma once

// The world as the add-in sees it. Everything that a run asks of the editor, of the pane's window or of the platform is
// one of these abstract classes; one Host bundles them and goes to one Session. A program brings its own, a test brings
// one that writes down what it was asked.

#include <cstdint>
#include <optional>

#include "core/utilities/text.h"

namespace zentlor {

class VBComponent;
class VBProject;

/// The part of the editor that a run and a jump need.
class Editor {
  public:
    virtual ~Editor() = default;
    /// The project under analysis, or nullptr while none is open. Read anew wherever it is needed; it does not change
    /// during a run.
    virtual VBProject* ActiveVBProject() = 0;
    /// Version text whose first three characters name the VBA version.
    virtual Text Version() = 0;
    /// The text of the editor's setting "RequireDeclaration" for a VBA version ("6.0"); empty if it cannot be read.
    virtual Text RequireDeclaration(TextView version) = 0;
    /// `Enabled` of the menu command that compiles the project (id 578): True while the project holds code that is not
    /// compiled. Throws RuntimeError if the command cannot be found.
    virtual bool CompileCommandEnabled() = 0;
    /// Brings the component's code pane to the front and selects the text between the positions. Throws RuntimeError if
    /// the place does not exist.
    virtual void ShowSelection(const VBComponent& component, int startLine, int startColumn, int endLine,
                               int endColumn) = 0;
    /// Executes entry `entry` of menu `menu` of the active menu bar, both counted from 1.
    virtual void ExecuteMenuEntry(int menu, int entry) = 0;
};

enum class BoxIcon { None, Critical, Exclamation };

/// Modal message boxes with the one button OK.
class MessageBoxes {
  public:
    virtual ~MessageBoxes() = default;
    /// `title` empty: the application's default title.
    virtual void Show(TextView text, BoxIcon icon, TextView title = {}) = 0;
};

/// The per-user settings store.
class SettingsStore {
  public:
    virtual ~SettingsStore() = default;
    /// The stored text, or the empty text for a key that does not exist. Never fails on a missing key.
    virtual Text GetSetting(TextView application, TextView section, TextView key) = 0;
    virtual void SaveSetting(TextView application, TextView section, TextView key, TextView value) = 0;
};

class EventPump {
  public:
    virtual ~EventPump() = default;
    /// Lets every pending event of the pane and of the editor run to its end.
    virtual void DoEvents() = 0;
};

class Clock {
  public:
    virtual ~Clock() = default;
    /// The time of day in whole seconds since some fixed moment.
    virtual std::int64_t Now() = 0;
};

/// The pane's controls in the roles in which a run uses them: a text to show, a value to show, a thing to enable.
/// Panels of the status bar count from 1.
class PaneView {
  public:
    virtual ~PaneView() = default;
    virtual void ShowList(bool visible) = 0;    ///< lvwErgebnis
    virtual void ShowLabels(bool visible) = 0;  ///< lblUntersuchtesObjekt, lblObjekt, lblAktuellerTest, lblTest
    virtual void FocusList() = 0;
    /// The result list has lost all its rows, or its order has changed.
    virtual void ListChanged() = 0;
    virtual void SetObjekt(TextView text) = 0;    ///< lblObjekt
    virtual void SetTest(TextView text) = 0;      ///< lblTest
    virtual void ShowProgress(bool visible) = 0;  ///< pbFortschritt
    virtual void SetProgressMaximum(int maximum) = 0;
    virtual void SetProgress(int value) = 0;
    virtual void ShowStatus(bool visible) = 0;  ///< sbStatus
    virtual void SetPanel(int panel, TextView text) = 0;
    virtual void EnableStop(bool enabled) = 0;  ///< button 2 of symToolbar
    virtual void RedrawToolbar() = 0;
    virtual void EnableSprache(bool enabled) = 0;  ///< icboSprache
};

struct Host {
    Editor& editor;
    PaneView& pane;
    EventPump& events;
    SettingsStore& settings;
    MessageBoxes& boxes;
    Clock& clock;
};

}  // namespace zentlor
