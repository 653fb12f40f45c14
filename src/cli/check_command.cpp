// `zentlor check`: opens the paths, runs the checks on each project through the compile gate, and prints one report.

#include <fmt/format.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>

#include "cli/commands.h"
#include "cli/console_host.h"
#include "cli/report.h"
#include "cli/words.h"
#include "core/analysis/compile_gate.h"
#include "core/analysis/run_driver.h"
#include "core/utilities/encoding.h"
#include "workspace/settings_file.h"
#include "workspace/stopwatch.h"

namespace zentlor::cli {

namespace {

bool ShowsColour() {
    const char* noColour = std::getenv("NO_COLOR");
    const char* terminal = std::getenv("TERM");
    const bool dumb = terminal == nullptr || std::string_view(terminal) == "dumb";
    return isatty(STDOUT_FILENO) == 1 && (noColour == nullptr || noColour[0] == '\0') && !dumb;
}

// The settings of one run: those of the user, of a file that was named, or none.
class RunSettings {
  public:
    explicit RunSettings(const Arguments& arguments) {
        if (arguments.isolated) return;
        std::error_code error;
        isNewByName_ = !arguments.settings.empty() && !std::filesystem::exists(arguments.settings, error);
        file_.emplace(arguments.settings.empty() ? workspace::DefaultSettingsPath() : arguments.settings);
    }

    SettingsStore& Store() {
        if (file_) return *file_;
        return memory_;
    }

    // Writes what is new. Tells once, and only where it matters to the user, how it went.
    void Flush(int sprache) {
        if (!file_) return;
        file_->Flush();
        const std::string path = Printable(file_->Path());
        if (file_->Problem()) {
            Tell(Say(sprache,
                     "Die Einstellungen in „[%1]“ sind nicht lesbar oder nicht schreibbar ([%2]); was fehlt, hat seine "
                     "Vorgabe.",
                     "The settings in “[%1]” cannot be read or written ([%2]); what is missing has its default.",
                     {path, Printable(*file_->Problem())}));
        } else if (isNewByName_) {  // a mistyped name would go unnoticed
            Tell(Say(sprache, "Die Einstellungen „[%1]“ gab es nicht; die Datei wurde mit den Vorgaben angelegt.",
                     "There were no settings “[%1]”; the file was made with the defaults.", {path}));
        }
    }

    // What the failure report of a value leaves out: where it stands.
    void TellBadValue(int sprache) const {
        if (!file_) return;
        Tell(Say(sprache,
                 "Das betrifft einen Wert in „[%1]“: Prüfungen haben 0 oder 1, AllgSprache hat 1 (deutsch) oder 2 "
                 "(englisch).",
                 "This is about a value in “[%1]”: checks have 0 or 1, AllgSprache has 1 (German) or 2 (English).",
                 {Printable(file_->Path())}));
    }

  private:
    std::optional<workspace::SettingsFile> file_;
    workspace::SettingsInMemory memory_;
    bool isNewByName_ = false;  // the user named a file that was not there
};

class CheckCommand {
  public:
    explicit CheckCommand(const Arguments& arguments)
        : arguments_(arguments),
          settings_(arguments),
          host_(arguments.requireDeclaration),
          session_(host_.AsHost(settings_.Store())),
          report_(MakeReport(arguments.format, ShowsColour() && arguments.output.empty(), WriterOfPieces())) {}

    int Run() {
        host_.ServeStopsOf(session_);
        ConsoleHost::WatchInterrupt();
        ReadOptions();
        OpenPaths();
        if (arguments_.component && !opened_.projects.empty() && !ComponentExists()) return kTrouble;
        const auto start = std::chrono::steady_clock::now();
        for (workspace::OpenedProject& project : opened_.projects) {
            if (!ConsoleHost::Interrupted()) CheckProject(project);
        }
        if (arguments_.stageTimes) PrintStageTimes(std::chrono::steady_clock::now() - start);
        const std::string bytes = report_->Finish(session_, opened_);
        written_ = written_ && WriteOutput(arguments_.output, bytes, sprache_);
        if (ConsoleHost::Interrupted()) {
            Tell(ToUtf8(session_.GetResourceString(216)));
            return kInterrupted;
        }
        const bool trouble = !written_ || refused_ || !opened_.Complete() || session_.FailureCount() > 0;
        return trouble ? kTrouble : found_ ? kHints : kNoHints;
    }

  private:
    // A file is replaced in one step, by the whole report.
    PieceWriter WriterOfPieces() {
        if (!arguments_.output.empty()) return {};
        return [this](const std::string& bytes) { written_ = written_ && WriteOutput({}, bytes, sprache_); };
    }

    void ReadOptions() {
        OptionenLesen(settings_.Store(), session_, session_.udtOptionen);
        if (arguments_.sprache != 0) session_.udtOptionen.AllgSprache = arguments_.sprache;
        session_.GetResourceString(101);  // settles a language that could not be read
        sprache_ = session_.udtOptionen.AllgSprache;
        if (session_.FailureCount() > 0) settings_.TellBadValue(sprache_);
        settings_.Flush(sprache_);
        if (!arguments_.only.empty()) session_.udtOptionen.enabled.fill(false);
        for (const CheckId id : arguments_.only) session_.udtOptionen[id] = true;
        for (const CheckId id : arguments_.ignore) session_.udtOptionen[id] = false;
    }

