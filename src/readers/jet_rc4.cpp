// RC4 keeps a permutation of the 256 byte values. The key shuffles it once; then every byte of the stream is one more
// exchange of two places and a look at a third.

#include "readers/jet_rc4.h"

#include <numeric>
#include <utility>

namespace zentlor::readers {

Rc4::Rc4(std::string_view key) {
    std::iota(state_.begin(), state_.end(), std::uint8_t{0});
    std::uint8_t j = 0;
    for (std::size_t i = 0; i < state_.size(); ++i) {
        j = static_cast<std::uint8_t>(j + state_[i] + static_cast<std::uint8_t>(key[i % key.size()]));
        std::swap(state_[i], state_[j]);
    }
}

void Rc4::Apply(char* data, std::size_t count) {
    for (std::size_t n = 0; n < count; ++n) {
        ++i_;
        j_ = static_cast<std::uint8_t>(j_ + state_[i_]);
        std::swap(state_[i_], state_[j_]);
        const auto place = static_cast<std::uint8_t>(state_[i_] + state_[j_]);
        data[n] = static_cast<char>(static_cast<std::uint8_t>(data[n]) ^ state_[place]);
    }
}

}  // namespace zentlor::readers
