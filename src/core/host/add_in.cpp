// The life of the add-in in the editor: at the connection it adds its three menu entries and creates the tool window
// with the pane; at the disconnection it takes the entries away and lets go of the pane. In between a click on an entry
// shows the pane, and one of the entries starts a run.

#include "core/host/add_in.h"
#include "core/host/add_in_manager.h"

namespace zentlor {

namespace {

constexpr TextView kDesigner = u"dsrZentlor";
constexpr TextView kModule = u"mdl_Zentlor";

constexpr TextView kCaption = u"&Zentlor";
constexpr int kFaceId = 3056;
constexpr int kAnalyseCaption = 223;

constexpr TextView kWindowCaption = u"Zentlor";
constexpr TextView kWindowGuid = u"{C67CE673-F07B-41e6-9D73-A2DC12E791CE}";

template <class Object>
Object& Set(const std::shared_ptr<Object>& object) {
    if (!object) throw ObjectNotSet();
    return *object;
}

}  // namespace

std::shared_ptr<CommandBarControl> mdl_Zentlor::AddToCommandBar(TextView strCommandBar, TextView strCaption) {
    std::shared_ptr<CommandBarControl> entry;
    Frame(session_, {kModule, u"AddToCommandBar"}, [&] {
        CommandBar* bar = objVBE->CommandBars(strCommandBar);
        if (bar == nullptr) return;
        for (const auto& control : bar->Controls()) {
            if (control->Caption() == strCaption) control->Delete();
        }
        const auto added = bar->Add(msoControlButton, true);
        added->SetCaption(strCaption);
        added->SetFaceId(kFaceId);
        added->SetBeginGroup(true);
        entry = added;
    });
    return entry;
}

void mdl_Zentlor::LoadAddIn() {
    Frame(session_, {kModule, u"LoadAddIn"}, [&] {
        wndAddIn =
            objVBE->CreateToolWindow(*objAddInInst, kRegistration.paneClass, kWindowCaption, kWindowGuid, docPane);
    });
}

void mdl_Zentlor::ShowAddIn() {
    Frame(session_, {kModule, u"ShowAddIn"}, [&] {
        DocPane().OberflächeZurücksetzen();
        if (!wndAddIn) throw ObjectNotSet();
        wndAddIn->SetVisible(true);
    });
}

void mdl_Zentlor::HideAddIn() {
    Frame(session_, {kModule, u"HideAddIn"}, [&] {
        if (!wndAddIn) throw ObjectNotSet();
        wndAddIn->SetVisible(false);
    });
}

void mdl_Zentlor::UnloadAddIn() {
    Frame(session_, {kModule, u"UnloadAddIn"}, [&] {
        docPane.reset();
        wndAddIn.reset();
    });
}

PaneObject& mdl_Zentlor::DocPane() const {
    if (!docPane) throw ObjectNotSet();
    return *docPane;
}

// Holds the mark that a handler is on the stack: its entry and its click source must not go under it.
class dsrZentlor::Call {
  public:
    explicit Call(dsrZentlor& addIn) : addIn_(addIn) { ++addIn_.calls_; }
    ~Call() { --addIn_.calls_; }
    Call(const Call&) = delete;
    Call& operator=(const Call&) = delete;

  private:
    dsrZentlor& addIn_;
};

void dsrZentlor::AddinInstance_OnConnection(EditorUi& application, const AddInInstance& addInInst) {
    Frame(session_, {kDesigner, u"AddinInstance_OnConnection"}, [&] {
        zentlor_.objVBE = &application;
        zentlor_.objAddInInst = &addInInst;
        cbcMenu_ = zentlor_.AddToCommandBar(u"Add-Ins", kCaption);
        menuHandler_ = application.CommandBarEvents(cbcMenu_, [this] { MenuHandler_Click(); });
        cbcKontMenuCodeWindow_ = zentlor_.AddToCommandBar(u"Code Window", kCaption);
        kontMenuCodeWindowHandler_ =
            application.CommandBarEvents(cbcKontMenuCodeWindow_, [this] { KontMenuCodeWindowHandler_Click(); });
        const Text caption = session_.GetResourceString(kAnalyseCaption, kCaption);
        cbcKontMenuProjectWindow_ = zentlor_.AddToCommandBar(u"Project Window", caption);
        kontMenuProjectWindowHandler_ =
            application.CommandBarEvents(cbcKontMenuProjectWindow_, [this] { KontMenuProjectWindowHandler_Click(); });
        zentlor_.LoadAddIn();
    });
}

void dsrZentlor::AddinInstance_OnDisconnection() {
    Frame(session_, {kDesigner, u"AddinInstance_OnDisconnection"}, [&] {
        Set(cbcMenu_).Delete();
        Set(cbcKontMenuCodeWindow_).Delete();
        Set(cbcKontMenuProjectWindow_).Delete();
        zentlor_.HideAddIn();
        zentlor_.UnloadAddIn();
        for (auto* handler : {&menuHandler_, &kontMenuCodeWindowHandler_, &kontMenuProjectWindowHandler_}) {
            handler->reset();
        }
    });
}

bool dsrZentlor::Busy() const {
    return calls_ > 0 || (zentlor_.docPane && zentlor_.docPane->Busy());
}

void dsrZentlor::Stop() {
    if (zentlor_.docPane) zentlor_.docPane->StopRun();
}

void dsrZentlor::MenuHandler_Click() {
    const Call call(*this);
    Frame(session_, {kDesigner, u"MenuHandler_Click"}, [&] { zentlor_.ShowAddIn(); });
}

void dsrZentlor::KontMenuCodeWindowHandler_Click() {
    const Call call(*this);
    Frame(session_, {kDesigner, u"KontMenuCodeWindowHandler_Click"}, [&] { zentlor_.ShowAddIn(); });
}

void dsrZentlor::KontMenuProjectWindowHandler_Click() {
    const Call call(*this);
    Frame(session_, {kDesigner, u"KontMenuProjectWindowHandler_Click"}, [&] {
        if (!zentlor_.DocPane().IstCodeKompiliert()) return;
        zentlor_.ShowAddIn();
        zentlor_.DocPane().EinModulPrüfen(zentlor_.objVBE->SelectedVBComponent());
    });
}

}  // namespace zentlor
