#include "readers/compound_layout.h"

#include <algorithm>
#include <vector>

#include "readers/byte_reader.h"
#include "readers/sentences.h"

namespace zentlor::readers {
namespace {

constexpr std::uint32_t kFree = 0xFFFFFFFF;
constexpr std::uint32_t kEndOfChain = 0xFFFFFFFE;
constexpr std::uint32_t kHighestSector = 0xFFFFFFFA;
constexpr std::size_t kHeaderBytes = 512;
constexpr std::size_t kHeaderTableSectors = 109;
constexpr std::size_t kEntryBytes = 128;
constexpr std::uint32_t kMiniStreamCutoff = 4096;
constexpr std::uint8_t kStorageEntry = 1;
constexpr std::uint8_t kStreamEntry = 2;
// The library takes a call for each step. Programs write balanced trees: a few dozen steps for a million entries.
constexpr std::uint32_t kDeepestTree = 12288;

class Measurer {
  public:
    explicit Measurer(std::string_view bytes) : bytes_(bytes) {}

    CompoundLayout Measure() {
        CompoundLayout layout;
        if (!ReadHeader() || !ReadTableSectors()) return layout;
        layout.truncated = HighestUsedSector() >= sectors_;
        std::uint32_t sector = U32At(bytes_, 0x30);
        // A chain that is longer than the file has sectors runs in a circle.
        for (; sector < sectors_ && directory_.size() <= sectors_; sector = Next(sector)) directory_.push_back(sector);
        layout.directoryEntries = CountEntries();
        layout.sound = sector == kEndOfChain && !directory_.empty() && RootStandsAlone();
        if (!layout.sound) return layout;
        layout.tangled = IsTangled();
        layout.tooDeep = deepest_ > kDeepestTree;
        layout.namesProject = namesProject_;
        return layout;
    }

  private:
    bool ReadHeader() {
        const unsigned shift = U16At(bytes_, 0x1E);
        if (bytes_.size() < kHeaderBytes || (shift != 9 && shift != 12) || U16At(bytes_, 0x20) != 6) return false;
        if (U32At(bytes_, 0x38) != kMiniStreamCutoff) return false;
        sectorBytes_ = std::size_t{1} << shift;
        // A last sector that is cut short counts: its bytes may be all that is needed.
        sectors_ = (bytes_.size() + sectorBytes_ - 1) / sectorBytes_ - 1;
        const std::uint32_t table = U32At(bytes_, 0x2C), miniTable = U32At(bytes_, 0x40), extra = U32At(bytes_, 0x48);
        return table <= sectors_ && miniTable <= sectors_ && extra <= sectors_;
    }

    std::size_t OffsetOf(std::uint64_t sector) const { return (sector + 1) * sectorBytes_; }

    // The sectors that hold the allocation table: the first 109 are named in the header, the rest in a chain.
    bool ReadTableSectors() {
        const std::uint32_t count = U32At(bytes_, 0x2C);
        for (std::size_t i = 0; i < kHeaderTableSectors && tableSectors_.size() < count; ++i) {
            tableSectors_.push_back(U32At(bytes_, 0x4C + 4 * i));
        }
        std::uint32_t sector = U32At(bytes_, 0x44);
        const std::size_t perSector = sectorBytes_ / 4 - 1;
        for (std::uint32_t left = U32At(bytes_, 0x48); left > 0 && sector < sectors_; --left) {
            for (std::size_t i = 0; i < perSector && tableSectors_.size() < count; ++i) {
                tableSectors_.push_back(U32At(bytes_, OffsetOf(sector) + 4 * i));
            }
            sector = U32At(bytes_, OffsetOf(sector) + 4 * perSector);
        }
        return tableSectors_.size() == count;
    }

    std::uint32_t Next(std::uint32_t sector) const {
        const std::size_t perSector = sectorBytes_ / 4;
        const std::size_t index = sector / perSector;
        if (index >= tableSectors_.size() || tableSectors_[index] >= sectors_) return kFree;
        return U32At(bytes_, OffsetOf(tableSectors_[index]) + 4 * (sector % perSector));
    }

