#pragma once

// Notices that opened files have changed on disk.

#include <QDateTime>
#include <QFileSystemWatcher>
#include <QStringList>
#include <QTimer>

#include "workspace/workspace.h"

namespace zentlor::studio {

class FileWatch : public QObject {
    Q_OBJECT

  public:
    FileWatch();

    /// Watches what `paths` led to, and nothing else. A folder's own files may come and go. What was written after
    /// `readAt`, when the reading began, counts as a change.
    void Watch(const QStringList& paths, const std::vector<workspace::OpenedProject>& projects,
               const QDateTime& readAt);

  Q_SIGNALS:
    /// Something that counts has changed, and the changes have come to rest.
    void Changed();

  private:
    QByteArray Fingerprint() const;
    bool WrittenSince(const QDateTime& moment) const;
    void Look();

    QFileSystemWatcher watcher_;
    QTimer rest_;
    QStringList files_;
    QStringList folders_;
    QByteArray seen_;
};

}  // namespace zentlor::studio
