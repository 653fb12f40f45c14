#pragma once

// The export of the result list to a text or table file that the user names.

#include "core/analysis/session.h"
#include "core/utilities/file_dialog.h"

namespace zentlor {

/// The files that the export looks up and writes.
class FileOutput {
  public:
    virtual ~FileOutput() = default;
    /// The file's name without its folder if the file exists, else the empty text.
    virtual Text Dir(TextView path) = 0;
    /// Writes the file, in place of any of that name. A failure, thrown as RuntimeError, leaves the old file as it was.
    virtual void WriteFile(TextView path, std::string_view bytes) = 0;
};

/// Asks for a file and writes the rows to it, in the list's order, in Windows-1252; a character outside of it becomes
/// "?". The chosen name's ending decides: "TXT" and "CSV", in any case; a file of any other name becomes empty.
/// A project that was opened from a folder, its FileName ending in a separator, gives that folder and its own name.
///
/// The whole text is handed over at once: whatever fails, the old file stays, and the button is there for another try.
void ExportErgebnisse(Session& session, FileDialogPlatform& dialogs, FileOutput& files);

}  // namespace zentlor
