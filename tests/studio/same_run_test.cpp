// One run, twice: once by the driver over a pane that writes down what it is told, and once in the studio, where what
// is to be seen is read off its controls. At every moment at which a user could look, the two show the same. The
// command line in its turn gives the hints and errors of the studio.

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProgressBar>
#include <sstream>

#include "studio_fixture.h"
#include "support/fake_ui.h"
#include "support/run_program.h"
#include "workspace/workspace.h"

namespace zentlor::studio {

namespace {

// What a pane shows, its hidden texts included.
struct Screen {
    bool list = true;
    std::size_t rows = 0;
    bool labels = false;
    std::string object = "???";
    std::string check = "???";
    bool bar = true;
    int value = 0;
    int maximum = 100;
    bool status = false;
    std::string hints;
    std::string duration;
    bool stop = false;
    bool language = true;

    std::string Line() const {
        std::string time = duration;  // how long it took is not the same twice
        std::replace_if(
            time.begin(), time.end(), [](unsigned char c) { return std::isdigit(c) != 0; }, '0');
        std::ostringstream line;
        line << (list ? "list of " + std::to_string(rows) : "no list") << (labels ? ", labels " : ", no labels ")
             << object << " / " << check << (bar ? ", bar " : ", no bar ") << value << " of " << maximum
             << (status ? ", status " : ", no status ") << hints << " | " << time << (stop ? ", stop" : "")
             << (language ? ", language" : "");
        return line.str();
    }
};

// A user before one of the two panes, who writes down what is to be seen at every yield point and at the end.
class Side {
  public:
    virtual ~Side() = default;
    virtual void Click(TextView key) = 0;
    virtual void CheckComponent(TextView name) = 0;
    virtual void PickEnglish() = 0;

    /// Done at yield point `when`.
    std::function<void(Side&)> act;
    int when = 0;
    std::vector<std::string> seen;

    void Look() { seen.push_back(Now().Line()); }

  protected:
    virtual Screen Now() = 0;
    void Yield() {
        if (++yields_ == when) act(*this);
        Look();
    }
    void WriteBox(const std::string& text) { seen.push_back("box " + text); }

  private:
    int yields_ = 0;
};

class DriverSide : public Side {
  public:
    explicit DriverSide(const std::string& path) : opened_(workspace::Open({path}, {})) {
        workspace::OpenedProject& project = opened_.projects.front();
        f_.host.compileCommandEnabled = !project.errors.empty();
        f_.host.project = std::move(project.project);
        f_.host.onDoEvents = [this](int) { Yield(); };
        f_.pane->UserDocument_Initialize();
    }
    void Click(TextView key) override { f_.pane->symToolbar_ButtonClick(key); }
    // What the entry of the context menu does.
    void CheckComponent(TextView name) override {
        if (!f_.pane->IstCodeKompiliert()) return;
        f_.pane->OberflächeZurücksetzen();
        f_.pane->EinModulPrüfen(&f_.host.project->Item(name));
    }
    void PickEnglish() override {
        f_.ui.selected = 2;
        f_.pane->icboSprache_Click();
    }
    const ResultList& Hints() const { return f_.session.lvwErgebnis; }
    const std::map<std::string, Text>& Captions() const { return f_.ui.words; }

  protected:
    Screen Now() override {
        std::istringstream lines(f_.TakeTrace());
        for (std::string line; std::getline(lines, line);) Take(line);
        if (screen_.list) screen_.rows = Hints().Count();
        Screen shown = screen_;
        if (!shown.list) shown.rows = 0;
        return shown;
    }

  private:
    void Take(const std::string& line) {
        const auto is = [&](std::string_view kind) { return line.starts_with(kind); };
        const auto rest = [&](std::string_view kind) { return line.substr(kind.size()); };
        const bool on = line.ends_with(" on");
        if (line == "list on" || line == "list off") screen_.list = on;
        if (is("labels ")) screen_.labels = on;
        if (is("object ")) screen_.object = rest("object ");
        if (is("test ")) screen_.check = rest("test ");
        if (line == "bar on" || line == "bar off") {
            screen_.bar = on;
        } else if (is("bar max ")) {
            screen_.maximum = std::stoi(rest("bar max "));
        } else if (is("bar ")) {
            screen_.value = std::stoi(rest("bar "));
        }
        if (is("status ")) screen_.status = on;
        if (is("panel 1: ")) screen_.hints = rest("panel 1: ");
        if (is("panel 2: ")) screen_.duration = rest("panel 2: ");
        if (is("stop ")) screen_.stop = on;
        if (is("language ")) screen_.language = on;
        if (is("box ")) WriteBox(line.substr(line.find("] ") + 2));
    }

