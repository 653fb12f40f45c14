#pragma once

// Opening, reloading and closing: from paths to open projects, with every notice that the user gets on the way.

#include "studio/add_in_library.h"
#include "studio/file_watch.h"
#include "studio/loader.h"

namespace zentlor::studio {

class Opening : public QObject {
    Q_OBJECT

  public:
    Opening(MainWindow& window, OpenProjects& projects, StudioSettings& settings, const Words& words,
            AddInLibrary& addIn, IdleQueue& idle);

    /// Opens `paths` in place of what is open; a run that is under way is stopped if the user agrees. What cannot be
    /// opened leaves everything as it was, and the user is told.
    void Open(const QStringList& paths);
    void ChooseFile();
    void ChooseFolder();
    void Reload();
    void Close();
    bool Busy() const { return loader_.Busy(); }

  Q_SIGNALS:
    /// The last opening has ended, one way or the other.
    void Done();

  private:
    bool StopsRun(Word question);
    void Begin(const QStringList& paths, Reading reading);
    void Finish();
    void Install(workspace::Workspace&& result);
    void TellFaults(const workspace::Workspace& result);
    void TellSuccess();

    MainWindow& window_;
    OpenProjects& projects_;
    StudioSettings& settings_;
    const Words& words_;
    AddInLibrary& addIn_;
    IdleQueue& idle_;
    Loader loader_;
    FileWatch watch_;
    QStringList paths_;    ///< what is open
    QStringList loading_;  ///< what is being read
    Reading reading_ = Reading::Opened;
    QDateTime readAt_;  ///< when the reading of `loading_` began
};

}  // namespace zentlor::studio
