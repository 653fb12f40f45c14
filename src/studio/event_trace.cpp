#include "studio/event_trace.h"

#include <QApplication>
#include <cstdio>

namespace zentlor::studio {

namespace {

constexpr int kTickMilliseconds = 2;

}  // namespace

EventTrace::EventTrace(Studio& studio, const QElapsedTimer& sinceStart) : studio_(studio), sinceStep_(sinceStart) {
    sinceTick_.start();
    ticks_.setTimerType(Qt::PreciseTimer);
    ticks_.setInterval(kTickMilliseconds);
    connect(&ticks_, &QTimer::timeout, this, [this] { Tick(); });
    ticks_.start();
    QTimer::singleShot(0, this, [this] {
        EndStep("window");
        if (!studio_.Opening().Busy()) QApplication::quit();
    });
    connect(&studio_.Opening(), &Opening::Done, this, [this] {
        EndStep("open");
        QTimer::singleShot(0, this, [this] { RunChecks(); });
    });
}

void EventTrace::Tick() {
    worst_ = std::max(worst_, sinceTick_.restart());
}

void EventTrace::EndStep(const char* step) {
    Tick();
    std::fprintf(stderr, "%-8s %6lld ms, event loop blocked at most %lld ms\n", step,
                 static_cast<long long>(sinceStep_.restart()), static_cast<long long>(worst_));
    worst_ = 0;
}

void EventTrace::RunChecks() {
    PaneWidget* pane = studio_.AddIn().Pane();
    if (studio_.Projects().NeedsCompiling()) {
        std::fprintf(stderr, "the project does not compile: no run\n");
    } else if (pane != nullptr) {
        EndStep("idle");
        pane->Button(1)->click();
        QApplication::processEvents();
        EndStep("run");
        std::fprintf(stderr, "%zu hints\n", studio_.AddIn().Results()->Count());
    }
    QApplication::quit();
}

}  // namespace zentlor::studio
