#pragma once

// The stream cipher RC4, with which Jet databases veil their header and, if "encoded", their pages.

#include <array>
#include <cstdint>
#include <string_view>

namespace zentlor::readers {

class Rc4 {
  public:
    /// `key` is not empty.
    explicit Rc4(std::string_view key);
    /// Encodes or decodes `count` bytes at `data` in place, going on where the call before stopped.
    void Apply(char* data, std::size_t count);

  private:
    std::array<std::uint8_t, 256> state_;
    std::uint8_t i_ = 0;
    std::uint8_t j_ = 0;
};

}  // namespace zentlor::readers
