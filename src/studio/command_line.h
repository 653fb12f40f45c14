#pragma once

class QApplication;
class QCoreApplication;

namespace zentlor::studio {

/// Whether the arguments ask for help or version only, which needs no display.
bool OnlyAsks(int argc, const char* const* argv);
/// Prints what the arguments of `application` ask for, and ends the program.
void Answer(const QCoreApplication& application);
/// Runs the program with the arguments of `application`; the result is the process's exit code.
int RunStudio(const QApplication& application);

}  // namespace zentlor::studio
