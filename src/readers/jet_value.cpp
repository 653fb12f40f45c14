// A long value is its row's own tail, one row elsewhere, or a chain of rows that each begin with the place of the next.
// The claimed length is never a reason to take memory: bytes are appended as they are found.

#include "readers/jet_value.h"

#include <algorithm>

#include "core/utilities/encoding.h"
#include "readers/byte_reader.h"
#include "readers/code_page.h"

namespace zentlor::readers {

namespace {

constexpr std::size_t kHeadBytes = 12;
/// 255 characters, the most that a text column takes.
constexpr std::size_t kMostTextBytes = 510;
constexpr std::uint32_t kInRow = 0x80000000;
constexpr std::uint32_t kOneRow = 0x40000000;
constexpr std::uint32_t kLengthMask = 0x3FFFFFFF;

/// Takes in text that begins FF FE: single bytes of Latin-1, until a zero byte switches to pairs, and the next one
/// back.
Text ExpandCompressedText(std::string_view value) {
    Text text;
    bool pairs = false;
    for (std::size_t at = 2; at < value.size();) {
        if (U8At(value, at) == 0) {
            pairs = !pairs;
            ++at;
        } else if (pairs) {
            text.push_back(static_cast<char16_t>(U16At(value, at)));
            at += 2;
        } else {
            text.push_back(static_cast<char16_t>(U8At(value, at)));
            ++at;
        }
    }
    return text;
}

void AppendChain(std::uint32_t pointer, JetFile& file, std::uint64_t wanted, std::string& bytes) {
    while (pointer != 0 && bytes.size() < wanted) {
        const auto row = file.Follow(pointer);
        if (!row) return;
        pointer = U32At(*row, 0);
        bytes.append(BytesAt(*row, 4, wanted - bytes.size()));
    }
}

}  // namespace

Text JetText(std::string_view value, const JetFile& file) {
    value = value.substr(0, kMostTextBytes);
    if (file.IsJet3()) return DecodeCodePage(value, file.CodePage()).text;
    return value.substr(0, 2) == "\xFF\xFE" ? ExpandCompressedText(value) : FromUtf16Le(value);
}

std::string JetLongValue(std::string_view head, JetFile& file, std::uint64_t maximum, bool* damaged) {
    const std::uint32_t control = U32At(head, 0);
    const std::uint64_t wanted = std::min<std::uint64_t>(control & kLengthMask, maximum);
    std::string bytes;
    if ((control & kInRow) != 0) {
        bytes = BytesAt(head, kHeadBytes, wanted);
    } else if ((control & kOneRow) != 0) {
        const auto row = file.Follow(U32At(head, 4));
        if (row) bytes = BytesAt(*row, 0, wanted);
    } else {
        AppendChain(U32At(head, 4), file, wanted, bytes);
    }
    if (bytes.size() < wanted) {
        file.Damage().brokenRows = true;
        if (damaged) *damaged = true;
    }
    return bytes;
}

}  // namespace zentlor::readers
