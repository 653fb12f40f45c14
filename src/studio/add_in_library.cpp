#include "studio/add_in_library.h"

#include "core/host/add_in_manager.h"
#include "studio/about_dialog.h"
#include "studio/options_dialog.h"
#include "studio/qtext.h"

namespace zentlor::studio {

// Members stand in the order in which they need each other.
class AddInLibrary::Component : public PaneDialogs, public EventPump {
  public:
    explicit Component(const Environment& environment)
        : pane(environment.words),
          session({environment.editor, pane, *this, environment.settings, boxes_, clock_}),
          addIn(session),
          environment_(environment) {}

    QWidget* CreatePane(std::unique_ptr<PaneObject>& docObj) {
        auto object =
            std::make_unique<docAddIn>(session, PaneServices{pane, pane.Sprache(), *this, fileDialogs_, files_,
                                                             environment_.shell, FromQString(environment_.dataFolder)});
        pane.Connect(object.get(), &session);
        object->UserDocument_Initialize();
        docObj = std::move(object);
        return &pane;
    }

    // A change of language in the middle of a component's run shows the list, which then fills before the user's eyes.
    void DoEvents() override {
        pane.ShowNewRows();
        environment_.events.DoEvents();
    }
    void ShowOptionen() override {
        OptionsDialog dialog(session, xml_, environment_.dataFolder, pane.window());
        dialog.exec();
    }
    void ShowAbout() override {
        AboutDialog dialog(session, environment_.shell, &pane);
        dialog.exec();
    }

  private:
    QtMessageBoxes boxes_;
    QtClock clock_;
    QtFileDialogs fileDialogs_;
    QtFileOutput files_;
    workspace::LibxmlLibrary xml_;

  public:
    PaneWidget pane;
    Session session;
    dsrZentlor addIn;

  private:
    const Environment& environment_;
};

AddInLibrary::AddInLibrary(Environment environment) : environment_(std::move(environment)) {}

AddInLibrary::~AddInLibrary() = default;

void AddInLibrary::AddinInstance_OnConnection(EditorUi& application, const AddInInstance& addInInst) {
    component_ = std::make_unique<Component>(environment_);
    environment_.editor.RegisterClass(kRegistration.paneClass, [this](std::unique_ptr<PaneObject>& docObj) {
        return component_->CreatePane(docObj);
    });
    QObject::connect(&component_->pane, &PaneWidget::WordsWritten, [this] { wordsWritten(); });
    QObject::connect(&component_->pane, &PaneWidget::RowsPublished, [this] { rowsPublished(); });
    QObject::connect(&component_->pane, &PaneWidget::RunBegins, [this] { runBegins(); });
    QObject::connect(&component_->pane, &PaneWidget::JumpBegins, [this] { jumpBegins(); });
    component_->addIn.AddinInstance_OnConnection(application, addInInst);
}

// The pane's surface may still be shown by the dock when its object goes: from here on nothing is left to click on.
void AddInLibrary::AddinInstance_OnDisconnection() {
    component_->pane.Connect(nullptr, nullptr);
    component_->addIn.AddinInstance_OnDisconnection();
    component_.reset();
    rowsPublished();
}

bool AddInLibrary::Busy() const {
    return component_ && component_->addIn.Busy();
}

void AddInLibrary::Stop() {
    if (component_) component_->addIn.Stop();
}

void AddInLibrary::ForgetHints() {
    if (component_) component_->pane.ForgetHints();
}

bool AddInLibrary::Running() const {
    return component_ && component_->session.running;
}

PaneWidget* AddInLibrary::Pane() const {
    return component_ ? &component_->pane : nullptr;
}

const ResultList* AddInLibrary::Results() const {
    return component_ ? &component_->session.lvwErgebnis : nullptr;
}

}  // namespace zentlor::studio
