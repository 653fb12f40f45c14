// Open addressing over a power of two; it is half full at most.

#include "vba/parser_names.h"

namespace zentlor::vba {
namespace {

constexpr std::size_t kFirstSlots = 64;

// FNV-1a over the characters in lower case.
std::uint32_t HashOf(TextView name) {
    std::uint32_t hash = 2166136261u;
    for (const char16_t c : name) hash = (hash ^ FoldCase(c)) * 16777619u;
    return hash;
}

}  // namespace

ScopeNames::ScopeNames(TextView text) : text_(text), slots_(kFirstSlots) {}

TextView ScopeNames::KeyOf(const Token& token) const {
    TextView key = NameOf(token, text_);
    while (token.Is(TokenKind::Integer) && key.size() > 1 && key.front() == u'0') key.remove_prefix(1);
    return key;
}

// The slot of the name, or the free one where it belongs.
ScopeNames::Slot& ScopeNames::SlotOf(TextView name, std::uint32_t hash) {
    const std::size_t mask = slots_.size() - 1;
    for (std::size_t i = hash & mask;; i = (i + 1) & mask) {
        Slot& slot = slots_[i];
        if (slot.generation != generation_) return slot;
        const Entry& entry = entries_[slot.entry];
        if (entry.hash == hash && EqualIgnoringCase(KeyOf(*entry.token), name)) return slot;
    }
}

ScopeNames::Entry* ScopeNames::Find(TextView name) {
    const Slot& slot = SlotOf(name, HashOf(name));
    return slot.generation == generation_ ? &entries_[slot.entry] : nullptr;
}

ScopeNames::Entry* ScopeNames::Enter(const Token& token, std::uint32_t kinds) {
    const TextView name = KeyOf(token);
    const std::uint32_t hash = HashOf(name);
    Slot& slot = SlotOf(name, hash);
    if (slot.generation == generation_) return &entries_[slot.entry];
    slot = {static_cast<std::uint32_t>(entries_.size()), generation_};
    entries_.push_back({&token, kinds, hash});
    if (2 * entries_.size() > slots_.size()) Grow();
    return nullptr;
}

void ScopeNames::Clear() {
    ++generation_;
    entries_.clear();
}

void ScopeNames::Grow() {
    slots_.assign(2 * slots_.size(), {});
    const std::size_t mask = slots_.size() - 1;
    for (std::size_t entry = 0; entry < entries_.size(); ++entry) {
        std::size_t i = entries_[entry].hash & mask;
        while (slots_[i].generation == generation_) i = (i + 1) & mask;
        slots_[i] = {static_cast<std::uint32_t>(entry), generation_};
    }
}

}  // namespace zentlor::vba
