#pragma once

// The command line in the place of the editor and of the pane: a progress line instead of labels and a bar, Ctrl+C
// instead of the button "Stop", and message boxes that are lines on standard error.

#include <chrono>
#include <string>

#include "core/analysis/session.h"
#include "workspace/workspace.h"

namespace zentlor::cli {

class ConsoleHost : public Editor, public PaneView, public EventPump, public MessageBoxes, public Clock {
  public:
    /// `requireDeclaration`: the answer to the editor's setting.
    explicit ConsoleHost(std::string requireDeclaration);

    Host AsHost(SettingsStore& settings) { return {*this, *this, *this, settings, *this, *this}; }
    /// The session that a Ctrl+C stops.
    void ServeStopsOf(Session& session) { session_ = &session; }

    /// The project that the next run is about; `compiled`: the gate lets it pass.
    void SetProject(VBProject& project, bool compiled);
    /// The two texts of the status bar after a run.
    const Text& Panel(int panel) const { return panels_[panel - 1]; }
    void ClearProgressLine();

    /// From now on the first Ctrl+C asks for a stop; a second one ends the program.
    static void WatchInterrupt();
    static bool Interrupted();

    VBProject* ActiveVBProject() override { return project_; }
    Text Version() override { return u"7.1"; }
    Text RequireDeclaration(TextView version) override;
    bool CompileCommandEnabled() override { return !compiled_; }
    void ShowSelection(const VBComponent&, int, int, int, int) override {}
    void ExecuteMenuEntry(int, int) override {}

    void ShowList(bool) override {}
    void ShowLabels(bool) override {}
    void FocusList() override {}
    void ListChanged() override {}
    void SetObjekt(TextView text) override { object_ = text; }
    void SetTest(TextView text) override;
    void ShowProgress(bool) override {}
    void SetProgressMaximum(int maximum) override { maximum_ = maximum; }
    void SetProgress(int value) override { value_ = value; }
    void ShowStatus(bool) override {}
    void SetPanel(int panel, TextView text) override { panels_[panel - 1] = text; }
    void EnableStop(bool) override {}
    void RedrawToolbar() override {}
    void EnableSprache(bool) override {}

    void DoEvents() override;
    void Show(TextView text, BoxIcon icon, TextView title) override;
    std::int64_t Now() override;

  private:
    using SteadyClock = std::chrono::steady_clock;

    std::string requireDeclaration_;
    Session* session_ = nullptr;
    VBProject* project_ = nullptr;
    bool compiled_ = true;
    Text panels_[2];
    Text object_;
    int maximum_ = 0;
    int value_ = 0;
    bool terminal_;
    SteadyClock::time_point start_ = SteadyClock::now();
    SteadyClock::time_point nextLine_;
    bool lineShown_ = false;
};

}  // namespace zentlor::cli
