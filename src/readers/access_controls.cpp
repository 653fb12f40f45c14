// A directory stream names the forms (or reports) and gives each a number; the storage of that number holds a list of
// everything in the form that code can name: controls, sections, and fields of the record source.

#include "readers/access_controls.h"

#include <memory>
#include <optional>
#include <string>

#include "core/utilities/encoding.h"
#include "readers/byte_reader.h"
#include "readers/code_page.h"
#include "readers/sentences.h"

namespace zentlor::readers {

namespace {

constexpr TextView kDirectoryStream = u"\u0003DirData";
constexpr std::uint64_t kDirectoryMaximum = 4 << 20;
/// More forms and reports than a database can have.
constexpr std::size_t kMostLayouts = 32768;
constexpr std::uint8_t kDirectoryRecord = 4;
constexpr std::uint64_t kTypeInfoCountAt = 0x0C;
constexpr std::uint64_t kTypeInfoListAt = 0x20;
/// AcControlType begins at 100; sections begin at 0x98, and 0xFF is a field.
constexpr int kFirstControl = 100;
constexpr int kFirstSection = 0x98;

struct DirectoryEntry {
    Text name;
    std::uint32_t number = 0;
};

/// u32 0, then records: u8 4, u8 size, `size` bytes: the name in UTF-16 and a u32 number.
std::vector<DirectoryEntry> ParseDirectory(std::string_view bytes) {
    std::vector<DirectoryEntry> entries;
    std::uint64_t at = 4;
    while (U8At(bytes, at) == kDirectoryRecord) {
        const std::uint64_t size = U8At(bytes, at + 1);
        if (size < 4 || at + 2 + size > bytes.size()) break;
        entries.push_back({FromUtf16Le(bytes.substr(at + 2, size - 4)), U32At(bytes, at + 2 + size - 4)});
        at += 2 + size;
    }
    return entries;
}

/// The bytes from `at` up to the next zero, which is passed over; nothing if there is none.
std::optional<std::string_view> TakeName(std::string_view bytes, std::uint64_t& at) {
    if (at > bytes.size()) return std::nullopt;
    const std::size_t end = bytes.find('\0', at);
    if (end == std::string_view::npos) return std::nullopt;
    const std::string_view name = bytes.substr(at, end - at);
    at = end + 1;
    return name;
}

class LayoutReader {
  public:
    LayoutReader(const Storage& root, int codePage, std::uint64_t fileBytes)
        : root_(root), codePage_(codePage), bytesLeft_(fileBytes) {}

    void Read(TextView folder, bool report) {
        const auto storage = root_.OpenStorage(folder);
        const auto directory = storage ? storage->ReadStream(kDirectoryStream, kDirectoryMaximum) : std::nullopt;
        if (!directory) return;
        for (DirectoryEntry& entry : ParseDirectory(*directory)) {
            const auto object = storage->OpenStorage(ToText(entry.number));
            const auto typeInfo = object ? object->ReadStream(u"TypeInfo", bytesLeft_ + 1) : std::nullopt;
            const std::uint64_t bytes = typeInfo ? typeInfo->size() : 0;
            if (layouts_.size() >= kMostLayouts || bytes > bytesLeft_) {
                incomplete_ = true;
                return;
            }
            bytesLeft_ -= bytes;
            layouts_.push_back({std::move(entry.name), report, ParseTypeInfo(typeInfo.value_or(""), codePage_)});
        }
    }

    std::vector<FormLayout> Take() { return std::move(layouts_); }
    bool Incomplete() const { return incomplete_; }

  private:
    const Storage& root_;
    int codePage_;
    std::vector<FormLayout> layouts_;
    /// Many forms may share one list, and then cost more than the file has bytes.
    std::uint64_t bytesLeft_;
    bool incomplete_ = false;
};

}  // namespace

std::vector<FormControl> ParseTypeInfo(std::string_view bytes, int codePage) {
    std::vector<FormControl> controls;
    std::uint64_t at = kTypeInfoListAt;
    // A record is a code, an index, and two names of which the second, if there, is the real one.
    for (std::uint32_t left = U32At(bytes, kTypeInfoCountAt); left > 0 && at + 8 <= bytes.size(); --left) {
        const int type = U8At(bytes, at);
        at += 8;
        const auto identifier = TakeName(bytes, at);
        const auto realName = identifier ? TakeName(bytes, at) : std::nullopt;
        if (!realName) break;
        if (type < kFirstControl || type >= kFirstSection) continue;
        const std::string_view name = realName->empty() ? *identifier : *realName;
        controls.push_back({DecodeCodePage(name, codePage).text, type});
    }
    return controls;
}

void AddFormLayouts(const Storage& root, int codePage, std::uint64_t fileBytes, Document& document) {
    LayoutReader reader(root, codePage, fileBytes);
    reader.Read(u"Forms", false);
    reader.Read(u"Reports", true);
    document.layouts = reader.Take();
    if (!reader.Incomplete()) return;
    document.problems.push_back(MakeSentence(
        "„[%1]“ nennt mehr Formulare und Steuerelemente, als eine Datenbank haben kann; gelesen wurden die ersten.",
        "“[%1]” names more forms and controls than a database can have; the first of them were read.",
        {document.path}));
}

}  // namespace zentlor::readers
