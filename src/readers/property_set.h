#pragma once

// The property streams of a compound file ([MS-OLEPS]): which program wrote the document, and in which version.

#include <string>
#include <string_view>

namespace zentlor::readers {

/// The name of the program (property 18) out of the bytes of "\005SummaryInformation", or nothing. UTF-8.
std::string ApplicationName(std::string_view summaryInformation);

/// The version "16.0" (property 23) out of the bytes of "\005DocumentSummaryInformation", or nothing.
std::string ApplicationVersion(std::string_view documentSummaryInformation);

}  // namespace zentlor::readers
