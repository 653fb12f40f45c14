#pragma once

// The desktop behind the add-in: applications for files and addresses, the file dialogs, and the export's files.

#include <QString>
#include <functional>

#include "core/results/export.h"
#include "core/utilities/file_dialog.h"
#include "core/utilities/shell.h"

namespace zentlor::studio {

class QtShell : public Shell {
  public:
    /// `showHelp` opens the help viewer for the folder at a path.
    explicit QtShell(std::function<void(const QString&)> showHelp) : showHelp_(std::move(showHelp)) {}

    int ShellExecuteA(TextView verb, TextView file, TextView parameters, TextView folder, ShowMode show) override;
    Text GetSystemDirectoryA() override;
    void HtmlHelpA(TextView file, int command, int data) override;

  private:
    std::function<void(const QString&)> showHelp_;
};

class QtFileDialogs : public FileDialogPlatform {
  public:
    int GetOpenFileNameA(OPENFILENAME& record) override;
    int GetSaveFileNameA(OPENFILENAME& record) override;
    std::intptr_t SHBrowseForFolderA(const BROWSEINFO& record) override;
    int SHGetPathFromIDListA(std::intptr_t idList, Text& buffer) override;
    Text CurrentDirectory() override;
    char16_t PathSeparator() const override { return u'/'; }

  private:
    Text folder_;  ///< what the last folder dialog chose
};

class QtFileOutput : public FileOutput {
  public:
    Text Dir(TextView path) override;
    void WriteFile(TextView path, std::string_view bytes) override;
};

}  // namespace zentlor::studio
