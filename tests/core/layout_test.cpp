// The layout of the pane at the sizes where its rules change.

#include <gtest/gtest.h>

#include "core/host/pane_layout.h"

namespace zentlor {
namespace {

constexpr double kScrollBar = 17 * kTwipsPerPixel;

TEST(PaneLayout, ColumnsShareTheListsWidth) {
    struct Row {
        const char* why;
        double scaleWidth, first, third, fourth;
    };
    const Row rows[] = {
        {"design size: a list of 7792", 8055, 1948, 3428.48, 389.6},
        {"a list of 8029 is not yet roomy", 8292, 2007.25, 3532.76, 401.45},
        {"a list of 8030 has a full column for the line", 8293, 2007.5, 3533.2, 525},
        {"from 10500 on the share is the larger one", 10766, 2625, 4620, 525},
        {"a wide list", 20276, 5000.25, 8800.44, 1000.05},
        {"narrower than its scroll bar", 100, 0, 0, 0},
    };
    for (const Row& row : rows) {
        const auto columns = UserDocument_Resize(row.scaleWidth, kPaneHeight, kScrollBar).columns;
        EXPECT_DOUBLE_EQ(columns[0], row.first) << row.why;
        EXPECT_DOUBLE_EQ(columns[1], row.first) << row.why;
        EXPECT_DOUBLE_EQ(columns[2], row.third) << row.why;
        EXPECT_DOUBLE_EQ(columns[3], row.fourth) << row.why;
        EXPECT_EQ(columns[4], 0) << row.why;
    }
}

TEST(PaneLayout, LabelsStandAroundTheListsMiddle) {
    struct Row {
        const char* why;
        double scaleHeight, listHeight, firstTop, lastTop, barTop;
    };
    const Row rows[] = {
        {"design size: the middle is 1980", kPaneHeight, 2760, 1385, 2320, 3360},
        {"half a twip is rounded to the even one: the middle of 2761 is 1980", 3646, 2761, 1385, 2320, 3361},
        {"the middle of 800 is exactly 1000", 1685, 800, 405, 1340, 1400},
        {"a lower pane leaves the block where it is", 1000, 115, 405, 1340, 715},
        {"lower than toolbar and status bar: no list", 500, 0, 405, 1340, 215},
    };
    for (const Row& row : rows) {
        const PaneLayout layout = UserDocument_Resize(kPaneWidth, row.scaleHeight, kScrollBar);
        EXPECT_EQ(layout.lvwErgebnis.height, row.listHeight) << row.why;
        EXPECT_EQ(layout.lblUntersuchtesObjekt.top, row.firstTop) << row.why;
        EXPECT_EQ(layout.lblObjekt.top, row.firstTop + 240) << row.why;
        EXPECT_EQ(layout.lblAktuellerTest.top, row.firstTop + 695) << row.why;
        EXPECT_EQ(layout.lblTest.top, row.lastTop) << row.why;
        EXPECT_EQ(layout.pbFortschritt.top, row.barTop) << row.why;
        EXPECT_EQ(layout.sbStatus.top + layout.sbStatus.height, row.scaleHeight) << row.why;
    }
}

TEST(PaneLayout, WidthsFollowThePaneAndAreNeverNegative) {
    const PaneLayout wide = UserDocument_Resize(9000, kPaneHeight, kScrollBar);
    EXPECT_EQ(wide.lvwErgebnis.width, 9000);
    EXPECT_EQ(wide.lblTest.width, 8000);
    EXPECT_EQ(wide.pbFortschritt.left, 15);
    EXPECT_EQ(wide.pbFortschritt.width, 9000);
    EXPECT_EQ(wide.icboSprache.left, 6600) << "no rule moves the language box";
    EXPECT_EQ(UserDocument_Resize(600, kPaneHeight, kScrollBar).lblTest.width, 0);
}

}  // namespace
}  // namespace zentlor
