#pragma once

// A tree of storages and streams in memory: what the compound file writer writes, and a `Storage` by itself for tests
// that need no file around a project.

#include <deque>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "readers/container.h"

namespace zentlor::test {

struct StorageTree {
    struct Stream {
        Text name;
        std::string bytes;
    };
    struct Child;
    std::vector<Stream> streams;
    std::deque<Child> storages;

    /// The storage of that name below this one, made if it is missing.
    StorageTree& Below(const Text& name);
    /// Puts a stream here, in place of one of the same name.
    void Put(const Text& name, std::string bytes);
    /// The bytes of the stream of that name, which has to exist.
    std::string& BytesOf(const Text& name);
    void Remove(const Text& name);
};

struct StorageTree::Child {
    Text name;
    StorageTree tree;
};

/// `tree` seen as a reader sees a container. The tree must outlive it.
std::unique_ptr<readers::Storage> AsStorage(const StorageTree& tree);

}  // namespace zentlor::test
