#pragma once

// The bar below the code in which a text is searched for in the module that is shown.

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>

#include "studio/code_view.h"
#include "studio/words.h"

namespace zentlor::studio {

class FindBar : public QWidget {
  public:
    explicit FindBar(const Words& words, QWidget* parent = nullptr);

    void Retranslate();
    /// The view that is searched; nullptr while no module is shown.
    void SetView(CodeView* view) { view_ = view; }
    /// Shows the bar, with the selected word of the view in it.
    void Open();
    void FindNext() { Search(false); }
    void FindPrevious() { Search(true); }

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void Search(bool backwards);
    void ShowCount(const QTextCursor& hit);
    void Dismiss();
    QTextDocument::FindFlags Flags() const;

    const Words& words_;
    CodeView* view_ = nullptr;
    QLineEdit* text_;
    QCheckBox* matchCase_;
    QCheckBox* wholeWord_;
    QLabel* result_;
    QToolButton* previous_;
    QToolButton* next_;
    QToolButton* close_;
};

}  // namespace zentlor::studio
