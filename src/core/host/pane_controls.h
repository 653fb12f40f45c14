#pragma once

// The controls of the pane beyond those that a run writes to: what follows the interface language, the language box,
// and the windows and services that the toolbar reaches.

#include "core/utilities/text.h"

namespace zentlor {

class FileDialogPlatform;
class FileOutput;
class Shell;

/// Controls of the pane that carry words. Buttons of symToolbar (separators included), columns of lvwErgebnis and
/// panels of sbStatus count from 1. Captions may hold "&" in front of their access key.
class PaneTexts {
  public:
    virtual ~PaneTexts() = default;
    virtual void SetButtonCaption(int button, TextView text) = 0;
    virtual void SetButtonToolTip(int button, TextView text) = 0;
    virtual void SetColumnHeader(int column, TextView text) = 0;
    virtual void SetUntersuchtesObjekt(TextView text) = 0;  ///< lblUntersuchtesObjekt
    virtual void SetAktuellerTest(TextView text) = 0;       ///< lblAktuellerTest
    virtual void SetPanelToolTip(int panel, TextView text) = 0;
};

/// icboSprache, the combo box with images. Positions count from 1.
class LanguageBox {
  public:
    virtual ~LanguageBox() = default;
    virtual int CountItems() const = 0;
    virtual void AddItem(int position, TextView text, TextView imageKey) = 0;
    /// The text of the selected item; empty if none is selected.
    virtual Text SelectedText() const = 0;
    /// 0 if no item is selected.
    virtual int SelectedPosition() const = 0;
    virtual void Select(int position) = 0;
};

/// The modal dialogs behind the toolbar. Each call returns when its dialog has closed.
class PaneDialogs {
  public:
    virtual ~PaneDialogs() = default;
    virtual void ShowOptionen() = 0;  ///< frm_Optionen
    virtual void ShowAbout() = 0;     ///< frm_About, owned by the pane
};

/// Everything that the pane object needs beside its session.
struct PaneServices {
    PaneTexts& texts;
    LanguageBox& icboSprache;
    PaneDialogs& dialogs;
    FileDialogPlatform& fileDialogs;
    FileOutput& files;
    Shell& shell;
    /// The folder that holds the component's data files and its help, without a separator at its end.
    Text folder;
};

}  // namespace zentlor
