#include "pages/explanations_file.h"

#include "core/options/options_dialog.h"
#include "core/utilities/encoding.h"
#include "pages/markup.h"

namespace zentlor::pages {

namespace {

std::string Opening(const std::string& name) {
    return "<" + name + ">";
}
std::string Closing(const std::string& name) {
    return "</" + name + ">\n";
}

std::string ElementOf(const CheckPage& page, const std::string& name) {
    return "    " + Opening(name) + Escaped(page.german + "\n\n" + page.english) + Closing(name);
}

}  // namespace

std::string ExplanationsXml(const std::vector<CheckPage>& pages) {
    const std::string root = ToUtf8(kExplanationsRoot);
    std::string xml = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n" + Opening(root) + "\n";
    for (const CheckGroup group : {CheckGroup::Module, CheckGroup::Procedures, CheckGroup::Commands}) {
        std::string tab;
        for (int box = 1; box <= CountOf(group); ++box) {
            const CheckPage& page = PageOfBox(pages, group, box);
            const std::string path = ToUtf8(PathOfBox(page.id));
            const auto slash = path.find('/');
            if (box == 1) {
                tab = path.substr(0, slash);
                xml += "  " + Opening(tab) + "\n";
            }
            xml += ElementOf(page, path.substr(slash + 1));
        }
        xml += "  " + Closing(tab);
    }
    return xml + Closing(root);
}

}  // namespace zentlor::pages
