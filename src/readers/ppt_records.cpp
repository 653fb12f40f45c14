// The stream is a row of records on its top level: 16 bits of version and instance, 16 of type, 32 of length. Records
// that contain records are stepped over whole, since embedded storages lie on the top level.

#include "readers/ppt_records.h"

#include <zlib.h>

#include <algorithm>

#include "readers/byte_reader.h"
#include "readers/container.h"

namespace zentlor::readers {
namespace {

constexpr std::uint16_t kEmbeddedStorage = 0x1011;
constexpr std::size_t kHeadBytes = 8;
constexpr std::size_t kMaximumStorages = 1000;
// No deflated data unpack to more than this many times their size.
constexpr std::uint64_t kHighestRatio = 1032;

}  // namespace

std::string InflateLeniently(std::string_view packed, std::uint64_t maximum) {
    std::string out;
    z_stream stream{};
    if (inflateInit(&stream) != Z_OK) return out;
    stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(packed.data()));
    stream.avail_in = static_cast<uInt>(std::min<std::size_t>(packed.size(), 0x7FFFFFFF));
    char buffer[16384];
    // Growing by doubling would hold up to three times the bytes; what is reserved and never written costs nothing.
    out.reserve(std::min<std::uint64_t>(maximum, kHighestRatio * packed.size()));
    int status = Z_OK;
    while (status == Z_OK && out.size() < maximum) {
        stream.next_out = reinterpret_cast<Bytef*>(buffer);
        stream.avail_out = sizeof(buffer);
        status = inflate(&stream, Z_NO_FLUSH);
        // Also where it fails, what was unpacked up to there is good.
        out.append(buffer, sizeof(buffer) - stream.avail_out);
    }
    inflateEnd(&stream);
    if (out.size() > maximum) out.resize(maximum);
    return out;
}

PptStorages FindPptStorages(std::string_view stream, std::uint64_t maximum) {
    PptStorages found;
    std::uint64_t left = maximum;
    for (std::size_t at = 0; at + kHeadBytes <= stream.size();) {
        const std::uint16_t instance = U16At(stream, at) >> 4;
        const std::uint16_t type = U16At(stream, at + 2);
        const std::size_t length = U32At(stream, at + 4);
        const std::string_view body = BytesAt(stream, at + kHeadBytes, length);
        found.truncated = body.size() < length;
        at += kHeadBytes + body.size();
        if (type != kEmbeddedStorage) continue;
        // A packed storage is the size of what comes out, and zlib data.
        std::string storage =
            instance == 1 ? InflateLeniently(BytesAt(body, 4, body.size()), left) : std::string(body.substr(0, left));
        left -= storage.size();
        if (HasCompoundSignature(storage)) found.compoundFiles.push_back(std::move(storage));
        found.limitHit = left == 0 || found.compoundFiles.size() == kMaximumStorages;
        if (found.limitHit) return found;
    }
    return found;
}

}  // namespace zentlor::readers
