#pragma once

// A component as the editor's own export would write it: header, attributes and code in one text, and the name of its
// file.

#include <functional>
#include <string>

#include "workspace/workspace.h"

namespace zentlor::workspace {

/// Calls `take` with each line of the exported file, without its end, which is CR LF.
void ForEachExportLine(const OpenedProject& project, const VBComponent& component,
                       const std::function<void(TextView line)>& take);

/// The file's name: the component's name and .bas, .cls or .frm. Characters that are no part of a plain file name
/// become "_", so that the file lies in its folder whatever the component is called. UTF-8.
std::string ExportFileName(const VBComponent& component);

/// `name` as a plain file name, without separators, control characters, leading dots and names of devices.
std::string PlainFileName(TextView name);

}  // namespace zentlor::workspace
