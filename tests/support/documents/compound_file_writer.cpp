// A compound file is a small file system: sectors chained through an allocation table (FAT), a directory of entries
// that form a search tree per storage, and streams below 4096 bytes packed into one "mini stream" with a table of its
// own. The sectors are written in this order: streams, mini stream, mini table, directory, table, table of the table.

#include "support/documents/compound_file_writer.h"

#include <algorithm>
#include <cstdint>

#include "support/documents/bytes.h"

namespace zentlor::test {
namespace {

constexpr std::uint32_t kEndOfChain = 0xFFFFFFFE;
constexpr std::uint32_t kFree = 0xFFFFFFFF;
constexpr std::uint32_t kFatSector = 0xFFFFFFFD;
constexpr std::uint32_t kDifatSector = 0xFFFFFFFC;
constexpr std::size_t kMiniSector = 64;
constexpr std::size_t kMiniCutoff = 4096;
constexpr std::size_t kHeaderFatEntries = 109;

struct Entry {
    Text name;
    std::uint8_t type = 2;  // 1 storage, 2 stream, 5 root
    std::uint32_t left = kFree, right = kFree, child = kFree;
    std::uint32_t start = kEndOfChain;
    std::size_t size = 0;
    const std::string* bytes = nullptr;
};

class Writer {
  public:
    explicit Writer(const CompoundOptions& options)
        : options_(options), sectorSize_(options.smallSectors ? 512 : 4096) {}

    CompoundFile Write(const StorageTree& root) {
        entries_.push_back({u"Root Entry", 5, kFree, kFree, kFree, kEndOfChain, 0, nullptr});
        entries_[0].child = AddChildren(root);
        for (std::size_t i = 1; i < entries_.size(); ++i) PlaceStream(entries_[i]);
        entries_[0].start = AddChain(mini_);
        entries_[0].size = mini_.size();

        CompoundFile file;
        file.sectorSize = sectorSize_;
        const std::uint32_t miniFat = AddTable(miniFat_);
        const std::size_t miniFatSectors = (miniFat_.size() * 4 + sectorSize_ - 1) / sectorSize_;
        const std::uint32_t directory = AddDirectory();
        if (miniFat != kEndOfChain) file.miniFat = OffsetOf(miniFat);
        file.directory = OffsetOf(directory);
        AddFat();
        file.fat = OffsetOf(firstFat_);
        file.bytes = Header(directory, miniFat, miniFatSectors) + sectors_;
        return file;
    }

  private:
    std::size_t OffsetOf(std::uint32_t sector) const { return (sector + 1) * sectorSize_; }

    // Adds the entries of one storage and returns the top of their search tree.
    std::uint32_t AddChildren(const StorageTree& tree) {
        std::vector<std::uint32_t> indexes;
        for (const auto& stream : tree.streams) {
            indexes.push_back(static_cast<std::uint32_t>(entries_.size()));
            entries_.push_back({stream.name, 2, kFree, kFree, kFree, kEndOfChain, stream.bytes.size(), &stream.bytes});
        }
        for (const auto& child : tree.storages) {
            const auto index = static_cast<std::uint32_t>(entries_.size());
            indexes.push_back(index);
            entries_.push_back({child.name, 1, kFree, kFree, kFree, 0, 0, nullptr});
            const std::uint32_t below = AddChildren(child.tree);
            entries_[index].child = below;
        }
        std::sort(indexes.begin(), indexes.end(), [&](std::uint32_t a, std::uint32_t b) { return Before(a, b); });
        if (options_.siblingsAsList) return Link(indexes);
        return Balance(indexes, 0, indexes.size());
    }

    bool Before(std::uint32_t a, std::uint32_t b) const {
        const Text& x = entries_[a].name;
        const Text& y = entries_[b].name;
        return x.size() != y.size() ? x.size() < y.size() : x < y;
    }

    std::uint32_t Balance(const std::vector<std::uint32_t>& indexes, std::size_t from, std::size_t to) {
        if (from >= to) return kFree;
        const std::size_t middle = from + (to - from) / 2;
        Entry& entry = entries_[indexes[middle]];
        entry.left = Balance(indexes, from, middle);
        entry.right = Balance(indexes, middle + 1, to);
        return indexes[middle];
    }

    std::uint32_t Link(const std::vector<std::uint32_t>& indexes) {
        for (std::size_t i = 1; i < indexes.size(); ++i) entries_[indexes[i - 1]].right = indexes[i];
        return indexes.empty() ? kFree : indexes.front();
    }

    void PlaceStream(Entry& entry) {
        if (entry.bytes == nullptr || entry.bytes->empty()) return;
        if (entry.bytes->size() >= kMiniCutoff) {
            entry.start = AddChain(*entry.bytes);
            return;
        }
        entry.start = static_cast<std::uint32_t>(miniFat_.size());
        mini_ += *entry.bytes;
        while (mini_.size() % kMiniSector != 0) mini_.push_back('\0');
        while (miniFat_.size() * kMiniSector < mini_.size()) {
            miniFat_.push_back(static_cast<std::uint32_t>(miniFat_.size() + 1));
        }
        miniFat_.back() = kEndOfChain;
    }

