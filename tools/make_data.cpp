// make_data PAGES README OUT: makes the explanations file and the help from the pages of the checks in folder PAGES and
// the README. The help is a folder that has the name of the help file; its first page is index.html.

#include <filesystem>
#include <fstream>
#include <iostream>

#include "core/options/explanations.h"
#include "core/utilities/encoding.h"
#include "core/utilities/shell.h"
#include "pages/explanations_file.h"
#include "pages/help_pages.h"

namespace {

void WriteFile(const std::filesystem::path& path, const std::string& content) {
    std::ofstream file(path, std::ios::binary);
    file << content << std::flush;
    if (!file) throw zentlor::pages::PageError(path.string() + " cannot be written");
}

void MakeData(const std::string& pagesFolder, const std::string& readme, const std::filesystem::path& out) {
    using namespace zentlor;
    const std::vector<pages::CheckPage> checkPages = pages::ReadPages(pagesFolder);
    const std::filesystem::path help = out / ToUtf8(kHelpFile);
    std::filesystem::remove_all(help);  // a page of a check that is gone
    std::filesystem::create_directories(help);
    for (const pages::HelpFile& file : pages::HelpFiles(checkPages, pages::ReadPageFile(readme))) {
        WriteFile(help / file.name, file.content);
    }
    WriteFile(out / ToUtf8(kExplanationsFile), pages::ExplanationsXml(checkPages));
}

}  // namespace

int main(int argc, char** argv) try {
    if (argc != 4) throw zentlor::pages::PageError("usage: make_data PAGES README OUT");
    MakeData(argv[1], argv[2], argv[3]);
} catch (const std::exception& failure) {
    std::cerr << "make_data: " << failure.what() << '\n';
    return 1;
}
