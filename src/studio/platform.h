#pragma once

// What the add-in asks of the platform, answered by Qt: events, the clock, message boxes, and actions that wait for the
// outermost event loop.

#include <QTimer>
#include <functional>
#include <vector>

#include "core/host/host.h"

namespace zentlor::studio {

class QtEventPump : public EventPump {
  public:
    void DoEvents() override;
    /// A DoEvents is on the stack.
    bool Pumping() const { return depth_ > 0; }
    /// Runs at the end of every DoEvents; for pictures of a run.
    std::function<void()> afterEvents;

  private:
    int depth_ = 0;
};

class QtClock : public Clock {
  public:
    std::int64_t Now() override;
};

/// The title of message boxes that have none of their own. It is not the application's display name, which the toolkit
/// would write behind the title of every window.
inline const QString kDefaultTitle = QStringLiteral("Zentlor");

class QtMessageBoxes : public MessageBoxes {
  public:
    void Show(TextView text, BoxIcon icon, TextView title) override;
};

/// Actions that must not run inside of DoEvents or while a modal dialog is open.
class IdleQueue : public QObject {
  public:
    explicit IdleQueue(const QtEventPump& events);
    /// Runs `action` once, from the outermost event loop, behind those added before.
    void Add(std::function<void()> action);

  private:
    void Try();

    const QtEventPump& events_;
    std::vector<std::function<void()>> actions_;
    QTimer timer_;
};

}  // namespace zentlor::studio
