#pragma once

// The names of one scope, found in any capitalisation. Clearing costs nothing, so one table serves all procedures of a
// module one after the other.

#include <cstdint>
#include <vector>

#include "core/utilities/text.h"
#include "vba/token.h"

namespace zentlor::vba {

class ScopeNames {
  public:
    struct Entry {
        const Token* token = nullptr;
        std::uint32_t kinds = 0;  ///< The caller's bits.
        std::uint32_t hash = 0;
    };

    explicit ScopeNames(TextView text);

    /// What is entered of `token`: its name, or the value of a line number, for which 010 is 10.
    TextView KeyOf(const Token& token) const;

    /// The entry of that name, or null. Valid until the next name is entered.
    Entry* Find(TextView name);
    /// Enters the name of `token`. If it is there already nothing is entered, and that entry is the answer; else null.
    Entry* Enter(const Token& token, std::uint32_t kinds = 0);
    void Clear();

  private:
    // Holds an entry if it bears the table's present generation.
    struct Slot {
        std::uint32_t entry = 0;
        std::uint32_t generation = 0;
    };

    Slot& SlotOf(TextView name, std::uint32_t hash);
    void Grow();

    TextView text_;
    std::vector<Entry> entries_;
    std::vector<Slot> slots_;
    std::uint32_t generation_ = 1;
};

}  // namespace zentlor::vba
