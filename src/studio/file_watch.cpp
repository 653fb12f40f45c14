#include "studio/file_watch.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QSet>

namespace zentlor::studio {

namespace {

constexpr int kRestMilliseconds = 400;

// The file that a module was read from: its own one, or the document in front of the module's name.
QString FileOf(const workspace::OpenedProject& opened, const workspace::ModuleOrigin& origin) {
    return QString::fromStdString(opened.isDocument ? opened.document.path : origin.path);
}

}  // namespace

FileWatch::FileWatch() {
    rest_.setSingleShot(true);
    rest_.setInterval(kRestMilliseconds);
    connect(&watcher_, &QFileSystemWatcher::fileChanged, &rest_, qOverload<>(&QTimer::start));
    connect(&watcher_, &QFileSystemWatcher::directoryChanged, &rest_, qOverload<>(&QTimer::start));
    connect(&rest_, &QTimer::timeout, this, [this] { Look(); });
}

void FileWatch::Watch(const QStringList& paths, const std::vector<workspace::OpenedProject>& projects,
                      const QDateTime& readAt) {
    const QStringList watched = watcher_.files() + watcher_.directories();
    if (!watched.isEmpty()) watcher_.removePaths(watched);
    rest_.stop();
    folders_.clear();
    QSet<QString> files;
    QSet<QString> parents;
    for (const QString& path : paths) {
        if (!QFileInfo(path).isDir()) {
            files << path;
            continue;
        }
        folders_ << path;
        QDirIterator below(path, QDir::Dirs | QDir::NoDotAndDotDot | QDir::NoSymLinks, QDirIterator::Subdirectories);
        while (below.hasNext()) folders_ << below.next();
    }
    for (const workspace::OpenedProject& opened : projects) {
        for (const workspace::ModuleOrigin& origin : opened.origins) files << FileOf(opened, origin);
    }
    files_ = files.values();
    files_.sort();
    // A file that is replaced as a whole is told by its folder.
    for (const QString& file : files_) parents << QFileInfo(file).absolutePath();
    seen_ = Fingerprint();
    const QStringList all = files_ + folders_ + parents.values();
    if (!all.isEmpty()) watcher_.addPaths(all);
    if (WrittenSince(readAt)) {
        seen_.clear();
        rest_.start();
    }
}

// A time in the future is a clock that goes wrong, and would count as a change again and again.
bool FileWatch::WrittenSince(const QDateTime& moment) const {
    const QDateTime now = QDateTime::currentDateTime();
    return std::any_of(files_.begin(), files_.end(), [&](const QString& file) {
        const QDateTime written = QFileInfo(file).lastModified();
        return written > moment && written <= now;
    });
}

QByteArray FileWatch::Fingerprint() const {
    QByteArray print;
    for (const QString& file : files_) {
        const QFileInfo info(file);
        print += QByteArray::number(info.exists() ? info.lastModified().toMSecsSinceEpoch() : 0) + ' ' +
                 QByteArray::number(info.size()) + '\n';
    }
    for (const QString& folder : folders_) {
        print += QDir(folder).entryList(QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot).join(u'\n').toUtf8();
    }
    return print;
}

void FileWatch::Look() {
    const QByteArray now = Fingerprint();
    if (now == seen_) return;
    seen_ = now;
    Q_EMIT Changed();
}

}  // namespace zentlor::studio
