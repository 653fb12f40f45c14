// The stream is a row of records on its top level: 16 bits of version and instance, 16 of type, 32 of length. Records
// that contain records are stepped over whole, since embedded storages lie on the top level.

#include "readers/ppt_records.h"

#include "readers/byte_reader.h"
#include "readers/container.h"
#include "readers/inflate.h"

namespace zentlor::readers {
namespace {

constexpr std::uint16_t kEmbeddedStorage = 0x1011;
constexpr std::size_t kHeadBytes = 8;
constexpr std::size_t kMaximumStorages = 1000;

}  // namespace

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