    std::uint64_t HighestUsedSector() const {
        std::uint64_t highest = 0;
        const std::size_t perSector = sectorBytes_ / 4;
        for (std::size_t i = 0; i < tableSectors_.size(); ++i) {
            if (tableSectors_[i] <= kHighestSector && tableSectors_[i] > highest) highest = tableSectors_[i];
            if (tableSectors_[i] >= sectors_) continue;
            for (std::size_t k = perSector; k > 0; --k) {
                if (U32At(bytes_, OffsetOf(tableSectors_[i]) + 4 * (k - 1)) == kFree) continue;
                const std::uint64_t used = i * perSector + k - 1;
                if (used > highest) highest = used;
                break;
            }
        }
        return highest;
    }

    std::size_t CountEntries() const { return directory_.size() * (sectorBytes_ / kEntryBytes); }

    std::string_view EntryAt(std::size_t index) const {
        const std::size_t perSector = sectorBytes_ / kEntryBytes;
        return BytesAt(bytes_, OffsetOf(directory_[index / perSector]) + kEntryBytes * (index % perSector),
                       kEntryBytes);
    }

    // The library never lets go of what hangs beside the root.
    bool RootStandsAlone() const {
        const std::string_view root = EntryAt(0);
        return U32At(root, 0x44) == kFree && U32At(root, 0x48) == kFree;
    }

    // Also measures the depth of the directory, and looks for the names of a project.
    bool IsTangled() {
        std::vector<bool> reached(CountEntries());
        struct Waiting {
            std::uint32_t index;
            std::uint32_t depth;
        };
        std::vector<Waiting> waiting{{0, 1}};
        while (!waiting.empty()) {
            const auto [index, depth] = waiting.back();
            waiting.pop_back();
            if (index == kFree) continue;
            deepest_ = std::max(deepest_, depth);
            if (index >= reached.size() || reached[index]) return namesProject_ = true;
            reached[index] = true;
            // Its neighbours on the left and right and, for a storage, the top of what is below it.
            const std::string_view entry = EntryAt(index);
            waiting.insert(waiting.end(), {{U32At(entry, 0x44), depth + 1}, {U32At(entry, 0x48), depth + 1}});
            if (U8At(entry, 0x42) != kStreamEntry) waiting.push_back({U32At(entry, 0x4C), depth + 1});
        }
        for (std::size_t index = 0; index < reached.size(); ++index) {
            if (!BelongsToProject(EntryAt(index))) continue;
            namesProject_ = true;
            if (!reached[index]) return true;
        }
        return false;
    }

    // A storage "VBA" or a stream "dir", in any case of letters.
    static bool BelongsToProject(std::string_view entry) {
        const auto is = [&](std::string_view name) {
            for (std::size_t i = 0; i < name.size(); ++i) {
                if ((U16At(entry, 2 * i) | 0x20) != name[i]) return false;
            }
            return U16At(entry, 2 * name.size()) == 0;
        };
        const std::uint8_t type = U8At(entry, 0x42);
        return (type == kStorageEntry && is("vba")) || (type == kStreamEntry && is("dir"));
    }

    std::string_view bytes_;
    std::size_t sectorBytes_ = 512;
    std::uint64_t sectors_ = 0;
    std::vector<std::uint32_t> tableSectors_;
    std::vector<std::uint32_t> directory_;
    std::uint32_t deepest_ = 0;
    bool namesProject_ = false;
};

}  // namespace

CompoundLayout MeasureCompoundFile(std::string_view bytes) {
    return Measurer(bytes).Measure();
}

void RequireFewEntries(std::uint64_t entries, const std::string& path, const Limits& limits) {
    if (entries <= limits.storageEntries) return;
    Fail(ReadFailure::Limit,
         "„[%1]“ enthält mehr als [%2] Speicher und Datenströme; --max-storage-entries hebt die Grenze an.",
         "“[%1]” holds more than [%2] storages and streams; --max-storage-entries raises the limit.",
         {path, std::to_string(limits.storageEntries)});
}

}  // namespace zentlor::readers
