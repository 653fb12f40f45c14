#pragma once

// The source of a project as the analysis reads it: an editor with its active project, the project's components, and
// for each component a code module, which is a sequence of physical lines held in memory. A reader delivers names,
// kinds and text; what the logic asks of them exists here, once.
//
// Lines and columns count from 1. The text is in the editor's stored form, or hints are lost.

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "core/analysis/procedure_extents.h"
#include "core/analysis/word_index.h"
#include "core/utilities/failure_frame.h"
#include "core/utilities/text.h"

namespace zentlor {

class VBComponent;
class VBProject;

/// The editor's vbext_ComponentType.
enum ComponentType {
    vbext_ct_StdModule = 1,
    vbext_ct_ClassModule = 2,
    vbext_ct_MSForm = 3,
    vbext_ct_Document = 100,
};

/// The four positions of a search: on entry its bounds, after a hit the hit's first and its last character.
struct FindRange {
    int startLine = 1;
    int startColumn = 0;  ///< 0 is the line's start, like 1
    int endLine = -1;     ///< -1 is the module's last line
    int endColumn = -1;   ///< -1, 0, and any column behind the line's end, are the end of line `endLine`
};

struct FindFlags {
    bool wholeWord = false;
    bool matchCase = false;
};

/// The lines of one module. All operations are const, and take constant time but where they say otherwise.
class CodeModule {
  public:
    /// `code`: the lines, each ended by LF; a last LF makes no further line.
    CodeModule(const VBComponent& component, Text code);
    CodeModule(const CodeModule&) = delete;
    CodeModule& operator=(const CodeModule&) = delete;

    /// Physical line `line`, without line terminator; valid as long as the module. Throws SubscriptOutOfRange for a
    /// line outside of 1 to CountOfLines().
    TextView Lines(int line) const;
    int CountOfLines() const { return static_cast<int>(lineStarts_.size()) - 1; }
    /// The last line of the declaration section; CountOfLines() if the module holds no procedure.
    int CountOfDeclarationLines() const { return extents_.declarationLines; }

    /// Name and kind of the procedure to which `line` belongs: lines in front of a header belong to the procedure
    /// below, lines behind the last procedure to the last one. Empty and 0 for a line of the declaration section. Takes
    /// time in the logarithm of the procedures. Throws SubscriptOutOfRange for a line outside of the module.
    TextView ProcOfLine(int line, int& kind) const;
    TextView ProcOfLine(int line) const;
    /// Lines of the procedure, those in front of its header included. Throws SubscriptOutOfRange if there is none.
    int ProcCountLines(TextView name, int kind) const;
    /// The header's first line. Throws SubscriptOutOfRange if there is none.
    int ProcBodyLine(TextView name, int kind) const;
    const std::vector<Procedure>& Procedures() const { return extents_.procedures; }

    /// The first place at or behind the start at which `target` stands, whole before the end; on a hit True, and
    /// `range` holds it. Literal; a match never spans two lines. An empty target is never found. A search with exact
    /// case for a whole word, or for a word's end and what follows it, is answered by the project's index; any other
    /// one walks over the text.
    bool Find(TextView target, FindRange& range, FindFlags flags) const;

    /// Find with exact case, whose hits stand free: no character beside them is one that `continuesWord`. That must
    /// hold for every character of the index.
    bool FindWord(TextView target, FindRange& range, bool (*continuesWord)(char16_t)) const;

    /// Find's answer by the plain walk over the text alone, for tests that hold the two against each other.
    bool FindByWalk(TextView target, FindRange& range, FindFlags flags) const;

    const VBComponent& Parent() const { return component_; }
    /// The module's whole text, lines ended by LF.
    TextView AllText() const { return text_; }
    /// Offset in AllText() of the first character of `line`, which may be one behind the last line.
    std::uint32_t OffsetOfLine(int line) const { return lineStarts_[static_cast<std::size_t>(line - 1)]; }
    /// The line that holds the character at `offset`.
    int LineOfOffset(std::uint32_t offset) const;

  private:
    struct Bounds {
        std::uint32_t from = 0;
        std::uint32_t to = 0;  ///< behind the last character that a match may have
    };
    bool ToBounds(const FindRange& range, Bounds& bounds) const;
    std::size_t SearchText(TextView target, Bounds bounds, FindFlags flags) const;
    std::size_t SearchWord(TextView target, Bounds bounds, bool (*continuesWord)(char16_t)) const;
    std::size_t SearchFragment(TextView target, Bounds bounds) const;
    bool Deliver(std::size_t offset, std::size_t length, FindRange& range) const;
    bool StandsFree(std::size_t offset, std::size_t length, bool (*continuesWord)(char16_t)) const;
    const Procedure& ProcedureNamed(TextView name, int kind) const;

    const VBComponent& component_;
    Text text_;
    std::vector<std::uint32_t> lineStarts_;
    ModuleExtents extents_;
    std::vector<std::uint32_t> byName_;  ///< positions in extents_.procedures, ordered by name and kind
};

class VBComponent {
  public:
    VBComponent(const VBProject& project, std::uint32_t index, Text name, int type, Text code);

    const Text& Name() const { return name_; }
    int Type() const { return type_; }
    const zentlor::CodeModule& CodeModule() const { return code_; }
    const VBProject& Project() const { return project_; }
    /// Position in the project, counted from 0: the component's number in the project's index.
    std::uint32_t Index() const { return index_; }

  private:
    const VBProject& project_;
    std::uint32_t index_;
    Text name_;
    int type_;
    zentlor::CodeModule code_;
};

/// A project: its components in the editor's order, and the index of its words.
class VBProject {
  public:
    /// `words` are those that were met when the code was read.
    explicit VBProject(Text name, Text fileName = {}, WordTable words = {})
        : name_(std::move(name)), fileName_(std::move(fileName)), words_(std::move(words)) {}
    VBProject(const VBProject&) = delete;
    VBProject& operator=(const VBProject&) = delete;

    /// Adds a component behind the others. Not while an analysis is under way.
    VBComponent& Add(Text name, int type, Text code);
    /// The same where the words of `code` are known, by their numbers in the table that the project was given.
    VBComponent& Add(Text name, int type, Text code, std::vector<WordPlace> words);

    const Text& Name() const { return name_; }
    /// Full path of the project's file.
    const Text& FileName() const { return fileName_; }
    const std::vector<std::unique_ptr<VBComponent>>& VBComponents() const { return components_; }
    /// The component of that name. Throws SubscriptOutOfRange if there is none.
    const VBComponent& Item(TextView name) const;

    /// Made at the first question after the last Add.
    const WordIndex& Words() const;

    /// Where the routines that read this project report their failures; nothing analyses a project without one.
    void ReportFailuresTo(FailureReporter& failures) { failures_ = &failures; }
    FailureReporter& Failures() const;

  private:
    Text name_;
    Text fileName_;
    std::vector<std::unique_ptr<VBComponent>> components_;
    WordTable words_;
    mutable std::vector<ModuleWords> wordPlaces_;  ///< of the components that the index does not hold yet
    mutable std::unique_ptr<WordIndex> index_;
    FailureReporter* failures_ = nullptr;
};

}  // namespace zentlor
