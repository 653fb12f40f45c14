// The desktop program: reads its arguments and hands over to the studio.

#include <QApplication>

#include "studio/command_line.h"

int main(int argc, char* argv[]) {
    QApplication application(argc, argv);
    return zentlor::studio::RunStudio(application);
}
