// `zentlor extract` and `zentlor info`: what a document holds, as files and as a page to read.

#include <fcntl.h>
#include <fmt/format.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <set>

#include "cli/commands.h"
#include "cli/words.h"
#include "core/utilities/encoding.h"
#include "workspace/export_module.h"

namespace zentlor::cli {

namespace {

namespace fs = std::filesystem;

workspace::Workspace OpenFor(const Arguments& arguments, int sprache) {
    workspace::OpenOptions options;
    options.limits = arguments.limits;
    options.projectPerFolder = arguments.projectPerFolder;
    options.keepRawCode = true;
    workspace::Workspace opened = workspace::Open(arguments.paths, options);
    PrintTroubles(opened, sprache);
    return opened;
}

// Writes files into one folder and nowhere else: names have no separators, and no link is followed.
class Extractor {
  public:
    Extractor(const Arguments& arguments, int sprache) : arguments_(arguments), sprache_(sprache) {}

    int Run(const workspace::Workspace& opened) {
        // Several documents get a folder each, or equal names would meet.
        const bool several = opened.projects.size() > 1;
        for (const workspace::OpenedProject& project : opened.projects) {
            const std::string stem = fs::path(project.document.path).filename().string();
            fs::path folder = arguments_.output;
            if (several) folder /= Unused(workspace::PlainFileName(FromUtf8(stem)), "");
            used_.clear();
            for (const auto& component : project.project->VBComponents()) WriteModule(folder, project, *component);
        }
        fmt::print("{}\n", Say(sprache_, "[%1] Module nach „[%2]“ geschrieben.", "[%1] modules written to “[%2]”.",
                               {std::to_string(written_), Printable(arguments_.output)}));
        return failed_ || !opened.Complete() ? kTrouble : kNoHints;
    }

  private:
    // A name that was not given before in this folder, whatever the case of its letters.
    std::string Unused(const std::string& stem, const std::string& ending) {
        std::string name = stem + ending;
        const auto folded = [](const std::string& text) {
            Text key = FromUtf8(text);
            std::transform(key.begin(), key.end(), key.begin(), FoldCase);
            return key;
        };
        for (int n = 2; !used_.insert(folded(name)).second; ++n) name = fmt::format("{}_{}{}", stem, n, ending);
        return name;
    }

    void WriteModule(const fs::path& folder, const workspace::OpenedProject& project, const VBComponent& component) {
        const fs::path plain = workspace::ExportFileName(component);
        const fs::path path = folder / Unused(plain.stem().string(), plain.extension().string());
        std::error_code ignored;
        fs::create_directories(folder, ignored);
        if (arguments_.force && fs::is_regular_file(fs::symlink_status(path, ignored))) fs::remove(path, ignored);
        int lost = 0;
        const Text text = workspace::ExportText(project, component);
        const std::string bytes = arguments_.utf8 ? "\xEF\xBB\xBF" + ToUtf8(text) : ToWindows1252(text, &lost);
        if (!WriteNewFile(path.string(), bytes)) {
            failed_ = true;
            fmt::print(stderr, "{}\n", Refusal(path.string()));
            return;
        }
        ++written_;
        if (lost == 0) return;
        failed_ = true;
        fmt::print(stderr, "{}\n",
                   Say(sprache_, "In „[%1]“ hat Windows-1252 [%2] Zeichen nicht; --utf8 erhält sie.",
                       "In “[%1]” Windows-1252 lacks [%2] characters; --utf8 keeps them.",
                       {Printable(path.string()), std::to_string(lost)}));
    }

    static bool WriteNewFile(const std::string& path, const std::string& bytes) {
        const int descriptor = open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0666);
        if (descriptor < 0) return false;
        std::size_t written = 0;
        while (written < bytes.size()) {
            const ssize_t n = write(descriptor, bytes.data() + written, bytes.size() - written);
            if (n <= 0) break;
            written += static_cast<std::size_t>(n);
        }
        return close(descriptor) == 0 && written == bytes.size();
    }

    std::string Refusal(const std::string& path) const {
        if (errno == EEXIST) {
            return Say(sprache_, "„[%1]“ gibt es schon; --force ersetzt vorhandene Dateien.",
                       "“[%1]” exists already; --force replaces files that exist.", {Printable(path)});
        }
        return Say(sprache_, "„[%1]“ wurde nicht geschrieben: [%2].", "“[%1]” was not written: [%2].",
                   {Printable(path), std::strerror(errno)});
    }

    const Arguments& arguments_;
    int sprache_;
    std::set<Text> used_;
    int written_ = 0;
    bool failed_ = false;
};

// Prints the page about one project or document.
class InfoPage {
  public:
    explicit InfoPage(int sprache) : sprache_(sprache) {}

    void Print(const readers::Document& document) const {
        fmt::print("{}\n", Printable(document.path));
        const std::string description = InLanguage(document.description, sprache_);
        Row("Art", "Kind", description.empty() ? Word("exportierte Module", "exported modules") : description);
        Row("Programm", "Application", document.application);
        Row("Projekt", "Project", Printable(TextView(document.projectName)));
        Row("Codepage", "Code page", document.codePage == 0 ? "" : std::to_string(document.codePage));
        if (document.locked)
            Row("Gesperrt", "Locked",
                Word("ja, der Quelltext ist trotzdem lesbar", "yes, the source is readable all the same"));
        for (const Text& reference : document.references) Row("Verweis", "Reference", Printable(TextView(reference)));
    }

    void PrintModules(const workspace::OpenedProject& project) const {
        for (const auto& component : project.project->VBComponents()) {
            const int lines = component->CodeModule().CountOfLines();
            fmt::print("  {:<40}{:<22}{:>7} {}\n", Printable(TextView(component->Name())), TypeWord(component->Type()),
                       lines, lines == 1 ? Word("Zeile", "line") : Word("Zeilen", "lines"));
        }
    }

    std::string Word(const char* german, const char* english) const { return sprache_ == 2 ? english : german; }

  private:
    void Row(const char* german, const char* english, const std::string& value) const {
        if (!value.empty()) fmt::print("  {:<13}{}\n", Word(german, english) + ":", Printable(value));
    }

    std::string TypeWord(int type) const {
        switch (type) {
            case vbext_ct_StdModule:
                return Word("Standardmodul", "standard module");
            case vbext_ct_ClassModule:
                return Word("Klassenmodul", "class module");
            case vbext_ct_MSForm:
                return Word("Formular", "form");
            default:
                return Word("Dokumentmodul", "document module");
        }
    }

    int sprache_;
};

}  // namespace

int RunExtract(const Arguments& arguments) {
    const int sprache = LanguageOf(arguments);
    return Extractor(arguments, sprache).Run(OpenFor(arguments, sprache));
}

int RunInfo(const Arguments& arguments) {
    const int sprache = LanguageOf(arguments);
    const workspace::Workspace opened = OpenFor(arguments, sprache);
    const InfoPage page(sprache);
    for (const workspace::OpenedProject& project : opened.projects) {
        page.Print(project.document);
        page.PrintModules(project);
    }
    for (const readers::Document& document : opened.empty) page.Print(document);
    return opened.Complete() ? kNoHints : kTrouble;
}

}  // namespace zentlor::cli
