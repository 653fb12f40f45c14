#pragma once

#include <QString>

namespace zentlor::studio {

/// Writes the pictures of the studio's states as PNG files into `folder`, with the example program of the current
/// directory as the project. The result is the process's exit code.
int TakeShots(const QString& folder);

}  // namespace zentlor::studio
