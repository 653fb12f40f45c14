#pragma once

#include <memory>

#include "core/utilities/text.h"

namespace zentlor {

/// A text that never changes and that its copies share.
class SharedText {
  public:
    SharedText() = default;
    SharedText(TextView text) {
        if (!text.empty()) text_ = std::make_shared<const Text>(text);
    }
    SharedText(const Text& text) : SharedText(TextView(text)) {}
    SharedText(const char16_t* text) : SharedText(TextView(text)) {}

    operator TextView() const { return text_ ? TextView(*text_) : TextView(); }
    bool empty() const { return !text_; }

    /// Gives up its own copy of the text if `other` holds the same.
    void ShareWith(const SharedText& other) {
        if (IsSame(*this, other)) text_ = other.text_;
    }

    friend bool operator==(const SharedText& a, const SharedText& b) { return IsSame(a, b); }
    friend bool operator==(const SharedText& a, TextView b) { return IsSame(a, b); }
    friend bool operator==(const SharedText& a, const Text& b) { return IsSame(a, b); }
    friend bool operator==(const SharedText& a, const char16_t* b) { return IsSame(a, b); }

  private:
    std::shared_ptr<const Text> text_;  // null for an empty text
};

}  // namespace zentlor
