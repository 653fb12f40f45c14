#include "studio/menus.h"

#include "studio/icons.h"

namespace zentlor::studio {

Menus::Menus(QMenuBar& bar, const Words& words) : bar_(bar), words_(words) {
    file = AddMenu(Word::FileMenu);
    edit = AddMenu(Word::EditMenu);
    view = AddMenu(Word::ViewMenu);
    search = AddMenu(Word::SearchMenu);
    debug = AddMenu(Word::DebugMenu);
    addIns = AddMenu(Word::AddInsMenu);
    tools = AddMenu(Word::ToolsMenu);
    help = AddMenu(Word::HelpMenu);
    FillFile();
    FillEdit();
    FillView();
    FillTools();
    FillContextMenus();
    Retranslate();
}

QMenu* Menus::AddMenu(Word word) {
    QMenu* menu = bar_.addMenu(QString());
    menu->setToolTipsVisible(true);
    menuWords_.emplace_back(menu, word);
    return menu;
}

QAction* Menus::AddEntry(QMenu* menu, Word word, const char* icon, const QKeySequence& shortcut) {
    QAction* entry = menu->addAction(QString());
    if (icon != nullptr) entry->setIcon(StrokeIcon(QString::fromLatin1(icon)));
    entry->setShortcut(shortcut);
    entryWords_.emplace_back(entry, word);
    return entry;
}

void Menus::FillFile() {
    openFile = AddEntry(file, Word::OpenFile, "open-file", QKeySequence::Open);
    openFolder = AddEntry(file, Word::OpenFolder, "open-folder", Qt::CTRL | Qt::SHIFT | Qt::Key_O);
    recent = file->addMenu(QString());
    menuWords_.emplace_back(recent, Word::RecentFiles);
    clearRecent = new QAction(&bar_);
    entryWords_.emplace_back(clearRecent, Word::ClearRecent);
    file->addSeparator();
    reload = AddEntry(file, Word::Reload, "reload", Qt::Key_F5);
    closeProject = AddEntry(file, Word::CloseProject);
    file->addSeparator();
    quit = AddEntry(file, Word::Quit, nullptr, QKeySequence::Quit);
    quit->setMenuRole(QAction::QuitRole);
}

void Menus::FillEdit() {
    copy = AddEntry(edit, Word::Copy, nullptr, QKeySequence::Copy);
    selectAll = AddEntry(edit, Word::SelectAll, nullptr, QKeySequence::SelectAll);
    find = AddEntry(search, Word::Find, "find", QKeySequence::Find);
    findNext = AddEntry(search, Word::FindNext, "down", Qt::Key_F3);
    findPrevious = AddEntry(search, Word::FindPrevious, "up", Qt::SHIFT | Qt::Key_F3);
    search->addSeparator();
    goToLine = AddEntry(search, Word::GoToLine, nullptr, Qt::CTRL | Qt::Key_G);
}

void Menus::FillView() {
    toolWindows = view->addSeparator();
    zoomIn = AddEntry(view, Word::ZoomIn, nullptr, QKeySequence::ZoomIn);
    zoomOut = AddEntry(view, Word::ZoomOut, nullptr, QKeySequence::ZoomOut);
    zoomReset = AddEntry(view, Word::ZoomReset, nullptr, Qt::CTRL | Qt::Key_0);
    view->addSeparator();
    closeTab = AddEntry(view, Word::CloseTab, "close", QKeySequence::Close);
}

void Menus::FillTools() {
    compile = debug->addAction(StrokeIcon(QStringLiteral("compile")), QString());
    compile->setShortcut(Qt::CTRL | Qt::Key_F9);
    addInManager = AddEntry(addIns, Word::AddInManager);
    references = AddEntry(tools, Word::References);
    properties = AddEntry(tools, Word::ProjectProperties);
    tools->addSeparator();
    options = AddEntry(tools, Word::Options, "options");
    options->setMenuRole(QAction::PreferencesRole);
    helpContents = AddEntry(help, Word::HelpContents, "help", QKeySequence::HelpContents);
    about = AddEntry(help, Word::AboutStudio, "info");
    about->setMenuRole(QAction::AboutRole);
}

void Menus::FillContextMenus() {
    codeWindow = new QMenu(&bar_);
    codeWindow->addActions({copy, selectAll});
    codeWindow->addSeparator();
    codeWindow->addActions({find, goToLine});
    projectWindow = new QMenu(&bar_);
    showCode = AddEntry(projectWindow, Word::ShowCode, "module");
}

void Menus::Retranslate() {
    for (const auto& [menu, word] : menuWords_) menu->setTitle(words_(word));
    for (const auto& [entry, word] : entryWords_) entry->setText(words_(word));
    ShowCompile(project_, compile->isEnabled());
}

void Menus::ShowCompile(const QString& name, bool enabled) {
    project_ = name;
    QString shown = name;
    shown.replace(u'&', QStringLiteral("&&"));
    compile->setText(name.isEmpty() ? words_(Word::CompileNothing) : words_(Word::Compile).arg(shown));
    compile->setEnabled(enabled);
}

void Menus::ShowRecent(const QStringList& paths) {
    recent->clear();
    for (const QString& path : paths) {
        QString shown = path;
        QAction* entry = recent->addAction(shown.replace(u'&', QStringLiteral("&&")));
        entry->setData(path);
    }
    recent->addSeparator();
    recent->addAction(clearRecent);
    recent->setEnabled(!paths.isEmpty());
}

QAction* Menus::Entry(int menu, int entry) const {
    const QList<QAction*> titles = bar_.actions();
    if (menu < 1 || menu > titles.size()) return nullptr;
    for (QAction* action : titles[menu - 1]->menu()->actions()) {
        if (!action->isSeparator() && --entry == 0) return action;
    }
    return nullptr;
}

}  // namespace zentlor::studio
