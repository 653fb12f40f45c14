#pragma once

#include <chrono>

#include "workspace/workspace.h"

namespace zentlor::workspace {

/// Adds the time of its own life to one stage; does nothing without a place to add to.
class Stopwatch {
  public:
    Stopwatch(StageTimes* times, double StageTimes::*stage)
        : times_(times), stage_(stage), start_(std::chrono::steady_clock::now()) {}
    ~Stopwatch() {
        if (times_ == nullptr) return;
        times_->*stage_ += std::chrono::duration<double>(std::chrono::steady_clock::now() - start_).count();
    }
    Stopwatch(const Stopwatch&) = delete;
    Stopwatch& operator=(const Stopwatch&) = delete;

  private:
    StageTimes* times_;
    double StageTimes::*stage_;
    std::chrono::steady_clock::time_point start_;
};

}  // namespace zentlor::workspace
