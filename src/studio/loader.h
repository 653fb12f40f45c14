#pragma once

// Reads paths in a thread of its own, so that the window stays alive.

#include <QObject>
#include <QStringList>
#include <thread>

#include "workspace/workspace.h"

namespace zentlor::studio {

class Loader : public QObject {
    Q_OBJECT

  public:
    ~Loader() override;

    /// Begins to read. What an earlier call still reads is dropped.
    void Start(const QStringList& paths);
    bool Busy() const { return busy_; }
    /// What was read; once, after Finished.
    workspace::Workspace Take() { return std::move(result_); }

  Q_SIGNALS:
    void Finished();

  private:
    void Read(const QStringList& paths);
    void Deliver(workspace::Workspace&& result);

    std::thread thread_;
    workspace::Workspace result_;
    QStringList next_;  ///< asked for while the thread was busy
    bool busy_ = false;
};

}  // namespace zentlor::studio
