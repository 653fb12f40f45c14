// Connection, menu entries and disconnection of the add-in, over an editor whose command bars lie in memory.

#include <gtest/gtest.h>

#include <algorithm>

#include "core/host/add_in_manager.h"
#include "support/fake_ui.h"

namespace zentlor::test {
namespace {

struct FakeControl : CommandBarControl {
    Text caption;
    int faceId = 0;
    bool beginGroup = false;
    bool deleted = false;

    Text Caption() const override { return caption; }
    void SetCaption(TextView text) override { caption = text; }
    void SetFaceId(int id) override { faceId = id; }
    void SetBeginGroup(bool begin) override { beginGroup = begin; }
    void Delete() override {
        if (deleted) throw ObjectNotSet();
        deleted = true;
    }
};

struct FakeBar : CommandBar {
    std::vector<std::shared_ptr<FakeControl>> controls;

    std::vector<std::shared_ptr<CommandBarControl>> Controls() override {
        std::erase_if(controls, [](const auto& control) { return control->deleted; });
        return {controls.begin(), controls.end()};
    }
    std::shared_ptr<CommandBarControl> Add(int, bool) override {
        controls.push_back(std::make_shared<FakeControl>());
        return controls.back();
    }
};

// Creates real panes in windows that are a line in the trace.
class FakeEditor : public EditorUi {
  public:
    explicit FakeEditor(PaneFixture& f) : f_(f) {}

    std::map<Text, FakeBar> bars = {{u"Add-Ins", {}}, {u"Code Window", {}}, {u"Project Window", {}}};
    const VBComponent* selected = nullptr;
    std::vector<std::function<void()>> idle;
    docAddIn* pane = nullptr;

    CommandBar* CommandBars(TextView name) override {
        const auto bar = bars.find(Text(name));
        return bar == bars.end() ? nullptr : &bar->second;
    }
    std::unique_ptr<zentlor::CommandBarEvents> CommandBarEvents(const std::shared_ptr<CommandBarControl>& control,
                                                                std::function<void()> click) override {
        if (!control) throw ObjectNotSet();
        return std::make_unique<Source>(clicks_, control.get(), std::move(click));
    }
    std::unique_ptr<Window> CreateToolWindow(const AddInInstance& instance, TextView progId, TextView caption,
                                             TextView guid, std::unique_ptr<PaneObject>& docObj) override {
        f_.host.Line("window " + ToUtf8(instance.progId) + " " + ToUtf8(progId) + " " + ToUtf8(caption) + " " +
                     ToUtf8(guid));
        auto created = std::make_unique<docAddIn>(f_.session, f_.ui.AsServices());
        created->UserDocument_Initialize();
        pane = created.get();
        docObj = std::move(created);
        return std::make_unique<Frame>(f_.host);
    }
    const VBComponent* SelectedVBComponent() override { return selected; }
    void WhenIdle(std::function<void()> action) override { idle.push_back(std::move(action)); }

    /// The user clicks the entry of that caption.
    void Click(TextView bar, TextView caption) {
        for (const auto& control : CommandBars(bar)->Controls()) {
            if (control->Caption() == caption && clicks_.count(control.get()) == 1) clicks_[control.get()]();
        }
    }
    void RunIdle() {
        for (const auto& action : std::exchange(idle, {})) action();
    }
    std::string Entries() {
        std::string text;
        for (auto& [name, bar] : bars) {
            text += ToUtf8(name) + ":";
            for (const auto& control : bar.Controls()) text += " " + ToUtf8(control->Caption());
            text += "; ";
        }
        return text;
    }

  private:
    using Clicks = std::map<const CommandBarControl*, std::function<void()>>;

    struct Source : zentlor::CommandBarEvents {
        Source(Clicks& clicks, const CommandBarControl* control, std::function<void()> click)
            : clicks_(clicks), control_(control) {
            clicks_[control] = std::move(click);
        }
        ~Source() override { clicks_.erase(control_); }
        Clicks& clicks_;
        const CommandBarControl* control_;
    };
    struct Frame : Window {
        explicit Frame(FakeHost& host) : host_(host) {}
        ~Frame() override { host_.Line("window closed"); }
        void SetVisible(bool visible) override { host_.Line(visible ? "window shown" : "window hidden"); }
        FakeHost& host_;
    };

    PaneFixture& f_;
    Clicks clicks_;
};

struct FakeRegistry : Registry {
    std::map<std::pair<Text, Text>, Text> values;

