#pragma once

// The blocks that are open in a procedure, the innermost last.

#include <array>
#include <vector>

#include "vba/token.h"

namespace zentlor::vba {

enum class BlockKind : std::uint8_t { If, For, Do, While, With, Select };
inline constexpr std::size_t kBlockKinds = 6;

struct Block {
    BlockKind kind = BlockKind::If;
    const Token* opener = nullptr;
    const Token* variable = nullptr;  ///< The name that a `For` counts, if it is a plain one.
    bool mayStayOpen = false;         ///< An `If` that is a block or a single line, nobody can say which.
    bool hasCase = false;             ///< A `Select` has met its first `Case`.
    bool hasElse = false;             ///< An `If` has met its `Else`.
};

class BlockStack {
  public:
    void Open(const Block& block);
    /// Null if no block is open.
    Block* Innermost() { return blocks_.empty() ? nullptr : &blocks_.back(); }
    int CountOf(BlockKind kind) const { return counts_[static_cast<std::size_t>(kind)]; }
    void Clear();

    /// What `Find` came across.
    struct Search {
        bool isFound = false;
        const Token* notClosed = nullptr;  ///< The opener of the first block that should have been closed before.
    };
    /// Makes the innermost block of that kind the innermost of all, by dropping what lies within.
    Search Find(BlockKind kind);
    /// Closes the innermost block, which has just been found.
    void Close();
    /// Drops the innermost block if it is an `If` whose `End If` went to a block that needs none. False if it is not.
    bool DropEnded();
    /// Drops everything. The answer names the innermost block that should have been closed.
    const Token* CloseAll();
    /// True if a closing word without its block is the consequence of something noted before.
    bool Forgive(BlockKind kind);
    /// Drops the innermost block, if there is one, because something that was noted stands for its closing word.
    void DropInnermost();

  private:
    bool Drop();

    std::vector<Block> blocks_;
    std::array<int, kBlockKinds> counts_{};
    std::array<int, kBlockKinds> forgiven_{};
    int spareEnds_ = 0;  ///< How many `End If` went to blocks that need none.
};

}  // namespace zentlor::vba
