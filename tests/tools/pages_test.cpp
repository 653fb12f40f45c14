// The data files that the build makes of the pages in docs/checks.

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>

#include "core/options/options_dialog.h"
#include "core/utilities/encoding.h"
#include "pages/explanations_file.h"
#include "pages/help_pages.h"
#include "pages/markup.h"
#include "workspace/xml_document.h"

namespace zentlor::pages {
namespace {

const std::vector<CheckPage>& AllPages() {
    static const std::vector<CheckPage> pages = ReadPages(ZENTLOR_SOURCE_DIR "/docs/checks");
    return pages;
}

TEST(CheckPageTest, ParagraphsBecomeLines) {
    const std::string head = "# X\n\n## Erläuterung\n\n";
    const CheckPage page =
        ParsePage(CheckId::ModLeer, head + "Eins\nzwei.\n\nDrei.\n\n## Explanation\nOne\n## Wrong\nNo");
    EXPECT_EQ(page.german, "Eins zwei.\n\nDrei.");
    EXPECT_EQ(page.english, "One");
    EXPECT_THROW(ParsePage(CheckId::ModLeer, head + "\n## Explanation\nOne\n"), PageError) << "empty";
    EXPECT_THROW(ParsePage(CheckId::ModLeer, head + "Eins\n"), PageError) << "no English";
}

// What the dialog reads from the file that the build has made: a text for each box, whole in both languages.
TEST(ExplanationsFile, HoldsATextForEachBox) {
    const auto path = std::filesystem::temp_directory_path() / ("zentlor_" + std::to_string(::getpid()) + ".xml");
    std::ofstream(path, std::ios::binary) << ExplanationsXml(AllPages());
    workspace::LibxmlLibrary library;
    const auto document = library.CreateDocument();
    ASSERT_TRUE(document->Load(FromUtf8(path.string()))) << ToUtf8(document->ParseErrorReason());
    std::filesystem::remove(path);
    for (const CheckInfo& check : kCatalogue) {
        const auto element = document->SelectSingleNode(Text(kExplanationsRoot) + u"/" + PathOfBox(check.id));
        ASSERT_NE(element, nullptr) << ToUtf8(check.key);
        const std::string text = ToUtf8(element->TextContent());
        const CheckPage& page = AllPages()[IndexOf(check.id)];
        EXPECT_EQ(text, page.german + "\n\n" + page.english) << ToUtf8(check.key);
        for (const std::string& half : {page.german, page.english}) {
            std::istringstream words(half);
            const auto count = std::distance(std::istream_iterator<std::string>(words), {});
            EXPECT_TRUE(count >= 60 && count <= 120) << ToUtf8(check.key) << " has a text of " << count << " words";
        }
    }
}

TEST(Help, EveryLinkLeadsToAPage) {
    const std::vector<HelpFile> files = HelpFiles(AllPages(), "# R\n[a](docs/checks/ModLeer.md) [b](CHANGELOG.md)");
    std::set<std::string> names;
    for (const HelpFile& file : files) names.insert(file.name);
    EXPECT_EQ(names.size(), kCheckCount + 3);
    std::set<std::string> reached;
    for (const HelpFile& file : files) {
        for (auto at = file.content.find("href=\""); at != std::string::npos; at = file.content.find("href=\"", at)) {
            at += 6;
            const std::string target = file.content.substr(at, file.content.find('"', at) - at);
            EXPECT_EQ(names.count(target), target.starts_with("http") ? 0U : 1U) << file.name << " leads to " << target;
            reached.insert(target);
        }
    }
    for (const std::string& name : names) EXPECT_EQ(reached.count(name), 1U) << "nothing leads to " << name;
}

TEST(Help, NamesItselfOnceAndLetsNoLinesRunTogether) {
    for (const HelpFile& file : HelpFiles(AllPages(), "# R")) {
        const auto holds = [&](const char* text) { return file.content.find(text) != std::string::npos; };
        const bool isCheck = file.name.ends_with(".html") && file.name != "index.html" && file.name != "readme.html";
        EXPECT_EQ(holds("<p>Group: "), isCheck) << file.name;
        EXPECT_EQ(holds("<title>Zentlor</title>"), file.name == "index.html") << file.name;
    }
}

TEST(Markup, LinksOfTheProjectBecomeLinksOfTheHelp) {
    const auto pageOf = [](const std::string& target) {
        return target == "x.md" ? std::string("x.html") : std::string();
    };
    struct Row {
        const char* why;
        const char* markdown;
        const char* html;
    };
    const Row rows[] = {
        {"a page of the help", "[a](x.md)", "<p><a href=\"x.html\">a</a></p>\n"},
        {"the world", "[a](https://example.org/?b&c)", "<p><a href=\"https://example.org/?b&amp;c\">a</a></p>\n"},
        {"nothing", "[a `b`](y.md) <z>", "<p>a <code>b</code> &lt;z&gt;</p>\n"},
        {"a script is no address", "[a](javascript:b)", "<p>a</p>\n"},
        {"a picture", "![a](y.png)", "<p>a</p>\n"},
        {"a table", "|a|b|\n|---|---|\n|c|d|",
         "<table>\n<thead>\n<tr>\n<th>a</th>\n<th>b</th>\n</tr>\n</thead>\n<tbody>\n<tr>\n<td>c</td>\n<td>d</td>\n"
         "</tr>\n</tbody>\n</table>\n"},
    };
    for (const Row& row : rows) EXPECT_EQ(HtmlOf(row.markdown, pageOf), row.html) << row.why;
}

}  // namespace
}  // namespace zentlor::pages
