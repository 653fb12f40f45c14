#pragma once

class QApplication;

namespace zentlor::studio {

/// Runs the program with the arguments of `application`; the result is the process's exit code.
int RunStudio(QApplication& application);

}  // namespace zentlor::studio
