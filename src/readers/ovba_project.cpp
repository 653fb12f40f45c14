// A project is read in three steps: `dir` gives the modules with their order, names and streams; each stream gives a
// source, from the place that `dir` names or, where that is wrong, from the place where a source visibly begins; and
// `PROJECT` gives the kinds. What goes wrong with one module is a sentence among the problems and costs that module.

#include "readers/ovba_project.h"

#include <algorithm>
#include <map>
#include <set>

#include "core/utilities/encoding.h"
#include "readers/attributes.h"
#include "readers/byte_reader.h"
#include "readers/code_page.h"
#include "readers/ovba_decompress.h"
#include "readers/ovba_project_stream.h"
#include "readers/sentences.h"

namespace zentlor::readers {
namespace {

// 32767 modules take about five million bytes in `dir` and two in `PROJECT`.
constexpr std::uint64_t kMaximumDirBytes = 8ull << 20;
constexpr std::uint64_t kMaximumProjectBytes = 2ull << 20;
// The compiled form in front of a source may be several times its size.
constexpr std::uint64_t kStreamToText = 8;

// Where a source begins when `dir` names a wrong place: a container whose first chunk starts with the literal
// "Attribut". The last such place counts, since the cache lies in front.
std::size_t FindSource(std::string_view stream) {
    for (std::size_t at = stream.rfind("Attribut"); at != std::string_view::npos && at >= 4;
         at = stream.rfind("Attribut", at - 1)) {
        const bool chunk = (U8At(stream, at - 2) & 0xF0) == 0xB0;
        if (U8At(stream, at - 4) == 1 && chunk && U8At(stream, at - 1) == 0) return at - 4;
    }
    return std::string_view::npos;
}

bool IsAllZero(std::string_view bytes) {
    return std::all_of(bytes.begin(), bytes.end(), [](char c) { return c == 0; });
}

// Without a line in `PROJECT` the attributes tell: a form is made of two classes, a document module of one.
ModuleType TypeFromAttributes(const StrippedCode& code) {
    if (code.base.empty()) return ModuleType::Class;
    const bool two = std::count(code.base.begin(), code.base.end(), u'{') > 1;
    return two ? ModuleType::Form : ModuleType::Document;
}

class ProjectReader {
  public:
    ProjectReader(const OvbaSource& source, const std::string& path, const Limits& limits)
        : source_(source), path_(path), limits_(limits) {}

    OvbaProject Read() {
        OvbaDir dir = ReadDir();
        project_.listed = dir.modules.size();
        project_.name = dir.projectName;
        project_.references = std::move(dir.references);
        project_.codePage = dir.codePage == 0 ? 1252 : dir.codePage;
        CheckCodePage();
        const OvbaProjectStream kinds = ParseOvbaProjectStream(source_.project.substr(0, kMaximumProjectBytes));
        project_.locked = kinds.locked;
        for (const auto& entry : kinds.modules) types_.emplace(entry.rawName, entry.type);
        for (const OvbaDirModule& module : dir.modules) {
            if (!ReadModule(module)) break;
        }
        ReportUndecodable();
        return std::move(project_);
    }

  private:
    OvbaDir ReadDir() {
        const Decompressed bytes = DecompressContainer(source_.dir, kMaximumDirBytes);
        OvbaDir dir = ParseOvbaDir(bytes.bytes, limits_.modules);
        if (dir.modules.empty() && (bytes.end != DecompressEnd::Complete || dir.truncated)) {
            Fail(ReadFailure::Damaged,
                 "Die Modulliste des VBA-Projekts in „[%1]“ ist beschädigt; die Datei aus einer Sicherung holen oder "
                 "im Ursprungsprogramm neu speichern.",
                 "The list of modules of the VBA project in “[%1]” is damaged; take the file from a backup or save it "
                 "anew in its program.",
                 {path_});
        }
        if (dir.tooManyModules) {
            Report("„[%1]“ enthält mehr als [%2] Module, gelesen wurden die ersten; --max-modules hebt die Grenze an.",
                   "“[%1]” holds more than [%2] modules, the first of them were read; --max-modules raises the limit.",
                   {path_, std::to_string(limits_.modules)});
        } else if (bytes.end != DecompressEnd::Complete || dir.truncated) {
            Report(
                "Die Modulliste des VBA-Projekts in „[%1]“ bricht ab, es können Module fehlen; die Datei aus einer "
                "Sicherung holen.",
                "The list of modules of the VBA project in “[%1]” breaks off, modules may be missing; take the file "
                "from a backup.",
                {path_});
        }
        return dir;
    }

