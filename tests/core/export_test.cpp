// The export: where the dialog starts, what decides the form of the file, and the bytes that come out.

#include <gtest/gtest.h>

#include "support/fake_ui.h"

namespace zentlor::test {
namespace {

constexpr auto kCheck = CheckId::ModLeer;

struct ExportFixture : PaneFixture {
    ExportFixture() {
        session.udtOptionen.AllgSprache = 1;
        session.lvwErgebnis.Add({u"Form_Kunden", u"Form_Load", u"Größe in \u20AC; \u2660 und \U0001F600", 17, kCheck});
        session.lvwErgebnis.Add({u"Bestellung", u"", u"Modul ist leer", 0, kCheck});
    }
    std::string Export(TextView path) {
        ui.selection = path;
        pane->symToolbar_ButtonClick(u"Export");
        return ui.files.count(Text(path)) == 0 ? "(no file)" : ui.files[Text(path)];
    }
};

// Written in Windows-1252 by hand: ö F6, ß DF, € 80, and "?" for what the code page lacks.
constexpr const char* kTxt =
    "Modul: Bestellung\r\n    Prozedur: \r\n        Hinweis: Modul ist leer (Zeile 0)\r\n\r\n"
    "Modul: Form_Kunden\r\n    Prozedur: Form_Load\r\n"
    "        Hinweis: Gr\xF6\xDF\x65 in \x80; ? und ? (Zeile 17)\r\n\r\n";
constexpr const char* kCsv =
    "Modul;Prozedur;Hinweis;Zeile\r\n"
    "Bestellung;;Modul ist leer;0\r\n"
    "Form_Kunden;Form_Load;Gr\xF6\xDF\x65 in \x80; ? und ?;17\r\n";

TEST(Export, TheNamesEndingDecides) {
    struct Row {
        const char* why;
        TextView path;
        const char* bytes;
    };
    const Row rows[] = {
        {"text", u"/tmp/a.txt", kTxt},
        {"text in any case", u"/tmp/liste.Txt", kTxt},
        {"table", u"/tmp/a.csv", kCsv},
        {"another ending gives an empty file", u"/tmp/a.doc", ""},
        {"a dot in a folder's name only", u"/tmp/a.b/datei", ""},
        {"no dot at all: the whole path counts", u"txt", kTxt},
    };
    for (const Row& row : rows) {
        ExportFixture f;
        EXPECT_EQ(f.Export(row.path), row.bytes) << row.why;
        EXPECT_EQ(f.host.trace.find("box"), std::string::npos) << row.why << ": no notice";
    }
}

TEST(Export, FollowsSortAndLanguage) {
    ExportFixture f;
    f.session.udtOptionen.AllgSprache = 2;
    f.pane->lvwErgebnis_ColumnClick(4);
    f.pane->lvwErgebnis_ColumnClick(4);
    const std::string csv = f.Export(u"/tmp/a.csv");
    EXPECT_TRUE(csv.starts_with("Module;Procedure;Hint;Line\r\nForm_Kunden;")) << csv;
}

TEST(Export, DialogStartsAtTheProjectsFile) {
    struct Row {
        const char* why;
        Text project;
        const char* folderAndName;
    };
    const Row rows[] = {
        {"a database", u"/daten/Kunden.accdb", "in /daten/| name Hinweise in Kunden<"},
        {"the last dot decides", u"/daten/Kunden.alt.accdb", "in /daten/| name Hinweise in Kunden.alt<"},
        {"a folder", u"/daten/kunden/", "in /daten/kunden/| name Hinweise in Projekt<"},
    };
    for (const Row& row : rows) {
        ExportFixture f;
        f.host.project = std::make_unique<VBProject>(u"Projekt", row.project);
        f.ui.files[row.project];
        EXPECT_EQ(f.Export(u""), "(no file)") << row.why << ": cancelled";
        EXPECT_TRUE(f.host.trace.starts_with("save [Datei speichern unter|] ")) << row.why << "\n" << f.host.trace;
        EXPECT_NE(f.host.trace.find(row.folderAndName), std::string::npos) << row.why << "\n" << f.host.trace;
        EXPECT_EQ(Shown(f.ui.lastRecord.lpstrFilter), "Text-Dateien|*.txt|csv-Dateien|*.csv|||") << row.why;
    }
}

TEST(Export, FailureLeavesTheFileAndCanBeTriedAgain) {
    ExportFixture f;
    f.ui.files[u"/tmp/a.txt"] = "old";
    f.ui.unwritable = true;
    EXPECT_EQ(f.Export(u"/tmp/a.txt"), "old");
    EXPECT_NE(f.host.trace.find("Prozedur: ExportErgebnisse|Fehler-Nr.: 70|Permission denied: /tmp/a.txt"),
              std::string::npos)
        << f.host.trace;
    f.ui.unwritable = false;
    EXPECT_EQ(f.Export(u"/tmp/a.txt"), kTxt);

    f.TakeTrace();
    f.ui.files.erase(u"/daten/Kunden.accdb");
    f.Export(u"/tmp/b.txt");
    EXPECT_TRUE(f.host.trace.starts_with("box critical")) << "the project's file is gone: " << f.host.trace;
    EXPECT_EQ(f.host.trace.find("save"), std::string::npos) << "no dialog opens";
}

}  // namespace
}  // namespace zentlor::test
