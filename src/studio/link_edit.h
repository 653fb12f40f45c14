#pragma once

// A text box for a hyperlink.

#include <QLineEdit>
#include <functional>

#include "core/utilities/hyperlink.h"

namespace zentlor::studio {

/// The colour of the number in the order blue, green, red; on a dark ground a lighter one of the same hue.
QColor LinkColour(int colour, const QPalette& palette);

class LinkEdit : public QLineEdit, public LinkBox {
  public:
    explicit LinkEdit(QWidget* parent);

    std::function<void()> clicked = [] {};
    std::function<void(float x, float y)> moved = [](float, float) {};

    void SetText(TextView text) override;
    void SetLocked(bool locked) override { setReadOnly(locked); }
    Text Tag() const override { return tag_; }
    void SetTag(TextView target) override { tag_ = target; }
    void SetTabStop(bool tabStop) override { setFocusPolicy(tabStop ? Qt::StrongFocus : Qt::NoFocus); }
    void SetBorder(bool border) override { setFrame(border); }
    void SetBackColor(int colour) override;
    void SetForeColor(int colour) override;
    void SetUnderline(bool underline) override;
    bool SetMouseIcon(int cursor) override { return cursor == kLinkCursor; }
    void SetMousePointer(int mode) override;
    void SetEnabled(bool enabled) override { setEnabled(enabled); }
    float Width() const override { return static_cast<float>(width()); }
    float Height() const override { return static_cast<float>(height()); }
    void SetCapture() override { grabMouse(); }
    void ReleaseCapture() override { releaseMouse(); }

  protected:
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

  private:
    Text tag_;
};

}  // namespace zentlor::studio