    void CheckCodePage() {
        if (CodePageIsKnown(project_.codePage)) return;
        Report("„[%1]“ ist in der unbekannten Codepage [%2] geschrieben; Umlaute und Sonderzeichen können falsch sein.",
               "“[%1]” is written in the unknown code page [%2]; letters beyond ASCII may be wrong.",
               {path_, std::to_string(project_.codePage)});
    }

    // False if a limit of the whole document was hit, so that no further module is read.
    bool ReadModule(const OvbaDirModule& module) {
        const auto stream = source_.moduleStream(module);
        if (!stream) {
            ReportModule(module, "fehlt", "is missing");
            return true;
        }
        Decompressed text = Unpack(*stream, module.sourceOffset);
        streamBytes_ += stream->size();
        textBytes_ += text.bytes.size();
        if (textBytes_ > limits_.sourceBytes || streamBytes_ / kStreamToText > limits_.sourceBytes) {
            Report(
                "Der Quelltext in „[%1]“ ist länger als [%2], gelesen wurde der Anfang; --max-source-size hebt die "
                "Grenze an.",
                "The source in “[%1]” is longer than [%2], its beginning was read; --max-source-size raises the "
                "limit.",
                {path_, SizeText(limits_.sourceBytes)});
            return false;
        }
        if (!text.bytes.empty()) {
            ReportEnd(module, text.end);
            AddModule(module, text.bytes);
        } else if (IsWiped(*stream, module, text.end)) {
            ++project_.compiledOnly;
        } else {
            ReportModule(module, "ist nicht lesbar", "cannot be read");
        }
        return true;
    }

    Decompressed Unpack(std::string_view stream, std::uint32_t offset) const {
        // One byte more than is left for all modules is enough to see that it does not suffice.
        const std::uint64_t maximum = std::min(limits_.moduleBytes, limits_.sourceBytes - textBytes_ + 1);
        Decompressed text = DecompressContainer(BytesAt(stream, offset, stream.size()), maximum);
        if (!text.bytes.empty()) return text;
        const std::size_t found = FindSource(stream);
        return found == std::string_view::npos ? text : DecompressContainer(stream.substr(found), maximum);
    }

    // The source was taken out and its compiled form left: nothing, zeros or an empty container where it should be.
    static bool IsWiped(std::string_view stream, const OvbaDirModule& module, DecompressEnd end) {
        const bool hasCache = !IsAllZero(stream.substr(0, module.sourceOffset));
        const bool nothing = IsAllZero(BytesAt(stream, module.sourceOffset, stream.size()));
        return hasCache && (nothing || end == DecompressEnd::Complete);
    }

    void AddModule(const OvbaDirModule& module, std::string& bytes) {
        // An unpacked chunk that was stored as it is may be filled up with zeros.
        while (!bytes.empty() && bytes.back() == '\0') bytes.pop_back();
        DecodedText text = DecodeCodePage(bytes, project_.codePage);
        bytes = {};
        if (text.undecodable > 0) {
            undecodable_ += text.undecodable;
            if (undecodableIn_.empty()) undecodableIn_ = module.name;
        }
        StrippedCode code = StripAttributes(std::move(text.text));
        project_.modules.push_back({module.name,
                                    TypeOf(module, code),
                                    path_,
                                    std::move(code.code),
                                    {},
                                    std::move(code.header),
                                    std::move(code.innerAttributes)});
    }

