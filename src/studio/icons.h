#pragma once

// The program's own pictures. They are strokes without a colour of their own: each takes the colour of the palette at
// the moment it is drawn, at the size and scale that are asked for.

#include <QIcon>

namespace zentlor::studio {

/// The picture "icons/<name>.svg" of the resources.
QIcon StrokeIcon(const QString& name);

}  // namespace zentlor::studio
