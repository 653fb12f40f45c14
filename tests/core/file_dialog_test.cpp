// The text work around the platform's file dialogs: filters, flags, the name buffer and multi-selections.

#include <gtest/gtest.h>

#include "core/utilities/file_dialog.h"
#include "support/fake_ui.h"

namespace zentlor::test {
namespace {

using namespace std::string_literals;

struct DialogFixture : PaneFixture {
    FileDialog dialog{session, host, ui};
};

// "|" in a row stands for NUL.
Text Nuls(const std::string& text) {
    Text result = FromUtf8(text);
    std::replace(result.begin(), result.end(), u'|', u'\0');
    return result;
}

TEST(FileDialogTest, BuildFilter) {
    struct Row {
        const char* why;
        std::function<void(FileDialog&)> set;
        const char* filter;
    };
    const auto one = [](FileDialog& d) { d.FilterText(1, u"Text"), d.FilterSuffix(1, u"*.txt"); };
    const Row rows[] = {
        {"nothing set: the default has no NUL of its own", [](auto&) {}, "Alle Dateien|*.*||"},
        {"a text without its pattern does not count", [](auto& d) { d.FilterText(1, u"Text"); }, "Alle Dateien|*.*||"},
        {"a pattern without its text neither", [](auto& d) { d.FilterSuffix(5, u"*.txt"); }, "Alle Dateien|*.*||"},
        {"an entry behind a gap counts", [](auto& d) { d.FilterText(2, u"B"), d.FilterSuffix(2, u"*.b"); }, "B|*.b|||"},
        {"two entries", [&](auto& d) { one(d), d.FilterText(5, u"E"), d.FilterSuffix(5, u"*.e"); },
         "Text|*.txt|E|*.e|||"},
        {"a free filter comes first", [&](auto& d) { one(d), d.Filter(Nuls("Alt|*.alt")); }, "Alt|*.alt|Text|*.txt|||"},
        {"its closing NULs are stripped, however many", [](auto& d) { d.Filter(Nuls("Alt|*.alt||||")); },
         "Alt|*.alt|||"},
    };
    for (const Row& row : rows) {
        DialogFixture f;
        row.set(f.dialog);
        EXPECT_EQ(f.dialog.BuildFilter(), Nuls(row.filter)) << row.why;
        EXPECT_EQ(f.dialog.BuildFilter(), Nuls(row.filter)) << row.why << ", asked again";
    }
}

TEST(FileDialogTest, CheckFlags) {
    struct Row {
        const char* why;
        std::int32_t flags;
        bool multi;
        TextView intention;
        std::int32_t expected;
    };
    const Row rows[] = {
        {"open", 0, false, u"Open", 6148},
        {"open several", 0, true, u"Open", 530948},
        {"save", 0, false, u"Save", 2054},
        {"save never takes several by itself", 0, true, u"Save", 2054},
        {"the caller's flags replace the defaults", 4, false, u"Open", 4},
        {"and only the bits for several files are added", 4, true, u"Save", 0x80204},
        {"the caller's flags are not looked at further", 4, false, u"Drucken", 4},
    };
    for (const Row& row : rows) {
        DialogFixture f;
        f.dialog.Flags(row.flags);
        if (row.multi) f.dialog.MultiSelect(true);
        f.dialog.CheckFlags(row.intention);
        EXPECT_EQ(f.dialog.CurrentFlags(), row.expected) << row.why;
        EXPECT_EQ(f.host.trace, "") << row.why;
    }
    DialogFixture f;
    f.dialog.CheckFlags(u"Drucken");
    EXPECT_EQ(f.host.trace, "box critical [CheckFlags] Unbekannte Intention: Drucken\n");
}

TEST(FileDialogTest, RecordAndResult) {
    DialogFixture f;
    f.ui.selection = Nuls("C:\\a.txt|rest of an old name");
    EXPECT_EQ(f.dialog.ShowOpen(), u"C:\\a.txt");
    EXPECT_EQ(f.dialog.FileCount(), 1);
    EXPECT_EQ(f.TakeTrace(), "open [Datei öffnen|] in C:\\Start| name <512 NULs> ext | flags 6148\n");
    EXPECT_EQ(f.ui.lastRecord.lStructSize, 76);
    EXPECT_EQ(f.ui.lastRecord.nFilterIndex, 1);

    f.ui.selection.clear();
    f.dialog.InitDir(u"C:\\Daten\\");
    f.dialog.DefaultExt(u"TXT");
    f.dialog.DefaultFileName(u"Hinweise");
    f.dialog.MultiSelect(false);
    f.dialog.hWnd(12);
    EXPECT_EQ(f.dialog.ShowSave(), u"");
    EXPECT_EQ(f.TakeTrace(), "save [Datei öffnen|] in C:\\Daten\\| name Hinweise<1992 NULs> ext TXT| flags 6148\n")
        << "title and flags of the first dialog stay in the fields; the buffer grows with MultiSelect of any value";
    EXPECT_EQ(f.ui.lastRecord.hwndOwner, 12);
    EXPECT_EQ(f.ui.lastRecord.nMaxFile, 2000);
    EXPECT_EQ(f.dialog.FileCount(), 1) << "ShowSave leaves the count alone";
    EXPECT_EQ(f.dialog.ShowOpen(), u"");
    EXPECT_EQ(f.dialog.FileCount(), 0) << "a cancelled ShowOpen does not";
    EXPECT_EQ(f.dialog.FileName(), u"");
}

TEST(FileDialogTest, PresetNameThatDoesNotFitIsReported) {
    DialogFixture f;
    f.dialog.DefaultFileName(Text(513, u'x'));
    EXPECT_EQ(f.dialog.ShowSave(), u"");
    EXPECT_NE(f.host.trace.find("Modul: FileDialog|Prozedur: ShowSave|Fehler-Nr.: 5|"), std::string::npos)
        << f.host.trace;
}

TEST(FileDialogTest, MultiSelection) {
    struct Row {
        const char* why;
        const char* buffer;
        int count;
        std::vector<const char*> files;  ///< the first of ShowOpen, the others of GetNextFile
    };
    const Row rows[] = {
        {"one file comes as its path", "C:\\a.txt|||", 1, {"C:\\a.txt", "", ""}},
        {"a folder that ends in its separator", "C:\\|a.txt|b.txt||", 2, {"C:\\a.txt", "C:\\b.txt", "", ""}},
        {"a folder that does not", "C:\\x|a|b|c||", 3, {"C:\\x\\a", "C:\\x\\b", "C:\\x\\c", ""}},
    };
    for (const Row& row : rows) {
        DialogFixture f;
        f.dialog.MultiSelect(true);
        f.ui.selection = Nuls(row.buffer);
        EXPECT_EQ(ToUtf8(f.dialog.ShowOpen()), row.files.front()) << row.why;
        EXPECT_EQ(f.dialog.FileCount(), row.count) << row.why;
        for (std::size_t i = 1; i < row.files.size(); ++i) {
            EXPECT_EQ(ToUtf8(f.dialog.GetNextFile()), row.files[i]) << row.why;
        }
    }
    DialogFixture raw;
    raw.dialog.MultiSelectOCXCompatible(false);
    raw.dialog.MultiSelectOCXCompatible(true);
    raw.ui.selection = Nuls("C:\\x|a|b||");
    EXPECT_EQ(raw.dialog.ShowOpen(), Nuls("C:\\x|a|b"));
    EXPECT_EQ(raw.ui.lastRecord.nMaxFile, 2000);
    EXPECT_EQ(raw.dialog.ShowSave(), u"C:\\x") << "the save dialog gives one name, whatever was set";
}

TEST(FileDialogTest, CountFilesEndsAtTheEmptyNameOrWithTheText) {
    DialogFixture f;
    EXPECT_EQ(f.dialog.CountFiles(Nuls("a|b|||c|")), 2);
    EXPECT_EQ(f.dialog.CountFiles(u"no NUL"), 0);
    EXPECT_EQ(f.dialog.CountFiles(Nuls("a|b")), 1) << "the closing NULs are missing";
}

TEST(FileDialogTest, ShowFolder) {
    DialogFixture f;
    f.ui.selection = u"C:\\Daten";
    EXPECT_EQ(f.dialog.ShowFolder(), u"C:\\Daten");
    f.ui.selection.clear();
    EXPECT_EQ(f.dialog.ShowFolder(), u"");
    EXPECT_EQ(f.host.trace, "folder [] owner 0 flags 1\nfolder [] owner 0 flags 1\n") << "no default title";
}

}  // namespace
}  // namespace zentlor::test
