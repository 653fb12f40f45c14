#pragma once

// The door to all readers of documents: a path in, modules out, whatever kind of document it is.

#include <string>
#include <string_view>

#include "readers/document.h"

namespace zentlor::readers {

/// What the first bytes of a file tell about it.
enum class FileKind {
    Office,          ///< a zip or a compound file
    AccessDatabase,  ///< Jet or ACE
    Other,           ///< no document; perhaps an exported module
};
FileKind RecogniseFile(std::string_view firstBytes);

/// As many bytes as `RecogniseFile` looks at.
inline constexpr std::size_t kRecognisedBytes = 32;

/// All bytes of the regular file `path`. Nothing but a regular file is opened.
/// Throws `ReadError`: `NotFound`, `NoPermission`, `NotAFile`, `Limit` or `Damaged` (an error of the medium).
std::string ReadWholeFile(const std::string& path, const Limits& limits);

/// The document `path`, recognised by content. Throws `ReadError`; what is neither an Office document nor an Access
/// database is `NotADocument`.
Document ReadDocument(const std::string& path, const Limits& limits);
/// The same for a file that is in memory already.
Document ReadDocument(std::string_view bytes, const std::string& path, const Limits& limits);

}  // namespace zentlor::readers
