#include "workspace/workspace.h"

#include <algorithm>
#include <filesystem>
#include <map>
#include <utility>

#include "core/utilities/encoding.h"
#include "readers/exported_module.h"
#include "readers/reader.h"
#include "readers/sentences.h"
#include "workspace/compiler.h"
#include "workspace/file_list.h"
#include "workspace/stopwatch.h"

namespace zentlor::workspace {

namespace {

namespace fs = std::filesystem;

std::string FolderOf(const std::string& path) {
    const auto slash = path.rfind('/');
    return slash == std::string::npos ? "." : path.substr(0, std::max<std::size_t>(slash, 1));
}

std::string AbsolutePath(const std::string& path) {
    std::error_code error;
    const fs::path absolute = fs::absolute(path, error);
    return error ? path : absolute.lexically_normal().string();
}

// The name of a folder, for a project of loose modules: "examples/kunden/" gives "kunden".
Text ProjectNameOf(const std::string& folder) {
    fs::path path(AbsolutePath(folder));
    if (!path.has_filename()) path = path.parent_path();
    const std::string name = path.filename().string();
    return FromUtf8(name.empty() ? folder : name);
}

class Opener {
  public:
    explicit Opener(const OpenOptions& options) : options_(options) {}

    Workspace Run(const std::vector<std::string>& paths) {
        for (const std::string& path : paths) Guard(path, [&] { OpenPath(path); });
        if (!named_.empty()) AddLooseModules(FolderOf(named_.front()), named_);
        return std::move(workspace_);
    }

  private:
    template <class Body>
    void Guard(const std::string& path, Body body) {
        try {
            body();
        } catch (const readers::ReadError& error) {
            workspace_.unreadable.push_back({path, error.failure, error.sentence});
        }
    }

    void OpenPath(const std::string& path) {
        std::error_code error;
        if (fs::is_directory(path, error)) {
            OpenFolder(path);
            return;
        }
        const std::string first = ReadFirstBytes(path, readers::kRecognisedBytes);
        if (readers::RecogniseFile(first) != readers::FileKind::Other) {
            OpenDocument(path);
        } else {
            named_.push_back(path);
        }
    }

    void OpenFolder(const std::string& path) {
        FileList list = ListFolder(path);
        for (readers::Sentence& problem : list.problems) workspace_.problems.push_back(std::move(problem));
        std::map<std::string, std::vector<std::string>> modules;
        for (const FoundFile& file : list.files) {
            if (file.role == FileRole::Document) {
                Guard(file.path, [&] { OpenDocument(file.path); });
            } else {
                modules[options_.projectPerFolder ? FolderOf(file.path) : path].push_back(file.path);
            }
        }
        for (const auto& [folder, files] : modules) AddLooseModules(folder, files);
        if (list.files.empty() && list.problems.empty()) {
            readers::Fail(
                readers::ReadFailure::NotADocument,
                "Im Ordner „[%1]“ liegt nichts, was VBA-Code enthält; gesucht werden exportierte Module (.bas, "
                ".cls, .frm), Office-Dokumente und Access-Datenbanken.",
                "The folder “[%1]” holds nothing with VBA code; what is looked for are exported modules (.bas, "
                ".cls, .frm), Office documents and Access databases.",
                {path});
        }
    }

    void OpenDocument(const std::string& path) {
        readers::Document document;
        {
            const Stopwatch watch(options_.times, &StageTimes::read);
            document = readers::ReadDocument(path, options_.limits);
        }
        auto problem = document.problems.begin();
        if (document.modules.empty()) {
            if (problem == document.problems.end()) {
                workspace_.empty.push_back(std::move(document));
                return;
            }
            // Whether it holds code is what the problem kept from us.
            workspace_.unreadable.push_back({path, readers::ReadFailure::Damaged, *problem++});
        }
        workspace_.problems.insert(workspace_.problems.end(), problem, document.problems.end());
        if (document.modules.empty()) return;
        for (readers::SourceModule& module : document.modules) module.path = path + "/" + ToUtf8(module.name);
        Add(std::move(document), true);
    }

