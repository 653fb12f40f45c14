#pragma once

// The words of the system: one table of numbered messages in German and English, and the look-up that fills in values.

#include "core/utilities/text.h"

namespace zentlor {

/// Language index, as it is stored: 1 German, 2 English. 0 stands for "not read yet".
inline constexpr int kDeutsch = 1;
inline constexpr int kEnglish = 2;

/// English messages have the id of the German one plus this.
inline constexpr int kEnglishOffset = 2000;

/// The row with this id (101 to 249, 2101 to 2249), or nullptr where there is none.
const TextView* FindMessage(int id);

/// Message `lngID` (a German id) in the language `sprache`, "[%1]" and "[%2]" replaced by the values, in this order.
/// An empty value leaves its mark in the text. A row that the language lacks comes in German; an id without any row
/// gives "???".
Text GetResourceString(int sprache, int lngID, TextView strWert1 = {}, TextView strWert2 = {});

}  // namespace zentlor
