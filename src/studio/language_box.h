#pragma once

// The combo box of the interface languages, each with its flag.

#include <QComboBox>

#include "core/host/pane_controls.h"

namespace zentlor::studio {

class QtLanguageBox : public QComboBox, public LanguageBox {
  public:
    explicit QtLanguageBox(QWidget* parent) : QComboBox(parent) {}

    int CountItems() const override { return count(); }
    void AddItem(int position, TextView text, TextView imageKey) override;
    Text SelectedText() const override;
    int SelectedPosition() const override { return currentIndex() + 1; }
    void Select(int position) override { setCurrentIndex(position - 1); }
};

}  // namespace zentlor::studio
