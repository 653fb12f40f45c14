#include "core/options/option_store.h"

#include <cmath>
#include <cstdlib>
#include <limits>

namespace zentlor {

namespace {

constexpr TextView kModule = u"mdl_Optionen";

double ToNumber(TextView text) {
    const TextView trimmed = Trim(text);
    std::string digits;
    for (const char16_t c : trimmed) {
        const bool ofNumber = (c >= u'0' && c <= u'9') || c == u'+' || c == u'-' || c == u'.' || c == u'e' || c == u'E';
        if (!ofNumber) throw TypeMismatch();
        digits.push_back(static_cast<char>(c));
    }
    char* end = nullptr;
    const double value = std::strtod(digits.c_str(), &end);
    if (digits.empty() || *end != '\0') throw TypeMismatch();
    return value;
}

// Both readers share the way to the text: an absent or blank value is replaced by the default, in the store too.
Text ReadOrRestore(SettingsStore& store, TextView key, TextView standard) {
    Text value = store.GetSetting(kApplication, kSection, key);
    if (!Trim(value).empty()) return value;
    OptionSpeichern(store, key, standard);
    return Text(standard);
}

}  // namespace

bool ToBoolean(TextView text) {
    if (EqualIgnoringCase(Trim(text), u"True")) return true;
    if (EqualIgnoringCase(Trim(text), u"False")) return false;
    return ToNumber(text) != 0;
}

int ToLong(TextView text) {
    const double value = std::nearbyint(ToNumber(text));
    const bool fits = value >= std::numeric_limits<int>::min() && value <= std::numeric_limits<int>::max();
    if (!fits) throw Overflow();
    return static_cast<int>(value);
}

void OptionSpeichern(SettingsStore& store, TextView key, TextView value) {
    store.SaveSetting(kApplication, kSection, key, value);
}

bool OptionLesen(SettingsStore& store, FailureReporter& failures, TextView strSchluessel, TextView strStandard) {
    bool value = false;
    Frame(failures, {kModule, u"OptionLesen"},
          [&] { value = ToBoolean(ReadOrRestore(store, strSchluessel, strStandard)); });
    return value;
}

int lngOptionLesen(SettingsStore& store, FailureReporter& failures, TextView strSchluessel, int lngStandard) {
    int value = 0;
    Frame(failures, {kModule, u"lngOptionLesen"},
          [&] { value = ToLong(ReadOrRestore(store, strSchluessel, ToText(lngStandard))); });
    return value;
}

void OptionenLesen(SettingsStore& store, FailureReporter& failures, OptionRecord& udtOptionen) {
    Frame(failures, {kModule, u"OptionenLesen"}, [&] {
        for (const CheckGroup group : {CheckGroup::Module, CheckGroup::Procedures, CheckGroup::Commands}) {
            for (int box = 1; box <= CountOf(group); ++box) {
                const CheckId id = CheckOfBox(group, box);
                udtOptionen[id] = OptionLesen(store, failures, InfoOf(id).key, u"1");
            }
        }
        udtOptionen.AllgSprache = lngOptionLesen(store, failures, kSpracheKey, 1);
    });
}

}  // namespace zentlor
