// A compressed container is the byte 1 and a row of chunks. A chunk is a 16-bit header and up to 4096 bytes once
// unpacked: either as they are, or as groups of eight tokens behind a byte of flags, a token being a byte or the order
// to repeat bytes of the same chunk. How many bits of such a copy token are distance and how many are length depends on
// how far into its chunk it stands.

#include "readers/ovba_decompress.h"

#include <algorithm>

#include "readers/byte_reader.h"

namespace zentlor::readers {
namespace {

constexpr std::size_t kChunkBytes = 4096;
constexpr unsigned kChunkSignature = 3;

bool IsChunkHeader(std::uint16_t header) {
    return (header >> 12 & 7) == kChunkSignature;
}

// How many bits of a copy token hold the distance, `position` bytes into the chunk.
unsigned DistanceBits(std::size_t position) {
    unsigned bits = 4;
    while ((std::size_t{1} << bits) < position) ++bits;
    return bits;
}

// Appends what `token` repeats. False if it reaches out of the chunk, which begins at `start`.
bool Copy(std::uint16_t token, std::size_t start, std::string& out) {
    const std::size_t position = out.size() - start;
    const unsigned bits = DistanceBits(position);
    const std::size_t distance = (token >> (16 - bits)) + 1u;
    const std::size_t length = (token & (0xFFFFu >> bits)) + 3u;
    if (distance > position || position + length > kChunkBytes) return false;
    // Byte by byte, since a copy may repeat what it has just written.
    for (std::size_t i = 0; i < length; ++i) out.push_back(out[out.size() - distance]);
    return true;
}

bool UnpackTokens(std::string_view data, std::string& out) {
    const std::size_t start = out.size();
    for (std::size_t i = 0; i < data.size();) {
        const unsigned flags = U8At(data, i++);
        for (unsigned bit = 0; bit < 8 && i < data.size(); ++bit) {
            if ((flags >> bit & 1) == 0) {
                if (out.size() - start == kChunkBytes) return false;
                out.push_back(data[i++]);
                continue;
            }
            if (i + 1 >= data.size() || !Copy(U16At(data, i), start, out)) return false;
            i += 2;
        }
    }
    return true;
}

}  // namespace

Decompressed DecompressContainer(std::string_view container, std::uint64_t maximum) {
    Decompressed result;
    const auto endAt = [&](DecompressEnd end) {
        result.end = end;
        return std::move(result);
    };
    if (container.empty() || container.front() != 1) return endAt(DecompressEnd::NoContainer);
    std::size_t at = 1;
    while (at + 2 <= container.size() && IsChunkHeader(U16At(container, at))) {
        const std::uint16_t header = U16At(container, at);
        const std::size_t size = (header & 0x0FFFu) + 1u;
        const std::string_view data = BytesAt(container, at + 2, size);
        const bool compressed = (header & 0x8000u) != 0;
        if (!compressed) result.bytes += data.substr(0, kChunkBytes);
        const bool sound = !compressed || UnpackTokens(data, result.bytes);
        if (result.bytes.size() > maximum) {
            result.bytes.resize(maximum);
            return endAt(DecompressEnd::Limit);
        }
        if (data.size() < size) return endAt(DecompressEnd::Truncated);
        if (!sound) return endAt(DecompressEnd::BadToken);
        at += 2 + size;
    }
    const bool noChunk = at == 1 && container.size() >= 3;
    return endAt(noChunk ? DecompressEnd::NoContainer : DecompressEnd::Complete);
}

}  // namespace zentlor::readers
