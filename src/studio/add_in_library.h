#pragma once

// The add-in as a component that is loaded at its connection and unloaded at its disconnection: its session, its pane
// with the dialogs, and its designer object live in between, and nothing of them stays.

#include "core/host/add_in.h"
#include "studio/editor_host.h"
#include "studio/pane_widget.h"
#include "studio/shell.h"
#include "workspace/xml_document.h"

namespace zentlor::studio {

class AddInLibrary : public AddinInstance {
  public:
    /// What the component stands on; everything outlives it.
    struct Environment {
        EditorHost& editor;
        QtEventPump& events;
        StudioSettings& settings;
        const Words& words;
        QtShell& shell;
        QString dataFolder;
    };

    explicit AddInLibrary(Environment environment);
    ~AddInLibrary() override;

    void AddinInstance_OnConnection(EditorUi& application, const AddInInstance& addInInst) override;
    void AddinInstance_OnDisconnection() override;
    bool Busy() const override;
    void Stop() override;

    /// Empties the pane: its hints are of code that is no longer open. Not in the middle of a run.
    void ForgetHints();
    /// A run is under way.
    bool Running() const;
    /// nullptr while the add-in is not loaded.
    PaneWidget* Pane() const;
    /// The list of the hints; nullptr while the add-in is not loaded.
    const ResultList* Results() const;

    std::function<void()> wordsWritten = [] {};
    std::function<void()> rowsPublished = [] {};
    std::function<void()> runBegins = [] {};
    std::function<void()> jumpBegins = [] {};

  private:
    class Component;

    Environment environment_;
    std::unique_ptr<Component> component_;
};

}  // namespace zentlor::studio
