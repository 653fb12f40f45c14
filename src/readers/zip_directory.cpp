#include "readers/zip_directory.h"

#include <algorithm>

#include "readers/byte_reader.h"

namespace zentlor::readers {
namespace {

constexpr std::string_view kEndSignature("PK\x05\x06", 4);
constexpr std::string_view kEntrySignature("PK\x01\x02", 4);
constexpr std::string_view kLocatorSignature("PK\x06\x07", 4);
constexpr std::string_view kEnd64Signature("PK\x06\x06", 4);
constexpr std::size_t kEndBytes = 22;
constexpr std::size_t kEntryBytes = 46;
constexpr std::size_t kLocatorBytes = 20;
constexpr std::size_t kEnd64Bytes = 56;
// A comment of up to 65535 bytes may follow the end record.
constexpr std::size_t kEndIsWithin = 65535 + kEndBytes;
// Office writes names of less than 100 characters. A library that builds a folder for every "/" needs this bound.
constexpr std::size_t kLongestName = 512;
constexpr std::ptrdiff_t kDeepestName = 32;

// Where the directory begins, and how many entries the end record promises.
struct End {
    bool found = false;
    std::uint64_t entries = 0;
    std::uint64_t offset = 0;
};

End FindEnd(std::string_view bytes) {
    if (bytes.size() < kEndBytes) return {};
    const std::size_t at = bytes.rfind(kEndSignature, bytes.size() - kEndBytes);
    if (at == std::string_view::npos || bytes.size() - at > kEndIsWithin) return {};
    const bool has64 = at >= kLocatorBytes && bytes.substr(at - kLocatorBytes, 4) == kLocatorSignature;
    if (!has64) return {true, U16At(bytes, at + 10), U32At(bytes, at + 16)};
    const std::uint64_t high = U32At(bytes, at - 8), low = U32At(bytes, at - 12);
    if (high != 0 || low + kEnd64Bytes > bytes.size() || bytes.substr(low, 4) != kEnd64Signature) return {};
    if (U32At(bytes, low + 36) != 0 || U32At(bytes, low + 52) != 0) return {};
    return {true, U32At(bytes, low + 32), U32At(bytes, low + 48)};
}

bool IsFolder(std::string_view name) {
    return !name.empty() && name.back() == '/';
}

}  // namespace

bool ZipNameIsReasonable(std::string_view name) {
    return name.size() <= kLongestName && std::count(name.begin(), name.end(), '/') <= kDeepestName &&
           name.find('\0') == std::string_view::npos;
}

ZipDirectory ReadZipDirectory(std::string_view bytes, std::uint32_t maximumParts) {
    ZipDirectory directory;
    const End end = FindEnd(bytes);
    if (!end.found) return directory;
    directory.tooManyParts = end.entries > maximumParts;
    if (directory.tooManyParts) return directory;
    std::size_t at = end.offset;
    for (std::uint64_t i = 0; i < end.entries; ++i) {
        if (BytesAt(bytes, at, 4) != kEntrySignature || at + kEntryBytes > bytes.size()) return directory;
        const std::size_t nameLength = U16At(bytes, at + 28);
        const std::size_t rest = nameLength + U16At(bytes, at + 30) + U16At(bytes, at + 32);
        const std::string_view name = BytesAt(bytes, at + kEntryBytes, nameLength);
        if (rest > bytes.size() - at - kEntryBytes || !ZipNameIsReasonable(name)) return directory;
        if (!IsFolder(name)) {
            directory.parts.push_back({std::string(name), U32At(bytes, at + 20), U32At(bytes, at + 24)});
        }
        at += kEntryBytes + rest;
    }
    directory.sound = true;
    return directory;
}

}  // namespace zentlor::readers
