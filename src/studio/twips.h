#pragma once

// Lengths of the add-in's windows are given in twips for a font whose bold caption is 195 twips high. With a larger
// font everything grows by one factor, so that no word is cut and no proportion changes.

#include <QRect>
#include <QWidget>

#include "core/host/pane_layout.h"

namespace zentlor::studio {

class Twips {
  public:
    /// The scale for the font and the screen of `widget`.
    explicit Twips(const QWidget& widget) : Twips(widget, FontFactor(widget)) {}
    /// The scale for the screen of `widget`, and a factor of the caller's.
    Twips(const QWidget& widget, double factor) : perPixel_(1440.0 / widget.logicalDpiX() / factor) {}

    int ToPixels(double twips) const { return qRound(twips / perPixel_); }
    double FromPixels(double pixels) const { return pixels * perPixel_; }
    /// Rounds the edges, so that neighbours stay neighbours.
    QRect ToPixels(const PaneRect& rect) const {
        const int left = ToPixels(rect.left);
        const int top = ToPixels(rect.top);
        return {left, top, ToPixels(rect.left + rect.width) - left, ToPixels(rect.top + rect.height) - top};
    }

    static double FontFactor(const QWidget& widget) {
        constexpr double kCaptionHeight = 195.0 / kTwipsPerPixel;
        return std::max(1.0, widget.fontMetrics().height() / kCaptionHeight * 96 / widget.logicalDpiY());
    }

  private:
    double perPixel_;
};

}  // namespace zentlor::studio
