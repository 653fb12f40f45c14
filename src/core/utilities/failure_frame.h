#pragma once

// The frame that every routine of the system stands in: a failure inside of it is reported in one message box, and the
// routine ends with the result that it had reached. Nothing is retried, and no exception goes on to the caller.

#include <stdexcept>

#include "core/utilities/encoding.h"
#include "core/utilities/text.h"

namespace zentlor {

/// A failure at run time, with the number and the description (UTF-8) that the platform gives to its kind.
class RuntimeError : public std::runtime_error {
  public:
    RuntimeError(int errorNumber, std::string_view errorDescription)
        : std::runtime_error(std::string(errorDescription)), number(errorNumber) {}
    int number;
};

// The failures that this system's own operations raise.
RuntimeError Overflow();             ///< 6: a 16-bit counter went past 32767
RuntimeError SubscriptOutOfRange();  ///< 9: a line or an element that does not exist
RuntimeError TypeMismatch();         ///< 13: a text that does not convert
RuntimeError InvalidCall();          ///< 5: an argument that the operation does not take
RuntimeError ObjectNotSet();         ///< 91: an operation on nothing

/// Who failed: the names that stand in the report.
struct Routine {
    TextView module;
    TextView name;
    /// The component under analysis, for routines that work on one; empty for all others, whose reports lack the line.
    TextView component = {};
};

/// Takes the failures of the routines of one session.
class FailureReporter {
  public:
    virtual ~FailureReporter() = default;
    /// Shows the standard failure report.
    virtual void Report(const Routine& routine, int number, TextView description) = 0;
    /// Told of every routine at its entry. What it throws is a failure of that routine.
    virtual void Enter(const Routine& routine) { static_cast<void>(routine); }
};

/// The number and the text that `failure` has in a report.
int FailureNumber(const std::exception& failure);

/// Runs `body` as the routine `routine`. A failure is reported and ends it; what `body` has written to the variables
/// that it captured stays as it was at that moment.
template <class Body>
void Frame(FailureReporter& failures, const Routine& routine, Body&& body) {
    try {
        failures.Enter(routine);
        body();
    } catch (const std::exception& failure) {
        failures.Report(routine, FailureNumber(failure), FromUtf8(failure.what()));
    }
}

}  // namespace zentlor
