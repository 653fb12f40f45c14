#include "studio/loader.h"

#include <memory>

namespace zentlor::studio {

Loader::~Loader() {
    if (thread_.joinable()) thread_.join();
}

void Loader::Start(const QStringList& paths) {
    if (busy_) {
        next_ = paths;
        return;
    }
    busy_ = true;
    Read(paths);
}

// Whatever a run would make at its first question is made here already.
void Loader::Read(const QStringList& paths) {
    if (thread_.joinable()) thread_.join();
    std::vector<std::string> names;
    for (const QString& path : paths) names.push_back(path.toStdString());
    thread_ = std::thread([this, names] {
        const auto result = std::make_shared<workspace::Workspace>(workspace::Open(names, {}));
        for (const workspace::OpenedProject& opened : result->projects) opened.project->Words();
        QMetaObject::invokeMethod(
            this, [this, result] { Deliver(std::move(*result)); }, Qt::QueuedConnection);
    });
}

void Loader::Deliver(workspace::Workspace&& result) {
    if (!next_.isEmpty()) {
        Read(std::exchange(next_, {}));
        return;
    }
    busy_ = false;
    result_ = std::move(result);
    Q_EMIT Finished();
}

}  // namespace zentlor::studio
