// Open addressing over a power of two. An entry counts only if it bears the table's present generation.

#include "vba/parser_names.h"

namespace zentlor::vba {
namespace {

constexpr std::size_t kFirstSize = 64;

// FNV-1a over the characters in lower case.
std::uint32_t HashOf(TextView name) {
    std::uint32_t hash = 2166136261u;
    for (const char16_t c : name) hash = (hash ^ FoldCase(c)) * 16777619u;
    return hash;
}

}  // namespace

ScopeNames::ScopeNames(TextView text) : text_(text), entries_(kFirstSize) {}

ScopeNames::Entry* ScopeNames::Slot(TextView name, std::uint32_t hash) {
    const std::size_t mask = entries_.size() - 1;
    for (std::size_t i = hash & mask;; i = (i + 1) & mask) {
        Entry& entry = entries_[i];
        if (!IsUsed(entry)) return &entry;
        if (entry.hash == hash && EqualIgnoringCase(entry.name, name)) return &entry;
    }
}

ScopeNames::Entry* ScopeNames::Find(TextView name) {
    Entry* entry = Slot(name, HashOf(name));
    return IsUsed(*entry) ? entry : nullptr;
}

ScopeNames::Entry* ScopeNames::Enter(const Token& token, std::uint32_t kinds) {
    const TextView name = NameOf(token, text_);
    const std::uint32_t hash = HashOf(name);
    Entry* entry = Slot(name, hash);
    if (IsUsed(*entry)) return entry;
    *entry = {name, &token, kinds, hash, generation_};
    if (++count_ * 2 > entries_.size()) Grow();
    return nullptr;
}

void ScopeNames::Clear() {
    ++generation_;
    count_ = 0;
}

void ScopeNames::Grow() {
    std::vector<Entry> old(entries_.size() * 2);
    old.swap(entries_);
    for (const Entry& entry : old) {
        if (IsUsed(entry)) *Slot(entry.name, entry.hash) = entry;
    }
}

}  // namespace zentlor::vba
