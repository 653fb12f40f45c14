#pragma once

// The names that come with the host's libraries, in the capitalisation of their declarations.

#include "core/utilities/text.h"

namespace zentlor::vba {

/// Names of the VBA library ([MS-VBAL] 6.1) and of the Access, DAO and ADO libraries, parted by one blank each.
extern const TextView kLibraryNames;

}  // namespace zentlor::vba
