// The reading of a page: its two explanations are the text below two headings, in German and in English.

#include "pages/check_page.h"

#include <fstream>
#include <iterator>
#include <sstream>

#include "core/utilities/encoding.h"

namespace zentlor::pages {

namespace {

// The text below the heading `title`, up to the next heading: the lines of a paragraph joined by blanks.
std::string TextBelow(const std::string& markdown, const std::string& title) {
    std::istringstream lines(markdown);
    std::string text;
    bool inside = false;
    bool newParagraph = false;
    for (std::string line; std::getline(lines, line);) {
        if (line.starts_with("## ")) {
            if (inside) break;
            inside = line == "## " + title;
        } else if (inside && line.empty()) {
            newParagraph = !text.empty();
        } else if (inside) {
            if (!text.empty()) text += newParagraph ? "\n\n" : " ";
            newParagraph = false;
            text += line;
        }
    }
    return text;
}

std::string ExplanationIn(CheckId id, const std::string& markdown, const std::string& title) {
    std::string text = TextBelow(markdown, title);
    if (text.empty()) throw PageError(ToUtf8(InfoOf(id).key) + ".md: no text below \"## " + title + "\"");
    return text;
}

}  // namespace

CheckPage ParsePage(CheckId id, std::string markdown) {
    CheckPage page;
    page.id = id;
    page.german = ExplanationIn(id, markdown, "Erläuterung");
    page.english = ExplanationIn(id, markdown, "Explanation");
    page.markdown = std::move(markdown);
    return page;
}

std::string ReadPageFile(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    std::string content{std::istreambuf_iterator<char>(file), {}};
    if (!file.is_open() || file.bad()) throw PageError(path + " cannot be read");
    return content;
}

std::vector<CheckPage> ReadPages(const std::string& folder) {
    std::vector<CheckPage> pages;
    for (const CheckInfo& check : kCatalogue) {
        pages.push_back(ParsePage(check.id, ReadPageFile(folder + "/" + ToUtf8(check.key) + ".md")));
    }
    return pages;
}

const CheckPage& PageOfBox(const std::vector<CheckPage>& pages, CheckGroup group, int box) {
    return pages.at(IndexOf(CheckOfBox(group, box)));
}

}  // namespace zentlor::pages
