#pragma once

// Where in a compound file the VBA project lies: it differs from program to program, and an embedded document may bring
// one of its own.

#include <cstdint>
#include <memory>

#include "readers/container.h"

namespace zentlor::readers {

struct FoundProject {
    /// The storage below the root that holds `VBA/dir`, or null.
    std::unique_ptr<Storage> root;
    /// Nothing was found, and storages deeper than the limit were not looked into.
    bool tooDeep = false;
};

/// Looks where the programs keep the document's own project, and then everywhere, `maximumDepth` storages deep. Whether
/// the root itself holds it (`HoldsOvbaProject`) is the caller's to ask.
FoundProject FindOvbaProject(const Storage& root, std::uint32_t maximumDepth);

}  // namespace zentlor::readers
