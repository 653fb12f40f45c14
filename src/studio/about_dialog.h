#pragma once

// The window of the about box.

#include <QDialog>
#include <QLabel>
#include <QPushButton>

#include "core/host/pane_layout.h"
#include "core/utilities/about_box.h"
#include "studio/link_edit.h"

namespace zentlor::studio {

class AboutDialog : public QDialog, public AboutView {
  public:
    AboutDialog(Session& session, Shell& shell, QWidget* owner);

    void SetVersion(TextView text) override;
    void SetBeschreibung(TextView text) override;
    LinkBox& txtHyperlink() override { return *link_; }
    int BackColor() const override;
    void Unload() override { close(); }

  private:
    QLabel* AddLabel(const PaneRect& place, double points, bool bold = false);
    void CreateControls();

    frm_About form_;
    QLabel* version_ = nullptr;
    QLabel* description_ = nullptr;
    LinkEdit* link_;
    QPushButton* ok_;
};

}  // namespace zentlor::studio
