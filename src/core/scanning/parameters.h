#pragma once

// Parameter lists, cut out of a procedure's header by columns, and the test for event procedures.

#include <vector>

#include "core/utilities/text.h"

namespace zentlor {

struct typParameter {
    TextView strName;             ///< a type character included; without array parentheses
    bool blnDatentyp = false;     ///< "As " follows within its part of the list, or the name ends in a type character
    bool blnKennzeichen = false;  ///< the name ends in a type character
    bool blnByValByRef = false;   ///< "ByVal", "ByRef" or "ParamArray" stands in front
};

/// The parameters of a header, which is a logical line with its comment, if any. The first one has index 0. Their names
/// view the header.
std::vector<typParameter> GetParameters(TextView strZeile);

/// Column of the ")" that closes the first "(" of the text, 0 if there is none. Strings are not looked at.
int PosEndeParameter(TextView strZeile);

/// Whether a procedure counts as an event procedure: its name holds "_".
bool IstEreignisProzedur(TextView strName);

/// Whether a name ends in one of the type characters "&%$!#@".
bool EndsInTypeCharacter(TextView name);
/// A name as it is searched for: without its type character.
TextView WithoutTypeCharacter(TextView name);

}  // namespace zentlor
