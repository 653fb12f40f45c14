#pragma once

// Writes Access databases with a VBA project in each of the three places where Access has kept it.

#include <string>
#include <vector>

#include "support/documents/jet_writer.h"
#include "support/documents/ovba_writer.h"
#include "support/documents/storage_tree.h"

namespace zentlor::test {

struct TestControl {
    /// The name as code can write it, and the real one if that is another.
    std::string identifier;
    std::string realName;
    int type = 109;
};

struct TestForm {
    Text name;
    bool report = false;
    std::vector<TestControl> controls;
};

/// The list of a form's controls as its stream keeps it.
std::string WriteTypeInfo(const std::vector<TestControl>& controls);

/// The storages of a database: `VBA`/`VBAProject` with the project, `Forms` and `Reports` with the controls.
StorageTree WriteAccessTree(const TestProject& project, const std::vector<TestForm>& forms = {});

/// The table of storages without rows, with the columns that are read.
JetTableSpec StorageTable();

/// Access 2002 and later: the storages as rows of MSysAccessStorage. `objects` are further rows of the catalog.
JetDatabase WriteAccessStorage(const StorageTree& tree, const JetOptions& options,
                               const std::vector<JetCatalogEntry>& objects = {});

/// Access 2000: a compound file in pieces, in the rows of MSysAccessObjects. Pieces of zeros have no row.
JetDatabase WriteAccessObjects(const StorageTree& tree, const JetOptions& options);

/// Access 97: modules as rows of MSysModules2; with a `later` tree also the copy that a later version leaves behind.
JetDatabase WriteAccessModules(TestProject project, const JetOptions& options, const StorageTree* later = nullptr);

}  // namespace zentlor::test