    workspace::Workspace opened_;
    test::PaneFixture f_;
    Screen screen_;
};

class SameRun : public StudioTest {
  protected:
    class StudioSide : public Side {
      public:
        explicit StudioSide(SameRun& test) : test_(test) {
            test_.studio_->Events().afterEvents = [this] { Yield(); };
        }
        void Click(TextView key) override { test_.Click(key == u"Stop" ? kStop : kRefresh); }
        void CheckComponent(TextView name) override {
            test_.Window().SelectComponent(test_.studio_->Projects().Active()->project->Item(name));
            test_.Entries().projectWindow->actions().back()->trigger();
        }
        void PickEnglish() override { test_.PickLanguage(2); }

      protected:
        Screen Now() override {
            for (; boxes_ < test_.boxes.size(); ++boxes_) {
                WriteBox(QString(test_.boxes[boxes_]).replace(u'\n', u'|').toStdString());
            }
            PaneWidget& pane = test_.Pane();
            const auto& bar = *pane.findChild<QProgressBar*>();
            const auto text = [&](const char* name) { return Label(name).text().toStdString(); };
            Screen screen;
            screen.list = pane.List().isVisibleTo(&pane);
            screen.rows = screen.list ? static_cast<std::size_t>(pane.List().model()->rowCount()) : 0;
            screen.labels = Label("lblTest").isVisibleTo(&pane);
            for (const char* name : {"lblUntersuchtesObjekt", "lblObjekt", "lblAktuellerTest"}) {
                EXPECT_EQ(Label(name).isVisibleTo(&pane), screen.labels) << name;
            }
            screen.object = text("lblObjekt");
            screen.check = text("lblTest");
            screen.bar = bar.isVisibleTo(&pane);
            screen.value = bar.value();
            screen.maximum = bar.maximum();
            screen.status = Label("panel1").isVisibleTo(&pane);
            screen.hints = text("panel1");
            screen.duration = text("panel2");
            screen.stop = pane.Button(kStop)->isEnabled();
            screen.language = dynamic_cast<QtLanguageBox&>(pane.Sprache()).isEnabled();
            return screen;
        }

      private:
        const QLabel& Label(const char* name) { return *test_.Pane().findChild<QLabel*>(QString::fromLatin1(name)); }

        SameRun& test_;
        qsizetype boxes_ = 0;
    };

    // What `zentlor ARGUMENTS --format jsonl` prints, an object a line.
    static std::vector<QJsonObject> Print(const std::string& arguments) {
        const test::ProgramResult result = test::RunProgram(ZENTLOR_PROGRAM " " + arguments + " --format jsonl");
        std::vector<QJsonObject> objects;
        std::istringstream lines(result.out);
        for (std::string line; std::getline(lines, line);) {
            objects.push_back(QJsonDocument::fromJson(QByteArray::fromStdString(line)).object());
        }
        return objects;
    }

    void ExpectTheSameHints(const ResultList& expected) {
        const QAbstractItemModel& model = *Pane().List().model();
        ASSERT_EQ(model.rowCount(), expected.Count());
        for (int row = 0; row < model.rowCount(); ++row) {
            const Hint& hint = expected.Row(static_cast<std::size_t>(row));
            for (int column = 0; column <= kVisibleColumns; ++column) {
                EXPECT_EQ(model.index(row, column).data().toString(), ToQString(CellText(hint, column + 1))) << row;
            }
        }
    }

