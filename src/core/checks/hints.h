#pragma once

// The way from a check to the result list. A check hands over each finding at the moment of the finding, so hints
// appear in the order of the catalogue, and within a check in the order of its walk.

#include "core/analysis/session.h"
#include "core/analysis/source_model.h"
#include "core/scanning/find_walk.h"

namespace zentlor {

/// Takes one hint into the list of `session` and advances its counters.
void ErgebnisAnzeige(Session& session, const Hint& hint);

/// Where the hints of one check on one component go.
class Hints {
  public:
    Hints(Session& session, CheckId check, const VBComponent& vbc) : session_(session), check_(check), vbc_(vbc) {}

    /// A hint with the check's own message, its marks filled with the two values.
    void Add(TextView strProzedur, int lngZeile, TextView strWert1 = {}, TextView strWert2 = {}) {
        AddMessage(InfoOf(check_).hint, strProzedur, lngZeile, strWert1, strWert2);
    }
    /// A hint for a hit in a procedure: the procedure's name and the hit's line.
    void Add(const Hit& hit, TextView strWert1 = {}) {
        Add(vbc_.CodeModule().ProcOfLine(hit.line), hit.line, strWert1);
    }
    /// The hint of a search for uses: none for a use in code, the twin for a use in comments only.
    void AddUnlessUsed(int useResult, TextView strProzedur, int lngZeile, TextView strWert1 = {});

    /// A word of a hint, in the current language.
    Text Message(int id) { return session_.GetResourceString(id); }
    /// The procedure column of a hint about the declaration section, message 174.
    Text Deklarationen() { return Message(174); }

  private:
    void AddMessage(int id, TextView strProzedur, int lngZeile, TextView strWert1, TextView strWert2);

    Session& session_;
    CheckId check_;
    const VBComponent& vbc_;
};

}  // namespace zentlor
