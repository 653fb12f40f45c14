// The help as a set of HTML pages, for the help window and for any browser. Each page speaks both languages, as the
// one help belongs to both.

#include "pages/help_pages.h"

#include <algorithm>

#include "core/language/messages.h"
#include "core/utilities/encoding.h"
#include "pages/markup.h"

namespace zentlor::pages {

namespace {

// Colours are the reader's own, so that the pages follow a dark palette.
constexpr const char* kStyle =
    ":root { color-scheme: light dark; }\n"
    "body { font-family: sans-serif; line-height: 1.5; max-width: 48em; margin: 1.5em; }\n"
    "h1 { font-size: 150%; }\n"
    "h2 { font-size: 115%; margin-top: 1.4em; }\n"
    "pre, code { font-family: monospace; }\n"
    "pre { margin-left: 1.5em; }\n"
    "li { margin-bottom: 0.25em; }\n"
    "table { border-collapse: collapse; }\n"
    "th, td { text-align: left; padding: 0.1em 1em 0.1em 0; }\n";

constexpr int kTabCaptions = 119;
constexpr const char* kOverview = "Überblick · Overview";

std::string Caption(int message) {
    return ToUtf8(GetResourceString(kDeutsch, message)) + " · " + ToUtf8(GetResourceString(kEnglish, message));
}

std::string FileOf(CheckId id) {
    return ToUtf8(InfoOf(id).key) + ".html";
}

// The help's page for a file of the project that a page links to.
std::string PageOf(const std::string& target) {
    const std::string path = target.substr(0, target.find('#'));
    const std::string file = path.substr(path.rfind('/') + 1);
    const bool contents = path.ends_with("docs/checks/README.md") || path.ends_with("docs/checks") ||
                          path.ends_with("docs/checks/") || path == "README.md";
    if (contents) return "index.html";
    const auto check = std::find_if(kCatalogue.begin(), kCatalogue.end(),
                                    [&](const CheckInfo& info) { return ToUtf8(info.key) + ".md" == file; });
    return check == kCatalogue.end() ? std::string() : FileOf(check->id);
}

std::string Html(const std::string& title, const std::string& body) {
    return "<!DOCTYPE html>\n<html>\n<head>\n<meta charset=\"utf-8\"/>\n<title>" + Escaped(title) +
           "</title>\n<link rel=\"stylesheet\" href=\"style.css\"/>\n</head>\n<body>\n" + body + "</body>\n</html>\n";
}

std::string Link(const std::string& file, const std::string& text) {
    return "<a href=\"" + file + "\">" + Escaped(text) + "</a>";
}

std::string Heading(const char* tag, const std::string& text) {
    return "<" + std::string(tag) + ">" + Escaped(text) + "</" + tag + ">\n";
}

std::string IndexBody() {
    std::string body = Heading("h1", "Zentlor");
    body += "<p>" + Escaped(Caption(117)) + "</p>\n<ul>\n<li>" + Link("readme.html", kOverview) + "</li>\n</ul>\n";
    int caption = kTabCaptions;
    for (const CheckGroup group : {CheckGroup::Module, CheckGroup::Procedures, CheckGroup::Commands}) {
        body += Heading("h2", Caption(caption++)) + "<ul>\n";
        for (int box = 1; box <= CountOf(group); ++box) {
            const CheckInfo& check = InfoOf(CheckOfBox(group, box));
            body += "<li>" + Link(FileOf(check.id), Caption(check.label)) + "</li>\n";
        }
        body += "</ul>\n";
    }
    return body;
}

std::string BackLink() {
    return "<p>" + Link("index.html", "Inhalt · Contents") + "</p>\n";
}

void Replace(std::string& text, std::string_view what, std::string_view with) {
    const auto at = text.find(what);
    if (at != std::string::npos) text.replace(at, what.size(), with);
}

// What the page says in English alone the help says in both languages. The check's label and its place in the dialog,
// which stand on two lines of the page, stand apart.
std::string CheckBody(const CheckPage& page) {
    std::string markdown = page.markdown;
    Replace(markdown, "\nGroup: ", "\n\nGroup: ");
    Replace(markdown, "\n## Wrong\n", "\n## Falsch · Wrong\n");
    Replace(markdown, "\n## Right\n", "\n## Richtig · Right\n");
    return BackLink() + HtmlOf(markdown, PageOf);
}

}  // namespace

std::vector<HelpFile> HelpFiles(const std::vector<CheckPage>& pages, const std::string& readme) {
    std::vector<HelpFile> files = {{"style.css", kStyle},
                                   {"index.html", Html("Zentlor", IndexBody())},
                                   {"readme.html", Html(kOverview, BackLink() + HtmlOf(readme, PageOf))}};
    for (const CheckPage& page : pages) {
        files.push_back({FileOf(page.id), Html(Caption(InfoOf(page.id).label), CheckBody(page))});
    }
    return files;
}

}  // namespace zentlor::pages
