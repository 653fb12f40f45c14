// A database is read from its first page on: page 0 tells the generation and whether a password is needed, the catalog
// tells which tables there are, and one of three of them holds the VBA project. What was found wrong on the way is told
// at the end, since it may be of no consequence for what was read.

#include "readers/access_database.h"

#include <filesystem>
#include <memory>
#include <optional>
#include <utility>

#include "core/utilities/encoding.h"
#include "readers/access_controls.h"
#include "readers/access_modules.h"
#include "readers/access_storage.h"
#include "readers/container.h"
#include "readers/jet_catalog.h"
#include "readers/jet_file.h"
#include "readers/ovba_project.h"
#include "readers/sentences.h"

namespace zentlor::readers {
namespace {

Sentence Describe(const JetFile& file, const JetCatalog& catalog) {
    switch (file.VersionByte()) {
        case 0:
            return {"Access-Datenbank 97 (Jet 3)", "Access 97 database (Jet 3)"};
        case 1:
            break;
        case 2:
            return {"Access-Datenbank ab 2007 (ACE)", "Access database, 2007 or later (ACE)"};
        case 3:
            return {"Access-Datenbank ab 2010 (ACE)", "Access database, 2010 or later (ACE)"};
        case 4:
            return {"Access-Datenbank ab 2013 (ACE)", "Access database, 2013 or later (ACE)"};
        case 5:
            return {"Access-Datenbank ab 2016 (ACE)", "Access database, 2016 or later (ACE)"};
        default:
            return {"Access-Datenbank ab 2019 (ACE)", "Access database, 2019 or later (ACE)"};
    }
    if (catalog.HasTable(u"MSysAccessStorage")) {
        return {"Access-Datenbank 2002–2003 (Jet 4)", "Access 2002–2003 database (Jet 4)"};
    }
    return {"Access-Datenbank 2000 (Jet 4)", "Access 2000 database (Jet 4)"};
}

class DatabaseReader {
  public:
    DatabaseReader(std::string_view bytes, const std::string& path, const Limits& limits)
        : file_(bytes), path_(path), limits_(limits.InProportionTo(bytes.size())), fileBytes_(bytes.size()) {}

    Document Read() {
        RefusePassword();
        const auto catalog = JetCatalog::Read(file_);
        if (!catalog) FailDamaged();
        document_.path = path_;
        document_.description = Describe(file_, *catalog);
        document_.application = "Microsoft Access";
        OpenStorages(*catalog);
        auto project = ReadProject(*catalog);
        const std::size_t compiledOnly = project ? project->compiledOnly : 0;
        if (project) TakeProject(std::move(*project));
        if (document_.projectName.empty())
            document_.projectName = FromUtf8(std::filesystem::path(path_).stem().string());
        if (storages_) {
            AddFormLayouts(*storages_, document_.codePage != 0 ? document_.codePage : file_.CodePage(), fileBytes_,
                           document_);
        }
        ReportMissingSource(*catalog, compiledOnly);
        ReportDamage(*catalog);
        return std::move(document_);
    }

  private:
    void RefusePassword() const {
        if (!file_.NeedsPassword()) return;
        Fail(ReadFailure::Encrypted,
             "„[%1]“ ist mit einem Datenbankkennwort verschlüsselt; das Kennwort in Access entfernen (Datei, "
             "Datenbank "
             "entschlüsseln) und erneut prüfen.",
             "“[%1]” is encrypted with a database password; remove the password in Access (File, Decrypt Database) "
             "and "
             "check again.",
             {path_});
    }

    [[noreturn]] void FailDamaged() const {
        Fail(ReadFailure::Damaged,
             "Die Datenbank „[%1]“ ist abgeschnitten oder beschädigt und gibt keinen VBA-Code her; in Access "
             "komprimieren und reparieren oder aus einer Sicherung holen.",
             "The database “[%1]” is truncated or damaged and gives no VBA code; compact and repair it in Access or "
             "take it from a backup.",
             {path_});
    }

    void OpenStorages(const JetCatalog& catalog) {
        storages_ = OpenAccessStorage(file_, catalog);
        if (storages_) return;
        compoundFile_ = JoinAccessObjects(file_, catalog).value_or(std::string{});
        if (compoundFile_.empty()) return;
        storages_ = OpenCompoundFile(compoundFile_, path_, limits_);
        if (!storages_) file_.Damage().brokenRows = true;
    }