    void AddLooseModules(const std::string& folder, const std::vector<std::string>& files) {
        readers::Document document;
        document.path = folder;
        document.projectName = ProjectNameOf(folder);
        {
            const Stopwatch watch(options_.times, &StageTimes::read);
            for (const std::string& file : files) {
                Guard(file, [&] { TakeModule(file, document); });
            }
        }
        for (const std::string& file : std::exchange(disguised_, {})) Guard(file, [&] { OpenDocument(file); });
        if (!document.modules.empty()) Add(std::move(document), false);
    }

    void TakeModule(const std::string& path, readers::Document& document) {
        readers::Limits limits = options_.limits;
        limits.fileBytes = std::min(limits.fileBytes, 2 * limits.moduleBytes);
        const std::string bytes = readers::ReadWholeFile(path, limits);
        if (readers::RecogniseFile(bytes) != readers::FileKind::Other) {
            disguised_.push_back(path);
            return;
        }
        auto module = readers::ReadExportedModule(bytes, path);
        if (module) {
            document.modules.push_back(std::move(*module));
            return;
        }
        readers::Document without;
        without.path = path;
        without.description = {"Access-Objekt als Text, ohne Code", "Access object as text, without code"};
        workspace_.empty.push_back(std::move(without));
    }

    // Only the memory for a document is bounded: loose modules are as large as they are.
    CompiledModules CompileWithin(readers::Document& document, bool isDocument) {
        CompileOptions options{.keepRawCode = options_.keepRawCode, .times = options_.times};
        if (isDocument) options.memory = options_.limits.InProportionTo(document.fileBytes).checkBytes;
        const std::size_t found = document.modules.size();
        CompiledModules compiled = Compile(document.modules, options);
        const std::size_t taken = document.modules.size();
        if (taken == found) return compiled;
        readers::Sentence problem = readers::MakeSentence(
            "Für den Code in „[%1]“ reichen [%2] Speicher nicht, [%3] der [%4] Module wurden genommen; --max-memory "
            "hebt "
            "die Grenze an.",
            "[%2] of memory do not suffice for the code in “[%1]”, [%3] of its [%4] modules were taken; --max-memory "
            "raises the limit.",
            {document.path, readers::SizeText(options.memory), std::to_string(taken), std::to_string(found)});
        if (taken == 0) {
            workspace_.unreadable.push_back({document.path, readers::ReadFailure::Limit, std::move(problem)});
        } else {
            workspace_.problems.push_back(std::move(problem));
        }
        return compiled;
    }

    void Add(readers::Document&& document, bool isDocument) {
        OpenedProject opened;
        opened.isDocument = isDocument;
        CompiledModules compiled;
        if (options_.compile) {
            compiled = CompileWithin(document, isDocument);
            if (document.modules.empty()) return;
        } else {
            compiled.rawCode.resize(document.modules.size());
            compiled.wordPlaces.resize(document.modules.size());
        }
        opened.errors = std::move(compiled.errors);
        // A project of loose modules has no file: it is known by its folder, whose separator tells the difference.
        Text fileName = FromUtf8(AbsolutePath(document.path));
        if (!isDocument && !fileName.ends_with(u'/')) fileName += u'/';
        opened.project =
            std::make_unique<VBProject>(document.projectName, std::move(fileName), std::move(compiled.words));
        for (std::size_t i = 0; i < document.modules.size(); ++i) {
            readers::SourceModule& module = document.modules[i];
            opened.origins.push_back({std::move(module.path), std::move(module.fileLines), std::move(module.header),
                                      std::move(module.innerAttributes), std::move(compiled.rawCode[i])});
            opened.project->Add(std::move(module.name), static_cast<int>(module.type), std::move(module.code),
                                std::move(compiled.wordPlaces[i]));
        }
        document.modules.clear();
        opened.document = std::move(document);
        workspace_.projects.push_back(std::move(opened));
    }

    const OpenOptions& options_;
    Workspace workspace_;
    std::vector<std::string> named_;      ///< modules that were named themselves
    std::vector<std::string> disguised_;  ///< documents that bear the name of a module
};

}  // namespace

int ModuleOrigin::FileLine(int line) const {
    return static_cast<int>(fileLines.Of(static_cast<std::uint32_t>(line)));
}

int OpenedProject::LineCount() const {
    int lines = 0;
    for (const auto& component : project->VBComponents()) lines += component->CodeModule().CountOfLines();
    return lines;
}

Workspace Open(const std::vector<std::string>& paths, const OpenOptions& options) {
    return Opener(options).Run(paths);
}

}  // namespace zentlor::workspace
