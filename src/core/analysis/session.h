#pragma once

// One session of the add-in: what belongs to the pane object and to the references that the whole system shares. Two
// sessions can live in one process and know nothing of each other.

#include "core/host/host.h"
#include "core/options/option_store.h"
#include "core/results/result_list.h"
#include "core/utilities/failure_frame.h"

namespace zentlor {

class Session : public FailureReporter {
  public:
    explicit Session(Host host) : host_(host) {}
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    Host& host() { return host_; }

    /// Message `lngID` in the current language (see messages.h). Reads the language from the store as long as the
    /// option record does not know it.
    Text GetResourceString(int lngID, TextView strWert1 = {}, TextView strWert2 = {});

    void Report(const Routine& routine, int number, TextView description) override;
    /// How many failure reports were shown.
    int FailureCount() const { return failureCount_; }

    /// The active project, with its routines reporting to this session. Throws ObjectNotSet if none is open.
    VBProject& ActiveVBProject();

    OptionRecord udtOptionen;
    ResultList lvwErgebnis;

    // Counters of the run.
    Text strLetztesObjekt;
    int lngAnzahlObjekte = 0;
    int lngAnzahlHinweise = 0;
    /// The stop flag: set by the button "Stop", cleared at the start of a run.
    bool blnAbbruch = false;
    /// A run is under way; a second one is refused.
    bool running = false;

  private:
    Host host_;
    int failureCount_ = 0;
};

}  // namespace zentlor
