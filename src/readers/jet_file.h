#pragma once

// The pages of a Jet or ACE database in memory: Jet 3 (Access 97), Jet 4 (2000 to 2003) and ACE (2007 to today),
// encoded ones included. Nothing here trusts the file: what lies outside of it is not there, and following pointers in
// circles ends when the budget is used up.

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace zentlor::readers {

enum class JetGeneration { Jet3, Jet4, Ace };

/// What was found wrong while reading. Each is the fault of the file, and what it cost is missing from the result.
struct JetDamage {
    bool missingPages = false;  ///< the file names pages behind its end: it was cut off
    bool brokenRows = false;    ///< rows, values or definitions that contradict themselves
    bool missingRows = false;   ///< a table has fewer rows than it says; sound files are known to miscount, too
    bool endlessChain = false;  ///< more was referred to than the file can hold: chains that lead back to themselves
};

/// A row of a data page.
struct JetSlot {
    std::string_view bytes;
    bool hidden = false;   ///< deleted, or the target of another row's pointer
    bool pointer = false;  ///< `bytes` hold the place of the row that is meant
};

class JetFile {
  public:
    /// Whether `bytes` begins as a Jet or ACE database does.
    static bool Recognises(std::string_view bytes);

    /// `bytes` must outlive the file. Reads any bytes; what is wrong with them shows when pages are asked for.
    explicit JetFile(std::string_view bytes);
    JetFile(const JetFile&) = delete;
    JetFile& operator=(const JetFile&) = delete;

    JetGeneration Generation() const { return generation_; }
    bool IsJet3() const { return generation_ == JetGeneration::Jet3; }
    /// The byte that tells the generation: 0 Jet 3, 1 Jet 4, 2 … ACE 2007 and later.
    int VersionByte() const { return versionByte_; }
    /// The code page of the texts in a Jet 3 database.
    int CodePage() const { return codePage_; }
    /// ACE with a database password: no page but the first can be read without it.
    bool NeedsPassword() const { return needsPassword_; }
    std::uint32_t PageSize() const { return pageSize_; }
    std::size_t FileBytes() const { return bytes_.size(); }

    /// The number of pages, a last one that is cut off included.
    std::uint32_t PageCount() const;
    /// Page `number`, shorter if the file ends in it, empty if it lies behind the end.
    std::string_view Page(std::uint32_t number) const;
    /// The data pages whose rows belong to the table defined on page `definition`, in the file's order.
    std::vector<std::uint32_t> DataPages(std::uint32_t definition) const;

    /// The number of rows that data page `page` can really hold, whatever it says.
    std::uint32_t RowCount(std::string_view page) const;
    /// Row `row` of `page`, or nothing if its place contradicts the page.
    std::optional<JetSlot> Slot(std::string_view page, std::uint32_t row) const;
    /// The bytes of the row that `pointer` (page << 8 | row) names; its marks are ignored. Takes its size from the
    /// budget, and reports damage if it gives nothing.
    std::optional<std::string_view> Follow(std::uint32_t pointer);

    JetDamage& Damage() { return damage_; }

  private:
    void DecodeHeader();
    void DecodePages(std::uint32_t key);
    void IndexDataPages();

    std::string_view bytes_;
    /// The whole file without its veil, if it is encoded; then `bytes_` looks at it.
    std::string decoded_;
    JetGeneration generation_ = JetGeneration::Jet4;
    int versionByte_ = 0;
    int codePage_ = 0;
    bool needsPassword_ = false;
    std::uint32_t pageSize_ = 0;
    /// (page of the owner's definition, data page), sorted.
    std::vector<std::pair<std::uint32_t, std::uint32_t>> dataPages_;
    /// How much may still be reached through pointers. A sound file points at each of its bytes about once.
    std::uint64_t budget_ = 0;
    JetDamage damage_;
};

}  // namespace zentlor::readers