    // What Access 97 wrote is the authority where it holds modules: a copy that a later version left behind is older.
    std::optional<OvbaProject> ReadProject(const JetCatalog& catalog) {
        auto access97 = ReadAccessModules(file_, catalog, path_, limits_);
        if (access97 && access97->listed > 0) return access97;
        const auto root = storages_ ? OpenPath(*storages_, {u"VBA", u"VBAProject"}) : nullptr;
        if (root && HoldsOvbaProject(*root)) return ReadOvbaProject(*root, path_, limits_);
        return access97;
    }

    void TakeProject(OvbaProject project) {
        document_.projectName = std::move(project.name);
        document_.codePage = project.codePage;
        document_.locked = project.locked;
        document_.references = std::move(project.references);
        document_.modules = std::move(project.modules);
        document_.problems = std::move(project.problems);
    }

    void ReportMissingSource(const JetCatalog& catalog, std::size_t compiledOnly) {
        if (compiledOnly > 0 && !document_.modules.empty()) {
            Report(
                "Module ohne Quelltext in „[%1]“: [%2]; sie sind nur kompiliert da, die Datei mit dem Quelltext "
                "prüfen.",
                "Modules without source in “[%1]”: [%2]; only their compiled code is left, check the file that has the "
                "source.",
                {path_, std::to_string(compiledOnly)});
        }
        if (!document_.modules.empty() || (compiledOnly == 0 && !catalog.IsMarkedCompiledOnly())) return;
        Fail(ReadFailure::CompiledOnly,
             "„[%1]“ enthält nur kompilierten Code ohne Quelltext (.mde, .accde); die Datenbank prüfen, aus der diese "
             "entstand.",
             "“[%1]” holds compiled code only, without source (.mde, .accde); check the database that it was made "
             "from.",
             {path_});
    }

    void ReportDamage(const JetCatalog& catalog) {
        const JetDamage damage = file_.Damage();
        const bool damaged = damage.missingPages || damage.brokenRows || damage.endlessChain;
        const bool nothing = document_.modules.empty() && document_.problems.empty();
        if (nothing && (damaged || damage.missingRows || catalog.ModuleCount() > 0)) FailDamaged();
        if (damage.missingPages) {
            Report("„[%1]“ ist abgeschnitten, es kann Code fehlen; die Datei aus einer Sicherung holen.",
                   "“[%1]” is cut off, code may be missing; take the file from a backup.", {path_});
        }
        if (damage.endlessChain) {
            Report(
                "In „[%1]“ führen Verweise im Kreis, es kann Code fehlen; die Datenbank in Access komprimieren und "
                "reparieren.",
                "References in “[%1]” lead in a circle, code may be missing; compact and repair the database in "
                "Access.",
                {path_});
        }
        if (damage.brokenRows && !damage.missingPages && !damage.endlessChain) {
            Report("Die Datenbank „[%1]“ ist beschädigt, es kann Code fehlen; in Access komprimieren und reparieren.",
                   "The database “[%1]” is damaged, code may be missing; compact and repair it in Access.", {path_});
        }
    }

    void Report(std::string_view german, std::string_view english, std::initializer_list<std::string> values) {
        document_.problems.push_back(MakeSentence(german, english, values));
    }

    JetFile file_;
    const std::string& path_;
    Limits limits_;
    std::uint64_t fileBytes_;
    Document document_;
    /// The compound file that `storages_` looks at, where there is one.
    std::string compoundFile_;
    std::unique_ptr<Storage> storages_;
};

}  // namespace

bool LooksLikeAccessDatabase(std::string_view bytes) {
    return JetFile::Recognises(bytes);
}

Document ReadAccessDatabase(std::string_view bytes, const std::string& path, const Limits& limits) {
    if (!JetFile::Recognises(bytes)) {
        Fail(ReadFailure::NotADocument, "„[%1]“ ist keine Access-Datenbank.", "“[%1]” is not an Access database.",
             {path});
    }
    return DatabaseReader(bytes, path, limits).Read();
}

}  // namespace zentlor::readers
