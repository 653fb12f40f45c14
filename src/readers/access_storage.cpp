// Each row of MSysAccessStorage is a storage or a stream that names its parent; sorted by parent and name, they are a
// tree that can be walked. A row that is its own parent, or hangs in a circle, is never reached from the root.

#include "readers/access_storage.h"

#include <algorithm>
#include <cstdint>
#include <deque>
#include <tuple>
#include <utility>
#include <vector>

#include "readers/byte_reader.h"
#include "readers/folded_name.h"
#include "readers/jet_value.h"

namespace zentlor::readers {

namespace {

constexpr TextView kRootName = u"MSysAccessStorage_ROOT";
constexpr std::uint32_t kTypeStorage = 1;
/// A compound file may be larger than the rows that are left of it by its missing zeros, but not by much.
constexpr std::uint64_t kSpareBytes = 1 << 20;

struct Node {
    std::uint32_t id = 0;
    std::uint32_t parent = 0;
    bool isStorage = false;
    /// The name without regard to case.
    Text key;
    /// The name, and a stream's long value, as they stand in the row.
    std::string_view name;
    std::string_view content;
};

/// All nodes but those that are their own parents, sorted by parent, kind and key.
struct Tree {
    JetFile* file = nullptr;
    /// Grows without moving, since there may be many.
    std::deque<Node> nodes;
};

bool SortsBefore(const Node& a, const Node& b) {
    return std::tie(a.parent, a.isStorage, a.key) < std::tie(b.parent, b.isStorage, b.key);
}

class RowStorage : public Storage {
  public:
    RowStorage(std::shared_ptr<const Tree> tree, std::uint32_t id) : tree_(std::move(tree)), id_(id) {}

    std::vector<Text> StorageNames() const override { return Names(true); }
    std::vector<Text> StreamNames() const override { return Names(false); }

    std::unique_ptr<Storage> OpenStorage(TextView name) const override {
        const Node* node = Find(name, true);
        return node ? std::make_unique<RowStorage>(tree_, node->id) : nullptr;
    }

    std::optional<std::string> ReadStream(TextView name, std::uint64_t maximum, bool* damaged) const override {
        const Node* node = Find(name, false);
        if (!node) return std::nullopt;
        return JetLongValue(node->content, *tree_->file, maximum, damaged);
    }

  private:
    /// The first node below this one of that kind and not before that key.
    std::deque<Node>::const_iterator LowerBound(bool storage, const Text& key) const {
        const Node wanted{.id = 0, .parent = id_, .isStorage = storage, .key = key, .name = {}, .content = {}};
        return std::lower_bound(tree_->nodes.begin(), tree_->nodes.end(), wanted, SortsBefore);
    }

    bool IsBelow(std::deque<Node>::const_iterator node, bool storage) const {
        return node != tree_->nodes.end() && node->parent == id_ && node->isStorage == storage;
    }

    std::vector<Text> Names(bool storages) const {
        std::vector<Text> names;
        for (auto node = LowerBound(storages, {}); IsBelow(node, storages); ++node) {
            names.push_back(JetText(node->name, *tree_->file));
        }
        return names;
    }

    const Node* Find(TextView name, bool storage) const {
        const Text key = Folded(name);
        const auto node = LowerBound(storage, key);
        return IsBelow(node, storage) && node->key == key ? &*node : nullptr;
    }

