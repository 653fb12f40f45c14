#pragma once

// A host that writes down what it was asked, one line a call, so that a run is compared as one block of text.

#include <functional>
#include <map>
#include <string>

#include "core/analysis/session.h"
#include "core/analysis/source_model.h"
#include "core/utilities/encoding.h"

namespace zentlor::test {

class FakeHost : public Editor,
                 public PaneView,
                 public EventPump,
                 public SettingsStore,
                 public MessageBoxes,
                 public Clock {
  public:
    Host AsHost() { return {*this, *this, *this, *this, *this, *this}; }

    /// What was called, in order. `quiet` leaves out the pane's progress.
    std::string trace;
    std::map<Text, Text> settings;
    std::unique_ptr<VBProject> project = std::make_unique<VBProject>(u"Projekt1", u"/daten/Kunden.accdb");
    Text requireDeclaration = u"1";
    bool compileCommandEnabled = false;
    std::int64_t now = 1000;
    /// Runs at every yield point; counts from 1.
    std::function<void(int)> onDoEvents;
    int yields = 0;

    void Line(const std::string& text) { trace += text + "\n"; }

    VBProject* ActiveVBProject() override { return project.get(); }
    Text Version() override { return u"7.1"; }
    Text RequireDeclaration(TextView) override { return requireDeclaration; }
    bool CompileCommandEnabled() override { return compileCommandEnabled; }
    void ShowSelection(const VBComponent& component, int startLine, int startColumn, int endLine,
                       int endColumn) override {
        if (startLine > component.CodeModule().CountOfLines()) throw SubscriptOutOfRange();
        Line("select " + ToUtf8(component.Name()) + " " + std::to_string(startLine) + "," +
             std::to_string(startColumn) + "-" + std::to_string(endLine) + "," + std::to_string(endColumn));
    }
    void ExecuteMenuEntry(int menu, int entry) override {
        Line("menu " + std::to_string(menu) + "/" + std::to_string(entry));
    }

    void ShowList(bool visible) override { Line(visible ? "list on" : "list off"); }
    void ShowLabels(bool visible) override { Line(visible ? "labels on" : "labels off"); }
    void FocusList() override { Line("focus list"); }
    void ListChanged() override { Line("list changed"); }
    void SetObjekt(TextView text) override { Line("object " + ToUtf8(text)); }
    void SetTest(TextView text) override { Line("test " + ToUtf8(text)); }
    void ShowProgress(bool visible) override { Line(visible ? "bar on" : "bar off"); }
    void SetProgressMaximum(int maximum) override { Line("bar max " + std::to_string(maximum)); }
    void SetProgress(int value) override { Line("bar " + std::to_string(value)); }
    void ShowStatus(bool visible) override { Line(visible ? "status on" : "status off"); }
    void SetPanel(int panel, TextView text) override { Line("panel " + std::to_string(panel) + ": " + ToUtf8(text)); }
    void EnableStop(bool enabled) override { Line(enabled ? "stop on" : "stop off"); }
    void RedrawToolbar() override { Line("redraw"); }
    void EnableSprache(bool enabled) override { Line(enabled ? "language on" : "language off"); }

    void DoEvents() override {
        ++yields;
        if (onDoEvents) onDoEvents(yields);
    }

    Text GetSetting(TextView, TextView, TextView key) override {
        const auto found = settings.find(Text(key));
        return found == settings.end() ? Text() : found->second;
    }
    void SaveSetting(TextView, TextView, TextView key, TextView value) override { settings[Text(key)] = value; }

    void Show(TextView text, BoxIcon icon, TextView title) override {
        const std::string kind = icon == BoxIcon::Critical ? "critical"
                                 : icon == BoxIcon::None   ? "plain"
                                                           : "exclamation";
        Line("box " + kind + " [" + ToUtf8(title) + "] " + ToUtf8(ReplaceAll(text, u"\r\n", u"|")));
    }

    std::int64_t Now() override { return now += 5; }
};

}  // namespace zentlor::test
