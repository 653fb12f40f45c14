// Names in ASCII, nearly all of them, are hashed four characters at a time with the bit set that tells small letters
// from capitals; names with other letters are folded first. The spelling that a name has in the table is compared
// first, since it is nearly always the one that was asked for. Letters are kept in their narrow form: the editor turns
// full-width letters into ASCII ones.

#include "vba/spelling_table.h"

#include <algorithm>
#include <cstring>

#include "vba/characters.h"

namespace zentlor::vba {
namespace {

constexpr std::size_t kFirstSlots = 4096;
constexpr std::uint64_t kCaseBits = 0x0020002000200020;
constexpr std::uint64_t kWideBits = 0xFF80FF80FF80FF80;

char16_t Fold(char16_t c) {
    return FoldCase(FoldWidth(c));
}

bool EqualFolded(TextView a, TextView b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](char16_t x, char16_t y) { return Fold(x) == Fold(y); });
}

std::uint64_t Mix(std::uint64_t hash, std::uint64_t part) {
    hash = (hash ^ part) * 0x9E3779B97F4A7C15;
    return hash ^ (hash >> 29);
}

// `wide` receives a bit for each character outside of ASCII.
std::uint64_t HashNarrow(TextView name, std::uint64_t& wide) {
    std::uint64_t hash = name.size();
    std::size_t i = 0;
    std::uint64_t part = 0;
    for (; i + 4 <= name.size(); i += 4) {
        std::memcpy(&part, name.data() + i, sizeof part);
        wide |= part & kWideBits;
        hash = Mix(hash, part | kCaseBits);
    }
    part = 0;
    for (; i < name.size(); ++i) part = part << 16 | name[i];
    wide |= part & kWideBits;
    return Mix(hash, part | kCaseBits);
}

std::uint32_t HashName(TextView name) {
    std::uint64_t wide = 0;
    const std::uint64_t hash = HashNarrow(name, wide);
    if (wide == 0) return static_cast<std::uint32_t>(hash);
    Text folded(name);
    std::transform(folded.begin(), folded.end(), folded.begin(), Fold);
    return static_cast<std::uint32_t>(HashNarrow(folded, wide));
}

}  // namespace

SpellingTable::SpellingTable() : slots_(kFirstSlots) {}

std::uint32_t SpellingTable::Add(TextView name, NameRank rank) {
    const std::uint32_t hash = HashName(name);
    const std::size_t slot = FindSlot(name, hash);
    if (slots_[slot] == 0) {
        const TextView kept = spellings_.Keep(name, FoldWidth);
        entries_.push_back({kept, hash, rank, kept != name});
        slots_[slot] = static_cast<std::uint32_t>(entries_.size());
        if (entries_.size() * 2 > slots_.size()) Grow();
        return static_cast<std::uint32_t>(entries_.size() - 1);
    }
    const std::uint32_t number = slots_[slot] - 1;
    Entry& entry = entries_[number];
    const bool isSame = IsSame(entry.spelling, name);
    if (!isSame) entry.varies = true;
    if (rank > entry.rank) {
        entry.rank = rank;
        if (!isSame) entry.spelling = spellings_.Keep(name, FoldWidth);
    }
    return number;
}

TextView SpellingTable::SpellingOf(TextView name) const {
    const std::uint32_t slot = slots_[FindSlot(name, HashName(name))];
    return slot == 0 ? name : entries_[slot - 1].spelling;
}

bool SpellingTable::Holds(TextView name) const {
    return slots_[FindSlot(name, HashName(name))] != 0;
}

// The slot of the name, or the free one where it belongs.
std::size_t SpellingTable::FindSlot(TextView name, std::uint32_t hash) const {
    const std::size_t mask = slots_.size() - 1;
    std::size_t slot = hash & mask;
    for (; slots_[slot] != 0; slot = (slot + 1) & mask) {
        const Entry& entry = entries_[slots_[slot] - 1];
        if (entry.hash == hash && (IsSame(entry.spelling, name) || EqualFolded(entry.spelling, name))) break;
    }
    return slot;
}

void SpellingTable::Grow() {
    std::vector<std::uint32_t> larger(slots_.size() * 2);
    const std::size_t mask = larger.size() - 1;
    for (std::size_t i = 0; i < entries_.size(); ++i) {
        std::size_t slot = entries_[i].hash & mask;
        while (larger[slot] != 0) slot = (slot + 1) & mask;
        larger[slot] = static_cast<std::uint32_t>(i + 1);
    }
    slots_ = std::move(larger);
}

}  // namespace zentlor::vba
