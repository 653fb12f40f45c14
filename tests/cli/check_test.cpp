// The program as its user meets it: what it prints, with which status, and what it leaves behind.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>

#include "support/documents/compound_file_writer.h"
#include "support/documents/ovba_writer.h"
#include "support/run_program.h"

namespace zentlor::test {
namespace {

namespace fs = std::filesystem;

const fs::path kSource = ZENTLOR_SOURCE_DIR;

class Program : public testing::Test {
  protected:
    ProgramResult Zentlor(const std::string& arguments) {
        return RunProgram("cd '" + kSource.string() + "' && XDG_CONFIG_HOME='" + (folder.path / "config").string() +
                          "' '" ZENTLOR_PROGRAM "' " + arguments);
    }
    std::string Module(const std::string& name, const std::string& code) {
        WriteFile(folder.path / name, code);
        return "'" + (folder.path / name).string() + "'";
    }
    fs::path SettingsPath() const { return folder.path / "config/zentlor/settings.ini"; }

    TemporaryFolder folder;
};

std::size_t CountLines(const std::string& text) {
    return static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
}

// The closing text holds the clock.
std::string WithoutDuration(std::string text) {
    for (const char* word : {"Dauer: ", "Duration: "}) {
        if (const auto at = text.find(word); at != std::string::npos)
            text.replace(at + std::string(word).size(), 5, "00:00");
    }
    return text;
}

TEST_F(Program, ExampleGivesTheGoldenHints) {
    for (const std::string language : {"de", "en"}) {
        const ProgramResult result = Zentlor("check examples/kunden --isolated --language " + language);
        EXPECT_EQ(result.status, 1) << result.err;
        EXPECT_EQ(result.err, "");
        const fs::path golden = kSource / ("tests/golden/kunden." + language + ".txt");
        const std::string hints = WithoutDuration(result.out);
        if (std::getenv("ZENTLOR_ACCEPT") != nullptr) WriteFile(golden, hints);
        EXPECT_EQ(hints, ReadFile(golden));
    }
    EXPECT_FALSE(fs::exists(SettingsPath())) << "an isolated run wrote settings";
}

TEST_F(Program, ScrambledTwinGivesTheSameHints) {
    const ProgramResult plain = Zentlor("check examples/kunden --isolated --format jsonl");
    std::string twin = Zentlor("check examples/kunden-verstellt --isolated --format jsonl").out;
    for (auto at = twin.find("-verstellt"); at != std::string::npos; at = twin.find("-verstellt")) twin.erase(at, 10);
    EXPECT_EQ(plain.out, twin);
    EXPECT_EQ(CountLines(plain.out), 262U);
}

TEST_F(Program, StatusTellsHowItWent) {
    const std::string clean = Module("clean.bas",
                                     "Attribute VB_Name = \"Sauber\"\r\nOption Explicit\r\n\r\nPublic Sub Leer(ByVal x "
                                     "As Long)\r\n    On Error GoTo Fehler\r\n    Beep x\r\nFehler:\r\nEnd Sub\r\n");
    const std::string broken = Module("broken.bas", "Attribute VB_Name = \"X\"\r\nSub X()\r\nIf a Then\r\nEnd Sub\r\n");
    struct Row {
        const char* why;
        std::string arguments;
        int status;
        const char* inErrors;
    };
    const Row rows[] = {
        {"no hints", "check " + clean + " --isolated", 0, ""},
        {"hints", "check examples/kunden --isolated --only ModLeer", 1, ""},
        {"does not compile", "check " + broken + " --isolated", 2, "Kompilieren von"},
        {"the way round the gate", "check " + broken + " --isolated", 2, "--uncompiled prüft auch"},
        {"does not compile, checked all the same", "check " + broken + " --isolated --uncompiled", 1, "broken.bas:"},
        {"no such path", "check /nirgends --isolated", 2, "/nirgends"},
        {"one bad path among good ones", "check " + clean + " /nirgends --isolated", 2, "/nirgends"},
        {"a path that is nearly right", "check examples/kundne --isolated", 2, "„examples/kunden“"},
        {"no such check", "check . --only ModLeere", 2, "did you mean \"ModLeer\""},
        {"keys with blanks behind their commas", "check " + clean + " --isolated --only 'ModLeer, ProcLeer'", 0, ""},
        {"paths behind the keys", "check --isolated --only ModLeer --ignore ModLeer " + clean + " " + clean, 0, ""},
        {"no such component", "check " + clean + " --isolated --component saubr", 2, "„Sauber“"},
        {"no component that is like it", "check " + clean + " --isolated --component Xyz", 2, "`zentlor info`"},
        {"a component without a name", "check " + clean + " --isolated --component ''", 2, "„“"},
        {"a component, and nothing was read", "check /nirgends --component X", 2, "/nirgends"},
        {"no such command", "chekc .", 2, "did you mean \"check\"?"},
        {"a path in the command's place", "examples/kunden", 2, "write `zentlor check` in front"},
        {"no command", "", 2, "the commands are check, "},
        {"a size below zero", "check . --max-file-size -1", 2, "--max-file-size: a size is not negative"},
        {"a small limit", "check " + clean + " --isolated --max-file-size 100", 2, "größer als 100 B; --max-file-size"},
        {"a folder in the output's place", "check " + clean + " --isolated -o src", 2,
         "„src“ wurde nicht geschrieben: es ist"},
        {"no such language", "check . --language fr", 2, "fr"},
        {"no path", "check", 2, "PATH"},
        {"help", "check --help", 0, ""},
        {"version", "--version", 0, ""},
        {"a device", "check /dev/null --isolated", 2, "/dev/null"},
        {"compiles", "compile examples/kunden", 0, ""},
        {"compiles not", "compile " + broken, 1, ""},
        {"all lines are those of the file", "check " + broken + " --isolated", 2, "broken.bas:4:1: „If“ aus Zeile 3 "},
        {"a component whose marker takes it out of the run",
         "check examples/kunden --isolated --component mdl_Pruefziffern", 1, ""},
        {"setting of the editor", "check " + clean + " --isolated --require-declaration 0", 1, ""},
    };
    for (const Row& row : rows) {
        const ProgramResult result = Zentlor(row.arguments);
        EXPECT_EQ(result.status, row.status) << row.why << "\n" << result.out << result.err;
        EXPECT_NE(result.err.find(row.inErrors), std::string::npos) << row.why << "\n" << result.err;
    }
}

TEST_F(Program, SuggestsNothingThatIsFarOff) {
    fs::create_symlink("nowhere", folder.path / "link.bas");
    const std::string link = "'" + (folder.path / "link.bas").string() + "'";
    for (const std::string arguments : {"check /nirgends", "check /nirgends --component X", "check ''"}) {
        const ProgramResult result = Zentlor(arguments + " --isolated");
        EXPECT_EQ(result.err.find("ähnlichsten"), std::string::npos) << result.err;
    }
    EXPECT_EQ(CountLines(Zentlor("check " + link + " --isolated").err), 1U) << "a link to nowhere is like itself";
}

TEST_F(Program, SaysOfWhichProjectTheCountsAre) {
    const std::string code = "Option Explicit\n";
    const std::string one = (folder.path / "a").string();
    const std::string two = (folder.path / "b").string();
    Module("a/m.bas", code);
    Module("b/m.bas", code);
    const auto closing = [&](const std::string& arguments) {
        const std::string out = Zentlor("check " + arguments + " --isolated --only ModLeer").out;
        return WithoutDuration(WithoutDuration(out.substr(std::min(out.find("\n\n"), out.size()))));
    };
    const std::string counts = "1 Hinweise in 1 Objekten. Dauer: 00:00\n";
    EXPECT_EQ(closing(one), "\n\n" + counts + "Gelesen: 1 Projekt, 1 Modul, 1 Zeile.\n");
    const std::string both = closing(one + " " + two);
    EXPECT_NE(both.find("\n" + one + ": " + counts + two + ": " + counts), std::string::npos) << both;
}

TEST_F(Program, AnOutputThatTakesNothingIsAFailureOfEachCommand) {
    const std::string broken = Module("broken.bas", "Sub X()\nIf a Then\nEnd Sub\n");
    const std::string target = (folder.path / "out").string();
    for (const std::string arguments :
         {"check examples/kunden --isolated", "dump examples/kunden", "checks", "info examples/kunden"}) {
        EXPECT_EQ(Zentlor(arguments + " > /dev/full").status, 2) << arguments;
    }
    EXPECT_EQ(Zentlor("compile " + broken + " > /dev/full").status, 2);
    EXPECT_EQ(Zentlor("extract examples/kunden -o " + target + " > /dev/full").status, 2);
    for (const std::string closed : {"2>&-", "2>/dev/full"}) {
        EXPECT_EQ(Zentlor("check /nirgends --isolated " + closed).status, 2) << "what nobody hears is no crash";
    }
}

TEST_F(Program, ListsTheChecksInTheLanguage) {
    const std::string german = Zentlor("checks --language de").out;
    EXPECT_EQ(CountLines(german), 45U);
    EXPECT_NE(german.find(" Prozeduren  Leere Prozeduren sind vorhanden."), std::string::npos) << german;
    const std::string english = Zentlor("checks --language en").out;
    EXPECT_NE(english.find(" Procedures  There are empty procedures"), std::string::npos) << english;
    EXPECT_NE(Zentlor("checks --language de --format json").out.find("\"group\": \"Procedures\""), std::string::npos)
        << "programs read the group, whatever the language";
}

TEST_F(Program, FormatsKeepTheirForm) {
    const std::string module =
        Module("m.bas", "Attribute VB_Name = \"Mäuse\"\nOption Explicit\n\nSub Z()\n    Stop\nEnd Sub\n");
    const std::string only = " --isolated --only CmdVergessenerBefehlStop,ProcScopeNotExplicit ";
    const std::string path = folder.path.string() + "/m.bas";
    EXPECT_EQ(Zentlor("check " + module + only + "--format jsonl").out,
              "{\"check\":\"ProcScopeNotExplicit\",\"module\":\"Mäuse\",\"procedure\":\"Z\",\"hint\":\"Scope der "
              "Prozedur nicht explizit deklariert.\",\"line\":2,\"path\":\"" +
                  path +
                  "\",\"fileLine\":3}\n"
                  "{\"check\":\"CmdVergessenerBefehlStop\",\"module\":\"Mäuse\",\"procedure\":\"Z\",\"hint\":"
                  "\"Vergessener Befehl: \\\"Stop\\\"\",\"line\":4,\"path\":\"" +
                  path + "\",\"fileLine\":5}\n");
    EXPECT_EQ(Zentlor("check " + module + only + "--format txt").out,
              "Modul: M\xE4use\r\n    Prozedur: Z\r\n        Hinweis: Scope der Prozedur nicht explizit deklariert. "
              "(Zeile 2)\r\n\r\n"
              "Modul: M\xE4use\r\n    Prozedur: Z\r\n        Hinweis: Vergessener Befehl: \"Stop\" (Zeile 4)\r\n\r\n");
    const std::string file = (folder.path / "out.csv").string();
    EXPECT_EQ(Zentlor("check " + module + only + "--format csv --language en -o " + file).out, "");
    EXPECT_EQ(ReadFile(file),
              "Module;Procedure;Hint;Line\r\nM\xE4use;Z;Scope of a procedure not explicitly declared.;2\r\n"
              "M\xE4use;Z;Forgotten command: 'Stop'.;4\r\n");
    EXPECT_EQ(Zentlor("check " + module + " --isolated -o /nirgends/x.txt").status, 2);
}

TEST_F(Program, ALongReportIsTheSameInPiecesAndInOne) {
    std::string code = "Sub A()\n";
    for (int i = 0; i < 12000; ++i) code += "Stop\n";
    const std::string command = "check " + Module("m.bas", code + "End Sub\n") + " --isolated --format ";
    const std::string file = (folder.path / "out").string();
    for (const std::string format : {"text", "jsonl"}) {
        const ProgramResult pieces = Zentlor(command + format);
        EXPECT_GT(pieces.out.size(), std::size_t{1} << 20);
        EXPECT_EQ(Zentlor(command + format + " -o " + file).status, 1);
        EXPECT_TRUE(WithoutDuration(pieces.out) == WithoutDuration(ReadFile(file))) << format;
        EXPECT_EQ(Zentlor(command + format + " > /dev/full").status, 2);
    }
}

TEST_F(Program, WhatComesOutOfASourceIsShownEscaped) {
    const std::string module = Module(
        "m.bas", "Sub A()\n    Stop ' \x1b[31m\nEnd Sub\nSub B\x1b()\nEnd Sub\nPublic Const \u202ek\u202e = 1\n");
    const ProgramResult result = Zentlor("check " + module + " --isolated --uncompiled");
    EXPECT_EQ((result.out + result.err).find('\x1b'), std::string::npos) << result.out;
    EXPECT_EQ((result.out + result.err).find("\u202e"), std::string::npos) << result.out;
}

TEST_F(Program, SettingsAreReadAndCompleted) {
    const std::string module = Module("m.bas", "");
    EXPECT_EQ(Zentlor("check " + module).status, 1) << "an empty module is a hint";
    const std::string stored = ReadFile(SettingsPath());
    EXPECT_EQ(CountLines(stored), 47U) << stored;
    std::string changed = stored;
    changed.replace(changed.find("ModLeer=1"), 9, "ModLeer=0");
    changed.replace(changed.find("AllgSprache=1"), 13, "AllgSprache=2");
    WriteFile(SettingsPath(), changed);
    const ProgramResult english = Zentlor("check " + module);
    EXPECT_EQ(english.status, 0) << english.out;
    EXPECT_NE(english.out.find("0 hints in 0 objects."), std::string::npos) << english.out;
    EXPECT_EQ(Zentlor("check " + module + " --isolated").status, 1);
    EXPECT_EQ(Zentlor("check " + module + " --only ModLeer").status, 1);
    EXPECT_EQ(ReadFile(SettingsPath()), changed) << "a run's own choice was stored";
    const std::string named = "check " + module + " --settings '" + (folder.path / "team.ini").string() + "'";
    EXPECT_NE(Zentlor(named).err.find("team.ini“ gab es nicht"), std::string::npos) << "the name may be mistyped";
    EXPECT_EQ(Zentlor(named).err, "");
    WriteFile(folder.path / "team.ini", "[Brennhaus-Tools\\Zentlor]\nModLeer=ja\n");
    const ProgramResult faulty = Zentlor(named);
    EXPECT_EQ(faulty.status, 2);
    EXPECT_NE(faulty.err.find("team.ini“: Prüfungen haben 0 oder 1"), std::string::npos) << faulty.err;
    const ProgramResult unreadable = Zentlor("check " + module + " --settings /dev/null/settings");
    EXPECT_EQ(unreadable.status, 1) << "settings that cannot be used stop nothing";
    EXPECT_NE(unreadable.err.find("/dev/null/settings"), std::string::npos) << unreadable.err;
}

TEST_F(Program, DumpShowsWhatTheChecksSee) {
    const std::string module = Module("m.bas", "Attribute VB_Name = \"M\"\r\ndim  a\r\nsub x( )\r\nEnd Sub\r\n");
    const std::string raw = Zentlor("dump " + module + " --raw").out;
    EXPECT_NE(raw.find("\"lines\":[\"dim  a\",\"sub x( )\",\"End Sub\"]"), std::string::npos) << raw;
    const std::string dump = Zentlor("dump " + module).out;
    EXPECT_NE(dump.find("\"declarationLines\":1,\"lines\":[\"Dim a\",\"Sub x()\",\"End Sub\"]"), std::string::npos)
        << dump;
    const std::string diff = Zentlor("dump " + module + " --diff").out;
    EXPECT_NE(diff.find("m.bas:2:\n-dim  a\n+Dim a\n"), std::string::npos) << diff;
    EXPECT_EQ(CountLines(diff), 6U) << diff;
}

TEST_F(Program, ExtractedFolderGivesTheSameHints) {
    const std::string target = (folder.path / "out").string();
    const ProgramResult first = Zentlor("extract examples/kunden -o " + target + " --utf8");
    EXPECT_EQ(first.status, 0) << first.err;
    const auto hints = [&](const std::string& path) {
        return Zentlor("check " + path + " --isolated --format csv").out;
    };
    EXPECT_EQ(hints(target), hints("examples/kunden"));
    const ProgramResult again = Zentlor("extract examples/kunden -o " + target);
    EXPECT_EQ(again.status, 2) << "files were replaced without a word";
    EXPECT_NE(again.err.find("--force"), std::string::npos);
    EXPECT_EQ(Zentlor("extract examples/kunden --force -o " + target).status, 0);
    EXPECT_EQ(hints(target), hints("examples/kunden"));
}

// The bound is one for the checks: what is only written out or listed needs no memory beside its text.
TEST_F(Program, MemoryForTheChecksKeepsNoModuleFromBeingExtracted) {
    test::TestProject project;
    project.modules = {test::StandardModule(u"M", "dim  a\r\n")};
    const std::string document = (folder.path / "a.xls").string();
    WriteFile(document, test::WriteCompoundFile(test::WriteProject(project)).bytes);
    const ProgramResult refused = Zentlor("check --isolated --max-memory 10B " + document);
    EXPECT_EQ(refused.status, 2);
    EXPECT_NE(refused.err.find("--max-memory"), std::string::npos) << refused.err;
    EXPECT_EQ(Zentlor("info --max-memory 10B " + document).status, 0);
    EXPECT_EQ(Zentlor("extract --max-memory 10B " + document + " -o " + folder.path.string()).status, 0);
    EXPECT_NE(ReadFile(folder.path / "M.bas").find("\r\ndim  a\r\n"), std::string::npos) << "as it is stored";
}

TEST_F(Program, ExtractStaysInItsFolder) {
    const std::string evil = Module("in/evil.bas", "Attribute VB_Name = \"../../evil\"\nSub A()\nEnd Sub\n");
    const std::string target = (folder.path / "out").string();
    EXPECT_EQ(Zentlor("extract " + evil + " -o " + target).status, 0);
    EXPECT_TRUE(fs::exists(folder.path / "out/_.._.._evil.bas"));
    EXPECT_FALSE(fs::exists(folder.path / "evil.bas"));
    WriteFile(folder.path / "victim", "old");
    fs::create_directory(folder.path / "out2");
    fs::create_symlink(folder.path / "victim", folder.path / "out2/M.bas");
    const std::string plain = Module("in/M.bas", "Sub A()\nEnd Sub\n");
    EXPECT_EQ(Zentlor("extract " + plain + " --force -o " + (folder.path / "out2").string()).status, 2);
    EXPECT_EQ(ReadFile(folder.path / "victim"), "old");
}

TEST_F(Program, ExtractSaysOnceThatItCannotWriteAndLeavesNoHalfFile) {
    const std::string module = Module("in/M.bas", "Sub A()\nEnd Sub\n");
    const ProgramResult blocked = Zentlor("extract examples/kunden -o " + module);
    EXPECT_EQ(blocked.status, 2);
    EXPECT_EQ(CountLines(blocked.err), 1U) << blocked.err;
    const std::string target = (folder.path / "out").string();
    const std::string large = Module("in/L.bas", std::string(10000, '\''));
    const ProgramResult full = RunProgram("ulimit -f 1; trap '' XFSZ; '" ZENTLOR_PROGRAM "' extract --language de " +
                                          module + " " + large + " -o " + target);
    EXPECT_EQ(full.status, 2);
    EXPECT_EQ(full.out, "1 Modul nach „" + target + "“ geschrieben.\n");
    EXPECT_FALSE(fs::exists(folder.path / "out/L.bas"));
    EXPECT_EQ(Zentlor("extract " + large + " -o " + target).status, 0) << "the next try is not told of a file";
}

TEST_F(Program, TheManualKnowsEveryOption) {
    std::string manual = ReadFile(kSource / "docs/man/zentlor.1");
    manual.erase(std::remove(manual.begin(), manual.end(), '\\'), manual.end());
    for (const std::string verb : {"", "check", "dump", "checks", "compile", "extract", "info"}) {
        std::istringstream help(Zentlor(verb + " --help").out);
        for (std::string word; help >> word;) {
            word = word.substr(0, word.find_first_of(" ;:="));
            const auto option = word.find("--");
            if (option == std::string::npos) continue;
            EXPECT_NE(manual.find(word.substr(option)), std::string::npos) << verb << ": " << word;
        }
    }
}

TEST_F(Program, BrokenPipeEndsQuietly) {
    const ProgramResult result = Zentlor("check examples/kunden --isolated | head -n 1");
    EXPECT_EQ(result.err, "");
    EXPECT_EQ(CountLines(result.out), 1U);
}

}  // namespace
}  // namespace zentlor::test
