#pragma once

// The storages that an Access database keeps inside of tables. Databases of 2002 and later spread them over the rows of
// MSysAccessStorage; databases of Access 2000 cut a compound file into the rows of MSysAccessObjects.

#include <memory>
#include <optional>
#include <string>

#include "readers/container.h"
#include "readers/jet_catalog.h"
#include "readers/jet_file.h"

namespace zentlor::readers {

/// The root of the storages in MSysAccessStorage, or null if there is no such table or no root in it. What is wrong
/// with single rows is reported to `file`, which must outlive the storage; streams are read from it when asked for.
std::unique_ptr<Storage> OpenAccessStorage(JetFile& file, const JetCatalog& catalog);

/// The compound file in MSysAccessObjects, or nothing if there is no such table or no head in it. Rows may be missing:
/// they are zeros.
std::optional<std::string> JoinAccessObjects(JetFile& file, const JetCatalog& catalog);

}  // namespace zentlor::readers
