// A document is opened in two steps: what holds the project (a part of a zip, a storage of a compound file, a record of
// a presentation), and then the project itself, which is the same everywhere.

#include "readers/office_document.h"

#include <algorithm>
#include <filesystem>

#include "core/utilities/encoding.h"
#include "readers/access_controls.h"
#include "readers/compound_layout.h"
#include "readers/container.h"
#include "readers/office_kind.h"
#include "readers/ovba_project.h"
#include "readers/ppt_records.h"
#include "readers/project_search.h"
#include "readers/property_set.h"
#include "readers/sentences.h"

namespace zentlor::readers {
namespace {

constexpr std::uint64_t kMiB = 1 << 20;
constexpr std::uint64_t kHeadBytes = 1 << 16;

// The text between the first "<tag>" and the next "<".
std::string ElementText(std::string_view xml, std::string_view tag) {
    const std::string open = "<" + std::string(tag) + ">";
    const std::size_t at = xml.find(open);
    if (at == std::string_view::npos) return {};
    const std::string_view rest = xml.substr(at + open.size());
    return std::string(rest.substr(0, std::min(rest.find('<'), std::size_t{200})));
}

// "Microsoft Excel" and "16.0300" as "Microsoft Excel 16": what follows the point is a build number, if anything.
std::string Joined(const std::string& name, const std::string& version) {
    const std::string major = " " + version.substr(0, version.find('.'));
    const bool told = name.empty() || version.empty() || name.find(major) != std::string::npos;
    return told ? name : name + major;
}

class DocumentReader {
  public:
    DocumentReader(std::string_view bytes, const std::string& path, const Limits& limits)
        : bytes_(bytes), path_(path), limits_(limits.InProportionTo(bytes.size())) {
        document_.path = path;
        document_.projectName = FromUtf8(std::filesystem::path(path).stem().string());
        unpackedLeft_ = limits_.zipPartBytes;
    }

    Document Read() {
        if (HasZipSignature(bytes_)) {
            ReadZip();
        } else if (HasCompoundSignature(bytes_)) {
            ReadCompound();
        } else {
            RefuseKind();
        }
        return std::move(document_);
    }

  private:
    [[noreturn]] void RefuseKind() const {
        Fail(ReadFailure::NotADocument,
             "„[%1]“ ist keine Office-Datei; gelesen werden Word-, Excel-, PowerPoint- und Visio-Dateien.",
             "“[%1]” is no Office file; Word, Excel, PowerPoint and Visio files are read.", {path_});
    }

    [[noreturn]] void RefuseDamaged() const {
        Fail(ReadFailure::Damaged,
             "„[%1]“ ist beschädigt oder abgeschnitten; die Datei aus einer Sicherung holen oder neu übertragen.",
             "“[%1]” is damaged or cut off; take the file from a backup or transfer it anew.", {path_});
    }

    void ReadZip() {
        bool salvaged = false;
        const auto zip = OpenZip(bytes_, path_, limits_, &salvaged);
        if (!zip) RefuseDamaged();
        const auto description = DescribeOpenXml(ReadSmallPart(*zip, "[Content_Types].xml"), zip->Parts());
        if (!description) RefuseKind();
        document_.description = *description;
        const std::string app = ReadSmallPart(*zip, "docProps/app.xml");
        document_.application = Joined(ElementText(app, "Application"), ElementText(app, "AppVersion"));
        if (!ReadProjectOfZip(*zip) && (damagedPart_ || salvaged)) RefuseDamaged();
        if (!salvaged) return;
        document_.problems.push_back(MakeSentence(
            "„[%1]“ ist beschädigt: das Verzeichnis am Ende der Datei fehlt oder ist falsch; was lesbar war, wurde "
            "gelesen; die Datei neu übertragen.",
            "“[%1]” is damaged: the directory at the end of the file is missing or wrong; what was readable was read; "
            "transfer the file anew.",
            {path_}));
    }

    static std::string ReadSmallPart(const ZipArchive& zip, std::string_view name) {
        for (std::size_t i = 0; i < zip.Parts().size(); ++i) {
            if (zip.Parts()[i].name == name) return zip.Read(i, kHeadBytes);
        }
        return {};
    }

