#pragma once

// The settings of the user: which checks run and which language the interface speaks. The record is what everything
// tests; the store behind it holds text only and is read into the record as a whole.

#include <array>

#include "core/checks/catalogue.h"
#include "core/host/host.h"
#include "core/utilities/failure_frame.h"

namespace zentlor {

inline constexpr TextView kApplication = u"Brennhaus-Tools";
inline constexpr TextView kSection = u"Zentlor";
inline constexpr TextView kSpracheKey = u"AllgSprache";

/// The one record of the settings. It starts zeroed, as long as nothing was read.
struct OptionRecord {
    std::array<bool, kCheckCount> enabled{};
    /// Language index: 1 German, 2 English, 0 not yet read.
    int AllgSprache = 0;

    bool& operator[](CheckId id) { return enabled[IndexOf(id)]; }
    bool operator[](CheckId id) const { return enabled[IndexOf(id)]; }
    static OptionRecord AllOn() {
        OptionRecord record;
        record.enabled.fill(true);
        record.AllgSprache = 1;
        return record;
    }
};

/// Reads the 46 settings into `udtOptionen`, flags in the order of the dialog's boxes, then the language. An absent key
/// is written back with its default. A stored text that does not convert is reported and gives False or 0; the store
/// keeps it.
void OptionenLesen(SettingsStore& store, FailureReporter& failures, OptionRecord& udtOptionen);

/// One flag; `strStandard` is "1" or "0".
bool OptionLesen(SettingsStore& store, FailureReporter& failures, TextView strSchluessel, TextView strStandard);
/// One number.
int lngOptionLesen(SettingsStore& store, FailureReporter& failures, TextView strSchluessel, int lngStandard);

/// Writes one setting; `key` is an option key or "AllgSprache".
void OptionSpeichern(SettingsStore& store, TextView key, TextView value);

/// The platform's conversions of a text. A text reads as a number with a sign, decimals and an exponent, with blanks
/// around it; "True" and "False" read as Boolean in any case. Throws TypeMismatch or Overflow.
bool ToBoolean(TextView text);
int ToLong(TextView text);

}  // namespace zentlor
