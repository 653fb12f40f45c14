// The layout of the pane: the toolbar at the top, the status bar or the progress bar at the foot, and the list or the
// four labels between them. The list's columns share its width in fixed parts.

#include "core/host/pane_layout.h"

#include <algorithm>
#include <cmath>

namespace zentlor {

namespace {

constexpr double kToolbarHeight = 570;
constexpr double kStatusHeight = 315;
constexpr double kListLeft = 0;
constexpr double kListTop = 600;
constexpr double kLabelLeft = 500;
constexpr double kCaptionHeight = 195;
constexpr double kValueHeight = 255;
constexpr double kHighestMiddle = 1000;

constexpr double kFullLineColumn = 525;  ///< width of the column "Zeile" in a list that has room
constexpr double kRoomyList = 8030;

double NotNegative(double length) {
    return std::max(length, 0.0);
}

std::array<double, 5> ColumnWidths(double scaleWidth, double scrollBar) {
    const double lngScrollBreite = std::nearbyint(scrollBar);
    const double lngListBreite = NotNegative(std::nearbyint(scaleWidth * 0.999 - 2 * kListLeft - lngScrollBreite));
    std::array<double, 5> widths = {0.25 * lngListBreite, 0.25 * lngListBreite, 0.44 * lngListBreite,
                                    0.05 * lngListBreite, 0};
    if (lngListBreite >= kRoomyList) widths[3] = std::max(widths[3], kFullLineColumn);
    return widths;
}

}  // namespace

PaneLayout UserDocument_Resize(double scaleWidth, double scaleHeight, double scrollBar) {
    const double wholeWidth = NotNegative(scaleWidth);
    const double listWidth = NotNegative(scaleWidth - 2 * kListLeft);
    const double labelWidth = NotNegative(scaleWidth - 2 * kLabelLeft);
    const double listHeight = NotNegative(scaleHeight - kToolbarHeight - kStatusHeight);
    const double lngMitte = std::max(std::nearbyint(kListTop + listHeight / 2), kHighestMiddle);

    PaneLayout layout;
    layout.symToolbar = {0, 0, wholeWidth, kToolbarHeight};
    layout.icboSprache = {6600, 120, 1455, 330};
    layout.lvwErgebnis = {kListLeft, kListTop, listWidth, listHeight};
    layout.columns = ColumnWidths(scaleWidth, scrollBar);
    layout.lblUntersuchtesObjekt = {kLabelLeft, lngMitte - 595, labelWidth, kCaptionHeight};
    layout.lblObjekt = {kLabelLeft, lngMitte - 355, labelWidth, kValueHeight};
    layout.lblAktuellerTest = {kLabelLeft, lngMitte + 100, labelWidth, kCaptionHeight};
    layout.lblTest = {kLabelLeft, lngMitte + 340, labelWidth, kValueHeight};
    layout.pbFortschritt = {15, scaleHeight - 285, listWidth, 255};
    layout.sbStatus = {0, scaleHeight - kStatusHeight, wholeWidth, kStatusHeight};
    return layout;
}

}  // namespace zentlor
