#include "cli/arguments.h"

#include <fmt/format.h>

#include <CLI/CLI.hpp>
#include <algorithm>
#include <filesystem>

#include "cli/words.h"
#include "core/language/messages.h"
#include "core/utilities/encoding.h"

namespace zentlor::cli {

namespace {

std::string WithoutBlanks(const std::string& text) {
    const auto begin = text.find_first_not_of(' ');
    return begin == std::string::npos ? std::string() : text.substr(begin, text.find_last_not_of(' ') - begin + 1);
}

// Keys come separated by commas; one that nobody knows is answered with the nearest known one.
std::vector<CheckId> ParseKeys(const std::vector<std::string>& keys, const char* option) {
    std::vector<std::string> known;
    known.reserve(std::size(kCatalogue));
    for (const CheckInfo& check : kCatalogue) known.push_back(ToUtf8(check.key));
    std::vector<CheckId> result;
    for (const std::string& word : keys) {
        const std::string key = WithoutBlanks(word);
        const auto found = std::find(known.begin(), known.end(), key);
        if (found == known.end()) {
            const std::string nearest = NearestWord(key, known);
            throw CLI::ValidationError(
                option, fmt::format("there is no check \"{}\"; {}`zentlor checks` lists all of them", Printable(key),
                                    nearest.empty() ? "" : fmt::format("did you mean \"{}\"? ", nearest)));
        }
        result.push_back(kCatalogue[static_cast<std::size_t>(found - known.begin())].id);
    }
    return result;
}

// The parser of the command line. Options write into `arguments`; what needs a conversion is kept here until the end.
class CommandLine {
  public:
    CommandLine() {
        app_.set_version_flag("--version", "zentlor " ZENTLOR_VERSION);
        app_.require_subcommand(1);
        app_.footer(
            "Exit status: 0 no hints, 1 hints (compile: errors), 2 wrong usage, unreadable input, a project that does\n"
            "not compile or a failure, 130 stopped with Ctrl+C.");
        AddCheck();
        AddDump();
        AddChecks();
        AddCompile();
        AddExtract();
        AddInfo();
    }

    ParseResult Parse(int argc, const char* const* argv) {
        try {
            RefuseUnknownCommand(argc, argv);
            app_.parse(argc, argv);
            arguments_.only = ParseKeys(only_, "--only");
            arguments_.ignore = ParseKeys(ignore_, "--ignore");
        } catch (const CLI::ParseError& error) {
            return {std::nullopt, app_.exit(error) == 0 ? kNoHints : kTrouble};
        }
        if (language_ == "de") arguments_.sprache = kDeutsch;
        if (language_ == "en") arguments_.sprache = kEnglish;
        return {arguments_, kNoHints};
    }

  private:
    // The parser itself would only say that it misses a command.
    void RefuseUnknownCommand(int argc, const char* const* argv) const {
        const std::string word = argc < 2 ? std::string() : argv[1];
        if (word.starts_with('-')) return;
        std::vector<std::string> known;
        for (const CLI::App* sub : app_.get_subcommands({})) known.push_back(sub->get_name());
        if (std::find(known.begin(), known.end(), word) != known.end()) return;
        const std::string list = fmt::format("the commands are {}", fmt::join(known, ", "));
        if (word.empty()) throw CLI::ValidationError("zentlor", "which command? " + list);
        const std::string nearest = NearestWord(word, known);
        std::error_code error;
        const std::string way = std::filesystem::exists(word, error)
                                    ? "to check that path, write `zentlor check` in front"
                                : nearest.empty() ? list
                                                  : fmt::format("did you mean \"{}\"?", nearest);
        throw CLI::ValidationError("zentlor", fmt::format("there is no command \"{}\"; {}", Printable(word), way));
    }

    CLI::App* AddVerb(Verb verb, const char* name, const char* description) {
        CLI::App* sub = app_.add_subcommand(name, description);
        sub->callback([this, verb] { arguments_.verb = verb; });
        return sub;
    }