    ModuleType TypeOf(const OvbaDirModule& module, const StrippedCode& code) const {
        const auto known = types_.find(module.rawName);
        if (known != types_.end()) return known->second;
        return module.standard ? ModuleType::Standard : TypeFromAttributes(code);
    }

    void Report(std::string_view german, std::string_view english, std::initializer_list<std::string> values) {
        project_.problems.push_back(MakeSentence(german, english, values));
    }

    void ReportModule(const OvbaDirModule& module, std::string_view german, std::string_view english) {
        Report("Der Quelltext des Moduls „[%1]“ in „[%2]“ " + std::string(german) +
                   "; die Datei aus einer Sicherung holen.",
               "The source of module “[%1]” in “[%2]” " + std::string(english) + "; take the file from a backup.",
               {ToUtf8(module.name), path_});
    }

    void ReportEnd(const OvbaDirModule& module, DecompressEnd end) {
        switch (end) {
            case DecompressEnd::Complete:
            case DecompressEnd::NoContainer:
                break;
            case DecompressEnd::Truncated:
            case DecompressEnd::BadToken:
                ReportModule(module, "ist beschädigt, gelesen wurde der Anfang", "is damaged, its beginning was read");
                break;
            case DecompressEnd::Limit:
                Report(
                    "Das Modul „[%1]“ in „[%2]“ ist länger als [%3], gelesen wurde der Anfang; --max-module-size "
                    "hebt die Grenze an.",
                    "Module “[%1]” in “[%2]” is longer than [%3], its beginning was read; --max-module-size raises "
                    "the limit.",
                    {ToUtf8(module.name), path_, SizeText(limits_.moduleBytes)});
        }
    }

    void ReportUndecodable() {
        if (undecodable_ == 0) return;
        Report(
            "[%1] Bytes in „[%2]“ (zuerst im Modul „[%3]“) haben in der Codepage [%4] keine Bedeutung; sie werden "
            "als Windows-1252 gezeigt.",
            "[%1] bytes in “[%2]” (first in module “[%3]”) mean nothing in code page [%4]; they are shown as "
            "Windows-1252.",
            {std::to_string(undecodable_), path_, ToUtf8(undecodableIn_), std::to_string(project_.codePage)});
    }

    const OvbaSource& source_;
    const std::string& path_;
    const Limits& limits_;
    OvbaProject project_;
    std::map<std::string, ModuleType> types_;
    // Both are bounded: streams may share their sectors, and a container unpacks to hundreds of times its size.
    std::uint64_t streamBytes_ = 0;
    std::uint64_t textBytes_ = 0;
    std::size_t undecodable_ = 0;
    Text undecodableIn_;
};

}  // namespace

bool HoldsOvbaProject(const Storage& root) {
    const auto vba = root.OpenStorage(u"VBA");
    return vba && vba->ReadStream(u"dir", 1);
}

OvbaProject ReadOvbaProject(const OvbaSource& source, const std::string& path, const Limits& limits) {
    return ProjectReader(source, path, limits).Read();
}

OvbaProject ReadOvbaProject(const Storage& root, const std::string& path, const Limits& limits) {
    const auto vba = root.OpenStorage(u"VBA");
    const std::string dir = vba ? vba->ReadStream(u"dir", kMaximumDirBytes).value_or("") : "";
    const std::string project = root.ReadStream(u"PROJECT", kMaximumProjectBytes).value_or("");
    OvbaSource source{dir, project, nullptr};
    source.moduleStream = [&](const OvbaDirModule& module) -> std::optional<std::string> {
        return vba->ReadStream(module.streamName, limits.sourceBytes * kStreamToText);
    };
    return ReadOvbaProject(source, path, limits);
}

}  // namespace zentlor::readers
