#pragma once

// The conversions between bytes and text that need no library: UTF-8, UTF-16 and Windows-1252. They are used at the
// program's edges only.

#include <optional>
#include <string>
#include <string_view>

#include "core/utilities/text.h"

namespace zentlor {

/// UTF-8 of `text`. A lone surrogate becomes U+FFFD.
std::string ToUtf8(TextView text);
/// Appends the UTF-8 of `text` to `out`.
void AppendUtf8(TextView text, std::string& out);

/// `bytes` as text, or nothing if they are not well-formed UTF-8 (RFC 3629: no overlong forms, no surrogates).
std::optional<Text> FromUtf8Strict(std::string_view bytes);
/// `bytes` as text; every byte that is no part of a well-formed sequence becomes U+FFFD.
Text FromUtf8(std::string_view bytes);

/// UTF-16 code units from `bytes`, little- or big-endian. A last odd byte is dropped.
Text FromUtf16Le(std::string_view bytes);
Text FromUtf16Be(std::string_view bytes);

/// Windows-1252 as the platform reads it: the five unassigned bytes become the control characters of their value.
Text FromWindows1252(std::string_view bytes);
/// The inverse. A character that the code page does not hold becomes "?"; `lost`, if given, counts these.
std::string ToWindows1252(TextView text, int* lost = nullptr);

}  // namespace zentlor
