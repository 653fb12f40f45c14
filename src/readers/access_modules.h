#pragma once

// The modules of an Access 97 database, which lie in the table MSysModules2: a row each, and one for the project.

#include <optional>
#include <string>

#include "readers/document.h"
#include "readers/jet_catalog.h"
#include "readers/jet_file.h"
#include "readers/ovba_project.h"

namespace zentlor::readers {

/// The project in MSysModules2, or nothing if there is no such table or neither project nor modules in it. `path` names
/// the document in sentences and modules.
/// Throws `ReadError` with `Damaged` if there are modules and no readable list of them.
std::optional<OvbaProject> ReadAccessModules(JetFile& file, const JetCatalog& catalog, const std::string& path,
                                             const Limits& limits);

}  // namespace zentlor::readers
