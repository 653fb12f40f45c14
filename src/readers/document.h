#pragma once

// What a reader delivers: the modules of one document, as plain data. A reader knows its file format and nothing of
// checks, options or output; what it hands over is the text that the editor would show.

#include <cstdint>
#include <stdexcept>
#include <string>
#include <vector>

#include "core/utilities/text.h"
#include "readers/file_lines.h"

namespace zentlor::readers {

/// The editor's numbers for the kinds of component (vbext_ComponentType).
enum class ModuleType { Standard = 1, Class = 2, Form = 3, Document = 100 };

/// A line that the editor hides, between two lines of the code.
struct HiddenLine {
    std::uint32_t linesBefore = 0;  ///< lines of the code in front of it
    Text text;
};

/// One module as the editor shows it.
struct SourceModule {
    Text name;
    ModuleType type = ModuleType::Standard;
    /// Where the module was found: the file of an exported module, the document of a module inside of one.
    std::string path;
    /// The code without headers and `Attribute` lines, its lines ended by LF; a last LF makes no further line.
    Text code;
    /// For every line of `code` the line of the file that it was read from.
    FileLines fileLines;
    /// What an export has to give back beside the code: the header (`VERSION` … `END`) with the `Attribute` lines at
    /// the top, their lines ended by LF, and the `Attribute` lines inside of the code.
    Text header;
    std::vector<HiddenLine> innerAttributes;
};

/// A control of an Access form or report: its name, and the number of its AcControlType.
struct FormControl {
    Text name;
    int type = 0;
};

/// An Access form or report with its controls.
struct FormLayout {
    Text name;
    bool report = false;
    std::vector<FormControl> controls;

    /// What the editor calls its module.
    Text ModuleName() const { return (report ? u"Report_" : u"Form_") + name; }
};

/// A sentence for the user, complete with its full stop, in both languages of the program. UTF-8.
struct Sentence {
    std::string german;
    std::string english;
};

/// Everything that was read from one document (or from one folder of exported modules).
struct Document {
    std::string path;
    std::uint64_t fileBytes = 0;  ///< size of its file
    /// The project's own name (`PROJECT` stream, `dir`), or the file's stem.
    Text projectName;
    /// What the file is, for a person: "Excel workbook (Office Open XML)", "Access 2007–2019 database", …
    Sentence description;
    /// The program that wrote it, with version, as far as the file tells; else empty.
    std::string application;
    /// The project's code page (1252, 932, 10000 …), 0 where there is none.
    int codePage = 0;
    /// The project is locked for viewing. Its source is readable all the same.
    bool locked = false;
    std::vector<SourceModule> modules;
    std::vector<FormLayout> layouts;
    /// The project's references, as a person reads them.
    std::vector<Text> references;
    /// What was wrong with the document although modules were read: damage, undecodable bytes, a limit that was hit.
    /// Each makes the result a partial one.
    std::vector<Sentence> problems;
};

/// Why a document gave nothing.
enum class ReadFailure {
    NotFound,      ///< no such file, or it vanished while being read
    NoPermission,  ///< the file may not be read
    NotAFile,      ///< a FIFO, a socket or a device
    NotADocument,  ///< neither an Office nor an Access file nor an exported module
    Encrypted,     ///< needs a password
    CompiledOnly,  ///< the source was removed, only compiled code is left
    Damaged,       ///< truncated or inconsistent
    Limit,         ///< larger than a limit of `Limits`
    Unsupported,   ///< recognised, and of a kind that is not read
};

/// The one error that readers throw. `what()` is the English sentence.
class ReadError : public std::runtime_error {
  public:
    ReadError(ReadFailure why, Sentence text)
        : std::runtime_error(text.english), failure(why), sentence(std::move(text)) {}
    ReadFailure failure;
    Sentence sentence;
};

/// Bounds on what a reader takes in, so that a hostile file costs neither memory nor time without end. A bound that is
/// hit is reported (ReadFailure::Limit or a problem of the document) and never passed over in silence.
struct Limits {
    std::uint64_t fileBytes = 2048ull << 20;    ///< size of a file: --max-file-size
    std::uint64_t zipPartBytes = 256ull << 20;  ///< unpacked size of one part of a zip: --max-zip-part-size
    std::uint32_t zipParts = 1000;              ///< parts of a zip: --max-zip-parts
    std::uint32_t zipRatio = 200;               ///< unpacked to packed size, behind the first MiB: --max-zip-ratio
    std::uint64_t moduleBytes = 16ull << 20;    ///< text of one module: --max-module-size
    std::uint64_t sourceBytes = 256ull << 20;   ///< text of all modules of one document: --max-source-size
    std::uint64_t checkBytes = 2048ull << 20;   ///< memory for the code of one document: --max-memory
    std::uint32_t modules = 32767;              ///< modules of one project: --max-modules
    std::uint32_t storageDepth = 16;            ///< nested storages of a compound file: --max-storage-depth
    /// Storages and streams of a compound file, free entries included: --max-storage-entries. The library's time grows
    /// with its square: a second for these.
    std::uint32_t storageEntries = 10500;

    /// The limits for a file of that size: a small file does not get all of what the largest may take, so that memory
    /// stays in proportion. Sizes that differ from their defaults were asked for, and count as they are.
    Limits InProportionTo(std::uint64_t file) const;
};

}  // namespace zentlor::readers
