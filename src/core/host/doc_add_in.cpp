// What the pane does at a click: the toolbar's commands, the language box, and the members that the menu entries call.
// A click can arrive in the middle of a run; what a second run would destroy is refused here.

#include "core/host/doc_add_in.h"

#include <array>
#include <utility>

#include "core/analysis/compile_gate.h"
#include "core/analysis/run_driver.h"
#include "core/language/messages.h"
#include "core/results/export.h"
#include "core/results/jump.h"
#include "core/utilities/paths.h"
#include "core/utilities/shell.h"

namespace zentlor {

namespace {

constexpr TextView kModule = u"docAddIn";

struct Language {
    TextView text;
    TextView imageKey;
};

// The position of an item, counted from 1, is the language index.
constexpr std::array kLanguages = {Language{u"Deutsch", u"Deutsch"}, Language{u"English", u"English"}};

constexpr TextView kEnglishNotice = u"There may be some translation bugs. Please let me know if you find one. Thanks!";
constexpr TextView kNoSuchLanguage = u"Nicht verfügbar!";

// Words of our own: neither a second start nor a start with nothing to check has a message in the catalogue.
constexpr TextView kOwnTitle = u"Zentlor";
constexpr TextView kRunningGerman =
    u"Es läuft bereits eine Prüfung.\r\n\r\nWarten Sie ihr Ende ab, oder klicken Sie auf \"Stop\".";
constexpr TextView kRunningEnglish = u"A run is under way already.\r\n\r\nWait until it has ended, or click \"Stop\".";

constexpr TextView kNothingOpenGerman =
    u"Es ist kein Projekt geöffnet.\r\n\r\nÖffnen Sie zuerst einen Ordner oder eine Datei mit VBA-Code.";
constexpr TextView kNothingOpenEnglish =
    u"No project is open.\r\n\r\nPlease open a folder or a file with VBA code first.";

struct ButtonWords {
    int button;
    int caption;
    int toolTip;
};

constexpr std::array kButtons = {ButtonWords{1, 101, 102}, ButtonWords{2, 103, 104}, ButtonWords{4, 105, 106},
                                 ButtonWords{6, 107, 108}, ButtonWords{8, 109, 110}, ButtonWords{9, 111, 112}};
constexpr int kModulHeader = 113;

}  // namespace

// Holds the mark that an operation of the pane is on the stack.
class docAddIn::Call {
  public:
    explicit Call(docAddIn& pane) : pane_(pane) { ++pane_.calls_; }
    ~Call() { --pane_.calls_; }
    Call(const Call&) = delete;
    Call& operator=(const Call&) = delete;

