// A hint is packed as a byte that names the fields in which it differs from the hint in front of it, and these fields:
// numbers in groups of seven bits, the lowest first, as differences; texts as the length of what they begin and what
// they end with in common, and the characters in between. Hints that repeat are counted.

#include "core/results/hint_sequence.h"

#include <algorithm>

namespace zentlor {

namespace {

enum Field : unsigned char { kModule = 1, kProcedure = 2, kText = 4, kLine = 8, kCheck = 16, kComponent = 32 };
// In place of the fields: how often the hint in front repeats, in kCountBytes bytes, so that it can be counted on.
constexpr unsigned char kRepetition = 0x80;
constexpr std::size_t kCountBytes = 4;
constexpr std::size_t kBlockBytes = 1024;

void Put(std::size_t number, std::string& bytes) {
    for (; number > 0x7F; number >>= 7) bytes += static_cast<char>(number | 0x80);
    bytes += static_cast<char>(number);
}

// Small differences give small numbers, whatever their sign.
void PutDifference(int now, int before, std::string& bytes) {
    const std::int64_t difference = std::int64_t{now} - before;
    Put(static_cast<std::size_t>(difference < 0 ? -2 * difference - 1 : 2 * difference), bytes);
}

void PutText(TextView now, TextView before, std::string& bytes) {
    const std::size_t shorter = std::min(now.size(), before.size());
    const auto begin = static_cast<std::size_t>(
        std::mismatch(now.begin(), now.begin() + static_cast<std::ptrdiff_t>(shorter), before.begin()).first -
        now.begin());
    const auto end = static_cast<std::size_t>(
        std::mismatch(now.rbegin(), now.rbegin() + static_cast<std::ptrdiff_t>(shorter - begin), before.rbegin())
            .first -
        now.rbegin());
    Put(begin, bytes);
    Put(end, bytes);
    Put(now.size() - begin - end, bytes);
    for (const char16_t c : now.substr(begin, now.size() - begin - end)) Put(c, bytes);
}

class Reader {
  public:
    Reader(const std::string& bytes, std::size_t& position) : bytes_(bytes), position_(position) {}

    unsigned char Byte() { return static_cast<unsigned char>(bytes_[position_++]); }
    std::size_t Number() {
        std::size_t number = 0;
        for (int shift = 0;; shift += 7) {
            const std::size_t byte = Byte();
            number |= (byte & 0x7F) << shift;
            if (byte <= 0x7F) return number;
        }
    }
    std::uint32_t Count() {
        std::uint32_t count = 0;
        for (std::size_t i = 0; i < kCountBytes; ++i) count |= std::uint32_t{Byte()} << (8 * i);
        return count;
    }
    void Difference(int& value) {
        const std::size_t number = Number();
        const auto half = static_cast<int>(number / 2);
        value += number % 2 == 0 ? half : -half - 1;
    }
    void PatchText(Text& text) {
        const std::size_t begin = Number();
        const std::size_t end = Number();
        const std::size_t length = Number();
        text.replace(begin, text.size() - begin - end, length, u' ');
        for (std::size_t i = 0; i < length; ++i) text[begin + i] = static_cast<char16_t>(Number());
    }

  private:
    const std::string& bytes_;
    std::size_t& position_;
};

}  // namespace

void HintSequence::Add(const Hint& hint) {
    if (size_ > 0 && hint == last_) {
        Repeat();
    } else {
        if (blocks_.empty() || blocks_.back().IsFull()) {
            blocks_.push_back({size_, {}, 0});
            last_ = {};
        }
        std::string& bytes = blocks_.back().bytes;
        const std::size_t fields = bytes.size();
        bytes += '\0';
        const auto note = [&](Field field) { bytes[fields] = static_cast<char>(bytes[fields] | field); };
        const auto putText = [&](Field field, const Text& now, const Text& before) {
            if (now == before) return;
            note(field);
            PutText(now, before, bytes);
        };
        const auto putNumber = [&](Field field, int now, int before) {
            if (now == before) return;
            note(field);
            PutDifference(now, before, bytes);
        };
        putText(kModule, hint.strNameVBC, last_.strNameVBC);
        putText(kProcedure, hint.strProzedur, last_.strProzedur);
        putText(kText, hint.strHinweis, last_.strHinweis);
        putNumber(kLine, hint.lngZeile, last_.lngZeile);
        putNumber(kCheck, static_cast<int>(hint.check), static_cast<int>(last_.check));
        putNumber(kComponent, hint.component, last_.component);
        last_ = hint;
        repetition_ = 0;
        if (fields == 0) blocks_.back().firstBytes = bytes.size();
    }
    ++size_;
}

// The first hint of a block is there whole. It may be large, and then has others behind it that are worth it.
bool HintSequence::Block::IsFull() const {
    return bytes.size() - firstBytes >= std::max(kBlockBytes, firstBytes);
}

void HintSequence::Repeat() {
    std::string& bytes = blocks_.back().bytes;
    if (repetition_ == 0) {
        bytes += static_cast<char>(kRepetition);
        repetition_ = bytes.size();
        bytes.append(kCountBytes, '\0');
    }
    for (std::size_t i = repetition_; ++bytes[i] == 0; ++i) {
    }
}

HintSequence::Iterator::Iterator(const std::vector<Block>& blocks) : blocks_(&blocks) {
    if (!blocks.empty()) Enter(0);
}

HintSequence::Iterator& HintSequence::Iterator::operator++() {
    ++index_;
    if (repetitions_ > 0) {
        --repetitions_;
    } else if (position_ < (*blocks_)[block_].bytes.size()) {
        Unpack();
    } else if (block_ + 1 < blocks_->size()) {
        Enter(block_ + 1);
    }
    return *this;
}

void HintSequence::Iterator::GoTo(std::size_t index) {
    const auto behind = std::upper_bound(blocks_->begin(), blocks_->end(), index,
                                         [](std::size_t wanted, const Block& block) { return wanted < block.first; });
    const auto block = static_cast<std::size_t>(behind - blocks_->begin()) - 1;
    if (block != block_ || index < index_) Enter(block);
    while (index_ < index) ++*this;
}

void HintSequence::Iterator::Enter(std::size_t block) {
    block_ = block;
    index_ = (*blocks_)[block].first;
    position_ = 0;
    repetitions_ = 0;
    hint_ = {};
    Unpack();
}

void HintSequence::Iterator::Unpack() {
    Reader reader((*blocks_)[block_].bytes, position_);
    const unsigned char fields = reader.Byte();
    if ((fields & kRepetition) != 0) {
        repetitions_ = reader.Count() - 1;
        return;
    }
    if ((fields & kModule) != 0) reader.PatchText(hint_.strNameVBC);
    if ((fields & kProcedure) != 0) reader.PatchText(hint_.strProzedur);
    if ((fields & kText) != 0) reader.PatchText(hint_.strHinweis);
    if ((fields & kLine) != 0) reader.Difference(hint_.lngZeile);
    if ((fields & kCheck) != 0) {
        int check = static_cast<int>(hint_.check);
        reader.Difference(check);
        hint_.check = static_cast<CheckId>(check);
    }
    if ((fields & kComponent) != 0) reader.Difference(hint_.component);
}

}  // namespace zentlor
