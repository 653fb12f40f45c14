// A table's definition is a chain of pages that, put together, lists the columns and then their names. Its rows stand
// in the data pages that name the definition. The definition also names a map of the pages that the table owns, and
// that is how a file that was cut off gives itself away: the map still knows the pages that are gone.

#include "readers/jet_table.h"

#include <algorithm>
#include <string>

#include "core/utilities/encoding.h"
#include "readers/byte_reader.h"

namespace zentlor::readers {

namespace {

constexpr std::uint8_t kDefinitionPage = 2;
constexpr std::uint64_t kDefinitionHead = 8;
constexpr std::uint8_t kFixedFlag = 1;

/// Where the parts of a definition lie in one generation; bytes from the start of the definition or of an entry.
struct DefinitionLayout {
    std::uint64_t rowCount;
    std::uint64_t columnCount;
    std::uint64_t indexCount;
    std::uint64_t ownedPages;
    std::uint64_t entries;
    std::uint64_t indexSize;
    std::uint64_t entrySize;
    std::uint64_t number;
    std::uint64_t variableIndex;
    std::uint64_t flags;
    std::uint64_t fixedOffset;
    std::uint64_t length;
};
constexpr DefinitionLayout kJet3Layout{0x0C, 0x19, 0x1F, 0x23, 0x2B, 8, 18, 1, 3, 13, 14, 16};
constexpr DefinitionLayout kJet4Layout{0x10, 0x2D, 0x33, 0x37, 0x3F, 12, 25, 5, 7, 15, 21, 23};

/// The chain of definition pages from `page` on in one piece; empty if one of them is no definition page.
std::string JoinDefinition(JetFile& file, std::uint32_t page) {
    std::string definition;
    for (std::uint32_t steps = 0; page != 0; ++steps) {
        const std::string_view bytes = file.Page(page);
        if (bytes.empty()) file.Damage().missingPages = true;
        if (steps >= file.PageCount()) file.Damage().endlessChain = true;
        if (U8At(bytes, 0) != kDefinitionPage || steps >= file.PageCount()) return {};
        definition.append(steps == 0 ? bytes : BytesAt(bytes, kDefinitionHead, bytes.size()));
        page = U32At(bytes, 4);
    }
    return definition;
}

JetColumn ParseColumn(std::string_view entry, const DefinitionLayout& layout) {
    JetColumn column;
    column.type = U8At(entry, 0);
    column.number = U16At(entry, layout.number);
    column.variableIndex = U16At(entry, layout.variableIndex);
    column.fixed = (U8At(entry, layout.flags) & kFixedFlag) != 0;
    column.fixedOffset = U16At(entry, layout.fixedOffset);
    column.length = U16At(entry, layout.length);
    return column;
}

/// Whether one of `bits`, the first of which stands for page `firstPage`, is set for a page at or behind `pageCount`.
bool NamesPageBehindEnd(std::string_view bits, std::uint64_t firstPage, std::uint64_t pageCount) {
    const std::uint64_t known = pageCount > firstPage ? pageCount - firstPage : 0;
    for (std::uint64_t byte = known / 8; byte < bits.size(); ++byte) {
        const auto value = static_cast<unsigned>(U8At(bits, byte));
        const unsigned behind = byte == known / 8 ? value >> (known % 8) : value;
        if (behind != 0) return true;
    }
    return false;
}

/// The same for a whole map of pages. A short map holds its bits itself; a long one names the pages that hold them.
bool MapNamesPageBehindEnd(const JetFile& file, std::string_view map) {
    if (U8At(map, 0) == 0) return NamesPageBehindEnd(BytesAt(map, 5, map.size()), U32At(map, 1), file.PageCount());
    std::uint64_t firstPage = 0;
    for (std::uint64_t at = 1; at + 4 <= map.size(); at += 4) {
        const std::uint32_t number = U32At(map, at);
        if (number >= file.PageCount()) return true;
        const std::string_view bits = number == 0 ? std::string_view{} : BytesAt(file.Page(number), 4, file.PageSize());
        if (NamesPageBehindEnd(bits, firstPage, file.PageCount())) return true;
        firstPage += (std::uint64_t{file.PageSize()} - 4) * 8;
    }
    return false;
}

}  // namespace

std::optional<JetRow> JetRow::Parse(std::string_view bytes, JetGeneration generation) {
    JetRow row(bytes, generation);
    const bool jet3 = generation == JetGeneration::Jet3;
    row.columns_ = jet3 ? U8At(bytes, 0) : U16At(bytes, 0);
    row.maskBytes_ = (row.columns_ + 7) / 8;
    const std::uint64_t head = jet3 ? 1 : 2;
    const std::uint64_t countSize = head;
    if (bytes.size() < head + row.maskBytes_ + countSize) return std::nullopt;
    const std::uint64_t countAt = bytes.size() - row.maskBytes_ - countSize;
    row.variableColumns_ = jet3 ? U8At(bytes, countAt) : U16At(bytes, countAt);
    const std::uint64_t jumps = jet3 ? (bytes.size() - 1) / 256 : 0;
    const std::uint64_t table = jumps + (row.variableColumns_ + std::uint64_t{1}) * countSize;
    if (countAt < head + table) return std::nullopt;
    return row;
}

bool JetRow::IsNull(std::uint32_t number) const {
    if (number >= columns_) return true;
    return (U8At(bytes_, bytes_.size() - maskBytes_ + number / 8) >> (number % 8) & 1) == 0;
}

// Jet 4 keeps offsets of two bytes. Jet 3 keeps one byte each, and a jump table names the values at which the offset
// passes another 256; its last entry is a dummy where the offsets themselves push the values back under the limit.
std::uint32_t JetRow::VariableOffset(std::uint32_t index) const {
    const std::size_t length = bytes_.size();
    if (generation_ != JetGeneration::Jet3) return U16At(bytes_, length - maskBytes_ - 4 - 2 * std::size_t{index});
    std::size_t jumps = (length - 1) / 256;
    const std::size_t base = length - maskBytes_ - 2 - jumps;
    if ((base - variableColumns_) / 256 < jumps) --jumps;
    std::uint32_t offset = U8At(bytes_, base - index);
    for (std::size_t jump = 0; jump < jumps; ++jump) {
        if (index < U8At(bytes_, length - maskBytes_ - 2 - jump)) break;
        offset += 256;
    }
    return offset;
}

std::optional<std::string_view> JetRow::Value(const JetColumn& column) const {
    if (IsNull(column.number)) return std::nullopt;
    if (column.fixed) {
        const std::uint64_t start = (generation_ == JetGeneration::Jet3 ? 1 : 2) + std::uint64_t{column.fixedOffset};
        if (start + column.length > bytes_.size()) return std::nullopt;
        return bytes_.substr(start, column.length);
    }
    if (column.variableIndex >= variableColumns_) return std::nullopt;
    const std::uint32_t start = VariableOffset(column.variableIndex);
    const std::uint32_t end = VariableOffset(column.variableIndex + 1);
    if (start > end || end > bytes_.size()) return std::nullopt;
    return bytes_.substr(start, end - start);
}

std::optional<JetTable> JetTable::Open(JetFile& file, std::uint32_t page) {
    JetTable table(file, page);
    if (!table.ReadColumns(JoinDefinition(file, page))) {
        file.Damage().brokenRows = true;
        return std::nullopt;
    }
    return table;
}

bool JetTable::ReadColumns(std::string_view definition) {
    const bool jet3 = file_->IsJet3();
    const DefinitionLayout& layout = jet3 ? kJet3Layout : kJet4Layout;
    ownedPages_ = U32At(definition, layout.ownedPages);
    rowCount_ = U32At(definition, layout.rowCount);
    const std::uint64_t count = U16At(definition, layout.columnCount);
    const std::uint64_t entries = layout.entries + layout.indexSize * U32At(definition, layout.indexCount);
    if (count == 0 || entries + count * layout.entrySize > definition.size()) return false;
    std::uint64_t nameAt = entries + count * layout.entrySize;
    for (std::uint64_t i = 0; i < count; ++i) {
        JetColumn column = ParseColumn(definition.substr(entries + i * layout.entrySize, layout.entrySize), layout);
        const std::uint64_t head = jet3 ? 1 : 2;
        const std::uint64_t nameBytes = jet3 ? U8At(definition, nameAt) : U16At(definition, nameAt);
        if (nameAt + head + nameBytes > definition.size()) return false;
        const std::string_view name = BytesAt(definition, nameAt + head, nameBytes);
        // The columns that are asked for have plain names in every code page.
        column.name = jet3 ? FromWindows1252(name) : FromUtf16Le(name);
        nameAt += head + nameBytes;
        columns_.push_back(std::move(column));
    }
    return true;
}

const JetColumn* JetTable::Column(TextView name) const {
    const auto place = std::ranges::find(columns_, name, &JetColumn::name);
    return place == columns_.end() ? nullptr : &*place;
}

void JetTable::CheckOwnedPages() const {
    if (ownedPages_ == 0) return;
    const auto map = file_->Follow(ownedPages_);
    if (map && MapNamesPageBehindEnd(*file_, *map)) file_->Damage().missingPages = true;
}

// True for a row that was there, or should have been.
bool JetTable::VisitSlot(const JetSlot& slot, const std::function<void(const JetRow&)>& visit) const {
    if (slot.hidden) return false;
    std::optional<std::string_view> bytes = slot.bytes;
    if (slot.pointer) bytes = file_->Follow(U32At(slot.bytes, 0));
    const auto row = bytes ? JetRow::Parse(*bytes, file_->Generation()) : std::nullopt;
    if (row) {
        visit(*row);
    } else {
        file_->Damage().brokenRows = true;
    }
    return true;
}

void JetTable::ForEachRow(const std::function<void(const JetRow&)>& visit) const {
    CheckOwnedPages();
    std::uint32_t rows = 0;
    for (const std::uint32_t number : file_->DataPages(page_)) {
        const std::string_view page = file_->Page(number);
        for (std::uint32_t row = 0; row < file_->RowCount(page); ++row) {
            const auto slot = file_->Slot(page, row);
            if (!slot) file_->Damage().brokenRows = true;
            if (slot && VisitSlot(*slot, visit)) ++rows;
        }
    }
    if (rows < rowCount_) file_->Damage().missingRows = true;
}

}  // namespace zentlor::readers
