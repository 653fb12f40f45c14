#include "support/documents/ovba_writer.h"

#include <algorithm>
#include <unordered_map>

#include "core/utilities/encoding.h"
#include "support/documents/bytes.h"

namespace zentlor::test {
namespace {

constexpr std::size_t kChunkBytes = 4096;
constexpr std::size_t kMinimumCopy = 3;

std::string Utf16(const Text& text) {
    std::string bytes;
    for (char16_t c : text) Put16(bytes, c);
    return bytes;
}

unsigned DistanceBits(std::size_t position) {
    unsigned bits = 4;
    while ((std::size_t{1} << bits) < position) ++bits;
    return bits;
}

// The tokens of one chunk: the last place where the next three bytes stood is looked up and copied from.
std::string CompressChunk(std::string_view chunk) {
    std::string out, tokens;
    std::unordered_map<std::string, std::size_t> seen;
    unsigned flags = 0, count = 0;
    const auto flush = [&] {
        out.push_back(static_cast<char>(flags));
        out += tokens;
        tokens.clear();
        flags = count = 0;
    };
    for (std::size_t at = 0; at < chunk.size();) {
        const auto found = seen.find(std::string(chunk.substr(at, kMinimumCopy)));
        const unsigned bits = DistanceBits(at);
        const std::size_t longest = (0xFFFFu >> bits) + kMinimumCopy;
        std::size_t length = 0;
        if (found != seen.end() && at - found->second <= std::size_t{1} << bits) {
            while (at + length < chunk.size() && length < longest &&
                   chunk[found->second + length] == chunk[at + length]) {
                ++length;
            }
        }
        const std::size_t step = length >= kMinimumCopy ? length : 1;
        if (step > 1) {
            flags |= 1u << count;
            Put16(tokens,
                  static_cast<std::uint32_t>((at - found->second - 1) << (16 - bits) | (length - kMinimumCopy)));
        } else {
            tokens.push_back(chunk[at]);
        }
        for (std::size_t i = 0; i < step; ++i, ++at) seen[std::string(chunk.substr(at, kMinimumCopy))] = at;
        if (++count == 8) flush();
    }
    if (count > 0) flush();
    return out;
}

std::string RawName(const TestModule& module) {
    return module.rawName.value_or(ToWindows1252(module.name));
}
Text StreamName(const TestModule& module) {
    return module.streamName.value_or(module.name);
}

std::string Number32(std::uint32_t value) {
    std::string bytes;
    Put32(bytes, value);
    return bytes;
}

std::string Number16(std::uint32_t value) {
    std::string bytes;
    Put16(bytes, value);
    return bytes;
}

std::string ModuleRecords(const TestModule& module) {
    const auto offset = module.offset.value_or(static_cast<std::uint32_t>(module.cache.size()));
    return DirRecord(0x19, RawName(module)) + DirRecord(0x47, Utf16(module.name)) +
           DirRecord(0x1A, ToWindows1252(StreamName(module))) + DirRecord(0x32, Utf16(StreamName(module))) +
           DirRecord(0x1C, "") + DirRecord(0x48, "") + DirRecord(0x31, Number32(offset)) +
           DirRecord(0x1E, Number32(0)) + DirRecord(0x2C, Number16(0xFFFF)) +
           DirRecord(module.kind == "Module" ? 0x21 : 0x22, "") + DirRecord(0x2B, "");
}

}  // namespace

std::string CompressContainer(std::string_view bytes, bool raw) {
    std::string out(1, '\1');
    for (std::size_t at = 0; at < bytes.size(); at += kChunkBytes) {
        const std::string_view chunk = bytes.substr(at, kChunkBytes);
        std::string data = raw ? std::string(chunk) : CompressChunk(chunk);
        const bool asIs = raw || data.size() >= kChunkBytes;
        if (asIs) data = std::string(chunk);
        if (asIs) data.resize(kChunkBytes, '\0');
        Put16(out, static_cast<std::uint32_t>((data.size() - 1) | 0x3000 | (asIs ? 0 : 0x8000)));
        out += data;
    }
    return out;
}

std::string ObfuscateData(std::string_view data, std::uint8_t seed) {
    const std::uint8_t version = 2, key = 0x5A;
    std::string hidden;
    hidden.push_back(static_cast<char>(seed));
    hidden.push_back(static_cast<char>(seed ^ version));
    hidden.push_back(static_cast<char>(seed ^ key));
    std::string plainBytes((seed & 6u) / 2, '\7');
    plainBytes += Number32(static_cast<std::uint32_t>(data.size()));
    plainBytes += data;
    std::uint8_t plain = key;
    for (char c : plainBytes) {
        const auto twoBefore = static_cast<std::uint8_t>(hidden[hidden.size() - 2]);
        hidden.push_back(
            static_cast<char>(static_cast<std::uint8_t>(c) ^ static_cast<std::uint8_t>(twoBefore + plain)));
        plain = static_cast<std::uint8_t>(c);
    }
    std::string digits;
    for (char c : hidden) {
        digits.push_back("0123456789ABCDEF"[static_cast<std::uint8_t>(c) >> 4]);
        digits.push_back("0123456789ABCDEF"[static_cast<std::uint8_t>(c) & 15]);
    }
    return digits;
}

std::string DirRecord(std::uint16_t id, std::string_view data) {
    std::string bytes;
    Put16(bytes, id);
    Put32(bytes, static_cast<std::uint32_t>(data.size()));
    bytes += data;
    return bytes;
}

std::string RegisteredReference(const std::string& name, const std::string& identifier) {
    return DirRecord(0x16, name) + DirRecord(0x3E, Utf16(FromWindows1252(name))) +
           DirRecord(0x0D,
                     Number32(static_cast<std::uint32_t>(identifier.size())) + identifier + Number32(0) + Number16(0));
}

std::string WriteDir(const TestProject& project) {
    std::string dir =
        DirRecord(0x01, Number32(1)) + DirRecord(0x4A, Number32(1)) + DirRecord(0x02, Number32(0x409)) +
        DirRecord(0x14, Number32(0x409)) + DirRecord(0x03, Number16(static_cast<std::uint32_t>(project.codePage))) +
        DirRecord(0x04, ToWindows1252(project.name)) + DirRecord(0x05, "") + DirRecord(0x40, "") + DirRecord(0x06, "") +
        DirRecord(0x3D, "") + DirRecord(0x07, Number32(0)) + DirRecord(0x08, Number32(0));
    // The version's record: it says four bytes and holds six.
    dir += Number16(0x09) + Number32(4) + Number32(1234567890) + Number16(7);
    dir += DirRecord(0x0C, "") + DirRecord(0x3C, "") + project.references;
    dir += DirRecord(0x0F, Number16(static_cast<std::uint32_t>(project.modules.size()))) +
           DirRecord(0x13, Number16(0xFFFF));
    for (const TestModule& module : project.modules) dir += ModuleRecords(module);
    return dir + DirRecord(0x10, "");
}

std::string WriteProjectStream(const TestProject& project) {
    std::string text = "ID=\"{917DED54-440B-4FD1-A5C1-74ACF261E600}\"\r\n";
    for (const TestModule& module : project.modules) {
        if (module.kind.empty()) continue;
        const bool document = module.kind == "Document" || module.kind == "DocClass";
        text += module.kind + "=" + RawName(module) + (document ? "/&H00000000" : "") + "\r\n";
    }
    text += "Name=\"" + ToWindows1252(project.name) + "\"\r\n" + project.projectLines;
    return text + "\r\n[Host Extender Info]\r\n&H00000001={3832D640-CF90-11CF-8E43-00A0C911005A};VBE;&H00000000\r\n";
}

std::string WriteModuleStream(const TestModule& module) {
    return module.cache + module.container.value_or(CompressContainer(module.source));
}

StorageTree WriteProject(const TestProject& project) {
    StorageTree root;
    if (project.withProjectStream) root.Put(u"PROJECT", WriteProjectStream(project));
    StorageTree& vba = root.Below(u"VBA");
    vba.streams.reserve(project.modules.size() + 2);
    vba.streams.push_back({u"dir", CompressContainer(WriteDir(project))});
    vba.streams.push_back({u"_VBA_PROJECT", std::string("\xCC\x61\xFF\xFF\0\0\0", 7)});
    for (const TestModule& module : project.modules) {
        vba.streams.push_back({StreamName(module), WriteModuleStream(module)});
    }
    return root;
}

TestModule StandardModule(const Text& name, const std::string& code) {
    return {name, "Attribute VB_Name = \"" + ToWindows1252(name) + "\"\r\n" + code};
}

}  // namespace zentlor::test
