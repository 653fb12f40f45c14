#pragma once

#include "pages/check_page.h"

namespace zentlor::pages {

struct HelpFile {
    std::string name;
    std::string content;
};

/// The help: index.html with the contents, readme.html, one page a check, <Key>.html, and the style sheet of them all.
/// `pages` are those of all checks.
std::vector<HelpFile> HelpFiles(const std::vector<CheckPage>& pages, const std::string& readme);

}  // namespace zentlor::pages