    // The document's own project is a compound file by itself; one further down belongs to an embedded document, and
    // counts only if there is no other. No name of a part is trusted.
    bool ReadProjectOfZip(const ZipArchive& zip) {
        std::string embedded;
        for (std::size_t i = 0; i < zip.Parts().size(); ++i) {
            if (!HasCompoundSignature(zip.Read(i, 8))) continue;
            std::string part = UnpackPart(zip, i);
            bool incomplete = false;
            const auto root = OpenInner(part, &incomplete);
            damagedPart_ |= incomplete;
            if (root && HoldsOvbaProject(*root)) {
                TakeProject(*root);
                if (incomplete) ReportIncomplete();
                return true;
            }
            if (root && embedded.empty() && FindBelow(*root)) embedded = std::move(part);
        }
        const auto root = OpenCompoundFile(embedded, path_, limits_);
        const auto project = root ? FindBelow(*root) : nullptr;
        if (project) TakeProject(*project);
        return project != nullptr;
    }

    // A compound file inside of the document, or null if it cannot be read or holds no project. There may be many of
    // them, so all those that are opened share one bound. `incomplete` becomes true where it cannot be read whole.
    std::unique_ptr<Storage> OpenInner(std::string_view bytes, bool* incomplete = nullptr) {
        const CompoundLayout layout = MeasureCompoundFile(bytes);
        if (layout.sound && !layout.truncated && !layout.namesProject) return nullptr;
        entriesOpened_ += layout.directoryEntries;
        if (layout.sound) RequireFewEntries(entriesOpened_, path_, limits_);
        auto root = OpenCompoundFile(bytes, path_, limits_, incomplete);
        if (!root && incomplete != nullptr) *incomplete = true;
        return root;
    }

    std::string UnpackPart(const ZipArchive& zip, std::size_t index) {
        const ZipPart& part = zip.Parts()[index];
        const std::uint64_t packed = std::min<std::uint64_t>(part.packedBytes, bytes_.size());
        const std::uint64_t byRatio = std::max(kMiB, packed * limits_.zipRatio);
        const std::uint64_t maximum = std::min(byRatio, unpackedLeft_);
        std::string bytes = zip.Read(index, maximum + 1, &damagedPart_);
        unpackedLeft_ -= std::min<std::uint64_t>(unpackedLeft_, bytes.size());
        if (bytes.size() > maximum) RefuseUnpacked(part.name, byRatio <= maximum);
        return bytes;
    }

    [[noreturn]] void RefuseUnpacked(const std::string& part, bool byRatio) const {
        Fail(ReadFailure::Limit, "„[%1]“ im Dokument „[%2]“ wird ausgepackt zu groß; [%3] hebt die Grenze an.",
             "“[%1]” in the document “[%2]” unpacks to too many bytes; [%3] raises the limit.",
             {part, path_, byRatio ? "--max-zip-ratio" : "--max-zip-part-size"});
    }

    void ReadCompound() {
        bool incomplete = false;
        const auto root = OpenCompoundFile(bytes_, path_, limits_, &incomplete);
        if (!root) RefuseDamaged();
        RefuseEncrypted(*root);
        const auto description = DescribeCompoundFile(*root);
        document_.description = description.value_or(Sentence{"VBA-Projekt ohne Dokument", "VBA project by itself"});
        ReadApplication(*root);
        const bool read = ReadProjectOfCompound(*root);
        if (!read && incomplete) RefuseDamaged();
        if (!read && !description) RefuseKind();
        if (incomplete) ReportIncomplete();
        // An Access project alone has forms of this kind; elsewhere nothing bears the names of their storages.
        AddFormLayouts(*root, document_.codePage, bytes_.size(), document_);
    }

    void RefuseEncrypted(const Storage& root) const {
        if (!root.ReadStream(u"EncryptedPackage", 1)) return;
        Fail(ReadFailure::Encrypted,
             "„[%1]“ ist mit einem Kennwort verschlüsselt; im Ursprungsprogramm öffnen und ohne Kennwort speichern.",
             "“[%1]” is encrypted with a password; open it in its program and save it without the password.", {path_});
    }