  private:
    docAddIn& pane_;
};

docAddIn::docAddIn(Session& session, PaneServices services) : session_(session), services_(std::move(services)) {}

docAddIn::~docAddIn() {
    session_.lvwErgebnis = ResultList();
    session_.blnAbbruch = false;
}

void docAddIn::UserDocument_Initialize() {
    const Call call(*this);
    Frame(session_, {kModule, u"UserDocument_Initialize"}, [&] {
        OptionenLesen(session_.host().settings, session_, session_.udtOptionen);
        if (services_.icboSprache.CountItems() == 0) FillSprache();
        zentlor::OberflächeZurücksetzen(session_);
        SpracheAnpassen();
    });
}

// A stored language without an item shows as German, which is what the catalogue then speaks.
void docAddIn::FillSprache() {
    filling_ = true;
    int position = 0;
    for (const Language& language : kLanguages) {
        services_.icboSprache.AddItem(++position, language.text, language.imageKey);
    }
    const int stored = session_.udtOptionen.AllgSprache;
    services_.icboSprache.Select(stored >= 1 && stored <= position ? stored : kDeutsch);
    filling_ = false;
}

void docAddIn::symToolbar_ButtonClick(TextView key) {
    const Call call(*this);
    Frame(session_, {kModule, u"symToolbar_ButtonClick"}, [&] { Execute(key); });
}

void docAddIn::Execute(TextView key) {
    if (key == u"Refresh") {
        if (!RefusedWhileRunning() && !RefusedWithoutProject()) AlleModulePrüfen(session_);
    } else if (key == u"Stop") {
        StopClicked(session_);
    } else if (key == u"Export") {
        ExportErgebnisse();
    } else if (key == u"Optionen") {
        services_.dialogs.ShowOptionen();
    } else if (key == u"Info") {
        services_.dialogs.ShowAbout();
    } else if (key == u"Hilfe") {
        HilfeAnzeigen(session_, services_.shell, PathIn(services_.folder, kHelpFile), 0);
    } else {
        session_.host().boxes.Show(u"Auswahl nicht möglich!", BoxIcon::Critical, u"symToolbar");
    }
}

void docAddIn::icboSprache_Click() {
    if (filling_) return;
    const Call call(*this);
    Frame(session_, {kModule, u"icboSprache_Click"}, [&] {
        const Text text = services_.icboSprache.SelectedText();
        MessageBoxes& boxes = session_.host().boxes;
        if (text == u"English") {
            boxes.Show(kEnglishNotice, BoxIcon::None);
        } else if (text != u"Deutsch") {
            boxes.Show(kNoSuchLanguage, BoxIcon::None);
        }
        session_.udtOptionen.AllgSprache = services_.icboSprache.SelectedPosition();
        OptionSpeichern(session_.host().settings, kSpracheKey, ToText(session_.udtOptionen.AllgSprache));
        zentlor::OberflächeZurücksetzen(session_);
        SpracheAnpassen();
    });
}

void docAddIn::SpracheAnpassen() {
    Frame(session_, {kModule, u"SpracheAnpassen"}, [&] {
        PaneTexts& texts = services_.texts;
        for (const ButtonWords& words : kButtons) {
            texts.SetButtonCaption(words.button, session_.GetResourceString(words.caption));
            texts.SetButtonToolTip(words.button, session_.GetResourceString(words.toolTip));
        }
        for (int column = 1; column <= kVisibleColumns; ++column) {
            texts.SetColumnHeader(column, session_.GetResourceString(kModulHeader + column - 1));
        }
        texts.SetUntersuchtesObjekt(session_.GetResourceString(247));
        texts.SetAktuellerTest(session_.GetResourceString(249));
        texts.SetPanelToolTip(1, session_.GetResourceString(219));
        texts.SetPanelToolTip(2, session_.GetResourceString(220));
    });
}

void docAddIn::lvwErgebnis_ColumnClick(int column) {
    const Call call(*this);
    Frame(session_, {kModule, u"lvwErgebnis_ColumnClick"}, [&] {
        session_.lvwErgebnis.lvwErgebnis_ColumnClick(column);
        session_.host().pane.ListChanged();
    });
}

void docAddIn::lvwErgebnis_DblClick(std::size_t row) {
    const Call call(*this);
    zentlor::lvwErgebnis_DblClick(session_, row);
}

void docAddIn::ExportErgebnisse() {
    const Call call(*this);
    zentlor::ExportErgebnisse(session_, services_.fileDialogs, services_.files);
}

bool docAddIn::RefusedWhileRunning() {
    if (!session_.running) return false;
    const bool english = session_.udtOptionen.AllgSprache == kEnglish;
    session_.host().boxes.Show(english ? kRunningEnglish : kRunningGerman, BoxIcon::Exclamation, kOwnTitle);
    return true;
}

bool docAddIn::RefusedWithoutProject() {
    if (session_.host().editor.ActiveVBProject() != nullptr) return false;
    const bool english = session_.udtOptionen.AllgSprache == kEnglish;
    session_.host().boxes.Show(english ? kNothingOpenEnglish : kNothingOpenGerman, BoxIcon::Exclamation, kOwnTitle);
    return true;
}

// The rows under a run stay: the checks still add to them.
void docAddIn::OberflächeZurücksetzen() {
    if (session_.running) return;
    const Call call(*this);
    zentlor::OberflächeZurücksetzen(session_);
}

void docAddIn::EinModulPrüfen(const VBComponent* vbc) {
    const Call call(*this);
    Frame(session_, {kModule, u"EinModulPrüfen"}, [&] {
        if (RefusedWhileRunning()) return;
        if (vbc == nullptr) throw ObjectNotSet();
        zentlor::EinModulPrüfen(session_, *vbc);
    });
}

// Asked from a menu in the middle of a run, the gate would write over the foot of the pane.
bool docAddIn::IstCodeKompiliert() {
    const Call call(*this);
    if (RefusedWhileRunning()) return false;
    return zentlor::IstCodeKompiliert(session_);
}

void docAddIn::StopRun() {
    if (session_.running) StopClicked(session_);
}

}  // namespace zentlor