    void ExpectTheSameCaptions(const std::map<std::string, Text>& expected) {
        for (const int button : {1, 2, 4, 6, 8, 9}) {
            const std::string number = std::to_string(button);
            EXPECT_EQ(FromQString(Pane().Button(button)->text()), expected.at("caption " + number));
            EXPECT_EQ(FromQString(Pane().Button(button)->toolTip()), expected.at("tip " + number));
        }
    }
};

struct Row {
    const char* why;
    const char* path;
    void (*start)(Side&);
    int when = 0;
    void (*act)(Side&) = nullptr;
};

void Refresh(Side& side) {
    side.Click(u"Refresh");
}
void Stop(Side& side) {
    side.Click(u"Stop");
}

}  // namespace

TEST_F(SameRun, ThePaneShowsWhatTheDriverTells) {
    const Row rows[] = {
        {"the whole project", "kunden", Refresh},
        {"stopped behind the editor's setting", "kunden", Refresh, 1, Stop},
        {"stopped in the middle", "kunden", Refresh, 100, Stop},
        {"started again in the middle", "kunden", Refresh, 50, Refresh},
        {"one component, which carries the marker", "kunden", [](Side& s) { s.CheckComponent(u"mdl_Pruefziffern"); }},
        {"one component, stopped", "kunden", [](Side& s) { s.CheckComponent(u"clsKunde"); }, 7, Stop},
        {"one component, with the language changed", "kunden", [](Side& s) { s.CheckComponent(u"clsKunde"); }, 9,
         [](Side& s) { s.PickEnglish(); }},
        {"refused by the gate", "fehlerhaft", Refresh},
        {"in English", "kunden-verstellt",
         [](Side& s) {
             s.PickEnglish();
             s.Look();
             Refresh(s);
         }},
        {"a run behind a stopped one", "kunden",
         [](Side& s) {
             Refresh(s);
             s.Look();
             Refresh(s);
         },
         1, Stop},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.why);
        const std::string path = std::string(ZENTLOR_SOURCE_DIR "/examples/") + row.path;
        Restart();
        PickLanguage(1);
        boxes.clear();
        ASSERT_TRUE(Open(QString::fromStdString(path)));
        DriverSide driver(path);
        StudioSide studio(*this);
        for (Side* side : {static_cast<Side*>(&driver), static_cast<Side*>(&studio)}) {
            side->Look();
            side->act = row.act;
            side->when = row.when;
            row.start(*side);
            side->Look();
        }
        studio_->Events().afterEvents = nullptr;
        ASSERT_EQ(studio.seen.size(), driver.seen.size());
        for (std::size_t i = 0; i < driver.seen.size(); ++i)
            ASSERT_EQ(studio.seen[i], driver.seen[i]) << "moment " << i;
        ExpectTheSameHints(driver.Hints());
        ExpectTheSameCaptions(driver.Captions());
    }
}

// The program prints hints in the order of their finding, the studio's list holds them so.
TEST_F(SameRun, TheCommandLineGivesTheSameHintsInTheSameOrder) {
    for (const char* example : {"kunden", "kunden-verstellt"}) {
        const std::string path = std::string(ZENTLOR_SOURCE_DIR "/examples/") + example;
        ASSERT_TRUE(Open(QString::fromStdString(path)));
        for (const int language : {1, 2}) {
            PickLanguage(language);
            Click(kRefresh);
            const std::vector<QJsonObject> printed =
                Print("check --isolated --language " + std::string(language == 1 ? "de " : "en ") + path);
            ASSERT_EQ(Hints().Count(), printed.size()) << example;
            for (std::size_t i = 0; i < printed.size(); ++i) {
                const Hint& hint = Hints().Emitted()[i];
                const QJsonObject shown{{"check", ToQString(InfoOf(hint.check).key)},
                                        {"module", ToQString(hint.strNameVBC)},
                                        {"procedure", ToQString(hint.strProzedur)},
                                        {"hint", ToQString(hint.strHinweis)},
                                        {"line", hint.lngZeile},
                                        {"path", printed[i].value("path")},
                                        {"fileLine", printed[i].value("fileLine")}};
                ASSERT_EQ(shown, printed[i]) << example << ", hint " << i;
            }
        }
    }
}

TEST_F(SameRun, TheCommandLineGivesTheSameErrorsInTheSameOrder) {
    const std::string path = ZENTLOR_SOURCE_DIR "/examples/fehlerhaft";
    ASSERT_TRUE(Open(QString::fromStdString(path)));
    Entries().compile->trigger();
    const QAbstractItemModel& errors = *Window().Errors().model();
    const std::vector<QJsonObject> printed = Print("compile " + path);
    ASSERT_EQ(errors.rowCount(), printed.size());
    ASSERT_GE(printed.size(), 117U);
    for (int row = 0; row < errors.rowCount(); ++row) {
        const auto cell = [&](int column) { return QJsonValue::fromVariant(errors.index(row, column).data()); };
        const QJsonObject& line = printed[static_cast<std::size_t>(row)];
        const QJsonArray shown{cell(0), cell(1), cell(2), cell(3)};
        ASSERT_EQ(shown, QJsonArray({line["module"], line["line"], line["column"], line["error"]})) << row;
    }
}

}  // namespace zentlor::studio
