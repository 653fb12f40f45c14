#pragma once

// Measures how long the window did not answer: for whoever works on the studio's speed.

#include <QElapsedTimer>
#include <QTimer>

#include "studio/studio.h"

namespace zentlor::studio {

/// Opens and checks what `studio` is started with, prints to standard error how long each step took and how long the
/// event loop was ever blocked in it, and ends the program.
class EventTrace : public QObject {
  public:
    /// `sinceStart` runs since the program began.
    EventTrace(Studio& studio, const QElapsedTimer& sinceStart);

  private:
    void Tick();
    void EndStep(const char* step);
    void RunChecks();

    Studio& studio_;
    QTimer ticks_;
    QElapsedTimer sinceTick_;
    QElapsedTimer sinceStep_;
    qint64 worst_ = 0;
};

}  // namespace zentlor::studio
