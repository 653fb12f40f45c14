// The pane: what its clicks do, what it shows in each state of a run, and what it refuses while one is under way.

#include <gtest/gtest.h>

#include <sstream>

#include "core/analysis/run_driver.h"
#include "core/language/messages.h"
#include "support/fake_ui.h"

namespace zentlor::test {
namespace {

constexpr auto kStop = CheckId::CmdVergessenerBefehlStop;
constexpr auto kDebugPrint = CheckId::CmdVergessenerBefehlDebugPrint;
constexpr auto kEditorSetting = CheckId::ModOptionExplicitAutomatisch;

// What a trace leaves on the pane: of each kind of line the last one.
std::string StateAfter(const std::string& trace) {
    std::map<std::string, std::string> last;
    std::istringstream lines(trace);
    for (std::string line; std::getline(lines, line);) {
        for (const std::string kind : {"list o", "labels o", "bar o", "status o", "stop o", "language o", "panel 1"}) {
            if (line.starts_with(kind)) last[kind] = line;
        }
    }
    std::string state;
    for (const auto& [kind, line] : last) state += line + "; ";
    return state;
}

std::string Hints(const Session& session) {
    std::string text;
    for (const Hint& hint : session.lvwErgebnis.Emitted()) {
        text += ToUtf8(hint.strNameVBC) + " " + ToUtf8(hint.strHinweis) + "\n";
    }
    return text;
}

TEST(Pane, StartsInTheStoredLanguage) {
    struct Row {
        const char* why;
        Text stored;
        int item;
        Text header;
    };
    const Row rows[] = {
        {"first start: German", {}, 1, u"Modul"},
        {"English was chosen", u"2", 2, u"Module"},
        {"an index without an item speaks German, and the box says so", u"7", 1, u"Modul"},
    };
    for (const Row& row : rows) {
        PaneFixture f;
        if (!row.stored.empty()) f.host.settings[Text(kSpracheKey)] = row.stored;
        f.ui.onSelect = [&] { f.pane->icboSprache_Click(); };
        f.pane->UserDocument_Initialize();
        EXPECT_EQ(f.ui.selected, row.item) << row.why;
        EXPECT_EQ(f.ui.words["header 1"], row.header) << row.why;
        EXPECT_EQ(f.ui.words.size(), 20U) << row.why;
        EXPECT_EQ(f.host.settings.size(), 46U) << row.why;
        EXPECT_EQ(f.host.trace.find("box"), std::string::npos) << row.why << ": filling the box is no choice";
        EXPECT_EQ(StateAfter(f.host.trace), "bar on; labels off; list on; status off; ") << row.why;
    }
}

TEST(Pane, NoWordIsLeftOutOrStandsOnASeparator) {
    PaneFixture f;
    f.pane->UserDocument_Initialize();
    for (const auto& [control, text] : f.ui.words) {
        EXPECT_FALSE(text.empty() || text == u"???") << control;
    }
    for (const int separator : {3, 5, 7}) {
        EXPECT_EQ(f.ui.words.count("caption " + std::to_string(separator)), 0U) << separator;
    }
}

TEST(Pane, ToolbarGoesByTheKey) {
    struct Row {
        TextView key;
        const char* trace;
    };
    const Row rows[] = {
        {u"Optionen", "dialog options\n"},
        {u"Info", "dialog about\n"},
        {u"Hilfe", "help /usr/share/zentlor/zentlor.chm 0 0\n"},
        {u"Export", "box exclamation [Export nicht möglich!] Es sind keine Ergebnisse vorhanden.\n"},
        {u"Stop", "stop off\nlanguage on\nbar off\nstatus on\npanel 1: Verarbeitung abgebrochen.\npanel 2: \n"},
        {u"refresh", "box critical [symToolbar] Auswahl nicht möglich!\n"},
        {u"", "box critical [symToolbar] Auswahl nicht möglich!\n"},
    };
    for (const Row& row : rows) {
        PaneFixture f;
        f.pane->symToolbar_ButtonClick(row.key);
        EXPECT_EQ(f.host.trace, row.trace) << ToUtf8(row.key);
    }
}

TEST(Pane, ShowsTheStateOfTheRun) {
    PaneFixture f;
    f.AddModules(2);
    f.EnableOnly({kEditorSetting, kStop});
    f.host.onDoEvents = [&](int yield) {
        if (yield == 1) {
            EXPECT_EQ(StateAfter(f.host.trace), "bar on; labels on; language off; list off; status off; stop on; ");
        } else if (yield == 2) {
            f.pane->symToolbar_ButtonClick(u"Stop");
            EXPECT_EQ(StateAfter(f.host.trace),
                      "bar off; labels on; language on; list off; panel 1: Verarbeitung abgebrochen.; status on; "
                      "stop off; ");
        }
    };
    f.pane->symToolbar_ButtonClick(u"Refresh");
    const char* finished =
        "bar off; labels off; language on; list on; panel 1: 2 Hinweise in 2 Objekten.; "
        "status on; stop off; ";
    EXPECT_EQ(StateAfter(f.host.trace), finished);

    f.TakeTrace();
    f.host.onDoEvents = [&](int) { f.pane->symToolbar_ButtonClick(u"Stop"); };
    f.pane->symToolbar_ButtonClick(u"Refresh");
    EXPECT_EQ(StateAfter(f.TakeTrace()),
              "bar off; labels on; language on; list off; panel 1: Verarbeitung abgebrochen.; status on; stop off; ")
        << "stopped behind the editor's setting";

    f.host.compileCommandEnabled = true;
    f.pane->symToolbar_ButtonClick(u"Refresh");
    EXPECT_EQ(StateAfter(f.host.trace),
              "bar off; labels off; list on; panel 1: Klicken Sie auf \"Debuggen\" / \"Kompilieren von Projekt1\".; "
              "status on; ")
        << "refused by the gate";
    EXPECT_FALSE(f.pane->Busy());
}

// Each row is done at a yield point of a run; the run ends as if nothing had happened.
TEST(Pane, KeepsTheRunFromASecondOne) {
    struct Row {
        const char* why;
        int sprache;
        std::function<void(PaneFixture&)> act;
        const char* box;
    };
    const auto select = [](PaneFixture& f) { return f.host.project->VBComponents().front().get(); };
    const Row rows[] = {
        {"Refresh", kDeutsch, [](auto& f) { f.pane->symToolbar_ButtonClick(u"Refresh"); }, "Es läuft bereits"},
        {"Refresh in English", kEnglish, [](auto& f) { f.pane->symToolbar_ButtonClick(u"Refresh"); }, "A run is under"},
        {"the gate, which a menu entry asks", kDeutsch, [](auto& f) { EXPECT_FALSE(f.pane->IstCodeKompiliert()); },
         "Es läuft bereits"},
        {"one component", kDeutsch, [&](auto& f) { f.pane->EinModulPrüfen(select(f)); }, "Es läuft bereits"},
        {"the pane shown from a menu", kDeutsch, [](auto& f) { f.pane->OberflächeZurücksetzen(); }, nullptr},
        {"a sort", kDeutsch, [](auto& f) { f.pane->lvwErgebnis_ColumnClick(2); }, nullptr},
    };
    for (const Row& row : rows) {
        PaneFixture f;
        f.AddModules(3);
        f.EnableOnly({kStop, kDebugPrint});
        f.session.udtOptionen.AllgSprache = row.sprache;
        f.host.onDoEvents = [&](int yield) {
            if (yield != 3) return;
            EXPECT_TRUE(f.pane->Busy()) << row.why;
            f.TakeTrace();
            row.act(f);
            const std::string trace = f.TakeTrace();
            const bool boxed = trace.find("box exclamation [Zentlor]") != std::string::npos;
            EXPECT_EQ(boxed, row.box != nullptr) << row.why << "\n" << trace;
            if (row.box != nullptr) {
                EXPECT_NE(trace.find(row.box), std::string::npos) << row.why << "\n" << trace;
            }
        };
        f.pane->symToolbar_ButtonClick(u"Refresh");
        EXPECT_EQ(f.session.lngAnzahlHinweise, 6) << row.why;
        EXPECT_EQ(f.session.lvwErgebnis.Count(), 6U) << row.why;
        EXPECT_EQ(f.host.yields, 6) << row.why;
    }
}

TEST(Pane, RefreshWithNothingOpenIsNoFailure) {
    PaneFixture f;
    f.host.project.reset();
    f.session.udtOptionen.AllgSprache = kEnglish;
    f.pane->symToolbar_ButtonClick(u"Refresh");
    EXPECT_TRUE(f.host.trace.starts_with("box exclamation [Zentlor] No project is open.|")) << f.host.trace;
    EXPECT_EQ(f.host.trace.find("list"), std::string::npos) << "the pane stays as it was";
}

TEST(Pane, ComponentRunNeedsAComponent) {
    PaneFixture f;
    f.session.udtOptionen = OptionRecord::AllOn();
    f.pane->EinModulPrüfen(nullptr);
    EXPECT_NE(f.host.trace.find("Prozedur: EinModulPrüfen|Fehler-Nr.: 91|"), std::string::npos) << f.host.trace;
    EXPECT_FALSE(f.session.running);
}

TEST(Pane, LanguageBox) {
    struct Row {
        const char* why;
        int item;
        const char* box;
        const char* stored;
    };
    const Row rows[] = {
        {"English gives a notice", 2,
         "box plain [] There may be some translation bugs. Please let me know if you find one. Thanks!\n", "2"},
        {"German gives none", 1, "", "1"},
        {"an item that is neither is stored all the same", 3, "box plain [] Nicht verfügbar!\n", "3"},
    };
    for (const Row& row : rows) {
        PaneFixture f;
        f.pane->UserDocument_Initialize();
        f.ui.items.emplace_back(u"Platt");
        f.session.lvwErgebnis.Add({u"Modul1", u"Los", u"Hinweis", 1, kStop});
        f.TakeTrace();
        f.ui.selected = row.item;
        f.pane->icboSprache_Click();
        EXPECT_TRUE(f.host.trace.starts_with(std::string(row.box) + "list on\n")) << row.why << "\n" << f.host.trace;
        EXPECT_EQ(ToUtf8(f.host.settings[Text(kSpracheKey)]), row.stored) << row.why;
        EXPECT_EQ(f.session.lvwErgebnis.Count(), 0U) << row.why;
        EXPECT_EQ(f.ui.words["header 1"], row.item == 2 ? u"Module" : u"Modul") << row.why;
    }
}

TEST(Pane, LanguageSwitchInAComponentRunEmptiesTheListUnderIt) {
    PaneFixture f;
    f.pane->UserDocument_Initialize();
    f.AddModules(1);
    f.EnableOnly({kStop, kDebugPrint});
    f.host.onDoEvents = [&](int yield) {
        if (yield != 1) return;
        f.ui.selected = 2;
        f.pane->icboSprache_Click();
    };
    f.pane->EinModulPrüfen(f.host.project->VBComponents().front().get());
    EXPECT_EQ(Hints(f.session), "Modul1 Forgotten command: 'Debug.Print'.\n") << f.host.trace;
}

TEST(Pane, HintsAndSortEndWithThePane) {
    PaneFixture f;
    f.AddModules(1);
    f.EnableOnly({kStop});
    f.pane->symToolbar_ButtonClick(u"Refresh");
    f.pane->lvwErgebnis_ColumnClick(4);
    EXPECT_TRUE(f.host.trace.ends_with("list changed\n"));
    f.pane->lvwErgebnis_DblClick(0);
    EXPECT_TRUE(f.host.trace.ends_with("select Modul1 4,1-4,1024\n"));
    f.pane.reset();
    EXPECT_EQ(f.session.lvwErgebnis.Count(), 0U);
    EXPECT_EQ(f.session.lvwErgebnis.SortKey(), kSortModule);
}

}  // namespace
}  // namespace zentlor::test
