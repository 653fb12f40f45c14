#pragma once

// The window's side of the add-in: controls, dialogs and services that write down what they were asked, into the trace
// of the host beside them.

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "core/host/doc_add_in.h"
#include "core/results/export.h"
#include "core/utilities/hyperlink.h"
#include "support/fake_host.h"

namespace zentlor::test {

/// Text for a trace: NUL as "|", more than three at the end counted.
inline std::string Shown(TextView text) {
    const std::size_t end = text.find_last_not_of(u'\0') + 1;
    const std::size_t nuls = text.size() - end;
    std::string shown = ToUtf8(ReplaceAll(text.substr(0, end), TextView(u"\0", 1), u"|"));
    shown += nuls > 3 ? "<" + std::to_string(nuls) + " NULs>" : std::string(nuls, '|');
    return ToUtf8(ReplaceAll(FromUtf8(shown), u"\r\n", u"/"));
}

class FakeUi : public PaneTexts,
               public LanguageBox,
               public PaneDialogs,
               public FileDialogPlatform,
               public FileOutput,
               public Shell {
  public:
    explicit FakeUi(FakeHost& host) : host_(host) {}
    PaneServices AsServices() { return {*this, *this, *this, *this, *this, *this, u"/usr/share/zentlor"}; }

    // What the user or the platform does next.
    Text selection;           ///< of a file dialog; empty is Cancel
    OPENFILENAME lastRecord;  ///< of the last file dialog
    std::map<Text, std::string> files = {{u"/daten/Kunden.accdb", {}}};
    bool unwritable = false;
    int shellResult = 33;
    std::vector<Text> items;
    int selected = 0;
    std::map<std::string, Text> words;  ///< by control

    void SetButtonCaption(int button, TextView text) override { Word("caption " + std::to_string(button), text); }
    void SetButtonToolTip(int button, TextView text) override { Word("tip " + std::to_string(button), text); }
    void SetColumnHeader(int column, TextView text) override { Word("header " + std::to_string(column), text); }
    void SetUntersuchtesObjekt(TextView text) override { Word("object label", text); }
    void SetAktuellerTest(TextView text) override { Word("test label", text); }
    void SetPanelToolTip(int panel, TextView text) override { Word("panel tip " + std::to_string(panel), text); }

    int CountItems() const override { return static_cast<int>(items.size()); }
    void AddItem(int, TextView text, TextView) override { items.emplace_back(text); }
    Text SelectedText() const override {
        return selected == 0 ? Text() : items[static_cast<std::size_t>(selected - 1)];
    }
    int SelectedPosition() const override { return selected; }
    void Select(int position) override {
        selected = position;
        if (onSelect) onSelect();
    }
    std::function<void()> onSelect;

    void ShowOptionen() override { host_.Line("dialog options"); }
    void ShowAbout() override { host_.Line("dialog about"); }

    int GetOpenFileNameA(OPENFILENAME& record) override { return Choose("open", record); }
    int GetSaveFileNameA(OPENFILENAME& record) override { return Choose("save", record); }
    std::intptr_t SHBrowseForFolderA(const BROWSEINFO& record) override {
        host_.Line("folder [" + Shown(record.lpszTitle) + "] owner " + std::to_string(record.hOwner) + " flags " +
                   std::to_string(record.ulFlags));
        return selection.empty() ? 0 : 4711;
    }
    int SHGetPathFromIDListA(std::intptr_t idList, Text& buffer) override {
        if (idList == 0) return 0;
        return buffer.replace(0, selection.size() + 1, selection + u'\0').empty() ? 0 : 1;
    }
    Text CurrentDirectory() override { return u"C:\\Start"; }
    char16_t PathSeparator() const override { return u'\\'; }

    Text Dir(TextView path) override {
        return files.count(Text(path)) == 0 ? Text() : Text(path.substr(path.rfind(u'/') + 1));
    }
    void WriteFile(TextView path, std::string_view bytes) override {
        if (unwritable) throw RuntimeError(70, "Permission denied: " + ToUtf8(path));
        files[Text(path)] = bytes;
        host_.Line("write " + ToUtf8(path));
    }

    int ShellExecuteA(TextView verb, TextView file, TextView parameters, TextView folder, ShowMode show) override {
        host_.Line("shell [" + ToUtf8(verb) + "] " + ToUtf8(file) + " [" + ToUtf8(parameters) + "] [" + ToUtf8(folder) +
                   "] " + std::to_string(show));
        return shellResult;
    }
    Text GetSystemDirectoryA() override { return u"C:\\System"; }
    void HtmlHelpA(TextView file, int command, int data) override {
        host_.Line("help " + ToUtf8(file) + " " + std::to_string(command) + " " + std::to_string(data));
    }

  private:
    void Word(const std::string& control, TextView text) {
        words[control] = text;
        host_.Line("word " + control);
    }
    int Choose(const char* kind, OPENFILENAME& record) {
        lastRecord = record;
        host_.Line(std::string(kind) + " [" + Shown(record.lpstrTitle) + "] in " + Shown(record.lpstrInitialDir) +
                   " name " + Shown(record.lpstrFile) + " ext " + Shown(record.lpstrDefExt) + " flags " +
                   std::to_string(record.Flags));
        if (selection.empty()) return 0;
        record.lpstrFile = selection;
        record.lpstrFile.resize(static_cast<std::size_t>(record.nMaxFile), u'\0');
        return 1;
    }

    FakeHost& host_;
};

/// A session with its pane, over fakes.
struct PaneFixture {
    FakeHost host;
    FakeUi ui{host};
    Session session{host.AsHost()};
    std::unique_ptr<docAddIn> pane = std::make_unique<docAddIn>(session, ui.AsServices());

    /// Modules of two hints each with the checks of `session` on that EnableOnly leaves.
    void AddModules(int count) {
        for (int i = 1; i <= count; ++i) {
            host.project->Add(u"Modul" + ToText(i), vbext_ct_StdModule,
                              u"Option Explicit\n\nSub Los()\n    Stop\n    Debug.Print 1\nEnd Sub\n");
        }
    }
    void EnableOnly(std::initializer_list<CheckId> ids) {
        session.udtOptionen.enabled.fill(false);
        for (const CheckId id : ids) session.udtOptionen[id] = true;
    }
    /// The trace since the last call.
    std::string TakeTrace() { return std::exchange(host.trace, {}); }
};

}  // namespace zentlor::test
