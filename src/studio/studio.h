#pragma once

// The desktop program put together: window, open projects, settings, the add-in and its manager.

#include <QTranslator>

#include "studio/help_window.h"
#include "studio/opening.h"

namespace zentlor::studio {

/// The folder of the explanations and the help: of the installation, else of the build.
QString DataFolder();

class Studio : public QObject {
  public:
    /// `settingsPath`: the file of the per-user store.
    explicit Studio(std::string settingsPath);
    ~Studio() override;

    /// Shows the window as it was left, and opens `paths` if there are any.
    void Start(const QStringList& paths);

    MainWindow& Window() { return window_; }
    OpenProjects& Projects() { return projects_; }
    zentlor::studio::Opening& Opening() { return opening_; }
    AddInLibrary& AddIn() { return addIn_; }
    AddInManager& Manager() { return manager_; }
    StudioSettings& Settings() { return settings_; }
    QtEventPump& Events() { return events_; }
    HelpWindow& Help() { return help_; }

  private:
    void ConnectActions();
    void Retranslate();
    void MarkHints();
    void Compile();
    bool MayClose();
    void TellSettingsProblem();

    /// Of the open projects the one in which the pane's hints were found.
    std::size_t hintsProject_ = 0;

    StudioSettings settings_;
    Words words_;
    QTranslator qtWords_;
    QtEventPump events_;
    IdleQueue idle_;
    OpenProjects projects_;
    MainWindow window_;
    HelpWindow help_;
    QtShell shell_;
    EditorHost editor_;
    AddInLibrary addIn_;
    AddInManager manager_;
    zentlor::studio::Opening opening_;
};

}  // namespace zentlor::studio
