#include "core/checks/hints.h"

#include "core/scanning/use_search.h"

namespace zentlor {

void Hints::AddMessage(int id, TextView strProzedur, int lngZeile, TextView strWert1, TextView strWert2) {
    ErgebnisAnzeige(session_, {vbc_.Name(), Text(strProzedur), session_.GetResourceString(id, strWert1, strWert2),
                               lngZeile, check_, static_cast<int>(vbc_.Index())});
}

void Hints::AddUnlessUsed(int useResult, TextView strProzedur, int lngZeile, TextView strWert1) {
    if (useResult == kUsed) return;
    const CheckInfo& info = InfoOf(check_);
    AddMessage(useResult == kNotUsed ? info.hint : info.twin, strProzedur, lngZeile, strWert1, {});
}

}  // namespace zentlor
