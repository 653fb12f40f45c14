#pragma once

// The page of one check, as it stands in docs/checks/<Key>.md.

#include <stdexcept>
#include <string>
#include <vector>

#include "core/checks/catalogue.h"

namespace zentlor::pages {

/// A page or a folder that cannot be used. The sentence names the file and what is wrong with it.
class PageError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

struct CheckPage {
    CheckId id{};
    std::string markdown;
    /// The two explanations as plain text: a paragraph is one line, an empty line stands between two of them.
    std::string german;
    std::string english;
};

/// The page `markdown` of the check `id`. Throws PageError if one of the explanations is missing or empty.
CheckPage ParsePage(CheckId id, std::string markdown);

/// The pages of all checks, in the order of the catalogue, from `folder`/<Key>.md. Throws PageError.
std::vector<CheckPage> ReadPages(const std::string& folder);

/// The content of a file. Throws PageError.
std::string ReadPageFile(const std::string& path);

/// The page of a check in the order in which they are listed: by tab, and by box on each tab.
const CheckPage& PageOfBox(const std::vector<CheckPage>& pages, CheckGroup group, int box);

}  // namespace zentlor::pages
