#include "core/analysis/run_driver.h"

#include "core/analysis/compile_gate.h"
#include "core/checks/checks.h"

namespace zentlor {

namespace {

constexpr TextView kModule = u"docAddIn";
constexpr int kMostSteps = 32767;

// Holds the mark that a run is under way, for as long as the run is on the stack.
class RunMark {
  public:
    explicit RunMark(Session& session) : session_(session) { session_.running = true; }
    ~RunMark() { session_.running = false; }
    RunMark(const RunMark&) = delete;
    RunMark& operator=(const RunMark&) = delete;

  private:
    Session& session_;
};

void ClearCounters(Session& session) {
    session.strLetztesObjekt.clear();
    session.lngAnzahlObjekte = 0;
    session.lngAnzahlHinweise = 0;
}

Text TwoDigits(std::int64_t number) {
    return (number < 10 ? u"0" : u"") + ToText(number);
}

// Minutes and seconds; hours are dropped.
Text FormatDuration(std::int64_t seconds) {
    return TwoDigits(seconds / 60 % 60) + u":" + TwoDigits(seconds % 60);
}

void ShowClosingTexts(Session& session, std::int64_t seconds) {
    PaneView& pane = session.host().pane;
    pane.SetPanel(1,
                  ToText(session.lngAnzahlHinweise) + session.GetResourceString(217, ToText(session.lngAnzahlObjekte)));
    pane.SetPanel(2, session.GetResourceString(218) + FormatDuration(seconds));
}

void StartRunning(Session& session) {
    ErgebnisAnzeigen(session, false);
    session.host().pane.EnableStop(true);
    session.host().pane.RedrawToolbar();
}

// The last steps of a run that began at `datStart`: the list appears in the place of the bar, with the closing texts.
RunResult FinishRun(Session& session, std::int64_t datStart) {
    PaneView& pane = session.host().pane;
    ErgebnisAnzeigen(session, true);
    pane.FocusList();
    const std::int64_t datEnde = session.host().clock.Now();
    pane.ShowProgress(false);
    pane.ShowStatus(true);
    ShowClosingTexts(session, datEnde - datStart);
    return RunResult::Finished;
}

// Labels and runs the check of the editor's setting. False after a stop.
bool CheckEditorSetting(Session& session, int& intFortschritt) {
    Host& host = session.host();
    host.pane.SetObjekt(session.GetResourceString(170));
    host.pane.SetTest(session.GetResourceString(InfoOf(CheckId::ModOptionExplicitAutomatisch).label));
    intFortschritt = 1;
    host.pane.SetProgress(intFortschritt);
    OptionExplicitAutomatisch(session);
    host.events.DoEvents();
    return !session.blnAbbruch;
}

// The steps of a run over the whole project, from the reset pane to the closing texts.
RunResult RunProject(Session& session) {
    Host& host = session.host();
    ClearCounters(session);
    OberflächeZurücksetzen(session);
    const VBProject& project = session.ActiveVBProject();
    host.pane.SetProgressMaximum(static_cast<int>(project.VBComponents().size()) + 1);
    session.blnAbbruch = false;
    if (!IstCodeKompiliert(session)) return RunResult::Refused;
    StartRunning(session);
    host.pane.EnableSprache(false);
    const std::int64_t datStart = host.clock.Now();
    int intFortschritt = 0;
    if (session.udtOptionen[CheckId::ModOptionExplicitAutomatisch] && !CheckEditorSetting(session, intFortschritt)) {
        return RunResult::Broken;
    }
    for (const auto& vbc : project.VBComponents()) {
        if (ModulIgnorieren(session, vbc->CodeModule())) continue;
        host.pane.SetObjekt(vbc->Name());
        if (intFortschritt == kMostSteps) throw Overflow();
        host.pane.SetProgress(++intFortschritt);
        PrüfungenDurchführen(session, *vbc);
    }
    host.pane.EnableStop(false);
    host.pane.EnableSprache(true);
    return FinishRun(session, datStart);
}

// A run over one component leaves the bar at 0, and the language box alone. The bar is hidden at the end, since the
// status bar shares its place.
RunResult RunComponent(Session& session, const VBComponent& vbc) {
    Host& host = session.host();
    session.ActiveVBProject();  // its routines report to this session from here on
    ClearCounters(session);
    OberflächeZurücksetzen(session);
    session.blnAbbruch = false;
    StartRunning(session);
    const std::int64_t datStart = host.clock.Now();
    host.pane.SetObjekt(vbc.Name());
    PrüfungenDurchführen(session, vbc);
    host.pane.EnableStop(false);
    return FinishRun(session, datStart);
}

template <class Steps>
RunResult Run(Session& session, TextView routine, Steps steps) {
    if (session.running) return RunResult::Refused;
    const RunMark mark(session);
    RunResult result = RunResult::Broken;
    Frame(session, {kModule, routine}, [&] { result = steps(); });
    return result;
}

}  // namespace

RunResult AlleModulePrüfen(Session& session) {
    return Run(session, u"AlleModulePrüfen", [&] { return RunProject(session); });
}

RunResult EinModulPrüfen(Session& session, const VBComponent& vbc) {
    return Run(session, u"EinModulPrüfen", [&] { return RunComponent(session, vbc); });
}

void PrüfungenDurchführen(Session& session, const VBComponent& vbc) {
    Frame(session, {kModule, u"PrüfungenDurchführen"}, [&] {
        Host& host = session.host();
        ModDeclarations arrModDeclarations;
        const ProcedureTables tables(vbc);
        const CheckInputs inputs{vbc, arrModDeclarations, tables};
        for (const CheckInfo& check : kCatalogue) {
            if (check.input == CheckInput::PerRun) continue;
            // The first check that works on the module's table: it is made here, whatever checks are on.
            if (check.id == CheckId::ModObjectScopeNotExplicit) {
                arrModDeclarations = GetModDeclarations(vbc, host.boxes);
            }
            if (!session.udtOptionen[check.id]) continue;
            host.pane.SetTest(session.GetResourceString(check.label));
            RunCheck(session, check.id, inputs);
            host.events.DoEvents();
            if (session.blnAbbruch) return;
        }
    });
}

bool ModulIgnorieren(Session& session, const CodeModule& cmModul) {
    bool result = false;
    Frame(session, {kModule, u"ModulIgnorieren", cmModul.Parent().Name()}, [&] {
        int last = cmModul.CountOfDeclarationLines();
        if (cmModul.CountOfLines() != last) {
            int kind = 0;
            const TextView first = cmModul.ProcOfLine(last + 1, kind);
            last = cmModul.ProcBodyLine(first, kind) - 1;
        }
        FindRange range{1, 1, last, 1024};
        result = cmModul.Find(kIgnoreMarker, range, {.wholeWord = true, .matchCase = true});
    });
    return result;
}

void OberflächeZurücksetzen(Session& session) {
    Frame(session, {kModule, u"OberflächeZurücksetzen"}, [&] {
        PaneView& pane = session.host().pane;
        ErgebnisAnzeigen(session, true);
        session.lvwErgebnis.Clear();
        pane.ListChanged();
        pane.ShowStatus(false);
        pane.ShowProgress(true);
        pane.SetProgress(0);
    });
}

void ErgebnisAnzeigen(Session& session, bool fAnzeige) {
    Frame(session, {kModule, u"ErgebnisAnzeigen"}, [&] {
        session.host().pane.ShowList(fAnzeige);
        session.host().pane.ShowLabels(!fAnzeige);
    });
}

void StopClicked(Session& session) {
    PaneView& pane = session.host().pane;
    session.blnAbbruch = true;
    pane.EnableStop(false);
    pane.EnableSprache(true);
    pane.ShowProgress(false);
    pane.ShowStatus(true);
    pane.SetPanel(1, session.GetResourceString(216));
    pane.SetPanel(2, {});
}

}  // namespace zentlor
