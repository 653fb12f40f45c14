#include "readers/inflate.h"

#include <zlib.h>

#include <algorithm>

namespace zentlor::readers {
namespace {

// No deflated data unpack to more than this many times their size.
constexpr std::uint64_t kHighestRatio = 1032;

}  // namespace

std::string InflateLeniently(std::string_view packed, std::uint64_t maximum, DeflateForm form, bool* complete) {
    if (complete != nullptr) *complete = false;
    std::string out;
    z_stream stream{};
    if (inflateInit2(&stream, form == DeflateForm::Zlib ? MAX_WBITS : -MAX_WBITS) != Z_OK) return out;
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
    if (complete != nullptr) *complete = status == Z_STREAM_END && out.size() <= maximum;
    if (out.size() > maximum) out.resize(maximum);
    out.shrink_to_fit();
    return out;
}

}  // namespace zentlor::readers
