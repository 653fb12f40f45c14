#pragma once

// The run driver: takes the project, or one component of it, through the enabled checks, and keeps the pane's progress
// display and closing texts up to date. Pending events run only at its two kinds of yield points: behind the check of
// the editor's setting, and behind each enabled check of a component.

#include "core/analysis/session.h"
#include "core/analysis/source_model.h"

namespace zentlor {

/// The text in a module's head that takes the module out of a run over the whole project.
inline constexpr TextView kIgnoreMarker = u"Zentlor:Ignore";

/// How a request for a run ended.
enum class RunResult {
    Finished,  ///< with its closing steps, whether or not it was stopped on the way
    Refused,   ///< another run is under way, or the project is not compiled; nothing was analysed
    Broken,    ///< a stop during the first step, or a failure of the driver: no closing steps
};

/// A run over all components of the active project.
RunResult AlleModulePrüfen(Session& session);

/// A run over one component, whatever marker it carries. The compile gate is the caller's business.
RunResult EinModulPrüfen(Session& session, const VBComponent& vbc);

/// The enabled checks on one component, in the order of the catalogue. Returns early after a stop.
void PrüfungenDurchführen(Session& session, const VBComponent& vbc);

/// Whether the module's head, up to the first procedure's header, holds the marker.
bool ModulIgnorieren(Session& session, const CodeModule& cmModul);

/// The pane without results: list shown and empty, progress bar shown at 0, status bar hidden.
void OberflächeZurücksetzen(Session& session);

/// Shows the list (True) or the four labels (False).
void ErgebnisAnzeigen(Session& session, bool fAnzeige);

/// The button "Stop": sets the flag and the foot of the pane. The run ends at its next yield point.
void StopClicked(Session& session);

}  // namespace zentlor
