#pragma once

// Unpacking of deflated data ([RFC 1950], [RFC 1951]) that nobody vouches for.

#include <cstdint>
#include <string>
#include <string_view>

namespace zentlor::readers {

/// Whether the data stand between zlib's head and check sum, as in presentations, or by themselves, as in zips.
enum class DeflateForm { Zlib, Raw };

/// Unpacks `packed` as far as it goes: a wrong check sum and an early end cost nothing of what came before, and bytes
/// behind the data's own end are ignored. At most `maximum` bytes. `complete`, if given, tells whether that end was
/// reached.
std::string InflateLeniently(std::string_view packed, std::uint64_t maximum, DeflateForm form = DeflateForm::Zlib,
                             bool* complete = nullptr);

}  // namespace zentlor::readers
