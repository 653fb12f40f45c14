// What the verbs share: the choice of the verb, the language, and the way to the streams.

#include "cli/commands.h"

#include <fmt/format.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>

#include "cli/words.h"
#include "core/options/option_store.h"
#include "core/utilities/encoding.h"
#include "workspace/atomic_file.h"
#include "workspace/settings_file.h"

namespace zentlor::cli {

namespace {

namespace fs = std::filesystem;

// The path beside `path` whose name is most like it, for a path that does not exist; empty if there is none.
std::string NearestPath(const std::string& given) {
    const std::string path = given.substr(0, given.find_last_not_of('/') + 1);
    const fs::path parent = fs::path(path).parent_path();
    std::vector<std::string> names;
    std::error_code error;
    fs::directory_iterator entry(parent.empty() ? fs::path(".") : parent, error);
    for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
        const fs::path name = entry->path().filename();
        // A link that leads nowhere is there and does not exist.
        if (name != fs::path(path).filename()) names.push_back(name.string());
    }
    const std::string nearest = NearestWord(fs::path(path).filename().string(), names);
    return nearest.empty() ? std::string() : (parent / nearest).string();
}

// Why a file was not written; the numbers are those of WriteFileAtomically.
readers::Sentence ReasonOf(const RuntimeError& error) {
    switch (error.number) {
        case 76:
            return {"den Ordner gibt es nicht", "its folder does not exist"};
        case 75:
            return {"es ist ein Ordner, oder der Name ist nicht verwendbar",
                    "it is a folder, or its name cannot be used"};
        case 70:
            return {"die Zugriffsrechte fehlen", "permission denied"};
        case 61:
            return {"der Datenträger ist voll", "the disk is full"};
        default:
            return {"der Datenträger meldet einen Fehler", "a fault of the device"};
    }
}

}  // namespace

int Run(const Arguments& arguments) {
    switch (arguments.verb) {
        case Verb::Check:
            return RunCheck(arguments);
        case Verb::Dump:
            return RunDump(arguments);
        case Verb::Checks:
            return RunChecks(arguments);
        case Verb::Compile:
            return RunCompile(arguments);
        case Verb::Extract:
            return RunExtract(arguments);
        case Verb::Info:
            return RunInfo(arguments);
    }
    return kTrouble;
}

workspace::Workspace OpenFor(const Arguments& arguments, bool keepRawCode, int sprache) {
    workspace::OpenOptions options;
    options.limits = arguments.limits;
    options.projectPerFolder = arguments.projectPerFolder;
    options.keepRawCode = keepRawCode;
    options.compile = arguments.verb != Verb::Info && arguments.verb != Verb::Extract;  // which give the code as it is
    workspace::Workspace opened = workspace::Open(arguments.paths, options);
    PrintTroubles(opened, sprache);
    return opened;
}

int LanguageOf(const Arguments& arguments) {
    if (arguments.sprache != 0) return arguments.sprache;
    workspace::SettingsFile store(workspace::DefaultSettingsPath());
    return store.GetSetting(kApplication, kSection, kSpracheKey) == u"2" ? 2 : 1;
}

void PrintTroubles(const workspace::Workspace& opened, int sprache) {
    for (const workspace::Unreadable& unreadable : opened.unreadable) {
        Tell(Printable(InLanguage(unreadable.sentence, sprache)));
        if (unreadable.failure != readers::ReadFailure::NotFound) continue;
        const std::string nearest = NearestPath(unreadable.path);
        if (nearest.empty()) continue;
        Tell(Say(sprache, "Am ähnlichsten ist „[%1]“.", "The most similar path is “[%1]”.", {Printable(nearest)}));
    }
    for (const readers::Sentence& problem : opened.problems) {
        Tell(Printable(InLanguage(problem, sprache)));
    }
    for (const readers::Document& document : opened.empty) {
        Tell(Say(sprache, "„[%1]“ enthält keinen VBA-Code.", "“[%1]” holds no VBA code.", {Printable(document.path)}));
    }
}

std::string CompileErrorWords(const workspace::ModuleOrigin& origin, const workspace::CompileError& error,
                              int sprache) {
    const vba::Sentence words = error.error.Words(origin.FileLine(error.error.relatedLine));
    return sprache == 2 ? words.english : words.german;
}

std::string CompileErrorLine(const workspace::OpenedProject& project, const workspace::CompileError& error,
                             int sprache) {
    const workspace::ModuleOrigin& origin = project.origins[error.component];
    return fmt::format("{}:{}:{}: {}", Printable(origin.path), origin.FileLine(error.error.line), error.error.column,
                       Printable(CompileErrorWords(origin, error, sprache)));
}

bool WriteOutput(const std::string& path, const std::string& bytes, int sprache) {
    if (path.empty()) {
        const bool written = std::fwrite(bytes.data(), 1, bytes.size(), stdout) == bytes.size();
        if (written && std::fflush(stdout) == 0) return true;
        Tell(Say(sprache, "Die Ausgabe wurde nicht geschrieben: [%1].", "The output was not written: [%1].",
                 {std::strerror(errno)}));
        return false;
    }
    try {
        workspace::WriteFileAtomically(path, bytes);
        return true;
    } catch (const RuntimeError& error) {
        Tell(Say(sprache, "„[%1]“ wurde nicht geschrieben: [%2].", "“[%1]” was not written: [%2].",
                 {Printable(path), InLanguage(ReasonOf(error), sprache)}));
        return false;
    }
}

}  // namespace zentlor::cli
