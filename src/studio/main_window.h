#pragma once

// The window of the editor: project window, code panes, compile errors, and the tool windows of add-ins.

#include <QDockWidget>
#include <QLabel>
#include <QMainWindow>
#include <QStackedWidget>
#include <QTreeView>
#include <functional>

#include "studio/code_tabs.h"
#include "studio/command_bars.h"
#include "studio/error_model.h"
#include "studio/find_bar.h"
#include "studio/menus.h"
#include "studio/project_model.h"
#include "studio/start_page.h"

namespace zentlor::studio {

class MainWindow : public QMainWindow {
    Q_OBJECT

  public:
    MainWindow(const Words& words, OpenProjects& projects);

    void Retranslate();
    void ShowRecent(const QStringList& paths);
    /// The compile command after a change of the project or of its state.
    void ShowCompileState();
    /// Lists the errors of the active project, or hides the list if there are none.
    void ShowErrors();
    /// A short notice at the foot of the window.
    void ShowNotice(const QString& text);

    /// A dock for an add-in's widget, under the GUID under which its place is kept; hidden unless it was shown when
    /// the window's state was saved.
    QDockWidget* AddToolWindow(const QString& guid, const QString& caption, QWidget* widget);
    /// Deletes the dock; its widget stays, without a parent, and its place is remembered.
    void RemoveToolWindow(QDockWidget* dock);
    const QList<QDockWidget*>& ToolWindows() const { return toolWindows_; }

    /// nullptr if no component is selected.
    const VBComponent* SelectedComponent() const;
    void SelectComponent(const VBComponent& component);

    zentlor::studio::Menus& Menus() { return menus_; }
    CodeTabs& Tabs() { return *tabs_; }
    CommandBarSet& CommandBars() { return bars_; }
    StartPage& Start() { return *start_; }
    QTreeView& Tree() { return *tree_; }
    QTreeView& Errors() { return *errors_; }

    /// Asked before the window closes; False keeps it open for now.
    std::function<bool()> mayClose = [] { return true; };

  Q_SIGNALS:
    void PathsDropped(const QStringList& paths);

  protected:
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

  private:
    QDockWidget* AddDock(const QString& name, Qt::DockWidgetArea area, QWidget* widget);
    void CreateTree();
    void CreateCentre();
    void CreateErrors();
    void CreateStatus();
    void ConnectActions();
    void FollowProjects();
    void FollowView();
    void ShowPosition();
    void OpenFromTree(const QModelIndex& index);
    void GoToLine();
    void GoToError(int row);

    const Words& words_;
    OpenProjects& projects_;
    zentlor::studio::Menus menus_;
    CommandBarSet bars_;
    ProjectModel projectModel_;
    ErrorModel errorModel_;
    QTreeView* tree_;
    QStackedWidget* centre_;
    StartPage* start_;
    QLabel* chooseModule_;
    CodeTabs* tabs_;
    FindBar* findBar_;
    QTreeView* errors_;
    QDockWidget* treeDock_;
    QDockWidget* errorDock_;
    QLabel* position_;
    QList<QDockWidget*> toolWindows_;
};

}  // namespace zentlor::studio
