#pragma once

// The window of the options dialog: three tabs of check boxes, and the explanation of the box under the pointer or in
// focus.

#include <QCheckBox>
#include <QDialog>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabWidget>
#include <array>

#include "core/options/options_dialog.h"
#include "studio/twips.h"

namespace zentlor::studio {

class OptionsDialog : public QDialog, public OptionsView {
  public:
    OptionsDialog(Session& session, XmlLibrary& xml, const QString& folder, QWidget* parent);

    QCheckBox& Box(CheckId id) const { return *boxes_[IndexOf(id)]; }
    QTabWidget& Tabs() const { return *tabs_; }
    QPushButton& AlleAn(CheckGroup group) const { return *Page(group).alleAn; }
    QPushButton& AlleAus(CheckGroup group) const { return *Page(group).alleAus; }
    QPushButton& Apply() const { return *apply_; }
    QPushButton& Ok() const { return *ok_; }
    QString ExplanationText() const { return explanation_->toPlainText(); }

    void CentreOnScreen() override;
    void SetTitle(TextView text) override;
    void SetTabCaption(CheckGroup group, TextView text) override;
    void SetAlleCaptions(CheckGroup group, TextView alleAn, TextView alleAus) override;
    void SetText(OptionsControl control, TextView text) override;
    void SetBoxCaption(CheckId id, TextView text) override;
    void SetBox(CheckId id, bool ticked) override;
    void EnableÜbernehmen(bool enabled) override;
    void Unload() override;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    struct TabPage {
        QWidget* page = nullptr;
        QPushButton* alleAn = nullptr;
        QPushButton* alleAus = nullptr;
    };
    const TabPage& Page(CheckGroup group) const { return pages_[static_cast<std::size_t>(group)]; }
    void CreatePage(CheckGroup group);
    void CreateBox(CheckGroup group, int box);
    void ConnectButtons();
    double FittingFactor() const;
    void LayOut();
    void LayOutPage(CheckGroup group, const Twips& twips, const QPoint& origin);

    frm_Optionen form_;
    QTabWidget* tabs_;
    std::array<TabPage, 3> pages_;
    std::array<QCheckBox*, kCheckCount> boxes_{};
    QLabel* explanationCaption_;
    QPlainTextEdit* explanation_;
    QPushButton* ok_;
    QPushButton* cancel_;
    QPushButton* apply_;
};

}  // namespace zentlor::studio
