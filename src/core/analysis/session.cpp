#include "core/analysis/session.h"

#include <algorithm>

#include "core/analysis/source_model.h"
#include "core/language/messages.h"

namespace zentlor {

Text Session::GetResourceString(int lngID, TextView strWert1, TextView strWert2) {
    // A stored language that does not convert is reported, and the report itself asks for messages: from before the
    // reading on, the language that holds is German.
    if (udtOptionen.AllgSprache == 0) {
        udtOptionen.AllgSprache = kDeutsch;
        const int stored = lngOptionLesen(host_.settings, *this, kSpracheKey, kDeutsch);
        udtOptionen.AllgSprache = std::max(stored, kDeutsch);
    }
    return zentlor::GetResourceString(udtOptionen.AllgSprache, lngID, strWert1, strWert2);
}

void Session::Report(const Routine& routine, int number, TextView description) {
    ++failureCount_;
    constexpr TextView kLineEnd = u"\r\n";
    Text text = GetResourceString(243);
    text.append(kLineEnd).append(GetResourceString(244)).append(routine.module);
    text.append(kLineEnd).append(GetResourceString(245)).append(routine.name);
    text.append(kLineEnd).append(GetResourceString(246)).append(ToText(number));
    text.append(kLineEnd).append(description);
    if (!routine.component.empty()) {
        text.append(kLineEnd).append(GetResourceString(247)).append(routine.component);
    }
    host_.boxes.Show(text, BoxIcon::Critical);
}

VBProject& Session::ActiveVBProject() {
    VBProject* project = host_.editor.ActiveVBProject();
    if (project == nullptr) throw ObjectNotSet();
    project->ReportFailuresTo(*this);
    return *project;
}

}  // namespace zentlor
