// The link of the about box: its looks under the mouse, and what a click opens.

#include <gtest/gtest.h>

#include "core/utilities/about_box.h"
#include "support/fake_ui.h"

namespace zentlor::test {
namespace {

class FakeLink : public LinkBox, public AboutView {
  public:
    Text text, target, version, description;
    std::string setup;
    int foreColor = -1;
    bool underline = false, captured = false, hasCursor = true;
    int pointer = 0;
    std::function<void()> onEnabled;

    void SetText(TextView value) override { text = value; }
    void SetLocked(bool locked) override { setup += locked ? "locked " : "open "; }
    Text Tag() const override { return target; }
    void SetTag(TextView value) override { target = value; }
    void SetTabStop(bool tabStop) override { setup += tabStop ? "tab " : "no-tab "; }
    void SetBorder(bool border) override { setup += border ? "border " : "no-border "; }
    void SetBackColor(int colour) override { setup += "back " + std::to_string(colour); }
    void SetForeColor(int colour) override { foreColor = colour; }
    void SetUnderline(bool value) override { underline = value; }
    bool SetMouseIcon(int) override { return hasCursor; }
    void SetMousePointer(int mode) override { pointer = mode; }
    void SetEnabled(bool enabled) override {
        if (enabled && onEnabled) onEnabled();
    }
    float Width() const override { return 100; }
    float Height() const override { return 20; }
    void SetCapture() override { captured = true; }
    void ReleaseCapture() override { captured = false; }

    void SetVersion(TextView value) override { version = value; }
    void SetBeschreibung(TextView value) override { description = value; }
    LinkBox& txtHyperlink() override { return *this; }
    int BackColor() const override { return 42; }
    void Unload() override { setup += "unload"; }
};

TEST(Hyperlink, HoverHoldsTheMouseUntilItLeaves) {
    struct Row {
        const char* why;
        float x, y;
        bool inside;
    };
    const Row rows[] = {
        {"in the middle", 50, 10, true},    {"the first edge", 0, 0, true},
        {"the last edge", 100, 20, true},   {"right of it", 101, 20, false},
        {"above it", 50, -1, false},        {"below it", 50, 21, false},
        {"back at the edge", 100, 0, true}, {"left of it, by a part", -0.5F, 5, false},
    };
    FakeLink link;
    for (const Row& row : rows) {
        HyperlinkMouseMove(link, row.x, row.y);
        EXPECT_EQ(link.captured, row.inside) << row.why;
        EXPECT_EQ(link.underline, row.inside) << row.why;
        EXPECT_EQ(link.foreColor, row.inside ? 255 : 0xFF0000) << row.why;
    }
    HyperlinkMouseMove(link, 1, 1, 7, 8);
    EXPECT_EQ(link.foreColor, 8);
    HyperlinkMouseMove(link, -1, 1, 7, 8);
    EXPECT_EQ(link.foreColor, 7);
}

TEST(Hyperlink, ClickOpensTheTargetByItsBeginning) {
    struct Row {
        const char* why;
        TextView target;
        int shellResult;
        const char* trace;
    };
    const Row rows[] = {
        {"www gets its scheme", u"www.example.org", 33, "shell [Open] http://www.example.org [] [] 3\n"},
        {"an address", u"http://example.org", 33, "shell [Open] http://example.org [] [] 3\n"},
        {"a secure address", u"https://example.org/zentlor", 33, "shell [Open] https://example.org/zentlor [] [] 3\n"},
        {"a failure is not told", u"http://example.org", 2, "shell [Open] http://example.org [] [] 3\n"},
        {"a mail shows in normal size", u"mailto:a@example.org", 33, "shell [Open] mailto:a@example.org [] [] 1\n"},
        {"a file", u"App:readme.txt", 33, "shell [open] readme.txt [] [] 1\n"},
        {"a missing file", u"App:readme.txt", 2, "shell [open] readme.txt [] [] 1\n"},
        {"a file without an application", u"App:readme.xyz", 31,
         "shell [open] readme.xyz [] [] 1\n"
         "shell [] RUNDLL32.EXE [shell32.dll,OpenAs_RunDLL readme.xyz] [C:\\System] 1\n"},
        {"capitals count", u"WWW.example.org", 33, ""},
        {"anything else", u"file:///etc/passwd", 33, ""},
        {"nothing", u"", 33, ""},
    };
    for (const Row& row : rows) {
        PaneFixture f;
        f.ui.shellResult = row.shellResult;
        FakeLink link;
        link.target = row.target;
        HyperlinkMouseMove(link, 1, 1);
        HyperlinkClick(link, f.ui);
        EXPECT_EQ(f.host.trace, row.trace) << row.why;
        EXPECT_FALSE(link.captured || link.underline) << row.why << ": the normal look after a click";
    }
}

TEST(AboutBox, ShowsTheAddressOfTheLanguage) {
    for (const int sprache : {1, 2}) {
        PaneFixture f;
        f.session.udtOptionen.AllgSprache = sprache;
        FakeLink view;
        view.hasCursor = sprache == 1;
        frm_About about(f.session, view, f.ui);
        about.Form_Load();
        EXPECT_EQ(view.text, f.session.GetResourceString(238));
        EXPECT_EQ(view.text.ends_with(u"/en"), sprache == 2);
        EXPECT_EQ(view.target, view.text);
        EXPECT_EQ(view.setup, "locked no-tab no-border back 42");
        EXPECT_EQ(view.foreColor, 0xFF0000);
        EXPECT_EQ(view.pointer, view.hasCursor ? 99 : 0) << "without the cursor the pointer stays";
        EXPECT_EQ(view.description, f.session.GetResourceString(117));
        EXPECT_TRUE(view.version.starts_with(u"Version ")) << ToUtf8(view.version);
        EXPECT_EQ(std::count(view.version.begin(), view.version.end(), u'.'), 2) << ToUtf8(view.version);
        about.txtHyperlink_Click();
        EXPECT_EQ(f.host.trace, "shell [Open] " + ToUtf8(view.text) + " [] [] 3\n");
    }
    EXPECT_TRUE(CopyrightLine().starts_with(u"Copyright © "));
}

TEST(AboutBox, ReportsWhatALinkLetsPass) {
    PaneFixture f;
    FakeLink view;
    view.onEnabled = [] { throw ObjectNotSet(); };
    frm_About(f.session, view, f.ui).txtHyperlink_Click();
    EXPECT_NE(f.host.trace.find("Modul: frm_About|Prozedur: txtHyperlink_Click|"), std::string::npos) << f.host.trace;
}

}  // namespace
}  // namespace zentlor::test
