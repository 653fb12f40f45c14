#pragma once

#include <vector>

#include "core/utilities/text.h"

namespace zentlor::test {

/// The canonical text of the modules of one project, with `components` as its components' names.
std::vector<Text> CanonicalForms(const std::vector<Text>& modules, const std::vector<TextView>& components = {});

/// The canonical text of a project of one module.
Text CanonicalForm(TextView code, const std::vector<TextView>& components = {});

}  // namespace zentlor::test
