#pragma once

// The one door from a path to projects that the core can analyse: folders, exported modules, Office documents and
// Access databases. The code comes in the form in which the editor stores it, and with the reasons why it would not
// compile.

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "core/analysis/source_model.h"
#include "readers/document.h"
#include "vba/syntax.h"

namespace zentlor::workspace {

/// Where a component comes from.
struct ModuleOrigin {
    /// The module's own file, or document and module name: "Kunden.accdb/Form_Bestellung".
    std::string path;
    readers::FileLines fileLines;
    /// What the editor hides: see readers::SourceModule.
    Text header;
    std::vector<readers::HiddenLine> innerAttributes;
    /// The lines as they were read, where they differ from the canonical ones and OpenOptions ask for them.
    Text rawCode;

    /// The file's line for line `line` of the module.
    int FileLine(int line) const;
};

/// A reason why a component does not compile. Line and column are those of the module.
struct CompileError {
    std::size_t component = 0;
    vba::SyntaxError error;
};

struct OpenedProject {
    std::unique_ptr<VBProject> project;
    std::vector<ModuleOrigin> origins;  ///< one for each component, in order
    std::vector<CompileError> errors;   ///< in order of components and of text
    /// What the reader told beside the modules, whose code has moved into `project`. For loose modules only the path.
    readers::Document document;
    /// The project is a document, not loose modules.
    bool isDocument = false;

    const ModuleOrigin& OriginOf(const VBComponent& component) const { return origins[component.Index()]; }
    /// Physical lines of all modules.
    int LineCount() const;
};

/// A path that gave nothing, and why.
struct Unreadable {
    std::string path;
    readers::ReadFailure failure = readers::ReadFailure::Damaged;
    readers::Sentence sentence;
};

struct Workspace {
    std::vector<OpenedProject> projects;
    /// Documents that hold no VBA code: no error, and nothing to check.
    std::vector<readers::Document> empty;
    std::vector<Unreadable> unreadable;
    /// What was wrong with a part of the input although the rest was read.
    std::vector<readers::Sentence> problems;

    /// Everything that was named was read whole.
    bool Complete() const { return unreadable.empty() && problems.empty(); }
};

/// Where the time of an opening went, in seconds.
struct StageTimes {
    double read = 0;
    double tokens = 0;
    double canonical = 0;
    double syntax = 0;
    double index = 0;
};

struct OpenOptions {
    readers::Limits limits;
    /// Each folder with modules is a project of its own, not only each path that was named.
    bool projectPerFolder = false;
    /// Keep the lines as they were read, beside the canonical ones.
    bool keepRawCode = false;
    /// Bring the code into the editor's form, check whether it compiles, and read its words. Without that the projects
    /// tell what they hold, but nothing can be searched in them.
    bool compile = true;
    /// Where to add up the stages' times, or nullptr.
    StageTimes* times = nullptr;
};

/// Opens `paths`: each document is a project, the modules below one folder are one, and so are all modules that are
/// named themselves. What cannot be read is told in the result; nothing is thrown, and one bad file never stops the
/// others.
Workspace Open(const std::vector<std::string>& paths, const OpenOptions& options);

}  // namespace zentlor::workspace
