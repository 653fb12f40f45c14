#pragma once

// The pane object: what the user's clicks on the tool window do. It lives from the creation of the tool window to the
// disconnection, and the hints live with it.

#include <cstddef>

#include "core/analysis/session.h"
#include "core/host/editor_ui.h"
#include "core/host/pane_controls.h"

namespace zentlor {

/// The pane's own steps, over the run driver, the result list and the services of the window. `session` outlives the
/// pane: the option record stays as long as the component is loaded.
///
/// While a run is under way it is the only one: another start is refused with a box, and showing the pane from a menu
/// leaves the list as it is. Every other click is served. A start with no project open is refused with a box too.
class docAddIn : public PaneObject {
  public:
    docAddIn(Session& session, PaneServices services);
    /// Lets go of the hints. Not while Busy().
    ~docAddIn() override;

    /// Reads the options, fills the language box, and writes the words. For the tool window, once, when the pane's
    /// controls exist.
    void UserDocument_Initialize();
    /// `key`: "Refresh", "Stop", "Export", "Optionen", "Info" or "Hilfe"; any other key gives a box.
    void symToolbar_ButtonClick(TextView key);
    /// The user has picked an item of the language box. Ignored while the pane itself fills the box.
    void icboSprache_Click();
    /// A click on the header of `column`, 1 to kVisibleColumns.
    void lvwErgebnis_ColumnClick(int column);
    /// A double click on a row, counted from 0. No row: any number behind the last one.
    void lvwErgebnis_DblClick(std::size_t row);

    void OberflächeZurücksetzen() override;
    void EinModulPrüfen(const VBComponent* vbc) override;
    bool IstCodeKompiliert() override;
    bool Busy() const override { return calls_ > 0; }
    void StopRun() override;

    /// Writes all words of the pane in the current language.
    void SpracheAnpassen();
    void ExportErgebnisse();

  private:
    class Call;
    void FillSprache();
    void Execute(TextView key);
    /// Whether a run is under way; if so the user is told.
    bool RefusedWhileRunning();
    /// Whether no project is open; if so the user is told.
    bool RefusedWithoutProject();

    Session& session_;
    PaneServices services_;
    int calls_ = 0;  ///< of this object's operations, those on the stack
    bool filling_ = false;
};

}  // namespace zentlor
