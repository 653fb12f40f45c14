#pragma once

// The expressions of conditional compilation ([MS-VBAL] 3.4 and 5.6.16.2), and the constants they are made of.

#include <map>

#include "core/utilities/text.h"
#include "vba/token.h"

namespace zentlor::vba {

/// A value of conditional compilation. Empty is the number 0, True is -1. A string has the number that it spells, or 0.
struct ConditionValue {
    double number = 0;
    Text characters;  ///< Of a string, without its quotation marks.
    bool isString = false;

    bool IsTrue() const { return number != 0; }
};

/// What the editor defines and the settings of the project may.
struct ConditionSettings {
    bool isWin64 = true;  ///< The editor is a 64-bit one; always one on Windows with VBA 7.
    double others = 0;    ///< What the constants are that nothing in the module defines.
};

class ConditionConstants {
  public:
    explicit ConditionConstants(const ConditionSettings& settings);
    /// Sets a constant; its name counts in any capitalisation.
    void Set(TextView name, const ConditionValue& value);
    /// The constant's value, or that of the others if nothing defines it.
    ConditionValue ValueOf(TextView name) const;

  private:
    std::map<Text, ConditionValue> values_;
    ConditionValue others_;
};

/// The value of the expression that begins at `token`; `token` then is the first one that does not belong to it. What
/// can't be read counts as Empty.
ConditionValue EvaluateCondition(TextView text, const ConditionConstants& constants, const Token*& token);

}  // namespace zentlor::vba
