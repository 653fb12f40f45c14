// A head may leave the sizes open: they follow the data then, where only who has unpacked them finds them. So a part
// without a size that fits reaches to the next head for this walk, and to wherever its deflated data end for a reader.

#include "readers/zip_salvage.h"

#include <algorithm>

#include "readers/byte_reader.h"
#include "readers/inflate.h"
#include "readers/zip_directory.h"

namespace zentlor::readers {
namespace {

constexpr std::string_view kHeadSignature("PK\x03\x04", 4);
constexpr std::size_t kHeadBytes = 30;
constexpr std::uint16_t kSizesFollow = 1 << 3;
constexpr std::uint16_t kStored = 0;
constexpr std::uint16_t kDeflated = 8;

struct Head {
    std::string_view name;
    bool deflated = false;
    bool sizesFollow = false;
    std::uint64_t packedBytes = 0;
    std::uint64_t unpackedBytes = 0;
    std::size_t data = 0;  ///< where the data begin
};

// The head at `at`, or nothing: the signature may also stand in the middle of data by chance.
std::optional<Head> HeadAt(std::string_view bytes, std::size_t at) {
    const std::uint16_t method = U16At(bytes, at + 8);
    const std::size_t nameBytes = U16At(bytes, at + 26);
    const Head head{BytesAt(bytes, at + kHeadBytes, nameBytes),
                    method == kDeflated,
                    (U16At(bytes, at + 6) & kSizesFollow) != 0,
                    U32At(bytes, at + 18),
                    U32At(bytes, at + 22),
                    at + kHeadBytes + nameBytes + U16At(bytes, at + 28)};
    const bool known = method == kStored || method == kDeflated;
    if (!known || head.data > bytes.size() || head.name.empty() || !ZipNameIsReasonable(head.name)) {
        return std::nullopt;
    }
    return head;
}

// The data end where the head says, since a head, the directory or the end of the file follows there.
bool SizeFits(const Head& head, std::string_view bytes) {
    const std::uint64_t end = head.data + head.packedBytes;
    return !head.sizesFollow && (end == bytes.size() || BytesAt(bytes, end, 2) == "PK");
}

class SalvagedZip final : public ZipArchive {
  public:
    explicit SalvagedZip(std::string_view bytes) : bytes_(bytes) {}

    // False if there are more than `maximum`.
    bool FindParts(std::uint32_t maximum) {
        std::size_t at = bytes_.find(kHeadSignature);
        while (at != std::string_view::npos) {
            const auto head = HeadAt(bytes_, at);
            if (!head) {
                at = bytes_.find(kHeadSignature, at + 1);
                continue;
            }
            const bool fits = SizeFits(*head, bytes_);
            at = bytes_.find(kHeadSignature, fits ? head->data + head->packedBytes : head->data);
            if (head->name.back() == '/') continue;
            if (parts_.size() == maximum) return false;
            Add(*head, fits ? head->packedBytes : std::min(at, bytes_.size()) - head->data);
        }
        return true;
    }

    const std::vector<ZipPart>& Parts() const override { return parts_; }

    std::string Read(std::size_t index, std::uint64_t maximum, bool* damaged) const override {
        const Place& place = places_[index];
        const std::uint64_t packed = parts_[index].packedBytes;
        bool complete = place.claimedBytes <= packed;
        std::string bytes = place.deflated
                                ? InflateLeniently(bytes_.substr(place.data), maximum, DeflateForm::Raw, &complete)
                                : std::string(bytes_.substr(place.data, std::min(packed, maximum)));
        if (!complete && bytes.size() < maximum && damaged != nullptr) *damaged = true;
        return bytes;
    }

  private:
    struct Place {
        std::size_t data = 0;
        bool deflated = false;
        /// The packed size that the head tells, 0 where it leaves it open.
        std::uint64_t claimedBytes = 0;
    };

    void Add(const Head& head, std::uint64_t packedBytes) {
        parts_.push_back({std::string(head.name), packedBytes, head.unpackedBytes});
        places_.push_back({head.data, head.deflated, head.packedBytes});
    }

    std::string_view bytes_;
    std::vector<ZipPart> parts_;
    std::vector<Place> places_;
};

}  // namespace

std::unique_ptr<ZipArchive> SalvageZip(std::string_view bytes, std::uint32_t maximumParts, bool& tooManyParts) {
    auto zip = std::make_unique<SalvagedZip>(bytes);
    tooManyParts = !zip->FindParts(maximumParts);
    if (tooManyParts || zip->Parts().empty()) return nullptr;
    return zip;
}

}  // namespace zentlor::readers
