// The desktop program: reads its arguments and hands over to the studio.

#include <QApplication>

#include "studio/command_line.h"

int main(int argc, char* argv[]) {
    if (zentlor::studio::OnlyAsks(argc, argv)) {
        const QCoreApplication application(argc, argv);
        zentlor::studio::Answer(application);
        return 0;
    }
    const QApplication application(argc, argv);
    return zentlor::studio::RunStudio(application);
}
