#pragma once

// The help viewer: the pages of one folder, with contents and search.

#include <QLineEdit>
#include <QListWidget>
#include <QMainWindow>
#include <QTabWidget>
#include <QTextBrowser>
#include <vector>

#include "studio/words.h"

namespace zentlor::studio {

/// One page of the help.
struct HelpPage {
    QString file;   ///< without its folder
    QString title;  ///< as the first page links to it
    QString group;  ///< the heading above that link
    QString text;   ///< without markup
};

/// The pages of `folder` in the order in which its first page links to them, that page in front; empty without an
/// index.html.
std::vector<HelpPage> ReadHelp(const QString& folder);

class HelpWindow : public QMainWindow {
  public:
    explicit HelpWindow(const Words& words, QWidget* parent);

    /// Shows the first page of the help in `folder`, or says that there is none.
    void ShowHelp(const QString& folder);
    void Retranslate();
    void Search(const QString& words);

    QTextBrowser& Browser() { return *browser_; }
    QListWidget& Contents() { return *contents_; }
    QListWidget& Hits() { return *hits_; }

  private:
    void CreateToolBar();
    QListWidget* CreateList();
    void Load(const QString& folder);
    void FillContents();
    void AddItem(QListWidget& list, const HelpPage& page);
    void FollowPage(const QUrl& page);
    QString InLanguage(const QString& title) const;

    const Words& words_;
    QString folder_;
    std::vector<HelpPage> pages_;
    QTextBrowser* browser_;
    QTabWidget* tabs_;
    QListWidget* contents_;
    QLineEdit* search_;
    QListWidget* hits_;
    QAction* back_;
    QAction* forward_;
    QAction* home_;
};

}  // namespace zentlor::studio