    std::shared_ptr<const Tree> tree_;
    std::uint32_t id_;
};

std::optional<Tree> ReadTree(JetFile& file, const JetTable& table) {
    const JetColumn* id = table.Column(u"Id");
    const JetColumn* parent = table.Column(u"ParentId");
    const JetColumn* type = table.Column(u"Type");
    const JetColumn* name = table.Column(u"Name");
    const JetColumn* content = table.Column(u"Lv");
    if (!id || !parent || !type || !name || !content) {
        file.Damage().brokenRows = true;
        return std::nullopt;
    }
    Tree tree{&file, {}};
    table.ForEachRow([&](const JetRow& row) {
        const auto idValue = row.Value(*id);
        const auto parentValue = row.Value(*parent);
        const auto nameValue = row.Value(*name);
        if (!idValue || !parentValue || !nameValue) {
            file.Damage().brokenRows = true;
            return;
        }
        Node node;
        node.id = U32At(*idValue, 0);
        node.parent = U32At(*parentValue, 0);
        node.isStorage = U32At(row.Value(*type).value_or(std::string_view{}), 0) == kTypeStorage;
        node.name = *nameValue;
        node.key = Folded(JetText(*nameValue, file));
        node.content = row.Value(*content).value_or(std::string_view{});
        tree.nodes.push_back(std::move(node));
    });
    return tree;
}

/// The slices that MSysAccessObjects cuts a compound file into, and the length that its head tells.
struct SlicedFile {
    std::vector<std::pair<std::uint32_t, std::string_view>> slices;
    std::uint64_t width = 0;
    std::uint64_t length = 0;
    bool hasHead = false;
};

SlicedFile ReadSlices(JetFile& file, const JetTable& table, const JetColumn& id, const JetColumn& data) {
    SlicedFile sliced;
    sliced.width = data.length;
    table.ForEachRow([&](const JetRow& row) {
        const auto idValue = row.Value(id);
        const auto dataValue = row.Value(data);
        if (!idValue || !dataValue) {
            file.Damage().brokenRows = true;
            return;
        }
        const std::uint32_t number = U32At(*idValue, 0);
        if (number != 0) sliced.slices.emplace_back(number, *dataValue);
        if (number != 0) sliced.width = std::max<std::uint64_t>(sliced.width, dataValue->size());
        if (number != 0) return;
        sliced.hasHead = true;
        sliced.length = U32At(*dataValue, 4);
    });
    return sliced;
}

}  // namespace

std::unique_ptr<Storage> OpenAccessStorage(JetFile& file, const JetCatalog& catalog) {
    const auto table = catalog.Table(u"MSysAccessStorage");
    auto tree = table ? ReadTree(file, *table) : std::nullopt;
    if (!tree) return nullptr;
    const auto root = std::ranges::find(tree->nodes, Folded(kRootName), &Node::key);
    if (root == tree->nodes.end()) {
        file.Damage().brokenRows |= !tree->nodes.empty();
        return nullptr;
    }
    const std::uint32_t rootId = root->id;
    std::erase_if(tree->nodes, [](const Node& node) { return node.id == node.parent; });
    std::ranges::stable_sort(tree->nodes, SortsBefore);
    return std::make_unique<RowStorage>(std::make_shared<const Tree>(std::move(*tree)), rootId);
}

std::optional<std::string> JoinAccessObjects(JetFile& file, const JetCatalog& catalog) {
    const auto table = catalog.Table(u"MSysAccessObjects");
    const JetColumn* id = table ? table->Column(u"ID") : nullptr;
    const JetColumn* data = table ? table->Column(u"Data") : nullptr;
    if (table && (!id || !data)) file.Damage().brokenRows = true;
    if (!id || !data) return std::nullopt;
    const SlicedFile sliced = ReadSlices(file, *table, *id, *data);
    if (!sliced.hasHead) {
        file.Damage().brokenRows |= !sliced.slices.empty();
        return std::nullopt;
    }
    const std::uint64_t most = 2 * std::uint64_t{file.FileBytes()} + kSpareBytes;
    if (sliced.length > most) file.Damage().brokenRows = true;
    std::string joined(std::min(sliced.length, most), '\0');
    for (const auto& [number, slice] : sliced.slices) {
        const std::uint64_t start = (std::uint64_t{number} - 1) * sliced.width;
        if (start >= joined.size()) continue;
        joined.replace(start, std::min<std::uint64_t>(slice.size(), joined.size() - start),
                       slice.substr(0, joined.size() - start));
    }
    return joined;
}

}  // namespace zentlor::readers