    void AddPaths(CLI::App* sub) {
        sub->add_option("PATH", arguments_.paths, "Folder, exported module, Office document or Access database")
            ->required();
        AddLanguage(sub);
        sub->add_flag("--project-per-folder", arguments_.projectPerFolder,
                      "Each folder with modules is a project of its own");
        readers::Limits& limits = arguments_.limits;
        constexpr const char* kGroup = "Limits on what is read (sizes in bytes, or with KB, MB, GB)";
        const auto size = [&](const char* option, auto& value, const char* what) {
            sub->add_option(option, value, what)
                ->transform(CLI::AsSizeValue(false))
                ->transform(CLI::Validator(
                    [](std::string& text) { return text.starts_with('-') ? "a size is not negative" : std::string(); },
                    {}))
                ->capture_default_str()
                ->group(kGroup);
        };
        size("--max-file-size", limits.fileBytes, "size of a file");
        size("--max-zip-part-size", limits.zipPartBytes,
             "unpacked size of one part of a zip; if not given, at most 16 MB plus four times the file");
        size("--max-module-size", limits.moduleBytes, "text of one module");
        size("--max-source-size", limits.sourceBytes,
             "text of all modules of one document; if not given, at most 1 MB plus three times the file");
        size("--max-memory", limits.checkBytes,
             "memory for the code of one document, estimated; if not given, at most 32 MB plus ten times the file");
        const auto count = [&](const char* option, auto& value, const char* what) {
            sub->add_option(option, value, what)->capture_default_str()->group(kGroup);
        };
        count("--max-zip-parts", limits.zipParts, "parts of a zip");
        count("--max-zip-ratio", limits.zipRatio, "unpacked to packed size, behind the first MiB");
        count("--max-modules", limits.modules, "modules of one document");
        count("--max-storage-depth", limits.storageDepth, "nested storages of a compound file");
        count("--max-storage-entries", limits.storageEntries, "storages and streams of a compound file");
    }

    void AddLanguage(CLI::App* sub) {
        sub->add_option("--language", language_, "Language of the output (default: the stored one, at first German)")
            ->check(CLI::IsMember({"de", "en"}));
    }

    // The verbs share one field for the format: each has its own default, which is its first form.
    void AddFormat(CLI::App* sub, const std::vector<std::string>& formats) {
        sub->add_option("--format", arguments_.format, "Form of the output (default: " + formats.front() + ")")
            ->check(CLI::IsMember(formats));
        sub->preparse_callback([this, first = formats.front()](std::size_t) { arguments_.format = first; });
    }

    void AddCheck() {
        CLI::App* sub = AddVerb(Verb::Check, "check", "Find hidden errors and print them as hints");
        AddPaths(sub);
        AddFormat(sub, {"text", "jsonl", "txt", "csv"});
        sub->add_option("-o,--output", arguments_.output, "Write to this file instead of standard output");
        sub->add_option("--only", only_, "Run these checks and no others")->delimiter(',')->allow_extra_args(false);
        sub->add_option("--ignore", ignore_, "Leave these checks out")->delimiter(',')->allow_extra_args(false);
        sub->add_option("--component", arguments_.component, "Check this one component only");
        sub->add_option("--require-declaration", arguments_.requireDeclaration,
                        "The editor's setting \"Require Variable Declaration\" (default: 1)")
            ->check(CLI::IsMember({"0", "1"}));
        CLI::Option* settings =
            sub->add_option("--settings", arguments_.settings, "Settings file in place of the user's own");
        sub->add_flag("--isolated", arguments_.isolated, "Use no settings: all checks on, German")->excludes(settings);
        sub->add_flag("--uncompiled", arguments_.uncompiled, "Check a project although it does not compile");
        sub->add_flag("--stage-times", arguments_.stageTimes)->group("");
    }

    void AddDump() {
        CLI::App* sub = AddVerb(Verb::Dump, "dump", "Print the project as the checks see it, as JSON");
        AddPaths(sub);
        CLI::Option* raw = sub->add_flag("--raw", arguments_.raw, "The lines as they were read");
        sub->add_flag("--diff", arguments_.diff, "List the lines that the editor's form changes")->excludes(raw);
    }

    void AddChecks() {
        CLI::App* sub = AddVerb(Verb::Checks, "checks", "List the checks: key, group, label");
        AddLanguage(sub);
        AddFormat(sub, {"text", "json"});
    }

    void AddCompile() {
        CLI::App* sub = AddVerb(Verb::Compile, "compile", "Print what keeps the code from compiling");
        AddPaths(sub);
        AddFormat(sub, {"text", "jsonl"});
    }

    void AddExtract() {
        CLI::App* sub = AddVerb(Verb::Extract, "extract", "Write the modules of a document into files");
        AddPaths(sub);
        sub->add_option("-o,--output", arguments_.output, "Folder for the files")->required();
        sub->add_flag("--force", arguments_.force, "Replace files that exist");
        sub->add_flag("--utf8", arguments_.utf8, "Write UTF-8 instead of Windows-1252");
    }

    void AddInfo() {
        CLI::App* sub = AddVerb(Verb::Info, "info", "Tell what a file is and which modules it holds");
        AddPaths(sub);
    }

    CLI::App app_{"Finds hidden errors in VBA code.", "zentlor"};
    Arguments arguments_;
    std::vector<std::string> only_;
    std::vector<std::string> ignore_;
    std::string language_;
};

}  // namespace

ParseResult ParseArguments(int argc, const char* const* argv) {
    return CommandLine().Parse(argc, argv);
}

}  // namespace zentlor::cli
