// The test program of the studio: a Qt application without a screen.

#include <gtest/gtest.h>

#include <QApplication>

int main(int argc, char* argv[]) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
