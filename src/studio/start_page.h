#pragma once

// What stands in the middle of the window while no project is open: how to open one, and what was open before.

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "studio/words.h"

namespace zentlor::studio {

class StartPage : public QWidget {
    Q_OBJECT

  public:
    explicit StartPage(const Words& words);

    void Retranslate();
    void ShowRecent(const QStringList& paths);

  Q_SIGNALS:
    void OpenFileWanted();
    void OpenFolderWanted();
    void PathWanted(const QString& path);

  private:
    const Words& words_;
    QLabel* title_;
    QLabel* text_;
    QPushButton* openFile_;
    QPushButton* openFolder_;
    QLabel* recentTitle_;
    QVBoxLayout* recent_;
};

}  // namespace zentlor::studio
