#pragma once

// What lies below a path: the files that may hold VBA code, in byte order of their relative paths.

#include <string>
#include <vector>

#include "readers/document.h"

namespace zentlor::workspace {

enum class FileRole { Module, Document };

struct FoundFile {
    std::string path;      ///< as the user can open it: the folder as given, "/", the relative path
    std::string relative;  ///< below the folder that was given; the name for a file that was given itself
    FileRole role = FileRole::Module;
};

struct FileList {
    std::vector<FoundFile> files;
    std::vector<readers::Sentence> problems;  ///< folders that could not be looked at
};

/// The files below the folder `folder`, at any depth. Recognised are exported modules by their ending, and documents
/// and Access exports by their first bytes (a document that bears a module's ending is told only by whoever reads it);
/// everything else is passed over, as are folders and files whose name begins
/// with a dot, and links to folders. Throws readers::ReadError if the folder itself cannot be read.
FileList ListFolder(const std::string& folder);

/// Up to `count` first bytes of a regular file; empty if it cannot be read or is none.
std::string ReadFirstBytes(const std::string& path, std::size_t count);

}  // namespace zentlor::workspace
