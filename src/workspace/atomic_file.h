#pragma once

#include <string>
#include <string_view>

namespace zentlor::workspace {

/// Writes `bytes` to the file at `path`, in place of any file there. The bytes go to a temporary file beside it, are
/// brought to the disk, and take the name in one step, so that at every moment the name leads to the whole old or the
/// whole new content. Mode and, where permitted, owner of an old file stay; a symbolic link stays and its target
/// changes. What is no ordinary file, such as a terminal or a pipe, is written to directly.
///
/// A failure leaves the old file and no temporary one, and throws RuntimeError with a sentence that names the file:
/// 76 the folder does not exist, 70 permission denied, 75 the name is taken by a folder or cannot be used, 61 the disk
/// is full, 57 any other fault of the device.
void WriteFileAtomically(const std::string& path, std::string_view bytes);

}  // namespace zentlor::workspace
