#include "core/utilities/encoding.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>

namespace zentlor {

namespace {

constexpr char16_t kReplacement = 0xFFFD;

// Windows-1252 differs from Latin-1 in these 32 places only; the five that it leaves unassigned stand for themselves.
constexpr std::array<char16_t, 32> kUpperControls = {0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                                     0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                                     0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                                     0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

unsigned char ByteAt(std::string_view bytes, std::size_t i) {
    return static_cast<unsigned char>(bytes[i]);
}

bool IsHighSurrogate(char16_t c) {
    return (c & 0xFC00) == 0xD800;
}
bool IsLowSurrogate(char16_t c) {
    return (c & 0xFC00) == 0xDC00;
}

struct CodePoint {
    std::uint32_t value = 0;
    std::size_t length = 0;  ///< bytes it takes; 0: not well-formed
};

CodePoint DecodeOne(std::string_view bytes, std::size_t i) {
    const unsigned char lead = ByteAt(bytes, i);
    if (lead < 0x80) return {lead, 1};
    const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
    if (lead < 0xC2 || lead > 0xF4 || i + length > bytes.size()) return {};
    std::uint32_t value = lead & (0x7FU >> length);
    for (std::size_t k = 1; k < length; ++k) {
        const unsigned char next = ByteAt(bytes, i + k);
        if ((next & 0xC0) != 0x80) return {};
        value = value << 6 | (next & 0x3F);
    }
    const bool overlong = (length == 3 && value < 0x800) || (length == 4 && value < 0x10000);
    const bool surrogate = value >= 0xD800 && value <= 0xDFFF;
    if (overlong || surrogate || value > 0x10FFFF) return {};
    return {value, length};
}

void Append(Text& text, std::uint32_t codePoint) {
    if (codePoint < 0x10000) {
        text.push_back(static_cast<char16_t>(codePoint));
        return;
    }
    text.push_back(static_cast<char16_t>(0xD7C0 + (codePoint >> 10)));
    text.push_back(static_cast<char16_t>(0xDC00 + (codePoint & 0x3FF)));
}

std::size_t AsciiRun(std::string_view bytes, std::size_t from) {
    constexpr std::uint64_t kHighBits = 0x8080808080808080;
    for (std::uint64_t eight; from + sizeof eight <= bytes.size(); from += sizeof eight) {
        std::memcpy(&eight, bytes.data() + from, sizeof eight);
        if ((eight & kHighBits) != 0) break;
    }
    while (from < bytes.size() && static_cast<unsigned char>(bytes[from]) < 0x80) ++from;
    return from;
}

// The shared loop: plain ASCII is copied in runs, and `onMalformed` says whether to go on behind a malformed byte.
template <class OnMalformed>
bool Decode(std::string_view bytes, Text& text, OnMalformed onMalformed) {
    text.reserve(bytes.size());
    for (std::size_t i = 0; i < bytes.size();) {
        const std::size_t ascii = AsciiRun(bytes, i);
        text.append(bytes.begin() + static_cast<std::ptrdiff_t>(i), bytes.begin() + static_cast<std::ptrdiff_t>(ascii));
        i = ascii;
        if (i == bytes.size()) break;
        const CodePoint point = DecodeOne(bytes, i);
        if (point.length == 0 && !onMalformed()) return false;
        Append(text, point.length == 0 ? kReplacement : point.value);
        i += std::max<std::size_t>(point.length, 1);
    }
    return true;
}

}  // namespace

void AppendUtf8(TextView text, std::string& out) {
    const auto isAscii = [](char16_t c) { return c < 0x80; };
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto from = text.begin() + static_cast<std::ptrdiff_t>(i);
        const auto plain = static_cast<std::size_t>(std::find_if_not(from, text.end(), isAscii) - from);
        out.resize(out.size() + plain);
        std::transform(from, from + static_cast<std::ptrdiff_t>(plain), out.end() - static_cast<std::ptrdiff_t>(plain),
                       [](char16_t c) { return static_cast<char>(c); });
        i += plain;
        if (i == text.size()) return;
        std::uint32_t c = text[i];
        if (IsHighSurrogate(text[i]) && i + 1 < text.size() && IsLowSurrogate(text[i + 1])) {
            c = 0x10000 + ((c & 0x3FF) << 10) + (text[++i] & 0x3FFU);
        } else if ((c & 0xF800) == 0xD800) {
            c = kReplacement;
        }
        const int continuation = c < 0x800 ? 1 : c < 0x10000 ? 2 : 3;
        constexpr std::array<unsigned, 4> kLead = {0, 0xC0, 0xE0, 0xF0};
        out.push_back(static_cast<char>(kLead[static_cast<std::size_t>(continuation)] | c >> (6 * continuation)));
        for (int shift = 6 * (continuation - 1); shift >= 0; shift -= 6) {
            out.push_back(static_cast<char>(0x80 | (c >> shift & 0x3F)));
        }
    }
}

std::string ToUtf8(TextView text) {
    std::string out;
    out.reserve(text.size());
    AppendUtf8(text, out);
    return out;
}

std::optional<Text> FromUtf8Strict(std::string_view bytes) {
    Text text;
    if (!Decode(bytes, text, [] { return false; })) return std::nullopt;
    return text;
}

Text FromUtf8(std::string_view bytes) {
    Text text;
    Decode(bytes, text, [] { return true; });
    return text;
}

Text FromUtf16Le(std::string_view bytes) {
    Text text(bytes.size() / 2, u'\0');
    for (std::size_t i = 0; i < text.size(); ++i) {
        text[i] = static_cast<char16_t>(ByteAt(bytes, 2 * i) | ByteAt(bytes, 2 * i + 1) << 8);
    }
    return text;
}

Text FromUtf16Be(std::string_view bytes) {
    Text text(bytes.size() / 2, u'\0');
    for (std::size_t i = 0; i < text.size(); ++i) {
        text[i] = static_cast<char16_t>(ByteAt(bytes, 2 * i) << 8 | ByteAt(bytes, 2 * i + 1));
    }
    return text;
}

Text FromWindows1252(std::string_view bytes) {
    // All but the upper control characters have the number of their byte. A piece at a time, by loops without a branch:
    // compilers turn them into vector instructions.
    std::array<char16_t, 1024> piece;
    Text text;
    text.reserve(bytes.size());
    for (std::size_t begin = 0; begin < bytes.size(); begin += piece.size()) {
        const std::size_t length = std::min(piece.size(), bytes.size() - begin);
        unsigned char controls = 0;
        for (std::size_t i = 0; i < length; ++i) {
            const unsigned char byte = ByteAt(bytes, begin + i);
            piece[i] = byte;
            controls = static_cast<unsigned char>(controls | ((byte & 0xE0) == 0x80));
        }
        for (std::size_t i = 0; controls != 0 && i < length; ++i) {
            if (piece[i] >= 0x80 && piece[i] < 0xA0) piece[i] = kUpperControls[piece[i] - 0x80U];
        }
        text.append(piece.data(), length);
    }
    return text;
}

std::string ToWindows1252(TextView text, int* lost) {
    std::string bytes;
    bytes.reserve(text.size());
    int missing = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char16_t c = text[i];
        if (c < 0x80 || (c >= 0xA0 && c < 0x100)) {
            bytes.push_back(static_cast<char>(c));
            continue;
        }
        const auto place = std::find(kUpperControls.begin(), kUpperControls.end(), c);
        if (place != kUpperControls.end()) {
            bytes.push_back(static_cast<char>(0x80 + (place - kUpperControls.begin())));
            continue;
        }
        bytes.push_back('?');
        ++missing;
        if (IsHighSurrogate(c) && i + 1 < text.size() && IsLowSurrogate(text[i + 1])) ++i;
    }
    if (lost != nullptr) *lost = missing;
    return bytes;
}

}  // namespace zentlor
