// The run driver, its failure frames, options, messages and the result list, over a host that writes down its calls.

#include "core/analysis/run_driver.h"

#include <gtest/gtest.h>

#include "core/language/messages.h"
#include "core/results/jump.h"
#include "support/fake_host.h"

namespace zentlor {
namespace {

// A session in which a test can let any routine fail at its entry.
class FailingSession : public Session {
  public:
    using Session::Session;
    void Enter(const Routine& routine) override {
        if (routine.name == failAt && (failIn.empty() || routine.component == failIn)) throw InvalidCall();
    }
    Text failAt;
    Text failIn;
};

class RunDriver : public testing::Test {
  protected:
    RunDriver() { session.udtOptionen.AllgSprache = 1; }

    void Add(TextView name, TextView code, int type = 1) { host.project->Add(Text(name), type, Text(code)); }
    void Enable(std::initializer_list<CheckId> checks) {
        for (const CheckId id : checks) session.udtOptionen[id] = true;
    }
    // Lines of the trace that begin with one of the words.
    std::string Lines(std::initializer_list<const char*> words) {
        std::string text;
        for (std::size_t begin = 0; begin < host.trace.size();) {
            const std::size_t end = host.trace.find('\n', begin);
            const std::string line = host.trace.substr(begin, end - begin);
            if (std::any_of(words.begin(), words.end(), [&](const char* w) { return line.starts_with(w); }))
                text += line + "|";
            begin = end + 1;
        }
        return text;
    }

