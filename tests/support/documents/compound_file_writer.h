#pragma once

// Writes compound files ([MS-CFB]), so that tests hold no document that another program made.

#include <cstddef>
#include <string>

#include "support/documents/storage_tree.h"

namespace zentlor::test {

/// A compound file, and where in it lies what hostile tests bend.
struct CompoundFile {
    std::string bytes;
    /// The directory's first entry; entries of 128 bytes follow one another.
    std::size_t directory = 0;
    /// The first entry of the sector chains, 4 bytes each; number n belongs to the sector at (n + 1) * sector size.
    std::size_t fat = 0;
    /// The first entry of the chains of small streams; 0 if there are none.
    std::size_t miniFat = 0;
    std::size_t sectorSize = 512;
};

struct CompoundOptions {
    /// 512-byte sectors (version 3), else 4096-byte sectors (version 4).
    bool smallSectors = true;
    /// Siblings form a list instead of a balanced tree: each one is the right neighbour of the one before.
    bool siblingsAsList = false;
};

CompoundFile WriteCompoundFile(const StorageTree& root, const CompoundOptions& options = {});

}  // namespace zentlor::test
