#pragma once

// How a reader speaks to the user: one sentence that names the file, what is wrong and the way out, in both languages.

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>

#include "readers/document.h"

namespace zentlor::readers {

/// The two sentences with "[%1]", "[%2]" … replaced by `values`. Values are UTF-8 and are not searched again.
Sentence MakeSentence(std::string_view german, std::string_view english, std::initializer_list<std::string> values);

/// A number of bytes in the largest unit that it is a multiple of: "16 MiB", "3 KiB", "1000 B".
std::string SizeText(std::uint64_t bytes);

/// Throws the `ReadError` of these sentences, filled as `MakeSentence` does.
[[noreturn]] void Fail(ReadFailure why, std::string_view german, std::string_view english,
                       std::initializer_list<std::string> values);

}  // namespace zentlor::readers