    test::FakeHost host;
    FailingSession session{host.AsHost()};
};

TEST_F(RunDriver, TakesTheProjectThroughItsSteps) {
    Add(u"A", u"");
    Add(u"B", u"' Zentlor:Ignore\n");
    Enable({CheckId::ModOptionExplicitAutomatisch, CheckId::ModLeer});
    host.requireDeclaration = u"";
    EXPECT_EQ(AlleModulePrüfen(session), RunResult::Finished);
    EXPECT_EQ(host.trace,
              "list on\nlabels off\nlist changed\nstatus off\nbar on\nbar 0\nbar max 3\n"
              "list off\nlabels on\nstop on\nredraw\nlanguage off\n"
              "object Allgemein\ntest Option Explicit wird nicht automatisch eingefügt\nbar 1\n"
              "object A\nbar 2\ntest Leere Module vorhanden\n"
              "stop off\nlanguage on\nlist on\nlabels off\nfocus list\nbar off\nstatus on\n"
              "panel 1: 2 Hinweise in 2 Objekten.\npanel 2: Dauer: 00:05\n");
}

TEST_F(RunDriver, OneComponentIsCheckedWhateverItsMarker) {
    Add(u"B", u"' Zentlor:Ignore\n");
    Enable({CheckId::ModOptionExplicitAutomatisch, CheckId::ModLeer});
    EXPECT_EQ(EinModulPrüfen(session, session.ActiveVBProject().Item(u"B")), RunResult::Finished);
    EXPECT_EQ(host.trace,
              "list on\nlabels off\nlist changed\nstatus off\nbar on\nbar 0\nlist off\nlabels on\nstop on\nredraw\n"
              "object B\ntest Leere Module vorhanden\nstop off\nlist on\nlabels off\nfocus list\nbar off\nstatus on\n"
              "panel 1: 1 Hinweise in 1 Objekten.\npanel 2: Dauer: 00:05\n");
}

TEST_F(RunDriver, MarkerCountsInTheHeadOnly) {
    struct Row {
        const char* why;
        TextView code;
        bool ignored;
    };
    const Row rows[] = {
        {"comment above the first header", u"Dim a\n\n' Zentlor:Ignore\nSub A()\nEnd Sub", true},
        {"in the body", u"Sub A()\n' Zentlor:Ignore\nEnd Sub", false},
        {"on the header itself", u"Sub A() ' Zentlor:Ignore\nEnd Sub", false},
        {"no procedures", u"Option Explicit\n' Zentlor:Ignore.", true},
        {"in a string", u"Const a = \"Zentlor:Ignore\"", true},
        {"part of a word", u"' Zentlor:IgnoreX", false},
        {"another case", u"' zentlor:ignore", false},
        {"no lines", u"", false},
    };
    for (const Row& row : rows) {
        host.project = std::make_unique<VBProject>(u"P");
        const VBComponent& vbc = host.project->Add(u"M", 1, Text(row.code));
        session.ActiveVBProject();
        EXPECT_EQ(ModulIgnorieren(session, vbc.CodeModule()), row.ignored) << row.why;
    }
    EXPECT_EQ(session.FailureCount(), 0);
}

TEST_F(RunDriver, StopDropsTheRestOfAComponentOnly) {
    for (const char16_t* name : {u"A", u"B", u"C"}) Add(name, u"");
    Enable({CheckId::ModLeer, CheckId::ProcLeer, CheckId::CmdVergessenerBefehlStop});
    host.onDoEvents = [&](int yield) {
        if (yield == 4) StopClicked(session);  // behind the first check of B
    };
    EXPECT_EQ(AlleModulePrüfen(session), RunResult::Finished);
    EXPECT_EQ(host.yields, 3 + 1 + 1);
    EXPECT_EQ(Lines({"panel"}),
              "panel 1: Verarbeitung abgebrochen.|panel 2: |panel 1: 3 Hinweise in 3 Objekten.|panel 2: Dauer: 00:05|");
    EXPECT_TRUE(session.blnAbbruch);
}

TEST_F(RunDriver, StopDuringTheFirstStepEndsTheRunAtOnce) {
    Add(u"A", u"");
    Enable({CheckId::ModOptionExplicitAutomatisch, CheckId::ModLeer});
    host.onDoEvents = [&](int) { StopClicked(session); };
    EXPECT_EQ(AlleModulePrüfen(session), RunResult::Broken);
    EXPECT_EQ(Lines({"panel", "object"}), "object Allgemein|panel 1: Verarbeitung abgebrochen.|panel 2: |");
    host.onDoEvents = nullptr;
    EXPECT_EQ(AlleModulePrüfen(session), RunResult::Finished) << "the next run clears the flag";
}

TEST_F(RunDriver, SecondRunIsRefusedWhileOneIsUnderWay) {
    Add(u"A", u"");
    Enable({CheckId::ModLeer});
    RunResult second = RunResult::Finished;
    host.onDoEvents = [&](int) { second = AlleModulePrüfen(session); };
    EXPECT_EQ(AlleModulePrüfen(session), RunResult::Finished);
    EXPECT_EQ(second, RunResult::Refused);
    EXPECT_EQ(session.lvwErgebnis.Count(), 1U) << "the refused run emptied the list";
}

TEST_F(RunDriver, GateRefusesUncompiledCode) {
    host.compileCommandEnabled = true;
    Add(u"A", u"");
    session.udtOptionen.AllgSprache = 2;
    EXPECT_EQ(AlleModulePrüfen(session), RunResult::Refused);
    EXPECT_EQ(
        Lines({"bar o", "status", "panel", "box", "stop"}),
        "status off|bar on|bar off|status on|panel 1: Click 'Debug' / 'Compile Projekt1'.|"
        "box exclamation [Analyze not possible] Analysis are not possible.|The code is not compiled.||Click 'Debug' "
        "/|'Compile Projekt1'.||Then try again.|");
}

TEST_F(RunDriver, FailuresCostWhatTheyMay) {
    struct Row {
        const char* why;
        TextView routine;
        TextView component;
        RunResult result;
        const char* hints;  ///< components that still got hints
        int reports;
    };
    // Two checks on two components, each of which gives one hint a component.
    const Row rows[] = {
        {"a check ends, the next one goes on", u"ModLeer", u"A", RunResult::Finished, "ABB", 1},
        {"a scanner ends with its result, its caller goes on", u"GibGanzeZeile", u"A", RunResult::Finished, "AABB", 1},
        {"the remaining checks of a component", u"PrüfungenDurchführen", u"", RunResult::Finished, "", 2},
        {"a module whose marker cannot be read is checked", u"ModulIgnorieren", u"A", RunResult::Finished, "AABB", 1},
        {"the run", u"AlleModulePrüfen", u"", RunResult::Broken, "", 1},
        {"a hint is lost", u"ErgebnisAnzeige", u"", RunResult::Finished, "", 4},
        {"the table of declarations", u"GetModDeclarations", u"B", RunResult::Finished, "AABB", 1},
    };
    for (const Row& row : rows) {
        host.project = std::make_unique<VBProject>(u"P");
        Add(u"A", u"' c\n");
        Add(u"B", u"' c\n");
        host.trace.clear();
        FailingSession failing(host.AsHost());
        failing.udtOptionen.AllgSprache = 1;
        failing.udtOptionen[CheckId::ModLeer] = failing.udtOptionen[CheckId::ModOptionExplicitFehlt] = true;
        failing.failAt = row.routine;
        failing.failIn = row.component;
        EXPECT_EQ(AlleModulePrüfen(failing), row.result) << row.why;
        std::string hints;
        for (const Hint& hint : failing.lvwErgebnis.Emitted()) hints += ToUtf8(hint.strNameVBC);
        EXPECT_EQ(hints, row.hints) << row.why;
        EXPECT_EQ(failing.FailureCount(), row.reports) << row.why << "\n" << host.trace;
    }
}

TEST_F(RunDriver, FailureReportNamesRoutineAndComponent) {
    Add(u"Kunden", u"");
    Enable({CheckId::ModLeer, CheckId::ModGlobalWirdVerwendet});
    session.failAt = u"ModLeer";
    AlleModulePrüfen(session);
    EXPECT_EQ(Lines({"box"}),
              "box critical [] Ein Fehler ist aufgetreten:||||Modul: mdl_Prüfungen |Prozedur: ModLeer|Fehler-Nr.: "
              "5|Invalid procedure call or argument|Untersuchtes Objekt: Kunden|");
    session.failAt = u"ModGlobalWirdVerwendet";
    host.trace.clear();
    session.udtOptionen.AllgSprache = 2;
    AlleModulePrüfen(session);
    EXPECT_EQ(Lines({"box"}),
              "box critical [] An Error has occured:|Module: mdl_Prüfungen |Procedure: ModGlobalWirdVerwendet|ErrorNo: "
              "5|Invalid procedure call or argument|");
}

TEST(Messages, FillTheirMarks) {
    EXPECT_EQ(GetResourceString(1, 173), u"Modul ist leer");
    EXPECT_EQ(GetResourceString(2, 173), u"Module is empty");
    EXPECT_EQ(GetResourceString(1, 214, u"Left"), u"Es wird Left statt Left$ verwendet");
    EXPECT_EQ(GetResourceString(1, 179), u"Scope für '[%1]' nicht explizit deklariert.");
    EXPECT_EQ(GetResourceString(1, 211, u"[%2]", u"x"), u"x 'x' impilizites Datentypenkennzeichen verwendet.");
    EXPECT_EQ(GetResourceString(3, 173), u"Modul ist leer") << "a language without rows";
    for (const int id : {100, 250, 2100, 2250, 0, -1}) EXPECT_EQ(GetResourceString(1, id), u"???") << id;
    const auto count = [](TextView text, TextView mark) {
        return (text.size() - ReplaceAll(text, mark, {}).size()) / mark.size();
    };
    for (int id = 101; id <= 249; ++id) {
        for (const TextView mark : {TextView(u"[%1]"), TextView(u"[%2]")}) {
            EXPECT_EQ(count(*FindMessage(id), mark), count(*FindMessage(id + kEnglishOffset), mark)) << id;
        }
    }
    EXPECT_EQ(FindMessage(2125)->size(), 18U + 56 + 16 + 56 + 67);
}

TEST(Options, ReadTheStoreAndCompleteIt) {
    test::FakeHost host;
    Session session(host.AsHost());
    OptionenLesen(host, session, session.udtOptionen);
    EXPECT_EQ(host.settings.size(), 46U);
    EXPECT_EQ(std::count(session.udtOptionen.enabled.begin(), session.udtOptionen.enabled.end(), true), 45);
    EXPECT_EQ(session.udtOptionen.AllgSprache, 1);
    host.settings[u"ModLeer"] = u"0";
    host.settings[u"ProcLeer"] = u"2";
    host.settings[u"CmdIIfWirdVerwendet"] = u"  ";
    host.settings[u"CmdLetWirdVerwendet"] = u"abc";
    host.settings[u"AllgSprache"] = u"2";
    OptionenLesen(host, session, session.udtOptionen);
    EXPECT_FALSE(session.udtOptionen[CheckId::ModLeer]);
    EXPECT_TRUE(session.udtOptionen[CheckId::ProcLeer]);
    EXPECT_TRUE(session.udtOptionen[CheckId::CmdIIfWirdVerwendet]);
    EXPECT_FALSE(session.udtOptionen[CheckId::CmdLetWirdVerwendet]);
    EXPECT_EQ(session.GetResourceString(173), u"Module is empty");
    EXPECT_EQ(host.settings[u"ProcLeer"], u"2");
    EXPECT_EQ(host.settings[u"CmdIIfWirdVerwendet"], u"1");
    EXPECT_EQ(host.settings[u"CmdLetWirdVerwendet"], u"abc");
    EXPECT_EQ(session.FailureCount(), 1);
}

TEST(Options, LanguageThatDoesNotConvertIsReportedOnceInGerman) {
    test::FakeHost host;
    host.settings[u"AllgSprache"] = u"xyz";
    Session session(host.AsHost());
    EXPECT_EQ(session.GetResourceString(173), u"Modul ist leer");
    EXPECT_EQ(session.GetResourceString(173), u"Modul ist leer");
    EXPECT_EQ(session.FailureCount(), 1);
    EXPECT_NE(host.trace.find("Prozedur: lngOptionLesen|Fehler-Nr.: 13|Type mismatch"), std::string::npos)
        << host.trace;
}

std::string Rows(const ResultList& list) {
    std::string text;
    for (std::size_t i = 0; i < list.Count(); ++i) {
        text += ToUtf8(list.Row(i).strNameVBC) + std::to_string(list.Row(i).lngZeile) + " ";
    }
    return text;
}

TEST(ResultList, SortsAsItsHeadersAreClicked) {
    ResultList list;
    for (const auto& [name, line] : {std::pair{u"Zoll", 10}, {u"arm", 2}, {u"Ärger", 100}, {u"Arm", 9}, {u"Zoll", 3}}) {
        list.Add({name, u"p", u"h" + ToText(line % 7), line});
    }
    EXPECT_EQ(Rows(list), "Ärger100 arm2 Arm9 Zoll10 Zoll3 ") << "by module at first, equal rows as they came";
    list.lvwErgebnis_ColumnClick(1);
    EXPECT_EQ(Rows(list), "Zoll10 Zoll3 arm2 Arm9 Ärger100 ") << "a click on the sorted column reverses";
    list.lvwErgebnis_ColumnClick(4);
    EXPECT_EQ(Rows(list), "arm2 Zoll3 Arm9 Zoll10 Ärger100 ") << "lines in numeric order";
    list.lvwErgebnis_ColumnClick(4);
    EXPECT_EQ(Rows(list), "Ärger100 Zoll10 Arm9 Zoll3 arm2 ");
    list.lvwErgebnis_ColumnClick(2);
    EXPECT_EQ(Rows(list), "Zoll10 arm2 Ärger100 Arm9 Zoll3 ") << "all equal: order of emission";
    list.Add({u"Neu", u"a", u"", 1});
    EXPECT_EQ(Rows(list), "Neu1 Zoll10 arm2 Ärger100 Arm9 Zoll3 ") << "a new row takes its place";
    EXPECT_EQ(SortText(7), u"    7");
    EXPECT_EQ(SortText(123456), u"23456");
}

TEST_F(RunDriver, JumpLeadsToTheLine) {
    Add(u"A", u"Sub X()\nStop\nEnd Sub\n");
    session.lvwErgebnis.Add({u"A", u"X", u"h", 2});
    session.lvwErgebnis.Add({u"A", u"X", u"h", 0});
    session.lvwErgebnis.Add({u"Allgemein", u"Extras / Optionen / Editor", u"h", 0});
    session.lvwErgebnis.Add({u"Allgemein", u"sonst", u"h", 0});
    for (std::size_t row = 0; row < 4; ++row) lvwErgebnis_DblClick(session, row);
    EXPECT_EQ(host.trace, "select A 2,1-2,1024\nselect A 1,1-1,1024\nmenu 7/3\n");
    EXPECT_EQ(session.FailureCount(), 0);
    lvwErgebnis_DblClick(session, 4);
    session.lvwErgebnis.Clear();
    session.lvwErgebnis.Add({u"Weg", u"", u"", 1});
    lvwErgebnis_DblClick(session, 0);
    EXPECT_EQ(session.FailureCount(), 2) << "no row, and a component that is gone";
}

}  // namespace
}  // namespace zentlor