    void OpenPaths() {
        workspace::OpenOptions options;
        options.limits = arguments_.limits;
        options.projectPerFolder = arguments_.projectPerFolder;
        if (arguments_.stageTimes) options.times = &times_;
        opened_ = workspace::Open(arguments_.paths, options);
        PrintTroubles(opened_, sprache_);
        if (!arguments_.stageTimes) return;
        const workspace::Stopwatch watch(&times_, &workspace::StageTimes::index);
        for (const workspace::OpenedProject& project : opened_.projects) project.project->Words();
    }

    bool ComponentExists() const {
        std::vector<std::string> known;
        for (const workspace::OpenedProject& project : opened_.projects) {
            for (const auto& component : project.project->VBComponents()) known.push_back(ToUtf8(component->Name()));
        }
        const std::string& wanted = *arguments_.component;
        if (std::find(known.begin(), known.end(), wanted) != known.end()) return true;
        const std::string nearest = NearestWord(wanted, known);
        if (nearest.empty()) {
            Tell(Say(sprache_, "Es gibt keine Komponente „[%1]“; `zentlor info` nennt alle.",
                     "There is no component “[%1]”; `zentlor info` names all of them.", {Printable(wanted)}));
        } else {
            Tell(Say(sprache_, "Es gibt keine Komponente „[%1]“; am ähnlichsten ist „[%2]“.",
                     "There is no component “[%1]”; the most similar one is “[%2]”.",
                     {Printable(wanted), Printable(nearest)}));
        }
        return false;
    }

    void CheckProject(workspace::OpenedProject& project) {
        host_.SetProject(*project.project, project.errors.empty() || arguments_.uncompiled);
        if (arguments_.uncompiled) PrintErrors(project);
        const RunResult result = arguments_.component ? CheckComponent(project) : AlleModulePrüfen(session_);
        host_.ClearProgressLine();
        if (result == RunResult::Refused) {
            refused_ = refused_ || !project.errors.empty();
            if (!arguments_.uncompiled) TellRefusal(project);
            return;
        }
        found_ = found_ || session_.lvwErgebnis.Count() > 0;
        report_->AddProject(session_, project);
        if (result == RunResult::Finished) report_->AddStatus(project, ToUtf8(host_.Panel(1)), ToUtf8(host_.Panel(2)));
        // The check of the editor's setting is about no project: once is enough.
        session_.udtOptionen[CheckId::ModOptionExplicitAutomatisch] = false;
        session_.lvwErgebnis.Clear();
    }

    // In a workspace of several projects each one that has the component is checked.
    RunResult CheckComponent(const workspace::OpenedProject& project) {
        RunResult result = RunResult::Refused;
        const Text name = FromUtf8(*arguments_.component);
        session_.ActiveVBProject();
        for (const auto& component : project.project->VBComponents()) {
            if (component->Name() != name) continue;
            if (!IstCodeKompiliert(session_)) return RunResult::Refused;
            result = EinModulPrüfen(session_, *component);
        }
        return result;
    }

    void PrintErrors(const workspace::OpenedProject& project) const {
        for (const workspace::CompileError& error : project.errors) Tell(CompileErrorLine(project, error, sprache_));
    }

    // What the gate's own words leave out: which project, why, and the way round it.
    void TellRefusal(const workspace::OpenedProject& project) const {
        if (project.errors.empty()) return;
        PrintErrors(project);
        Tell(Say(sprache_, "„[%1]“ wurde nicht geprüft; --uncompiled prüft auch, was sich nicht kompilieren lässt.",
                 "“[%1]” was not checked; --uncompiled checks what does not compile as well.",
                 {Printable(project.document.path)}));
    }

    void PrintStageTimes(std::chrono::steady_clock::duration checks) const {
        constexpr double kMs = 1000;
        Tell(fmt::format(
            "stages: read {:.1f} ms, tokens {:.1f} ms, canonical {:.1f} ms, syntax {:.1f} ms, index {:.1f} ms, "
            "checks {:.1f} ms",
            times_.read * kMs, times_.tokens * kMs, times_.canonical * kMs, times_.syntax * kMs, times_.index * kMs,
            std::chrono::duration<double>(checks).count() * kMs));
    }

    const Arguments& arguments_;
    RunSettings settings_;
    ConsoleHost host_;
    Session session_;
    std::unique_ptr<Report> report_;
    workspace::Workspace opened_;
    workspace::StageTimes times_;
    int sprache_ = 1;
    bool written_ = true;
    bool found_ = false;
    bool refused_ = false;
};

}  // namespace

int RunCheck(const Arguments& arguments) {
    return CheckCommand(arguments).Run();
}

}  // namespace zentlor::cli
