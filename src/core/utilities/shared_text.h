#pragma once

#include <cstdint>
#include <memory>
#include <utility>

#include "core/utilities/text.h"

namespace zentlor {

/// A text that never changes and that its copies share: no larger than a pointer. Copies that are made and destroyed by
/// several threads at once must not share one text.
class SharedText {
  public:
    SharedText() = default;
    SharedText(TextView text) : text_(text.empty() ? nullptr : Make(text)) {}
    SharedText(const Text& text) : SharedText(TextView(text)) {}
    SharedText(const char16_t* text) : SharedText(TextView(text)) {}
    SharedText(const SharedText& other) noexcept : text_(other.text_) {
        if (text_ != nullptr) ++text_->owners;
    }
    SharedText(SharedText&& other) noexcept : text_(std::exchange(other.text_, nullptr)) {}
    SharedText& operator=(SharedText other) noexcept {
        std::swap(text_, other.text_);
        return *this;
    }
    ~SharedText() {
        if (text_ != nullptr && --text_->owners == 0) ::operator delete(text_);
    }

    operator TextView() const { return text_ == nullptr ? TextView() : TextView(CharactersOf(text_), text_->length); }
    bool empty() const { return text_ == nullptr; }

    /// Gives up its own copy of the text if `other` holds the same.
    void ShareWith(const SharedText& other) {
        if (text_ != other.text_ && IsSame(*this, other)) *this = other;
    }

    friend bool operator==(const SharedText& a, const SharedText& b) { return a.text_ == b.text_ || IsSame(a, b); }
    friend bool operator==(const SharedText& a, TextView b) { return IsSame(a, b); }
    friend bool operator==(const SharedText& a, const Text& b) { return IsSame(a, b); }
    friend bool operator==(const SharedText& a, const char16_t* b) { return IsSame(a, b); }

  private:
    // The characters lie behind it.
    struct Block {
        std::uint32_t owners;
        std::uint32_t length;
    };
    static_assert(sizeof(Block) % alignof(char16_t) == 0);

    static char16_t* CharactersOf(Block* block) { return reinterpret_cast<char16_t*>(block + 1); }
    static Block* Make(TextView text) {
        void* memory = ::operator new(sizeof(Block) + text.size() * sizeof(char16_t));
        Block* block = new (memory) Block{1, static_cast<std::uint32_t>(text.size())};
        std::uninitialized_copy(text.begin(), text.end(), CharactersOf(block));
        return block;
    }

    Block* text_ = nullptr;  // null for an empty text
};

}  // namespace zentlor
