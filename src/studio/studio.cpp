#include "studio/studio.h"

#include <QApplication>
#include <QFileInfo>
#include <QLibraryInfo>

#include "studio/dialogs.h"
#include "studio/qtext.h"

static void InitResources() {
    Q_INIT_RESOURCE(icons);
}

namespace zentlor::studio {

namespace {

constexpr TextView kGeometry = u"Geometry";
constexpr TextView kDocks = u"Docks";
constexpr int kStateVersion = 1;

// Before the window is made, so that its icons find their pictures.
std::string WithResources(std::string settingsPath) {
    InitResources();
    return settingsPath;
}

}  // namespace

QString DataFolder() {
    const QString program = QCoreApplication::applicationDirPath();
    const QString installed = program + QStringLiteral("/../share/zentlor");
    const QString built = program + QStringLiteral("/../../share/zentlor");
    return QFileInfo(QFileInfo::exists(installed) ? installed : built).absoluteFilePath();
}

Studio::Studio(std::string settingsPath)
    : settings_(WithResources(std::move(settingsPath))),
      idle_(events_),
      window_(words_, projects_),
      help_(words_, &window_),
      shell_([this](const QString& folder) { help_.ShowHelp(folder); }),
      editor_(window_, projects_, settings_, idle_),
      addIn_({editor_, events_, settings_, words_, shell_, DataFolder()}),
      manager_(settings_, editor_, addIn_),
      opening_(window_, projects_, settings_, words_, addIn_, idle_) {
    projects_.pinned = [this] { return addIn_.Running(); };
    addIn_.wordsWritten = [this] { Retranslate(); };
    addIn_.rowsPublished = [this] { MarkHints(); };
    // A hint names its module, not its project: it is looked for in the project that was active when the run began.
    addIn_.runBegins = [this] { hintsProject_ = projects_.ActiveIndex(); };
    addIn_.jumpBegins = [this] { projects_.SetActive(hintsProject_); };
    window_.mayClose = [this] { return MayClose(); };
    ConnectActions();
    Retranslate();
}

Studio::~Studio() {
    addIn_.wordsWritten = [] {};
    addIn_.rowsPublished = [] {};
}

void Studio::Start(const QStringList& paths) {
    manager_.Register();
    manager_.Start();
    window_.restoreGeometry(settings_.State(kGeometry));
    // On a first start the tool windows are there to be found.
    if (!window_.restoreState(settings_.State(kDocks), kStateVersion)) {
        for (QDockWidget* dock : window_.ToolWindows()) dock->show();
    }
    window_.ShowRecent(settings_.RecentPaths());
    window_.show();
    // What floats was there before the window, and would stand behind it.
    for (QDockWidget* dock : window_.ToolWindows()) {
        if (!dock->isFloating() || !dock->isVisible()) continue;
        dock->hide();
        dock->show();
    }
    TellSettingsProblem();
    if (!paths.isEmpty()) opening_.Open(paths);
}

void Studio::ConnectActions() {
    Menus& menus = window_.Menus();
    const auto on = [this](QAction* action, auto body) { connect(action, &QAction::triggered, this, body); };
    on(menus.openFile, [this] { opening_.ChooseFile(); });
    on(menus.openFolder, [this] { opening_.ChooseFolder(); });
    on(menus.reload, [this] { opening_.Reload(); });
    on(menus.closeProject, [this] { opening_.Close(); });
    on(menus.clearRecent, [this] {
        settings_.ClearRecentPaths();
        window_.ShowRecent({});
    });
    on(menus.compile, [this] { Compile(); });
    on(menus.options, [this] { ShowEditorOptions(words_, settings_, &window_); });
    on(menus.addInManager, [this] { ShowAddInManager(words_, manager_, &window_); });
    on(menus.references, [this] { ShowReferences(words_, *projects_.Active(), &window_); });
    on(menus.properties, [this] { ShowProperties(words_, *projects_.Active(), &window_); });
    on(menus.helpContents, [this] { help_.ShowHelp(DataFolder() + u'/' + ToQString(kHelpFile)); });
    on(menus.about, [this] {
        if (addIn_.Pane() != nullptr) addIn_.Pane()->Button(8)->click();
    });
    connect(menus.recent, &QMenu::triggered, this, [this](const QAction* entry) {
        if (entry->data().isValid()) opening_.Open({entry->data().toString()});
    });
    StartPage& start = window_.Start();
    connect(&start, &StartPage::OpenFileWanted, &opening_, &Opening::ChooseFile);
    connect(&start, &StartPage::OpenFolderWanted, &opening_, &Opening::ChooseFolder);
    connect(&start, &StartPage::PathWanted, &opening_, [this](const QString& path) { opening_.Open({path}); });
    connect(&window_, &MainWindow::PathsDropped, &opening_, &Opening::Open);
}

void Studio::Retranslate() {
    words_.SetLanguage(settings_.Language());
    QCoreApplication::removeTranslator(&qtWords_);
    const QString folder = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
    const bool german = !words_.English() && qtWords_.load(QStringLiteral("qtbase_de"), folder);
    if (german) QCoreApplication::installTranslator(&qtWords_);
    window_.Retranslate();
    help_.Retranslate();
    if (addIn_.Pane() != nullptr) addIn_.Pane()->Retranslate();
}

void Studio::MarkHints() {
    const bool isOpen = hintsProject_ < projects_.All().size();
    window_.Tabs().SetHints(addIn_.Results(), isOpen ? projects_.All()[hintsProject_].project.get() : nullptr);
}

void Studio::Compile() {
    if (addIn_.Running() || projects_.Active() == nullptr) return;
    const QString name = ToQString(projects_.Active()->project->Name());
    const bool clean = projects_.Compile();
    window_.ShowErrors();
    window_.ShowNotice(clean ? words_(Word::CompiledCleanly).arg(name)
                             : words_(Word::CompiledWithErrors).arg(name).arg(projects_.Active()->errors.size()));
}

// A run ends first; the window then closes by itself.
bool Studio::MayClose() {
    if (addIn_.Busy()) {
        addIn_.Stop();
        idle_.Add([this] { window_.close(); });
        return false;
    }
    settings_.SetState(kGeometry, window_.saveGeometry());
    settings_.SetState(kDocks, window_.saveState(kStateVersion));
    settings_.Flush();
    help_.close();
    return true;
}

void Studio::TellSettingsProblem() {
    const auto& problem = settings_.File().Problem();
    if (!problem) return;
    window_.ShowNotice(words_(Word::SettingsProblem)
                           .arg(QString::fromStdString(settings_.File().Path()), QString::fromStdString(*problem)));
}

}  // namespace zentlor::studio
