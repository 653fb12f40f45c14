// All bytes above ASCII have to go together as the code page wants it, which text of single bytes hardly ever does:
// there the last letter of a word stands in front of a blank. Besides there must be a sign that Windows-1252 is not
// meant.

#include "readers/double_byte.h"

#include <cstddef>

namespace zentlor::readers {
namespace {

constexpr bool IsIn(unsigned char byte, int first, int last) {
    return byte >= first && byte <= last;
}

class Bytes {
  public:
    explicit Bytes(std::string_view bytes) : bytes_(bytes) {}
    std::size_t size() const { return bytes_.size(); }
    // 0 behind the end.
    unsigned char operator[](std::size_t at) const {
        return at < bytes_.size() ? static_cast<unsigned char>(bytes_[at]) : 0;
    }

  private:
    std::string_view bytes_;
};

// Brackets and the like, which stand behind no letter.
bool IsOddAscii(unsigned char byte) {
    return IsIn(byte, 0x5B, 0x5E) || byte == 0x60 || IsIn(byte, 0x7B, 0x7E);
}

// Neither a letter of Western Europe nor one of the quotation marks, dashes and points that stand next to each other.
bool IsOddUpper(unsigned char byte) {
    const bool isMark = byte == 0x82 || byte == 0x84 || byte == 0x85 || byte == 0x8B || IsIn(byte, 0x91, 0x97) ||
                        byte == 0x9B || byte == 0xA0 || byte == 0xAB || byte == 0xBB || byte == 0xBF;
    return IsIn(byte, 0x80, 0xBE) && !isMark;
}

// Bytes that Windows-1252 does not assign, pairs that are kana or full-width letters, and kanji for which Windows-1252
// has a dash, a quotation mark or a rare letter and next to it something that does not go with it: no letter, as the
// French have it in "l’été".
bool IsJapaneseSign(unsigned char lead, unsigned char trail) {
    switch (lead) {
        case 0x81:
        case 0x8D:
        case 0x8F:
        case 0x90:
        case 0x9D:
            return true;
        case 0x82:
            return IsIn(trail, 0x4F, 0x9A) || IsIn(trail, 0x9F, 0xF1);
        case 0x83:
            return IsIn(trail, 0x40, 0x96);
        default:
            return IsIn(lead, 0x88, 0x9F) && (IsOddAscii(trail) || IsOddUpper(trail));
    }
}

// Without the places for characters of one's own: there lie the "ö" and the "ü" of Windows-1252.
bool IsJapanesePair(unsigned char lead, unsigned char trail) {
    if (lead == 0xFC) return IsIn(trail, 0x40, 0x4B);
    const bool isLead = IsIn(lead, 0x81, 0x9F) || IsIn(lead, 0xE0, 0xEF) || IsIn(lead, 0xFA, 0xFB);
    return isLead && (IsIn(trail, 0x40, 0x7E) || IsIn(trail, 0x80, 0xFC));
}

bool IsJapanese(const Bytes& bytes) {
    bool hasSign = false;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        const bool isAlone = bytes[i] < 0x80 || IsIn(bytes[i], 0xA1, 0xDF);
        if (isAlone) continue;
        const unsigned char lead = bytes[i];
        const unsigned char trail = bytes[++i];
        if (!IsJapanesePair(lead, trail)) return false;
        hasSign = hasSign || IsJapaneseSign(lead, trail);
    }
    return hasSign;
}

// What Windows-1252 has for these first bytes are signs such as "¤" and "¶", two of which hardly meet.
constexpr std::size_t kChineseSigns = 2;

int GuessChinese(const Bytes& bytes) {
    std::size_t pairs = 0;
    std::size_t asciiTrails = 0;
    std::size_t signs = 0;
    std::size_t endOfSign = 0;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        if (bytes[i] < 0x80) continue;
        const unsigned char lead = bytes[i];
        const unsigned char trail = bytes[++i];
        const bool isAsciiTrail = IsIn(trail, 0x40, 0x7E);
        if (!IsIn(lead, 0xA1, 0xF9) || !(isAsciiTrail || IsIn(trail, 0xA1, 0xFE))) return 0;
        ++pairs;
        if (isAsciiTrail) ++asciiTrails;
        if (!IsIn(lead, 0xA4, 0xC6)) continue;
        if (endOfSign == i - 1) ++signs;
        endOfSign = i + 1;
    }
    // Without a second byte in ASCII each byte is a letter either way.
    if (signs < kChineseSigns || asciiTrails == 0) return 0;
    constexpr std::size_t kRareInSimplified = 8;
    return asciiTrails * kRareInSimplified < pairs ? 936 : 950;
}

}  // namespace

int GuessDoubleBytePage(std::string_view bytes) {
    if (IsJapanese(Bytes(bytes))) return 932;
    return GuessChinese(Bytes(bytes));
}

}  // namespace zentlor::readers
