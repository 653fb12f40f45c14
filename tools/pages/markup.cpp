// Markdown to HTML. The conversion is the library's; what is left to do here are the links, which lead to files of the
// project in the source and to pages of the help, or to nothing, in the result.

#include "pages/markup.h"

#include <md4c-html.h>
#include <md4c.h>

#include <stdexcept>

namespace zentlor::pages {

namespace {

void Append(const MD_CHAR* text, MD_SIZE size, void* html) {
    static_cast<std::string*>(html)->append(text, size);
}

// The value of attribute `name` in a tag.
std::string AttributeOf(std::string_view tag, std::string_view name) {
    const std::string begin = " " + std::string(name) + "=\"";
    const auto found = tag.find(begin);
    if (found == std::string_view::npos) return {};
    const auto from = found + begin.size();
    return std::string(tag.substr(from, tag.find('"', from) - from));
}

bool LeadsOut(std::string_view target) {
    return target.starts_with("https://") || target.starts_with("http://") || target.starts_with("mailto:");
}

class LinkFilter {
  public:
    explicit LinkFilter(std::string (*pageOf)(const std::string&)) : pageOf_(pageOf) {}

    // What stands in the result for one tag of the source.
    std::string Replace(std::string_view tag) {
        if (tag.starts_with("<img ")) return AttributeOf(tag, "alt");
        if (tag.starts_with("<a ")) {
            const std::string target = AttributeOf(tag, "href");
            const std::string page = LeadsOut(target) ? target : pageOf_(target);
            dropped_ = page.empty();
            return dropped_ ? "" : "<a href=\"" + page + "\">";
        }
        if (tag == "</a>" && dropped_) return {};
        return std::string(tag);
    }

  private:
    std::string (*pageOf_)(const std::string&);
    bool dropped_ = false;
};

}  // namespace

std::string Escaped(std::string_view text) {
    std::string result;
    for (const char c : text) {
        switch (c) {
            case '&':
                result += "&amp;";
                break;
            case '<':
                result += "&lt;";
                break;
            case '>':
                result += "&gt;";
                break;
            case '"':
                result += "&quot;";
                break;
            default:
                result += c;
        }
    }
    return result;
}

std::string HtmlOf(const std::string& markdown, std::string (*pageOf)(const std::string& target)) {
    std::string html;
    constexpr unsigned kFlags = MD_FLAG_TABLES | MD_FLAG_NOHTML | MD_FLAG_STRIKETHROUGH;
    if (md_html(markdown.data(), static_cast<MD_SIZE>(markdown.size()), Append, &html, kFlags, MD_HTML_FLAG_XHTML) != 0)
        throw std::runtime_error("a page is no readable Markdown");
    LinkFilter links(pageOf);
    std::string result;
    std::size_t from = 0;
    for (auto open = html.find('<'); open != std::string::npos; open = html.find('<', from)) {
        const auto behind = html.find('>', open) + 1;
        result.append(html, from, open - from)
            .append(links.Replace(std::string_view(html).substr(open, behind - open)));
        from = behind;
    }
    return result.append(html, from);
}

}  // namespace zentlor::pages
