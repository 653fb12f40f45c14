#include "support/documents/storage_tree.h"

#include <algorithm>
#include <stdexcept>

namespace zentlor::test {

StorageTree& StorageTree::Below(const Text& name) {
    for (Child& child : storages) {
        if (child.name == name) return child.tree;
    }
    storages.push_back({name, {}});
    return storages.back().tree;
}

void StorageTree::Put(const Text& name, std::string bytes) {
    Remove(name);
    streams.push_back({name, std::move(bytes)});
}

std::string& StorageTree::BytesOf(const Text& name) {
    for (Stream& stream : streams) {
        if (stream.name == name) return stream.bytes;
    }
    throw std::out_of_range("no such stream in the test's tree");
}

void StorageTree::Remove(const Text& name) {
    std::erase_if(streams, [&](const Stream& stream) { return stream.name == name; });
}

namespace {

class TreeStorage final : public readers::Storage {
  public:
    explicit TreeStorage(const StorageTree& tree) : tree_(tree) {}

    std::vector<Text> StorageNames() const override {
        std::vector<Text> names;
        for (const auto& child : tree_.storages) names.push_back(child.name);
        return names;
    }
    std::vector<Text> StreamNames() const override {
        std::vector<Text> names;
        for (const auto& stream : tree_.streams) names.push_back(stream.name);
        return names;
    }
    std::unique_ptr<Storage> OpenStorage(TextView name) const override {
        for (const auto& child : tree_.storages) {
            if (EqualIgnoringCase(child.name, name)) return std::make_unique<TreeStorage>(child.tree);
        }
        return nullptr;
    }
    std::optional<std::string> ReadStream(TextView name, std::uint64_t maximum, bool*) const override {
        for (const auto& stream : tree_.streams) {
            if (EqualIgnoringCase(stream.name, name)) return stream.bytes.substr(0, maximum);
        }
        return std::nullopt;
    }

  private:
    const StorageTree& tree_;
};

}  // namespace

std::unique_ptr<readers::Storage> AsStorage(const StorageTree& tree) {
    return std::make_unique<TreeStorage>(tree);
}

}  // namespace zentlor::test
