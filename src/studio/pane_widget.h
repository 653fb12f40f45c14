#pragma once

// The pane's surface: toolbar with language box, list or labels, progress bar or status bar. It shows what it is told
// and passes clicks on to the pane object.

#include <QLabel>
#include <QProgressBar>
#include <QToolButton>
#include <array>

#include "core/host/doc_add_in.h"
#include "core/host/host.h"
#include "core/host/pane_controls.h"
#include "studio/hint_list.h"
#include "studio/language_box.h"
#include "studio/twips.h"
#include "studio/words.h"

namespace zentlor::studio {

class PaneWidget : public QWidget, public PaneView, public PaneTexts {
    Q_OBJECT

  public:
    explicit PaneWidget(const Words& words);

    /// The object that the clicks go to, and the session whose hints are shown; nullptr for both: clicks go nowhere.
    void Connect(docAddIn* pane, const Session* session);
    /// Empties the list, whose hints are of code that is no longer open. Not in the middle of a run.
    void ForgetHints();
    LanguageBox& Sprache() { return *sprache_; }
    HintList& List() { return *list_; }
    /// The button at a position of the toolbar, counted from 1 with the separators; nullptr for a separator.
    QToolButton* Button(int position) const { return buttons_[static_cast<std::size_t>(position - 1)]; }
    QString PanelText(int panel) const { return panels_[static_cast<std::size_t>(panel - 1)]->text(); }
    /// Shows the hints that have come since, if the list is to be seen.
    void ShowNewRows();
    /// Writes the names that only assistive technology tells.
    void Retranslate();

    void ShowList(bool visible) override;
    void ShowLabels(bool visible) override;
    void FocusList() override;
    void ListChanged() override;
    void SetObjekt(TextView text) override;
    void SetTest(TextView text) override;
    void ShowProgress(bool visible) override;
    void SetProgressMaximum(int maximum) override;
    void SetProgress(int value) override;
    void ShowStatus(bool visible) override;
    void SetPanel(int panel, TextView text) override;
    void EnableStop(bool enabled) override;
    void RedrawToolbar() override;
    void EnableSprache(bool enabled) override;

    void SetButtonCaption(int button, TextView text) override;
    void SetButtonToolTip(int button, TextView text) override;
    void SetColumnHeader(int column, TextView text) override;
    void SetUntersuchtesObjekt(TextView text) override;
    void SetAktuellerTest(TextView text) override;
    void SetPanelToolTip(int panel, TextView text) override;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  Q_SIGNALS:
    /// The words of the pane were written anew, perhaps in another language.
    void WordsWritten();
    /// The list shows other rows than before, or none.
    void RowsPublished();
    /// The checks begin; the hints to come are those of the active project.
    void RunBegins();
    /// The user has asked for the code of a hint.
    void JumpBegins();

  protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    void CreateToolbar();
    void CreateLabels();
    void CreateStatus();
    void ConnectClicks();
    void LayOut();
    void LayOutToolbar(const Twips& twips);
    void LayOutStatus(const Twips& twips);
    void PublishRows();
    void SayWhyEmpty(Word word);

    const Words& words_;
    docAddIn* pane_ = nullptr;
    const Session* session_ = nullptr;
    Word empty_ = Word::NotChecked;  ///< what a list without rows says

    QWidget* toolbar_;
    std::array<QToolButton*, 9> buttons_{};
    std::array<QFrame*, 3> separators_{};
    QtLanguageBox* sprache_;
    HintList* list_;
    QLabel* untersuchtesObjekt_;
    QLabel* objekt_;
    QLabel* aktuellerTest_;
    QLabel* test_;
    QProgressBar* progress_;
    QWidget* status_;
    std::array<QLabel*, 2> panels_{};
};

}  // namespace zentlor::studio
