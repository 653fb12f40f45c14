#pragma once

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <string>
#include <vector>

#include "core/checks/catalogue.h"
#include "core/utilities/text.h"

namespace zentlor {

/// What a check hands over, and what a row shows. The text is finished, in the language of its moment.
struct Hint {
    Text strNameVBC;
    Text strProzedur;
    Text strHinweis;
    int lngZeile = 0;  ///< 0: the hint belongs to no line
    CheckId check{};
    int component = -1;  ///< position in the project, counted from 0; -1 for a hint about the editor. No row shows it.

    friend bool operator==(const Hint&, const Hint&) = default;
};

/// Hints in order of emission, each packed as what differs from the one in front of it: mostly a name and a line. So
/// the hints of a document stay small beside it, even if its code is nothing but findings.
class HintSequence {
  private:
    // Hints that are unpacked from the first one on; a hint is found by unpacking those in front of it.
    struct Block {
        std::size_t first = 0;  // the number of its first hint
        std::string bytes;
        std::size_t firstBytes = 0;  // those of its first hint

        bool IsFull() const;
    };

  public:
    std::size_t size() const { return size_; }
    bool empty() const { return size_ == 0; }
    /// The hint number `index`, which is below size(). It takes the time of some ten; a walk is for many of them.
    Hint operator[](std::size_t index) const { return *At(index); }

    void Add(const Hint& hint);
    void Clear() { *this = HintSequence(); }

    /// Unpacks one hint after the other. What it gives holds until its next step, and it until the next Add.
    class Iterator {
      public:
        using iterator_category = std::input_iterator_tag;
        using difference_type = std::ptrdiff_t;
        using value_type = Hint;
        using pointer = const Hint*;
        using reference = const Hint&;

        Iterator() = default;
        /// At the first hint, or behind all if there is none.
        explicit Iterator(const std::vector<Block>& blocks);
        /// Behind all.
        explicit Iterator(std::size_t size) : index_(size) {}
        reference operator*() const { return hint_; }
        pointer operator->() const { return &hint_; }
        Iterator& operator++();
        Iterator operator++(int) {
            Iterator before = *this;
            ++*this;
            return before;
        }
        /// Goes to the hint number `index`, which is below the size of the sequence. Quick if it is close behind.
        void GoTo(std::size_t index);
        friend bool operator==(const Iterator& a, const Iterator& b) { return a.index_ == b.index_; }

      private:
        void Enter(std::size_t block);
        void Unpack();

        const std::vector<Block>* blocks_ = nullptr;
        std::size_t block_ = 0;
        std::size_t position_ = 0;  // behind the hint, in the bytes of the block
        std::size_t index_ = 0;
        std::uint32_t repetitions_ = 0;  // of the hint that are still to come
        Hint hint_;
    };

    Iterator begin() const { return Iterator(blocks_); }
    Iterator end() const { return Iterator(size_); }
    /// At the hint number `index`, which is below size().
    Iterator At(std::size_t index) const {
        Iterator place = begin();
        place.GoTo(index);
        return place;
    }

  private:
    void Repeat();

    std::vector<Block> blocks_;
    std::size_t size_ = 0;
    Hint last_;
    std::size_t repetition_ = 0;  // where the last block counts how often its last hint repeats; 0 if it does not
};

}  // namespace zentlor
