#pragma once

// The words of a project, found once: the tokenizer, the names and the word index all go on from here.

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "core/utilities/text.h"
#include "core/utilities/text_store.h"

namespace zentlor {

/// The characters of which words are made here: the ASCII letters and digits, "_", and the German letters. All of them
/// continue a word for a whole-word search and for the use search alike, so that the runs of these characters answer
/// both; the characters in which the two differ lie beside a run, and the searches look at them there.
inline constexpr std::array<bool, 256> kIndexCharacters = [] {
    std::array<bool, 256> table{};
    for (std::size_t c = u'0'; c <= u'9'; ++c) table[c] = true;
    for (std::size_t c = u'A'; c <= u'Z'; ++c) table[c] = table[c + 32] = true;
    for (const char16_t c : TextView(u"_ßäÄöÖüÜ")) table[c] = true;
    return table;
}();
inline bool IsIndexCharacter(char16_t c) {
    return c < kIndexCharacters.size() && kIndexCharacters[c];
}

/// The number of no word.
inline constexpr std::uint32_t kNoWord = 0xFFFFFFFF;

/// A place where a word begins in a module's text, in characters from its start, and the word's number.
struct WordPlace {
    std::uint32_t offset = 0;
    std::uint32_t number = 0;
};

/// A word at the start of a text, as far as it goes, and its number or `kNoWord`.
struct LeadingWord {
    std::size_t length = 0;  ///< 0: the text begins with no word
    std::uint32_t number = kNoWord;
};

/// A word that ends in some letters.
struct WordWithEnding {
    std::uint32_t number = 0;
    std::uint32_t lead = 0;  ///< characters in front of the ending
};

/// The different words of a project. They bear numbers from 0, in the order in which they were met; case counts.
class WordTable {
  public:
    WordTable() : slots_(1024) {}

    /// How many different words there are.
    std::uint32_t Size() const { return static_cast<std::uint32_t>(keys_.size()); }

    /// The number of a word, or `kNoWord`.
    std::uint32_t Find(TextView word) const;

    /// The word with which `target` begins.
    LeadingWord FindLeading(TextView target) const;

    /// All words that end in `ending`, which has characters of the index only. Goes through the whole table.
    std::vector<WordWithEnding> EndingIn(TextView ending) const;

    /// The words of a text in order: every run of characters of the index that is as long as it can be. Words that the
    /// table does not hold yet are added. Linear in the text, which has less than 2^32 characters. Comes back before
    /// the text's end if the table has grown to `most` words.
    std::vector<WordPlace> Read(TextView text, std::uint32_t most = kNoWord);

  private:
    static constexpr std::size_t kPacked = 16;
    static constexpr std::uint32_t kUsed = 0x80000000;  // set in every hash, so that none is that of a free slot

    // The characters of a word with one byte each, the first one lowest. Words of kPacked characters or more have their
    // place in `longWords_` and kLong.
    struct Key {
        std::uint64_t low = 0;
        std::uint64_t high = 0;

        friend bool operator==(const Key&, const Key&) = default;
    };
    // Small, so that the slots of many words stay near. A hash that fits leads to the key.
    struct Slot {
        std::uint32_t hash = 0;
        std::uint32_t number = kNoWord;
    };

    static constexpr std::uint64_t kLong = ~std::uint64_t{0};  // no character of a word is 255

    static Key KeyOf(TextView word);
    Text SpellingOf(std::uint32_t number) const;
    char16_t LastCharacterOf(std::uint32_t number) const;
    static std::uint32_t HashOf(Key key, TextView word);
    bool Holds(Slot slot, std::uint32_t hash, Key key, TextView word) const;
    std::size_t SlotOf(std::uint32_t hash, Key key, TextView word) const;

    std::uint32_t NumberOf(Key key, TextView word);
    std::uint32_t Enter(std::size_t slot, std::uint32_t hash, Key key, TextView word);
    void Grow();

    std::vector<Slot> slots_;  // open addressing, a power of two
    std::vector<Key> keys_;    // by number
    std::vector<TextView> longWords_;
    TextStore store_;  // of the long words
};

}  // namespace zentlor
