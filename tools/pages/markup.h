#pragma once

#include <string>
#include <string_view>

namespace zentlor::pages {

/// `text` as text of an XML or HTML element or attribute.
std::string Escaped(std::string_view text);

/// The HTML of a page in Markdown (CommonMark with tables; HTML in it counts as text). A link or picture that leads to
/// a page of this help or out into the world stays; any other one becomes its text.
/// `pageOf` gives the help's own page for a link's target, or an empty text.
std::string HtmlOf(const std::string& markdown, std::string (*pageOf)(const std::string& target));

}  // namespace zentlor::pages
