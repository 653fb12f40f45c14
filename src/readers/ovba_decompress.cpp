// A compressed container is the byte 1 and a row of chunks. A chunk is a 16-bit header and up to 4096 bytes once
// unpacked: either as they are, or as groups of eight tokens behind a byte of flags, a token being a byte or the order
// to repeat bytes of the same chunk. How many bits of such a copy token are distance and how many are length depends on
// how far into its chunk it stands.

#include "readers/ovba_decompress.h"

#include <algorithm>
#include <bit>
#include <cstring>

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
    return std::max(4u, static_cast<unsigned>(std::bit_width(position - 1)));
}

// One chunk while it is unpacked. Behind its end is room for what is written eight bytes at a time.
class Chunk {
  public:
    // False where a token makes no sense; what came before it is there.
    bool Unpack(std::string_view data) {
        for (std::size_t i = 0; i < data.size();) {
            const unsigned flags = U8At(data, i++);
            if (flags == 0 && i + kGroup <= data.size() && filled_ + kGroup <= kChunkBytes) {
                std::memcpy(bytes_ + filled_, data.data() + i, kGroup);
                filled_ += kGroup;
                i += kGroup;
                continue;
            }
            if (!UnpackGroup(flags, data, i)) return false;
        }
        return true;
    }

    std::string_view Bytes() const { return {bytes_, filled_}; }

  private:
    static constexpr std::size_t kGroup = 8;

    bool UnpackGroup(unsigned flags, std::string_view data, std::size_t& i) {
        for (unsigned bit = 0; bit < kGroup && i < data.size(); ++bit) {
            if ((flags >> bit & 1) == 0) {
                if (filled_ == kChunkBytes) return false;
                bytes_[filled_++] = data[i++];
                continue;
            }
            if (i + 1 >= data.size() || !Copy(U16At(data, i))) return false;
            i += 2;
        }
        return true;
    }

    // Repeats what `token` says. False if it reaches out of the chunk.
    bool Copy(std::uint16_t token) {
        if (filled_ == 0) return false;
        const unsigned bits = DistanceBits(filled_);
        const std::size_t distance = (token >> (16 - bits)) + 1u;
        const std::size_t length = (token & (0xFFFFu >> bits)) + 3u;
        if (distance > filled_ || filled_ + length > kChunkBytes) return false;
        char* to = bytes_ + filled_;
        const char* from = to - distance;
        filled_ += length;
        if (distance >= kGroup) {
            for (std::size_t done = 0; done < length; done += kGroup) std::memcpy(to + done, from + done, kGroup);
        } else {
            // Byte by byte, since it repeats what it has just written.
            for (std::size_t done = 0; done < length; ++done) to[done] = from[done];
        }
        return true;
    }

    std::size_t filled_ = 0;
    char bytes_[kChunkBytes + kGroup];
};

bool UnpackTokens(std::string_view data, std::string& out) {
    Chunk chunk;
    const bool sound = chunk.Unpack(data);
    out += chunk.Bytes();
    return sound;
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
