// One missing word must not be noted twice: a block that was dropped open is remembered, so that its closing word, if
// it comes later, is let through.

#include "vba/parser_blocks.h"

namespace zentlor::vba {

void BlockStack::Open(const Block& block) {
    blocks_.push_back(block);
    ++counts_[static_cast<std::size_t>(block.kind)];
}

void BlockStack::Clear() {
    blocks_.clear();
    counts_.fill(0);
    forgiven_.fill(0);
    spareEnds_ = 0;
}

// Drops the innermost block before its closing word was met; False if that is a fault.
bool BlockStack::Drop() {
    const Block block = blocks_.back();
    blocks_.pop_back();
    --counts_[static_cast<std::size_t>(block.kind)];
    ++forgiven_[static_cast<std::size_t>(block.kind)];
    if (block.mayStayOpen) return true;
    if (block.kind != BlockKind::If || spareEnds_ == 0) return false;
    --spareEnds_;
    return true;
}

BlockStack::Search BlockStack::Find(BlockKind kind) {
    Search search;
    if (CountOf(kind) == 0) return search;
    search.isFound = true;
    while (blocks_.back().kind != kind) {
        const Token* opener = blocks_.back().opener;
        if (!Drop() && search.notClosed == nullptr) search.notClosed = opener;
    }
    return search;
}

void BlockStack::Close() {
    const Block block = blocks_.back();
    blocks_.pop_back();
    --counts_[static_cast<std::size_t>(block.kind)];
    if (block.mayStayOpen) ++spareEnds_;
}

bool BlockStack::DropEnded() {
    const bool hasEnded = blocks_.back().kind == BlockKind::If && !blocks_.back().mayStayOpen && spareEnds_ > 0;
    return hasEnded && Drop();
}

const Token* BlockStack::CloseAll() {
    const Token* notClosed = nullptr;
    while (!blocks_.empty()) {
        const Token* opener = blocks_.back().opener;
        if (!Drop() && notClosed == nullptr) notClosed = opener;
    }
    return notClosed;
}

bool BlockStack::Forgive(BlockKind kind) {
    int& count = forgiven_[static_cast<std::size_t>(kind)];
    if (count == 0) return false;
    --count;
    return true;
}

void BlockStack::DropInnermost() {
    if (!blocks_.empty()) Drop();
}

}  // namespace zentlor::vba
