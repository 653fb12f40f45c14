#pragma once

#include "pages/check_page.h"

namespace zentlor::pages {

/// The explanations file of the options dialog, in UTF-8: below the root one element a tab, below it one element a box,
/// which holds the German text, an empty line and the English text. `pages` are those of all checks.
std::string ExplanationsXml(const std::vector<CheckPage>& pages);

}  // namespace zentlor::pages
