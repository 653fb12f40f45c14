// The stream is a run of records: a number, a size, that many bytes. Records that are not known here are passed over,
// since later versions of the format added some. One record lies about its size.

#include "readers/ovba_dir.h"

#include <algorithm>
#include <utility>

#include "core/utilities/encoding.h"
#include "readers/byte_reader.h"
#include "readers/code_page.h"

namespace zentlor::readers {
namespace {

enum Record : std::uint16_t {
    kCodePage = 0x0003,
    kProjectName = 0x0004,
    kProjectVersion = 0x0009,
    kRegisteredReference = 0x000D,
    kProjectReference = 0x000E,
    kEnd = 0x0010,
    kReferenceName = 0x0016,
    kModuleName = 0x0019,
    kStreamName = 0x001A,
    kStandardModule = 0x0021,
    kModuleEnd = 0x002B,
    kControlReference = 0x002F,
    kModuleOffset = 0x0031,
    kStreamNameUnicode = 0x0032,
    kOriginalReference = 0x0033,
    kReferenceNameUnicode = 0x003E,
    kModuleNameUnicode = 0x0047,
};

// Real projects have a dozen, and names of a line at most.
constexpr std::size_t kMaximumReferences = 4096;
constexpr std::size_t kLongestName = 2048;

// "c.0" as "12.0": both numbers of a version are hexadecimal, of up to four digits.
Text DecimalVersion(const Text& version) {
    Text decimal;
    for (std::size_t at = 0; at <= version.size();) {
        const std::size_t end = std::min(version.find(u'.', at), version.size());
        std::uint32_t number = 0;
        for (const char16_t c : version.substr(at, end - at)) {
            const TextView digits = u"0123456789abcdef";
            const std::size_t digit = digits.find(static_cast<char16_t>(c >= u'A' && c <= u'F' ? c | 0x20 : c));
            if (digit == TextView::npos || end - at > 4) return version;
            number = number * 16 + static_cast<std::uint32_t>(digit);
        }
        if (at > 0) decimal += u'.';
        decimal += ToText(number);
        at = end + 1;
    }
    return decimal;
}

// The library identifier of a registered reference is "*\G{GUID}#version#language#path#description", that of a project
// "*\C" or "*\A" and its path.
Text DescribeReference(const Text& name, const Text& identifier) {
    std::vector<Text> fields(1);
    for (char16_t c : identifier) {
        if (c == u'#') {
            fields.emplace_back();
        } else {
            fields.back().push_back(c);
        }
    }
    Text what = fields.size() >= 5 ? fields[4] : identifier.substr(std::min<std::size_t>(3, identifier.size()));
    if (fields.size() >= 5 && !fields[1].empty()) what += u" " + DecimalVersion(fields[1]);
    if (fields.size() >= 5 && !fields[3].empty()) what += u" (" + fields[3] + u")";
    if (name.empty()) return what;
    return what.empty() ? name : name + u": " + what;
}

class DirParser {
  public:
    explicit DirParser(std::uint32_t maximumModules) : maximumModules_(maximumModules) {}

    // Takes one record. False behind the last one.
    bool Take(std::uint16_t id, std::string_view data) {
        switch (id) {
            case kCodePage:
                dir_.codePage = U16At(data, 0);
                break;
            case kProjectName:
                dir_.projectName = Decode(data);
                break;
            case kReferenceName:
                reference_ = Decode(data);
                break;
            case kReferenceNameUnicode:
                reference_ = Unicode(data);
                break;
            case kRegisteredReference:
            case kProjectReference:
                AddReference(BytesAt(data, 4, U32At(data, 0)));
                break;
            case kOriginalReference:
                AddReference(data);
                originalSeen_ = true;
                break;
            case kControlReference:
                if (!std::exchange(originalSeen_, false)) AddReference(BytesAt(data, 4, U32At(data, 0)));
                break;
            case kEnd:
                return false;
            default:
                TakeModuleRecord(id, data);
        }
        return !dir_.tooManyModules && !dir_.truncated;
    }

    OvbaDir Finish() {
        FinishModule();
        return std::move(dir_);
    }

    void MarkTruncated() { dir_.truncated = true; }

  private:
    Text Decode(std::string_view data) const {
        return DecodeCodePage(data.substr(0, kLongestName), dir_.codePage).text;
    }
    static Text Unicode(std::string_view data) { return FromUtf16Le(data.substr(0, 2 * kLongestName)); }

    void AddReference(std::string_view identifier) {
        if (dir_.references.size() == kMaximumReferences) {
            MarkTruncated();
            return;
        }
        dir_.references.push_back(DescribeReference(reference_, Decode(identifier)));
        reference_.clear();
    }

    void TakeModuleRecord(std::uint16_t id, std::string_view data) {
        if (id == kModuleName) {
            FinishModule();
            inModule_ = true;
            module_.rawName = data.substr(0, kLongestName);
            module_.name = Decode(data);
            module_.streamName = module_.name;
            return;
        }
        if (!inModule_) return;
        switch (id) {
            case kModuleNameUnicode:
                module_.name = Unicode(data);
                break;
            case kStreamName:
                module_.streamName = Decode(data);
                break;
            case kStreamNameUnicode:
                module_.streamName = Unicode(data);
                break;
            case kModuleOffset:
                module_.sourceOffset = U32At(data, 0);
                break;
            case kStandardModule:
                module_.standard = true;
                break;
            case kModuleEnd:
                FinishModule();
                break;
            default:
                break;
        }
    }

    void FinishModule() {
        if (!std::exchange(inModule_, false)) return;
        if (dir_.modules.size() == maximumModules_) {
            dir_.tooManyModules = true;
        } else {
            dir_.modules.push_back(std::move(module_));
        }
        module_ = {};
    }

    OvbaDir dir_;
    std::uint32_t maximumModules_;
    OvbaDirModule module_;
    bool inModule_ = false;
    Text reference_;
    bool originalSeen_ = false;
};

}  // namespace

OvbaDir ParseOvbaDir(std::string_view bytes, std::uint32_t maximumModules) {
    DirParser parser(maximumModules);
    std::size_t at = 0;
    while (at + 6 <= bytes.size()) {
        const std::uint16_t id = U16At(bytes, at);
        // The version's record says four bytes and holds six.
        const std::size_t size = id == kProjectVersion ? 6 : U32At(bytes, at + 2);
        at += 6;
        if (size > bytes.size() - at) {
            parser.MarkTruncated();
            return parser.Finish();
        }
        if (!parser.Take(id, bytes.substr(at, size))) return parser.Finish();
        at += size;
    }
    parser.MarkTruncated();
    return parser.Finish();
}

}  // namespace zentlor::readers
