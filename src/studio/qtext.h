#pragma once

// Between the program's text and Qt's: both are UTF-16.

#include <QString>

#include "core/utilities/text.h"

namespace zentlor::studio {

inline QString ToQString(TextView text) {
    return QString::fromUtf16(text.data(), static_cast<qsizetype>(text.size()));
}

inline Text FromQString(const QString& text) {
    return text.toStdU16String();
}

}  // namespace zentlor::studio