    std::uint32_t AddChain(const std::string& bytes) {
        if (bytes.empty()) return kEndOfChain;
        const auto first = static_cast<std::uint32_t>(fat_.size());
        sectors_ += bytes;
        while (sectors_.size() % sectorSize_ != 0) sectors_.push_back('\0');
        while (fat_.size() * sectorSize_ < sectors_.size()) fat_.push_back(static_cast<std::uint32_t>(fat_.size() + 1));
        fat_.back() = kEndOfChain;
        return first;
    }

    std::uint32_t AddTable(const std::vector<std::uint32_t>& table) {
        std::string bytes;
        for (std::uint32_t value : table) Put32(bytes, value);
        while (bytes.size() % sectorSize_ != 0) Put32(bytes, kFree);
        return AddChain(bytes);
    }

    std::uint32_t AddDirectory() {
        std::string bytes;
        for (const Entry& entry : entries_) {
            std::string name;
            for (char16_t c : entry.name) Put16(name, c);
            name.resize(64, '\0');
            bytes += name;
            Put16(bytes, static_cast<std::uint32_t>(entry.name.size() * 2 + 2));
            bytes.push_back(static_cast<char>(entry.type));
            bytes.push_back('\1');
            for (std::uint32_t link : {entry.left, entry.right, entry.child}) Put32(bytes, link);
            bytes.append(36, '\0');
            Put32(bytes, entry.start);
            Put32(bytes, static_cast<std::uint32_t>(entry.size));
            Put32(bytes, 0);
        }
        return AddChain(bytes);
    }

    // The table describes its own sectors too, so their number is found by trying.
    void AddFat() {
        const std::size_t perSector = sectorSize_ / 4;
        std::size_t fatSectors = 0, difatSectors = 0;
        for (;;) {
            const std::size_t total = fat_.size() + fatSectors + difatSectors;
            const std::size_t needed = (total + perSector - 1) / perSector;
            const std::size_t beyond = needed > kHeaderFatEntries ? needed - kHeaderFatEntries : 0;
            const std::size_t difatNeeded = (beyond + perSector - 2) / (perSector - 1);
            if (needed == fatSectors && difatNeeded == difatSectors) break;
            fatSectors = needed;
            difatSectors = difatNeeded;
        }
        firstFat_ = static_cast<std::uint32_t>(fat_.size());
        fatSectors_ = fatSectors;
        difatSectors_ = difatSectors;
        fat_.insert(fat_.end(), fatSectors, kFatSector);
        fat_.insert(fat_.end(), difatSectors, kDifatSector);
        for (std::uint32_t value : fat_) Put32(sectors_, value);
        while (sectors_.size() % sectorSize_ != 0) Put32(sectors_, kFree);
        AddDifat(perSector);
    }

    void AddDifat(std::size_t perSector) {
        std::size_t next = kHeaderFatEntries;
        for (std::size_t i = 0; i < difatSectors_; ++i) {
            for (std::size_t k = 0; k + 1 < perSector; ++k, ++next) {
                Put32(sectors_, next < fatSectors_ ? static_cast<std::uint32_t>(firstFat_ + next) : kFree);
            }
            const bool last = i + 1 == difatSectors_;
            Put32(sectors_, last ? kEndOfChain : static_cast<std::uint32_t>(firstFat_ + fatSectors_ + i + 1));
        }
    }

    std::string Header(std::uint32_t directory, std::uint32_t miniFat, std::size_t miniFatSectors) const {
        std::string header("\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1", 8);
        header.append(16, '\0');
        Put16(header, 0x3E);
        Put16(header, options_.smallSectors ? 3 : 4);
        Put16(header, 0xFFFE);
        Put16(header, options_.smallSectors ? 9 : 12);
        Put16(header, 6);
        header.append(6, '\0');
        Put32(header, 0);
        Put32(header, static_cast<std::uint32_t>(fatSectors_));
        Put32(header, directory);
        Put32(header, 0);
        Put32(header, kMiniCutoff);
        Put32(header, miniFat);
        Put32(header, static_cast<std::uint32_t>(miniFatSectors));
        Put32(header, difatSectors_ == 0 ? kEndOfChain : static_cast<std::uint32_t>(firstFat_ + fatSectors_));
        Put32(header, static_cast<std::uint32_t>(difatSectors_));
        for (std::size_t i = 0; i < kHeaderFatEntries; ++i) {
            Put32(header, i < fatSectors_ ? static_cast<std::uint32_t>(firstFat_ + i) : kFree);
        }
        header.resize(sectorSize_, '\0');
        return header;
    }

    CompoundOptions options_;
    std::size_t sectorSize_;
    std::vector<Entry> entries_;
    std::string sectors_;
    std::vector<std::uint32_t> fat_;
    std::string mini_;
    std::vector<std::uint32_t> miniFat_;
    std::uint32_t firstFat_ = 0;
    std::size_t fatSectors_ = 0;
    std::size_t difatSectors_ = 0;
};

}  // namespace

CompoundFile WriteCompoundFile(const StorageTree& root, const CompoundOptions& options) {
    return Writer(options).Write(root);
}

}  // namespace zentlor::test
