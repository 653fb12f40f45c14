// A property stream is a head, the offset of a section, and in the section a table of numbers and offsets to values
// that begin with their type.

#include "readers/property_set.h"

#include <cstdint>

#include "core/utilities/encoding.h"
#include "readers/byte_reader.h"
#include "readers/code_page.h"

namespace zentlor::readers {
namespace {

constexpr std::uint32_t kCodePageProperty = 1;
constexpr std::uint32_t kApplicationProperty = 18;
constexpr std::uint32_t kVersionProperty = 23;
constexpr std::uint32_t kMaximumProperties = 256;
constexpr std::uint16_t kTypeI2 = 2;
constexpr std::uint16_t kTypeI4 = 3;
constexpr std::uint16_t kTypeBytes = 30;
constexpr std::uint16_t kTypeText = 31;
constexpr std::size_t kLongestName = 200;

// The first section's value of property `id`, its type in front; empty if there is none.
std::string_view FindProperty(std::string_view stream, std::uint32_t id) {
    if (U16At(stream, 0) != 0xFFFE) return {};
    const std::size_t section = U32At(stream, 44);
    const std::uint32_t count = U32At(stream, section + 4);
    for (std::uint32_t i = 0; i < count && i < kMaximumProperties; ++i) {
        const std::size_t entry = section + 8 + 8 * std::size_t{i};
        if (U32At(stream, entry) == id) return BytesAt(stream, section + U32At(stream, entry + 4), stream.size());
    }
    return {};
}

}  // namespace

std::string ApplicationName(std::string_view stream) {
    const std::string_view value = FindProperty(stream, kApplicationProperty);
    const std::string_view codePage = FindProperty(stream, kCodePageProperty);
    const std::size_t length = U32At(value, 4);
    Text name;
    if (U16At(value, 0) == kTypeText) name = FromUtf16Le(BytesAt(value, 8, std::min(length, kLongestName) * 2));
    if (U16At(value, 0) == kTypeBytes) {
        const int page = U16At(codePage, 0) == kTypeI2 ? U16At(codePage, 4) : 0;
        name = DecodeCodePage(BytesAt(value, 8, std::min(length, kLongestName)), page).text;
    }
    return ToUtf8(TextView(name).substr(0, name.find(u'\0')));
}

std::string ApplicationVersion(std::string_view stream) {
    const std::string_view value = FindProperty(stream, kVersionProperty);
    if (U16At(value, 0) != kTypeI4) return {};
    return std::to_string(U16At(value, 6)) + "." + std::to_string(U16At(value, 4));
}

}  // namespace zentlor::readers
