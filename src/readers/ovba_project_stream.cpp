// `PROJECT` is written like an .ini file: "Module=Kunden" and the like, one line a module, then CMG, DPB and GC, which
// hold protection, password and visibility behind a simple obfuscation. Sections in brackets follow that tell of
// windows and hosts.

#include "readers/ovba_project_stream.h"

#include <array>
#include <cstdint>

#include "readers/byte_reader.h"

namespace zentlor::readers {
namespace {

struct Kind {
    std::string_view key;
    ModuleType type;
};
constexpr Kind kKinds[] = {
    {"Module", ModuleType::Standard},   {"Class", ModuleType::Class},       {"BaseClass", ModuleType::Form},
    {"Document", ModuleType::Document}, {"DocClass", ModuleType::Document},
};

std::string_view Unquoted(std::string_view text) {
    if (text.size() >= 2 && text.front() == '"' && text.back() == '"') return text.substr(1, text.size() - 2);
    return text;
}

int HexDigit(char c) {
    if (c >= '0' && c <= '9') return c - '0';
    if (c >= 'A' && c <= 'F') return c - 'A' + 10;
    if (c >= 'a' && c <= 'f') return c - 'a' + 10;
    return -1;
}

std::optional<std::string> FromHex(std::string_view text) {
    if (text.size() % 2 != 0) return std::nullopt;
    std::string bytes;
    for (std::size_t i = 0; i < text.size(); i += 2) {
        const int high = HexDigit(text[i]), low = HexDigit(text[i + 1]);
        if (high < 0 || low < 0) return std::nullopt;
        bytes.push_back(static_cast<char>(high << 4 | low));
    }
    return bytes;
}

// A user, the program or the editor asked for protection: any of the three lowest bits.
bool TellsProtection(std::string_view cmg) {
    const auto data = RevealObfuscatedData(cmg);
    return data && (U8At(*data, 0) & 7) != 0;
}

// A password lies here as a hash of 29 bytes; without one there is a single zero.
bool TellsPassword(std::string_view dpb) {
    const auto data = RevealObfuscatedData(dpb);
    return data && data->size() > 1;
}

bool TellsHidden(std::string_view gc) {
    const auto data = RevealObfuscatedData(gc);
    return data && data->size() == 1 && data->front() == 0;
}

void TakeLine(std::string_view line, OvbaProjectStream& project) {
    const std::size_t equals = line.find('=');
    if (equals == std::string_view::npos) return;
    const std::string_view key = line.substr(0, equals);
    const std::string_view value = line.substr(equals + 1);
    for (const Kind& kind : kKinds) {
        // Behind the name of a document module stands "/&H" and the version of its type library.
        if (key == kind.key) project.modules.push_back({std::string(value.substr(0, value.find('/'))), kind.type});
    }
    if (key == "CMG" && TellsProtection(Unquoted(value))) project.locked = true;
    if (key == "DPB" && TellsPassword(Unquoted(value))) project.locked = true;
    if (key == "GC" && TellsHidden(Unquoted(value))) project.locked = true;
}

}  // namespace

std::optional<std::string> RevealObfuscatedData(std::string_view hexadecimal) {
    const auto bytes = FromHex(hexadecimal);
    if (!bytes || bytes->size() < 3) return std::nullopt;
    const std::uint8_t seed = U8At(*bytes, 0);
    const std::uint8_t key = seed ^ U8At(*bytes, 2);
    std::uint8_t plain = key, before = U8At(*bytes, 2), twoBefore = U8At(*bytes, 1);
    std::string revealed;
    for (std::size_t i = 3; i < bytes->size(); ++i) {
        const std::uint8_t hidden = U8At(*bytes, i);
        plain = static_cast<std::uint8_t>(hidden ^ (twoBefore + plain));
        twoBefore = before;
        before = hidden;
        revealed.push_back(static_cast<char>(plain));
    }
    // A few bytes without meaning, the length, the data.
    const std::size_t ignored = (seed & 6u) / 2;
    const std::uint32_t length = U32At(revealed, ignored);
    if (revealed.size() < ignored + 4 || length > revealed.size() - ignored - 4) return std::nullopt;
    return revealed.substr(ignored + 4, length);
}

OvbaProjectStream ParseOvbaProjectStream(std::string_view bytes) {
    OvbaProjectStream project;
    for (std::size_t at = 0; at < bytes.size();) {
        const std::size_t end = std::min(bytes.find_first_of("\r\n", at), bytes.size());
        const std::string_view line = bytes.substr(at, end - at);
        if (line.substr(0, 1) == "[") break;
        TakeLine(line, project);
        at = end + 1;
    }
    return project;
}

}  // namespace zentlor::readers
