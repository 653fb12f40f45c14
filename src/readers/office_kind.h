#pragma once

// What an Office document is, in words: which program's, which kind, which generation.

#include <optional>
#include <string_view>
#include <vector>

#include "readers/container.h"
#include "readers/document.h"

namespace zentlor::readers {

/// The kind of a zip by its `[Content_Types].xml` and the folders of its parts; nothing for a zip that is no Office
/// document.
std::optional<Sentence> DescribeOpenXml(std::string_view contentTypes, const std::vector<ZipPart>& parts);

/// The kind of a compound file by what its root holds; nothing for one that no Office program writes.
std::optional<Sentence> DescribeCompoundFile(const Storage& root);

}  // namespace zentlor::readers
