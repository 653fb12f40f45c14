// The options dialog: boxes, buttons, and how record and store follow them.

#include <gtest/gtest.h>

#include "core/options/options_dialog.h"
#include "support/fake_ui.h"

namespace zentlor::test {
namespace {

class FakeOptions : public OptionsView, public XmlLibrary {
  public:
    std::array<bool, kCheckCount> boxes{};
    std::map<CheckId, Text> captions;
    std::map<OptionsControl, Text> texts;
    std::vector<Text> tabs;
    Text title;
    bool apply = true;
    bool closed = false;
    /// What a toolkit does that tells of each change of a box, the program's included.
    std::function<void(CheckId, bool)> onBox;

    void CentreOnScreen() override {}
    void SetTitle(TextView text) override { title = text; }
    void SetTabCaption(CheckGroup, TextView text) override { tabs.emplace_back(text); }
    void SetAlleCaptions(CheckGroup, TextView, TextView) override {}
    void SetText(OptionsControl control, TextView text) override { texts[control] = text; }
    void SetBoxCaption(CheckId id, TextView text) override { captions[id] = text; }
    void SetBox(CheckId id, bool ticked) override {
        boxes[IndexOf(id)] = ticked;
        if (onBox) onBox(id, ticked);
    }
    void EnableÜbernehmen(bool enabled) override { apply = enabled; }
    void Unload() override { closed = true; }

    bool FileExists(TextView) override { return false; }
    std::unique_ptr<XmlDocument> CreateDocument() override { return nullptr; }
};

struct OptionsFixture : PaneFixture {
    FakeOptions view;
    frm_Optionen form{session, view, view, u"/nowhere"};

    OptionsFixture() {
        OptionenLesen(host, session, session.udtOptionen);
        view.onBox = [this](CheckId id, bool ticked) { form.chkOptionen_Click(id, ticked); };
    }
    /// The user clicks a box.
    void Tick(CheckId id, bool ticked) { view.SetBox(id, ticked); }
    std::string Stored(CheckId id) { return ToUtf8(host.settings[Text(InfoOf(id).key)]); }
    long Ticked() const { return std::count(view.boxes.begin(), view.boxes.end(), true); }
};

TEST(OptionsDialog, OpensWithTheRecordAndNothingToApply) {
    for (const int sprache : {1, 2}) {
        OptionsFixture f;
        f.session.udtOptionen.AllgSprache = sprache;
        f.session.udtOptionen[CheckId::ProcLeer] = false;
        f.form.Form_Load();
        EXPECT_EQ(f.Ticked(), 44);
        EXPECT_FALSE(f.view.boxes[IndexOf(CheckId::ProcLeer)]);
        EXPECT_FALSE(f.view.apply) << "filling the boxes is no change of the user's";
        EXPECT_EQ(f.view.captions.size(), 45U);
        EXPECT_EQ(f.view.tabs.size(), 3U);
        EXPECT_EQ(f.view.texts.size(), 5U);
        EXPECT_EQ(f.view.title, f.session.GetResourceString(118));
        for (const auto& [id, caption] : f.view.captions) {
            EXPECT_FALSE(caption.empty() || caption == u"???") << ToUtf8(InfoOf(id).key);
        }
        EXPECT_EQ(f.host.trace, "") << "no explanations file is no failure";
    }
}

TEST(OptionsDialog, AppliesWhatRealChangesLeave) {
    OptionsFixture f;
    f.form.Form_Load();
    f.form.cmdAlleAn_Click(CheckGroup::Procedures);
    EXPECT_FALSE(f.view.apply) << "all were on: no box has changed";
    f.form.cmdAlleAus_Click(CheckGroup::Procedures);
    EXPECT_TRUE(f.view.apply);
    EXPECT_EQ(f.Ticked(), 45 - CountOf(CheckGroup::Procedures)) << "the boxes of one tab only";
    EXPECT_EQ(f.Stored(CheckId::ProcLeer), "1") << "nothing is stored yet";

    f.form.cmdÜbernehmen_Click();
    EXPECT_FALSE(f.view.apply);
    EXPECT_FALSE(f.view.closed);
    EXPECT_EQ(f.Stored(CheckId::ProcLeer), "0");
    EXPECT_FALSE(f.session.udtOptionen[CheckId::ProcLeer]);

    f.Tick(CheckId::ModLeer, false);
    EXPECT_TRUE(f.view.apply);
    f.form.cmdAbbrechen_Click();
    EXPECT_TRUE(f.view.closed);
    EXPECT_EQ(f.Stored(CheckId::ModLeer), "1");
    EXPECT_FALSE(f.session.udtOptionen[CheckId::ProcLeer]) << "what was applied stays";
}

TEST(OptionsDialog, OkSavesAlways) {
    OptionsFixture f;
    f.host.settings[Text(InfoOf(CheckId::ModLeer).key)] = u"2";
    f.host.settings[Text(kSpracheKey)] = u"2";
    OptionenLesen(f.host, f.session, f.session.udtOptionen);
    f.form.Form_Load();
    const auto sprache = f.host.settings.extract(Text(kSpracheKey)).mapped();
    f.host.settings.erase(Text(InfoOf(CheckId::CmdIIfWirdVerwendet).key));
    f.form.OptionenSpeichern();
    EXPECT_EQ(f.host.settings.size(), 45U) << "every flag is written, the language is not touched";
    f.host.settings[Text(kSpracheKey)] = sprache;
    f.form.cmdOK_Click();
    EXPECT_TRUE(f.view.closed);
    EXPECT_EQ(f.Stored(CheckId::ModLeer), "1") << "2 was shown as ticked";
    EXPECT_EQ(f.host.settings[Text(kSpracheKey)], u"2");
}

TEST(OptionsDialog, ExplanationFollowsFocusAndMouse) {
    OptionsFixture f;
    f.form.Form_Load();
    for (const auto show : {&frm_Optionen::chkOptionen_GotFocus, &frm_Optionen::chkOptionen_MouseMove}) {
        f.view.texts[OptionsControl::txtErläuterungen] = u"";
        (f.form.*show)(CheckId::ProcLeer);
        EXPECT_EQ(f.view.texts[OptionsControl::txtErläuterungen], f.session.GetResourceString(125)) << "without a file";
    }
    EXPECT_EQ(PathOfBox(CheckId::ProcParameterNichtGenutzt), u"Prozeduren/Proc4");
    EXPECT_EQ(PathOfBox(CheckId::ModGlobalWirdVerwendet), u"Module/Mod17");
    EXPECT_EQ(PathOfBox(CheckId::CmdVergessenerBefehlStop), u"Befehle/Cmd1");
}

TEST(OptionsDialog, FailureNamesTheHandler) {
    OptionsFixture f;
    f.form.Form_Load();
    f.view.onBox = [](CheckId, bool) { throw ObjectNotSet(); };
    f.form.cmdAlleAus_Click(CheckGroup::Commands);
    EXPECT_NE(f.host.trace.find("Modul: frm_Optionen|Prozedur: cmdBefehleAlleAus_Click|"), std::string::npos)
        << f.host.trace;
}

}  // namespace
}  // namespace zentlor::test
