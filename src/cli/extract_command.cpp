// `zentlor extract` and `zentlor info`: what a document holds, as files and as a page to read.

#include <fcntl.h>
#include <fmt/format.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <set>

#include "cli/commands.h"
#include "cli/words.h"
#include "core/language/messages.h"
#include "core/utilities/encoding.h"
#include "workspace/export_module.h"

namespace zentlor::cli {

namespace {

namespace fs = std::filesystem;

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
            if (!MakeFolder(folder)) continue;
            for (const auto& component : project.project->VBComponents()) WriteModule(folder, project, *component);
        }
        const std::string modules = Counted(written_, sprache_, {"Modul", "Module"}, {"module", "modules"});
        const bool told = WriteOutput({},
                                      Say(sprache_, "[%1] nach „[%2]“ geschrieben.", "[%1] written to “[%2]”.",
                                          {modules, Printable(arguments_.output)}) +
                                          "\n",
                                      sprache_);
        return failed_ || !told || !opened.Complete() ? kTrouble : kNoHints;
    }

  private:
    // A name that was not given before in this folder, whatever the case of its letters.
    std::string Unused(const std::string& stem, const std::string& ending) {
        std::string name = stem + ending;
        for (int n = 2; !used_.insert(Folded(name)).second; ++n) name = fmt::format("{}_{}{}", stem, n, ending);
        return name;
    }

    bool MakeFolder(const fs::path& folder) {
        std::error_code error;
        fs::create_directories(folder, error);
        if (!error) return true;
        failed_ = true;
        Tell(Say(sprache_, "Der Ordner „[%1]“ kann nicht angelegt werden ([%2]); einen anderen angeben.",
                 "The folder “[%1]” cannot be made ([%2]); name another one.",
                 {Printable(folder.string()), error.message()}));
        return false;
    }

    void WriteModule(const fs::path& folder, const workspace::OpenedProject& project, const VBComponent& component) {
        const fs::path plain = workspace::ExportFileName(component);
        const fs::path path = folder / Unused(plain.stem().string(), plain.extension().string());
        std::error_code ignored;
        if (arguments_.force && fs::is_regular_file(fs::symlink_status(path, ignored))) fs::remove(path, ignored);
        int lost = 0;
        const std::string bytes = BytesOf(project, component, lost);
        if (const int error = WriteNewFile(path.string(), bytes); error != 0) {
            failed_ = true;
            Tell(Refusal(path.string(), error));
            return;
        }
        ++written_;
        if (lost == 0) return;
        failed_ = true;
        const auto characters = static_cast<std::size_t>(lost);
        Tell(Say(sprache_, "Windows-1252 hat [%2] aus „[%1]“ nicht; --utf8 behält alle.",
                 "Windows-1252 lacks [%2] of “[%1]”; --utf8 keeps all.",
                 {Printable(path.string()),
                  Counted(characters, sprache_, {"Zeichen", "Zeichen"}, {"character", "characters"})}));
    }

    // `lost` receives how many characters Windows-1252 does not have.
    std::string BytesOf(const workspace::OpenedProject& project, const VBComponent& component, int& lost) const {
        std::string bytes = arguments_.utf8 ? "\xEF\xBB\xBF" : "";
        const CodeModule& cm = component.CodeModule();
        bytes.reserve(cm.AllText().size() + static_cast<std::size_t>(cm.CountOfLines()) + kUsualHeader);
        workspace::ForEachExportLine(project, component, [&](TextView line) {
            int missing = 0;
            bytes += arguments_.utf8 ? ToUtf8(line) : ToWindows1252(line, &missing);
            bytes += "\r\n";
            lost += missing;
        });
        return bytes;
    }

    // The error's number, 0 if all was written. A file that took a part only is removed.
    static int WriteNewFile(const std::string& path, const std::string& bytes) {
        const int descriptor = open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0666);
        if (descriptor < 0) return errno;
        int error = 0;
        for (std::size_t written = 0; written < bytes.size() && error == 0;) {
            const ssize_t n = write(descriptor, bytes.data() + written, bytes.size() - written);
            if (n >= 0) {
                written += static_cast<std::size_t>(n);
            } else if (errno != EINTR) {
                error = errno;
            }
        }
        if (close(descriptor) != 0 && error == 0) error = errno;
        if (error != 0) unlink(path.c_str());
        return error;
    }

    std::string Refusal(const std::string& path, int error) const {
        if (error == EEXIST) {
            return Say(sprache_, "„[%1]“ gibt es schon; --force ersetzt vorhandene Dateien.",
                       "“[%1]” exists already; --force replaces files that exist.", {Printable(path)});
        }
        return Say(sprache_, "„[%1]“ wurde nicht geschrieben: [%2].", "“[%1]” was not written: [%2].",
                   {Printable(path), std::strerror(error)});
    }

    static constexpr std::size_t kUsualHeader = 1024;

    const Arguments& arguments_;
    int sprache_;
    std::set<Text> used_;
    std::size_t written_ = 0;
    bool failed_ = false;
};

// The pages about projects and documents.
class InfoPages {
  public:
    explicit InfoPages(int sprache) : sprache_(sprache) {}

    void Add(const readers::Document& document) {
        text += Printable(document.path) + "\n";
        const std::string description = InLanguage(document.description, sprache_);
        Row("Art", "Kind", description.empty() ? Word("exportierte Module", "exported modules") : description);
        Row("Programm", "Application", document.application);
        Row("Projekt", "Project", ToUtf8(document.projectName));
        Row("Codepage", "Code page", document.codePage == 0 ? "" : std::to_string(document.codePage));
        if (document.locked) {
            Row("Gesperrt", "Locked",
                Word("ja, der Quelltext ist trotzdem lesbar", "yes, the source is readable all the same"));
        }
        for (const Text& reference : document.references) Row("Verweis", "Reference", ToUtf8(reference));
    }

    void AddModules(const workspace::OpenedProject& project) {
        for (const auto& component : project.project->VBComponents()) {
            const int lines = component->CodeModule().CountOfLines();
            text += fmt::format("  {:<40}{:<22}{:>7} {}\n", Printable(TextView(component->Name())),
                                TypeWord(component->Type()), lines,
                                lines == 1 ? Word("Zeile", "line") : Word("Zeilen", "lines"));
        }
    }

    std::string text;

  private:
    std::string Word(const char* german, const char* english) const { return sprache_ == kEnglish ? english : german; }

    void Row(const char* german, const char* english, const std::string& value) {
        if (!value.empty()) text += fmt::format("  {:<13}{}\n", Word(german, english) + ":", Printable(value));
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
    return Extractor(arguments, sprache).Run(OpenFor(arguments, false, sprache));
}

int RunInfo(const Arguments& arguments) {
    const int sprache = LanguageOf(arguments);
    const workspace::Workspace opened = OpenFor(arguments, false, sprache);
    InfoPages pages(sprache);
    for (const workspace::OpenedProject& project : opened.projects) {
        pages.Add(project.document);
        pages.AddModules(project);
    }
    for (const readers::Document& document : opened.empty) pages.Add(document);
    const bool written = WriteOutput({}, pages.text, sprache);
    return written && opened.Complete() ? kNoHints : kTrouble;
}

}  // namespace zentlor::cli