    void ReadApplication(const Storage& root) {
        const std::string summary = root.ReadStream(u"\5SummaryInformation", kHeadBytes).value_or("");
        const std::string more = root.ReadStream(u"\5DocumentSummaryInformation", kHeadBytes).value_or("");
        document_.application = Joined(ApplicationName(summary), ApplicationVersion(more));
    }

    // False if there is none.
    bool ReadProjectOfCompound(const Storage& root) {
        if (HoldsOvbaProject(root)) {
            TakeProject(root);
            return true;
        }
        if (ReadProjectOfPresentation(root)) return true;
        const auto project = FindBelow(root);
        if (project) TakeProject(*project);
        return project != nullptr;
    }

    bool ReadProjectOfPresentation(const Storage& root) {
        const auto stream = root.ReadStream(u"PowerPoint Document", bytes_.size());
        if (!stream) return false;
        const PptStorages storages = FindPptStorages(*stream, unpackedLeft_);
        if (storages.limitHit) RefuseUnpacked("PowerPoint Document", false);
        for (const std::string& bytes : storages.compoundFiles) {
            const auto embedded = OpenInner(bytes);
            if (!embedded || !HoldsOvbaProject(*embedded)) continue;
            TakeProject(*embedded);
            return true;
        }
        return false;
    }

    std::unique_ptr<Storage> FindBelow(const Storage& root) const {
        FoundProject found = FindOvbaProject(root, limits_.storageDepth);
        if (!found.root && found.tooDeep) {
            Fail(ReadFailure::Limit,
                 "„[%1]“ schachtelt Speicher tiefer als [%2]; --max-storage-depth hebt die Grenze an.",
                 "“[%1]” nests storages deeper than [%2]; --max-storage-depth raises the limit.",
                 {path_, std::to_string(limits_.storageDepth)});
        }
        return std::move(found.root);
    }

    void TakeProject(const Storage& root) {
        OvbaProject project = ReadOvbaProject(root, path_, limits_);
        if (project.modules.empty() && project.compiledOnly > 0) {
            Fail(ReadFailure::CompiledOnly,
                 "„[%1]“ enthält nur kompilierten Code, der Quelltext wurde entfernt; die Datei mit dem Quelltext "
                 "prüfen.",
                 "“[%1]” holds compiled code only, its source was removed; check the file that has the source.",
                 {path_});
        }
        if (project.compiledOnly > 0) {
            project.problems.push_back(
                MakeSentence("Module ohne Quelltext in „[%1]“: [%2]; sie sind nur kompiliert da, die Datei mit dem "
                             "Quelltext prüfen.",
                             "Modules without source in “[%1]”: [%2]; only their compiled code is left, check the file "
                             "that has the source.",
                             {path_, std::to_string(project.compiledOnly)}));
        }
        if (!project.name.empty()) document_.projectName = std::move(project.name);
        document_.codePage = project.codePage;
        document_.locked = project.locked;
        document_.modules = std::move(project.modules);
        document_.references = std::move(project.references);
        document_.problems = std::move(project.problems);
    }

    void ReportIncomplete() {
        document_.problems.push_back(MakeSentence(
            "„[%1]“ ist beschädigt oder abgeschnitten, gelesen wurde, was da ist; die Datei neu übertragen.",
            "“[%1]” is damaged or cut off, what is there was read; transfer the file anew.", {path_}));
    }

    std::string_view bytes_;
    const std::string& path_;
    Limits limits_;
    std::uint64_t unpackedLeft_ = 0;
    std::uint64_t entriesOpened_ = 0;
    bool damagedPart_ = false;
    Document document_;
};

}  // namespace

bool LooksLikeOfficeDocument(std::string_view bytes) {
    return HasZipSignature(bytes) || HasCompoundSignature(bytes);
}

Document ReadOfficeDocument(std::string_view bytes, const std::string& path, const Limits& limits) {
    return DocumentReader(bytes, path, limits).Read();
}

}  // namespace zentlor::readers