    std::optional<Text> ReadValue(TextView key, TextView name) override {
        const auto found = values.find({Text(key), Text(name)});
        return found == values.end() ? std::nullopt : std::optional(found->second);
    }
    void WriteValue(TextView key, TextView name, TextView value) override { values[{Text(key), Text(name)}] = value; }
    void DeleteKey(TextView key) override {
        std::erase_if(values, [&](const auto& value) { return value.first.first == key; });
    }
};

class Lifecycle : public testing::Test {
  protected:
    Lifecycle() { f.pane.reset(); }

    std::string TraceOf(const std::function<void()>& act) {
        f.TakeTrace();
        act();
        return f.TakeTrace();
    }

    PaneFixture f;
    FakeEditor editor{f};
    FakeRegistry registry;
    dsrZentlor addIn{f.session};
    AddInManager manager{registry, editor, addIn};
};

constexpr const char* kNoEntries = "Add-Ins:; Code Window:; Project Window:; ";
constexpr const char* kEntries = "Add-Ins: &Zentlor; Code Window: &Zentlor; Project Window: Mit &Zentlor analysieren; ";
constexpr TextView kAnalyse = u"Mit &Zentlor analysieren";

TEST_F(Lifecycle, ConnectsAndDisconnectsAnyNumberOfTimes) {
    for (int i = 0; i < 3; ++i) {
        const std::string loading = TraceOf([&] { manager.Load(); });
        EXPECT_TRUE(loading.starts_with(
            "window Zentlor.dsrZentlor Zentlor.docAddIn Zentlor {C67CE673-F07B-41e6-9D73-A2DC12E791CE}\n"))
            << loading;
        EXPECT_EQ(loading.find("window shown"), std::string::npos);
        EXPECT_EQ(editor.Entries(), kEntries);
        manager.Load();
        EXPECT_EQ(editor.Entries(), kEntries) << "loading what is loaded";
        EXPECT_EQ(TraceOf([&] { manager.Unload(); }), "window hidden\nwindow closed\n");
        EXPECT_EQ(editor.Entries(), kNoEntries);
        EXPECT_FALSE(manager.Loaded());
    }
    EXPECT_EQ(TraceOf([&] { manager.Unload(); }), "");
}

TEST_F(Lifecycle, EntriesCarryPictureAndSeparatorAndReplaceLeftovers) {
    FakeBar& bar = editor.bars[u"Add-Ins"];
    bar.Add(msoControlButton, true)->SetCaption(u"&Zentlor");
    bar.Add(msoControlButton, true)->SetCaption(u"&Anderes");
    bar.Add(msoControlButton, true)->SetCaption(u"&Zentlor");
    manager.Load();
    EXPECT_TRUE(editor.Entries().starts_with("Add-Ins: &Anderes &Zentlor; ")) << editor.Entries();
    EXPECT_EQ(bar.controls.back()->faceId, 3056);
    EXPECT_TRUE(bar.controls.back()->beginGroup);
}

TEST_F(Lifecycle, EntryCaptionIsMadeInTheLanguageOfTheConnection) {
    f.host.settings[Text(kSpracheKey)] = u"2";
    manager.Load();
    EXPECT_NE(editor.Entries().find("Analyze with &Zentlor"), std::string::npos);
    f.ui.selected = 1;
    editor.pane->icboSprache_Click();
    EXPECT_NE(editor.Entries().find("Analyze with &Zentlor"), std::string::npos) << "it does not follow a switch";
}

TEST_F(Lifecycle, MenuEntriesEmptyAndShowThePane) {
    manager.Load();
    for (const TextView bar : {u"Add-Ins", u"Code Window"}) {
        f.session.lvwErgebnis.Add({u"Modul1", u"Los", u"Hinweis", 1, CheckId::ModLeer});
        EXPECT_EQ(TraceOf([&] { editor.Click(bar, u"&Zentlor"); }),
                  "list on\nlabels off\nlist changed\nstatus off\nbar on\nbar 0\nwindow shown\n");
        EXPECT_EQ(f.session.lvwErgebnis.Count(), 0U);
    }
}

TEST_F(Lifecycle, ComponentRunFromTheProjectWindow) {
    manager.Load();
    f.AddModules(2);
    f.EnableOnly({CheckId::CmdVergessenerBefehlStop});
    editor.selected = f.host.project->VBComponents().back().get();
    const std::string run = TraceOf([&] { editor.Click(u"Project Window", kAnalyse); });
    EXPECT_LT(run.find("window shown"), run.find("object Modul2")) << run;
    EXPECT_NE(run.find("panel 1: 1 Hinweise in 1 Objekten."), std::string::npos) << run;

    f.host.compileCommandEnabled = true;
    const std::string refused = TraceOf([&] { editor.Click(u"Project Window", kAnalyse); });
    EXPECT_NE(refused.find("box exclamation [Analyse nicht möglich]"), std::string::npos);
    EXPECT_EQ(refused.find("window shown"), std::string::npos);
    EXPECT_EQ(f.session.lvwErgebnis.Count(), 1U) << "the gate leaves the list as it is";

    f.host.compileCommandEnabled = false;
    editor.selected = nullptr;
    const std::string nothing = TraceOf([&] { editor.Click(u"Project Window", kAnalyse); });
    EXPECT_NE(nothing.find("Fehler-Nr.: 91"), std::string::npos) << "the project's own node: " << nothing;
}

TEST_F(Lifecycle, MissingCommandBarEndsTheConnectionThere) {
    editor.bars.erase(u"Code Window");
    const std::string trace = TraceOf([&] { manager.Load(); });
    EXPECT_NE(trace.find("Prozedur: AddinInstance_OnConnection"), std::string::npos) << trace;
    EXPECT_EQ(trace.find("window Zentlor"), std::string::npos) << "no pane";
    const std::string click = TraceOf([&] { editor.Click(u"Add-Ins", u"&Zentlor"); });
    EXPECT_NE(click.find("Prozedur: ShowAddIn|Fehler-Nr.: 91"), std::string::npos) << click;
    const std::string unload = TraceOf([&] { manager.Unload(); });
    EXPECT_NE(unload.find("Prozedur: AddinInstance_OnDisconnection"), std::string::npos) << unload;
    editor.bars[u"Code Window"];
    manager.Load();
    EXPECT_EQ(editor.Entries(), kEntries) << "the next connection finds all in order";
}

TEST_F(Lifecycle, DisconnectionDuringARunWaitsForItsEnd) {
    manager.Load();
    f.AddModules(3);
    f.EnableOnly({CheckId::CmdVergessenerBefehlStop, CheckId::CmdVergessenerBefehlDebugPrint});
    f.host.onDoEvents = [&](int yield) {
        if (yield > 2) return;
        manager.Unload();
        EXPECT_TRUE(manager.Loaded());
        EXPECT_EQ(editor.idle.size(), 1U) << "asking again does not wait twice";
    };
    editor.pane->symToolbar_ButtonClick(u"Refresh");
    EXPECT_EQ(f.host.yields, 3) << "stopped: of each module the first check only";
    EXPECT_EQ(editor.Entries(), kEntries);
    editor.RunIdle();
    EXPECT_EQ(editor.Entries(), kNoEntries);
    EXPECT_EQ(f.session.lvwErgebnis.Count(), 0U);
}

TEST_F(Lifecycle, LoadingAgainTakesAWaitingDisconnectionBack) {
    manager.Load();
    f.AddModules(1);
    f.EnableOnly({CheckId::CmdVergessenerBefehlStop});
    editor.selected = f.host.project->VBComponents().front().get();
    f.host.onDoEvents = [&](int) {
        manager.Unload();
        manager.Load();
    };
    editor.Click(u"Project Window", kAnalyse);
    editor.RunIdle();
    EXPECT_TRUE(manager.Loaded());
    EXPECT_EQ(editor.Entries(), kEntries);
}

TEST_F(Lifecycle, ManagerGoesByTheStoredLoadBehaviour) {
    manager.Start();
    EXPECT_FALSE(manager.Loaded()) << "not registered";
    manager.Register();
    const Text key = u"HKEY_CURRENT_USER\\Software\\Microsoft\\VBA\\VBE\\6.0\\Addins\\Zentlor.dsrZentlor";
    EXPECT_EQ(registry.ReadValue(key, u"FriendlyName"), Text(u"Zentlor"));
    EXPECT_EQ(registry.ReadValue(key, u"LoadBehavior"), Text(u"1"));
    manager.Start();
    EXPECT_TRUE(manager.Loaded());
    manager.Unload();
    manager.SetLoadsAtStart(false);
    manager.Register();
    manager.Start();
    EXPECT_FALSE(manager.Loaded()) << "the user's choice outlives a registration";
    manager.Unregister();
    EXPECT_TRUE(registry.values.empty());
}

}  // namespace
}  // namespace zentlor::test
