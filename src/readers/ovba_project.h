#pragma once

// A VBA project as it lies in a storage ([MS-OVBA] 2.2): `VBA/dir` lists the modules, a stream each holds their
// compressed source, and `PROJECT` tells of what kind they are. What is missing or damaged costs what it holds and no
// more, and is named in `problems`.

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/utilities/text.h"
#include "readers/container.h"
#include "readers/document.h"
#include "readers/ovba_dir.h"

namespace zentlor::readers {

struct OvbaProject {
    Text name;
    int codePage = 1252;
    bool locked = false;
    std::vector<Text> references;
    /// In the order of `dir`; their lines count as in the editor, `fileLines` changes none.
    std::vector<SourceModule> modules;
    std::vector<Sentence> problems;
    /// Modules whose source was removed while their compiled form is there. They are not in `modules`, and no problem
    /// tells of them: if they are all there is, the document is "compiled only".
    std::size_t compiledOnly = 0;
    /// Modules that `dir` lists, read or not.
    std::size_t listed = 0;
};

/// Whether `root` holds a stream `VBA/dir`.
bool HoldsOvbaProject(const Storage& root);

/// The project whose `VBA` storage lies directly below `root`. `path` names the document in sentences and modules.
/// Throws `ReadError` with `Damaged` if there is no readable `dir`.
OvbaProject ReadOvbaProject(const Storage& root, const std::string& path, const Limits& limits);

/// The same for a project that is not kept in a storage.
struct OvbaSource {
    /// The `dir` stream as it is kept, compressed.
    std::string_view dir;
    /// The `PROJECT` stream; empty where there is none. Then standard modules are told from the rest, and of what kind
    /// the rest is follows from the attribute `VB_Base` of their source.
    std::string_view project;
    /// The bytes that hold the compressed source of a module at its `sourceOffset`, or nothing if there are none.
    std::function<std::optional<std::string>(const OvbaDirModule&)> moduleStream;
};
OvbaProject ReadOvbaProject(const OvbaSource& source, const std::string& path, const Limits& limits);

}  // namespace zentlor::readers
