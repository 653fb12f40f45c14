#pragma once

// The errors of a module as text, one line each: "line:column sentence".

#include <string>

#include "core/utilities/text.h"

namespace zentlor::test {

/// In English. Empty if the module compiles.
std::string SyntaxReport(TextView code);
std::string GermanSyntaxReport(TextView code);

/// The same for statements inside of a procedure; line 1 is the first of them.
std::string BodySyntaxReport(TextView statements);

}  // namespace zentlor::test
