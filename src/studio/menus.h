#pragma once

// The menu bar of the studio and its two context menus. The place of an entry counts: an add-in reaches "Extras",
// entry "Optionen", as entry 3 of menu 7.

#include <QMenuBar>
#include <vector>

#include "studio/words.h"

namespace zentlor::studio {

class Menus {
  public:
    /// Fills `bar`; the context menus belong to it.
    Menus(QMenuBar& bar, const Words& words);

    void Retranslate();
    /// The entry's name in the compile command and whether it can be chosen. No project: `name` is empty.
    void ShowCompile(const QString& name, bool enabled);
    void ShowRecent(const QStringList& paths);
    /// Menu and entry by position, counted from 1, separators left out; nullptr if there is none.
    QAction* Entry(int menu, int entry) const;

    QMenu *file, *edit, *view, *search, *debug, *addIns, *tools, *help;
    QMenu *recent, *codeWindow, *projectWindow;
    QAction *openFile, *openFolder, *clearRecent, *reload, *closeProject, *quit;
    QAction *copy, *selectAll, *find, *findNext, *findPrevious, *goToLine;
    QAction* toolWindows;  ///< the separator behind the entries of the tool windows
    QAction *zoomIn, *zoomOut, *zoomReset, *closeTab;
    QAction *compile, *addInManager;
    QAction *references, *properties, *options;
    QAction *helpContents, *about;
    QAction* showCode;

  private:
    QMenu* AddMenu(Word word);
    QAction* AddEntry(QMenu* menu, Word word, const char* icon = nullptr,
                      const QKeySequence& shortcut = QKeySequence());
    void FillFile();
    void FillEdit();
    void FillView();
    void FillTools();
    void FillContextMenus();

    QMenuBar& bar_;
    const Words& words_;
    QString project_;
    std::vector<std::pair<QMenu*, Word>> menuWords_;
    std::vector<std::pair<QAction*, Word>> entryWords_;
};

}  // namespace zentlor::studio
