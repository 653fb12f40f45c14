#pragma once

// The add-in's outer shell: connection and disconnection, the three menu entries, and the tool window.

#include <memory>

#include "core/analysis/session.h"
#include "core/host/editor_ui.h"

namespace zentlor {

/// How the add-in manager reaches an add-in.
class AddinInstance {
  public:
    virtual ~AddinInstance() = default;
    /// `application` and `addInInst` live until the disconnection.
    virtual void AddinInstance_OnConnection(EditorUi& application, const AddInInstance& addInInst) = 0;
    /// Not while Busy().
    virtual void AddinInstance_OnDisconnection() = 0;
    /// Code of the add-in is on the stack.
    virtual bool Busy() const = 0;
    /// Asks that code to come to its end.
    virtual void Stop() = 0;
};

/// The references that the whole connection shares, and the five routines that work on them.
class mdl_Zentlor {
  public:
    explicit mdl_Zentlor(Session& session) : session_(session) {}

    /// The new entry at the end of the command bar of that name, in place of any entry of the same caption; nothing if
    /// there is no such bar.
    std::shared_ptr<CommandBarControl> AddToCommandBar(TextView strCommandBar, TextView strCaption);
    /// Creates the tool window, which stays hidden, and the pane in it.
    void LoadAddIn();
    /// Empties the pane and shows it.
    void ShowAddIn();
    void HideAddIn();
    /// Lets go of the pane, and with it of the hints, then of the window.
    void UnloadAddIn();

    /// The pane. Throws ObjectNotSet if there is none.
    PaneObject& DocPane() const;

    EditorUi* objVBE = nullptr;
    const AddInInstance* objAddInInst = nullptr;
    std::unique_ptr<Window> wndAddIn;
    std::unique_ptr<PaneObject> docPane;

  private:
    Session& session_;
};

/// The add-in designer object: owns the menu entries and their click sources.
class dsrZentlor : public AddinInstance {
  public:
    explicit dsrZentlor(Session& session) : session_(session), zentlor_(session) {}

    void AddinInstance_OnConnection(EditorUi& application, const AddInInstance& addInInst) override;
    void AddinInstance_OnDisconnection() override;
    bool Busy() const override;
    void Stop() override;

    void MenuHandler_Click();
    void KontMenuCodeWindowHandler_Click();
    /// The run over the component that is selected in the project window; the compile gate is asked first.
    void KontMenuProjectWindowHandler_Click();

  private:
    class Call;

    Session& session_;
    mdl_Zentlor zentlor_;
    int calls_ = 0;  ///< of the handlers, those on the stack
    std::shared_ptr<CommandBarControl> cbcMenu_;
    std::shared_ptr<CommandBarControl> cbcKontMenuCodeWindow_;
    std::shared_ptr<CommandBarControl> cbcKontMenuProjectWindow_;
    std::unique_ptr<CommandBarEvents> menuHandler_;
    std::unique_ptr<CommandBarEvents> kontMenuCodeWindowHandler_;
    std::unique_ptr<CommandBarEvents> kontMenuProjectWindowHandler_;
};

}  // namespace zentlor
