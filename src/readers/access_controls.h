#pragma once

// The forms and reports of an Access database with the names and types of their controls, as the database keeps them
// beside its VBA project. The format is not published; what is read here was found by looking.

#include <cstdint>
#include <string_view>
#include <vector>

#include "readers/container.h"
#include "readers/document.h"

namespace zentlor::readers {

/// Adds all forms, then all reports, to `document.layouts`, in the order of their directories. `root` is the storage
/// that holds `Forms`, `Reports` and `VBA`; `codePage` is that of the names of controls. If there are more than any
/// database can hold, or their lists come to more than `fileBytes`, the first of them are added and a problem of the
/// document tells.
void AddFormLayouts(const Storage& root, int codePage, std::uint64_t fileBytes, Document& document);

/// The controls that the stream `TypeInfo` of a form or report lists, without its sections and the fields of its record
/// source. A list that ends early gives what is there.
std::vector<FormControl> ParseTypeInfo(std::string_view bytes, int codePage);

}  // namespace zentlor::readers
