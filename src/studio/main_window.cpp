#include "studio/main_window.h"

#include <QCloseEvent>
#include <QHeaderView>
#include <QInputDialog>
#include <QMimeData>
#include <QStatusBar>
#include <QVBoxLayout>

#include "studio/qtext.h"

namespace zentlor::studio {

namespace {

constexpr int kNoticeMilliseconds = 8000;
constexpr int kTreeWidth = 260;
constexpr QSize kFirstSize(1180, 780);

}  // namespace

MainWindow::MainWindow(const Words& words, OpenProjects& projects)
    : words_(words),
      projects_(projects),
      menus_(*menuBar(), words),
      projectModel_(words, projects),
      errorModel_(words, projects),
      tree_(new QTreeView),
      centre_(new QStackedWidget),
      start_(new StartPage(words)),
      chooseModule_(new QLabel),
      tabs_(new CodeTabs(words, projects)),
      findBar_(new FindBar(words)),
      errors_(new QTreeView),
      position_(new QLabel) {
    setWindowIcon(QIcon(QStringLiteral(":/icons/zentlor.svg")));
    setAcceptDrops(true);
    setDockNestingEnabled(true);
    setCorner(Qt::BottomLeftCorner, Qt::LeftDockWidgetArea);
    resize(kFirstSize);
    CreateTree();
    CreateCentre();
    CreateErrors();
    CreateStatus();
    bars_.Add(u"Add-Ins", *menus_.addIns);
    bars_.Add(u"Code Window", *menus_.codeWindow);
    bars_.Add(u"Project Window", *menus_.projectWindow);
    ConnectActions();
    Retranslate();
    FollowProjects();
}

QDockWidget* MainWindow::AddDock(const QString& name, Qt::DockWidgetArea area, QWidget* widget) {
    auto* dock = new QDockWidget(this);
    dock->setObjectName(name);
    dock->setWidget(widget);
    addDockWidget(area, dock);
    menus_.view->insertAction(menus_.toolWindows, dock->toggleViewAction());
    return dock;
}

void MainWindow::CreateTree() {
    tree_->setModel(&projectModel_);
    tree_->setHeaderHidden(true);
    tree_->setUniformRowHeights(true);
    tree_->setFrameShape(QFrame::NoFrame);
    tree_->setContextMenuPolicy(Qt::CustomContextMenu);
    treeDock_ = AddDock(QStringLiteral("ProjectWindow"), Qt::LeftDockWidgetArea, tree_);
    resizeDocks({treeDock_}, {kTreeWidth}, Qt::Horizontal);
    connect(tree_, &QTreeView::activated, this, &MainWindow::OpenFromTree);
    connect(tree_->selectionModel(), &QItemSelectionModel::currentChanged, this, [this](const QModelIndex& index) {
        const int project = projectModel_.ProjectOf(index);
        if (project >= 0) projects_.SetActive(static_cast<std::size_t>(project));
    });
    connect(tree_, &QWidget::customContextMenuRequested, this, [this](const QPoint& position) {
        menus_.showCode->setEnabled(SelectedComponent() != nullptr);
        menus_.projectWindow->popup(tree_->viewport()->mapToGlobal(position));
    });
}

void MainWindow::CreateCentre() {
    auto* code = new QWidget;
    auto* rows = new QVBoxLayout(code);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(0);
    rows->addWidget(tabs_);
    rows->addWidget(findBar_);
    chooseModule_->setAlignment(Qt::AlignCenter);
    chooseModule_->setWordWrap(true);
    chooseModule_->setForegroundRole(QPalette::PlaceholderText);
    centre_->addWidget(start_);
    centre_->addWidget(chooseModule_);
    centre_->addWidget(code);
    setCentralWidget(centre_);
    connect(tabs_, &CodeTabs::ViewChanged, this, &MainWindow::FollowView);
    connect(tabs_, &CodeTabs::CaretMoved, this, &MainWindow::ShowPosition);
    connect(tabs_, &CodeTabs::ContextMenuWanted, this, [this](const QPoint& at) { menus_.codeWindow->popup(at); });
    connect(&projects_, &OpenProjects::Replaced, this, &MainWindow::FollowProjects);
    connect(&projects_, &OpenProjects::ActiveChanged, this, &MainWindow::ShowCompileState);
}

void MainWindow::CreateErrors() {
    errors_->setModel(&errorModel_);
    errors_->setRootIsDecorated(false);
    errors_->setUniformRowHeights(true);
    errors_->setFrameShape(QFrame::NoFrame);
    errors_->setAllColumnsShowFocus(true);
    errors_->header()->resizeSection(0, 180);
    errors_->header()->resizeSection(1, 60);
    errors_->header()->resizeSection(2, 60);
    errorDock_ = AddDock(QStringLiteral("CompileErrors"), Qt::BottomDockWidgetArea, errors_);
    errorDock_->hide();
    connect(errors_, &QTreeView::activated, this, [this](const QModelIndex& index) { GoToError(index.row()); });
}

void MainWindow::CreateStatus() {
    position_->setContentsMargins(8, 0, 8, 0);
    statusBar()->addPermanentWidget(position_);
}

void MainWindow::ConnectActions() {
    const auto on = [this](QAction* action, auto body) { connect(action, &QAction::triggered, this, body); };
    // Whatever has the focus and can copy or select says so by these names.
    on(menus_.copy, [this] {
        if (focusWidget() != nullptr) QMetaObject::invokeMethod(focusWidget(), "copy");
    });
    on(menus_.selectAll, [this] {
        if (focusWidget() != nullptr) QMetaObject::invokeMethod(focusWidget(), "selectAll");
    });
    on(menus_.find, [this] { findBar_->Open(); });
    on(menus_.findNext, [this] { findBar_->FindNext(); });
    on(menus_.findPrevious, [this] { findBar_->FindPrevious(); });
    on(menus_.goToLine, [this] { GoToLine(); });
    on(menus_.zoomIn, [this] { tabs_->Zoom(1); });
    on(menus_.zoomOut, [this] { tabs_->Zoom(-1); });
    on(menus_.zoomReset, [this] { tabs_->Zoom(0); });
    on(menus_.closeTab, [this] { tabs_->CloseCurrent(); });
    on(menus_.showCode, [this] { OpenFromTree(tree_->currentIndex()); });
    on(menus_.quit, [this] { close(); });
}

void MainWindow::Retranslate() {
    menus_.Retranslate();
    start_->Retranslate();
    tabs_->Retranslate();
    findBar_->Retranslate();
    errorModel_.Retranslate();
    const VBComponent* selected = SelectedComponent();
    projectModel_.Refresh();
    tree_->expandAll();
    if (selected != nullptr) SelectComponent(*selected);
    treeDock_->setWindowTitle(words_(Word::ProjectWindow).remove(u'&'));
    errorDock_->setWindowTitle(words_(Word::ErrorWindow).remove(u'&'));
    // A title knows no access key, its entry in the menu does.
    treeDock_->toggleViewAction()->setText(words_(Word::ProjectWindow));
    errorDock_->toggleViewAction()->setText(words_(Word::ErrorWindow));
    tree_->setAccessibleName(treeDock_->windowTitle());
    errors_->setAccessibleName(errorDock_->windowTitle());
    chooseModule_->setText(words_(Word::WelcomeProject));
    statusBar()->clearMessage();
    ShowPosition();
}

void MainWindow::ShowRecent(const QStringList& paths) {
    menus_.ShowRecent(paths);
    start_->ShowRecent(paths);
}

void MainWindow::FollowProjects() {
    tree_->expandAll();
    errorDock_->hide();
    FollowView();
    ShowCompileState();
}

void MainWindow::FollowView() {
    CodeView* view = tabs_->CurrentView();
    findBar_->SetView(view);
    centre_->setCurrentIndex(projects_.Empty() ? 0 : view == nullptr ? 1 : 2);
    for (QAction* action : {menus_.find, menus_.findNext, menus_.findPrevious, menus_.goToLine, menus_.closeTab}) {
        action->setEnabled(view != nullptr);
    }
    // The project window follows the code pane, as the editor's does.
    const VBComponent* component = tabs_->CurrentComponent();
    if (component != nullptr && component != SelectedComponent()) SelectComponent(*component);
    ShowPosition();
}

void MainWindow::ShowCompileState() {
    const workspace::OpenedProject* active = projects_.Active();
    const QString name = active == nullptr ? QString() : ToQString(active->project->Name());
    setWindowTitle(name.isEmpty() ? QStringLiteral("Zentlor Studio") : name + QStringLiteral(" – Zentlor Studio"));
    menus_.ShowCompile(name, projects_.NeedsCompiling());
    for (QAction* action : {menus_.reload, menus_.closeProject, menus_.references, menus_.properties}) {
        action->setEnabled(active != nullptr);
    }
}

void MainWindow::ShowErrors() {
    errorModel_.ShowActive();
    errorDock_->setVisible(errorModel_.rowCount() > 0);
    if (errorModel_.rowCount() == 0) return;
    errorDock_->raise();
    errors_->setCurrentIndex(errorModel_.index(0, 0));
    errors_->setFocus();
}

void MainWindow::ShowNotice(const QString& text) {
    statusBar()->showMessage(text, kNoticeMilliseconds);
}

void MainWindow::ShowPosition() {
    const CodeView* view = tabs_->CurrentView();
    position_->setText(view == nullptr ? QString()
                                       : words_(Word::Position).arg(view->CurrentLine()).arg(view->CurrentColumn()));
}

const VBComponent* MainWindow::SelectedComponent() const {
    return projectModel_.ComponentOf(tree_->currentIndex());
}

void MainWindow::SelectComponent(const VBComponent& component) {
    tree_->setCurrentIndex(projectModel_.IndexOf(component));
}

void MainWindow::OpenFromTree(const QModelIndex& index) {
    const VBComponent* component = projectModel_.ComponentOf(index);
    if (component != nullptr) tabs_->Show(*component).setFocus();
}

void MainWindow::GoToLine() {
    CodeView* view = tabs_->CurrentView();
    if (view == nullptr) return;
    bool chosen = false;
    const int line =
        QInputDialog::getInt(this, words_(Word::GoToLineTitle), words_(Word::LineNumber).arg(view->LineCount()),
                             view->CurrentLine(), 1, view->LineCount(), 1, &chosen);
    if (chosen) view->Select(line, 1, line, 1);
    view->setFocus();
}

void MainWindow::GoToError(int row) {
    const vba::SyntaxError& error = errorModel_.Error(row).error;
    CodeView& view = tabs_->Show(errorModel_.Component(row));
    view.Select(error.line, error.column, error.line, error.column);
    view.setFocus();
}

QDockWidget* MainWindow::AddToolWindow(const QString& guid, const QString& caption, QWidget* widget) {
    auto* dock = new QDockWidget(caption, this);
    dock->setObjectName(guid);
    dock->setWidget(widget);
    dock->toggleViewAction()->setText(u'&' + caption);
    menus_.view->insertAction(menus_.toolWindows, dock->toggleViewAction());
    if (!restoreDockWidget(dock)) {
        addDockWidget(Qt::BottomDockWidgetArea, dock);
        tabifyDockWidget(errorDock_, dock);
        dock->hide();
    }
    toolWindows_ << dock;
    return dock;
}

// Giving the state back makes a place for the dock that is gone: restoreDockWidget finds it.
void MainWindow::RemoveToolWindow(QDockWidget* dock) {
    const QByteArray state = saveState();
    toolWindows_.removeAll(dock);
    removeDockWidget(dock);
    dock->widget()->setParent(nullptr);
    delete dock;
    restoreState(state);
}

void MainWindow::closeEvent(QCloseEvent* event) {
    event->setAccepted(mayClose());
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event) {
    if (event->mimeData()->hasUrls()) event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent* event) {
    QStringList paths;
    for (const QUrl& url : event->mimeData()->urls()) {
        if (url.isLocalFile()) paths << url.toLocalFile();
    }
    if (!paths.isEmpty()) Q_EMIT PathsDropped(paths);
}

}  // namespace zentlor::studio
