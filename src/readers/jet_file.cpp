// A database is a row of pages of one size. Page 0 tells the generation and, behind a veil with a key that is always
// the same, the code page and the key of the other pages. A data page names the definition of the table that owns it,
// so one pass over the file finds the pages of every table.

#include "readers/jet_file.h"

#include <algorithm>
#include <limits>

#include "readers/byte_reader.h"
#include "readers/jet_rc4.h"

namespace zentlor::readers {

namespace {

constexpr std::size_t kHeaderStart = 0x18;
constexpr std::size_t kCodePageAt = 0x3C;
constexpr std::size_t kPageKeyAt = 0x3E;
constexpr std::size_t kEncryptionInfoSizeAt = 0x299;
constexpr std::uint8_t kDataPage = 1;
constexpr std::uint16_t kHidden = 0x8000;
constexpr std::uint16_t kPointer = 0x4000;
constexpr std::uint16_t kOffsetMask = 0x1FFF;
constexpr std::uint64_t kBudgetTimes = 4;
constexpr std::uint64_t kSmallFileBudget = 1 << 16;
/// What a step costs besides its bytes, so that many small rows are not many cheap ones.
constexpr std::uint64_t kStepCost = 64;

JetGeneration GenerationOf(int versionByte) {
    if (versionByte == 0) return JetGeneration::Jet3;
    return versionByte == 1 ? JetGeneration::Jet4 : JetGeneration::Ace;
}

std::uint64_t RowCountAt(JetGeneration generation) {
    return generation == JetGeneration::Jet3 ? 8 : 12;
}

}  // namespace

bool JetFile::Recognises(std::string_view bytes) {
    const std::string_view signature = BytesAt(bytes, 4, 15);
    return signature == "Standard Jet DB" || signature == "Standard ACE DB";
}

JetFile::JetFile(std::string_view bytes) : bytes_(bytes) {
    versionByte_ = U8At(bytes, 0x14);
    generation_ = GenerationOf(versionByte_);
    pageSize_ = IsJet3() ? 2048 : 4096;
    budget_ = kBudgetTimes * bytes.size() + kSmallFileBudget;
    DecodeHeader();
    if (!needsPassword_) IndexDataPages();
}

void JetFile::DecodeHeader() {
    std::string header(bytes_.substr(0, std::min<std::size_t>(bytes_.size(), kHeaderStart + (IsJet3() ? 126 : 128))));
    if (header.size() > kHeaderStart) {
        Rc4("\xC7\xDA\x39\x6B").Apply(header.data() + kHeaderStart, header.size() - kHeaderStart);
    }
    codePage_ = U16At(header, kCodePageAt);
    if (generation_ == JetGeneration::Ace) {
        needsPassword_ = U16At(bytes_, kEncryptionInfoSizeAt) != 0;
        return;
    }
    const std::uint32_t key = U32At(header, kPageKeyAt);
    if (key != 0) DecodePages(key);
}

void JetFile::DecodePages(std::uint32_t key) {
    decoded_.assign(bytes_);
    for (std::uint32_t number = 1; number < PageCount(); ++number) {
        const std::uint32_t pageKey = key ^ number;
        const std::string keyBytes{static_cast<char>(pageKey), static_cast<char>(pageKey >> 8),
                                   static_cast<char>(pageKey >> 16), static_cast<char>(pageKey >> 24)};
        const std::size_t start = std::size_t{number} * pageSize_;
        Rc4(keyBytes).Apply(decoded_.data() + start, std::min<std::size_t>(pageSize_, decoded_.size() - start));
    }
    bytes_ = decoded_;
}

void JetFile::IndexDataPages() {
    for (std::uint32_t number = 1; number < PageCount(); ++number) {
        const std::string_view page = Page(number);
        if (U8At(page, 0) != kDataPage) continue;
        const std::uint32_t owner = U32At(page, 4);
        if (owner < PageCount()) dataPages_.emplace_back(owner, number);
    }
    std::ranges::sort(dataPages_);
}

std::uint32_t JetFile::PageCount() const {
    const std::uint64_t pages = (std::uint64_t{bytes_.size()} + pageSize_ - 1) / pageSize_;
    return static_cast<std::uint32_t>(std::min<std::uint64_t>(pages, std::numeric_limits<std::uint32_t>::max()));
}

std::string_view JetFile::Page(std::uint32_t number) const {
    return BytesAt(bytes_, std::uint64_t{number} * pageSize_, pageSize_);
}

std::vector<std::uint32_t> JetFile::DataPages(std::uint32_t definition) const {
    std::vector<std::uint32_t> pages;
    auto place = std::ranges::lower_bound(dataPages_, std::pair{definition, std::uint32_t{0}});
    for (; place != dataPages_.end() && place->first == definition; ++place) pages.push_back(place->second);
    return pages;
}

std::uint32_t JetFile::RowCount(std::string_view page) const {
    const std::uint64_t countAt = RowCountAt(generation_);
    if (page.size() < countAt + 2) return 0;
    return static_cast<std::uint32_t>(std::min<std::uint64_t>(U16At(page, countAt), (page.size() - countAt - 2) / 2));
}

std::optional<JetSlot> JetFile::Slot(std::string_view page, std::uint32_t row) const {
    if (row >= RowCount(page)) return std::nullopt;
    const std::uint64_t at = RowCountAt(generation_) + 2 + 2 * std::uint64_t{row};
    const std::uint16_t entry = U16At(page, at);
    const std::uint32_t start = entry & kOffsetMask;
    const std::uint32_t end = row == 0 ? pageSize_ : U16At(page, at - 2) & kOffsetMask;
    if (start > end || end > page.size()) return std::nullopt;
    return JetSlot{page.substr(start, end - start), (entry & kHidden) != 0, (entry & kPointer) != 0};
}

std::optional<std::string_view> JetFile::Follow(std::uint32_t pointer) {
    const std::string_view page = Page(pointer >> 8);
    if (page.size() < pageSize_) damage_.missingPages = true;
    const auto slot = Slot(page, pointer & 0xFF);
    if (!slot || U8At(page, 0) != kDataPage) {
        damage_.brokenRows = true;
        return std::nullopt;
    }
    const std::uint64_t cost = slot->bytes.size() + kStepCost;
    if (cost > budget_) {
        damage_.endlessChain = true;
        return std::nullopt;
    }
    budget_ -= cost;
    return slot->bytes;
}

}  // namespace zentlor::readers
