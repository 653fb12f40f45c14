#pragma once

// Where the pane's controls stand, as a function of the pane's inner size. All lengths are in twips, 1440 to the inch.

#include <array>

namespace zentlor {

inline constexpr double kTwipsPerPixel = 15;  ///< of a pixel at 96 to the inch

/// The pane's size as designed.
inline constexpr double kPaneWidth = 8055;
inline constexpr double kPaneHeight = 3645;

struct PaneRect {
    double left = 0;
    double top = 0;
    double width = 0;
    double height = 0;
};

struct PaneLayout {
    PaneRect symToolbar;
    PaneRect icboSprache;
    PaneRect lvwErgebnis;
    std::array<double, 5> columns{};  ///< widths; the fifth, the sort text, is 0
    PaneRect lblUntersuchtesObjekt;
    PaneRect lblObjekt;
    PaneRect lblAktuellerTest;
    PaneRect lblTest;
    PaneRect pbFortschritt;
    PaneRect sbStatus;
};

/// `scrollBar` is the width of a vertical scroll bar. No width and no height comes out negative: a pane too small for a
/// control leaves it a size of 0, and the other rules go on.
PaneLayout UserDocument_Resize(double scaleWidth, double scaleHeight, double scrollBar);

}  // namespace zentlor
