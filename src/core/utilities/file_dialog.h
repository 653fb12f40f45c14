#pragma once

// The class around the platform's dialogs for opening a file, saving a file and choosing a folder: filter text, default
// flags, name buffer, and the parsing of multi-selections. The dialogs themselves are the platform's.

#include <array>
#include <cstdint>

#include "core/host/host.h"
#include "core/utilities/failure_frame.h"

namespace zentlor {

// Flags of the file dialogs.
inline constexpr std::int32_t OFN_OVERWRITEPROMPT = 0x2;     ///< asks before an existing file is chosen for saving
inline constexpr std::int32_t OFN_HIDEREADONLY = 0x4;        ///< offers no read-only choice
inline constexpr std::int32_t OFN_ALLOWMULTISELECT = 0x200;  ///< several files can be chosen
inline constexpr std::int32_t OFN_PATHMUSTEXIST = 0x800;     ///< only a path in an existing folder
inline constexpr std::int32_t OFN_FILEMUSTEXIST = 0x1000;    ///< only an existing file
inline constexpr std::int32_t OFN_EXPLORER = 0x80000;        ///< several files come in the NUL-separated form

/// The record for a file dialog, in its older size. Texts carry their terminating NULs. Fields that stay 0 are left
/// out.
struct OPENFILENAME {
    std::int32_t lStructSize = 76;
    std::int32_t hwndOwner = 0;
    /// Pairs of a name and a pattern, each part closed by a NUL, with two more NULs at the end.
    Text lpstrFilter;
    std::int32_t nFilterIndex = 1;
    /// In: the preset name, padded with NULs to nMaxFile. Out: the selection, padded likewise.
    Text lpstrFile;
    std::int32_t nMaxFile = 0;
    Text lpstrInitialDir;
    Text lpstrTitle;
    std::int32_t Flags = 0;
    /// Appended to a name typed without an extension.
    Text lpstrDefExt;
};

struct BROWSEINFO {
    std::int32_t hOwner = 0;
    Text lpszTitle;
    std::int32_t ulFlags = 1;
};

/// The platform's dialogs, with the names that the platform gives them; texts stay UTF-16 here. A selection comes as
/// one full path, or, of several files, as their folder and each name, every part closed by a NUL, with one more NUL
/// behind.
class FileDialogPlatform {
  public:
    virtual ~FileDialogPlatform() = default;
    /// Non-zero on OK, with the selection in `lpstrFile`; 0 on Cancel.
    virtual int GetOpenFileNameA(OPENFILENAME& record) = 0;
    virtual int GetSaveFileNameA(OPENFILENAME& record) = 0;
    /// A handle of the chosen folder; 0 on Cancel.
    virtual std::intptr_t SHBrowseForFolderA(const BROWSEINFO& record) = 0;
    /// Writes the folder's path and a NUL to the start of `buffer`; non-zero on success, 0 for the handle 0.
    virtual int SHGetPathFromIDListA(std::intptr_t idList, Text& buffer) = 0;
    virtual Text CurrentDirectory() = 0;
    /// Between folder and name.
    virtual char16_t PathSeparator() const = 0;
};

class FileDialog {
  public:
    FileDialog(FailureReporter& failures, MessageBoxes& boxes, FileDialogPlatform& platform);

    void hWnd(std::int32_t lngAktHWnd) { lngHWnd_ = lngAktHWnd; }
    void DefaultDir(TextView strAktDefaultDir);
    void InitDir(TextView folder) { DefaultDir(folder); }
    void DefaultFileName(TextView strAktDefaultFileName) { strDefaultFileName_ = strAktDefaultFileName; }
    void DefaultExt(TextView strAktDefaultExt);
    void DialogTitle(TextView title);
    /// A free filter text, in front of the numbered ones.
    void Filter(TextView aktFilter);
    /// Entry `number`, 1 to 5, of the filter. It counts if both halves are set.
    void FilterText(int number, TextView filterText);
    void FilterSuffix(int number, TextView filterSuffix);
    /// Replaces the default flags altogether; 0 brings them back.
    void Flags(std::int32_t lngAktFlags) { lngFlags_ = lngAktFlags; }
    void MultiSelect(bool blnAktMultiSelect);
    /// True: ShowOpen gives a multi-selection as it comes, its NULs included.
    void MultiSelectOCXCompatible(bool blnAktKompatibel);

    /// How many files the last ShowOpen chose.
    std::int16_t FileCount() const { return intFileCount_; }
    const Text& FileName() const { return strFileName_; }
    /// The next file of a multi-selection; empty at its end.
    Text GetNextFile() { return ParseAuswahl({}, false); }

    /// The chosen path; empty on Cancel and after a failure.
    Text ShowFolder();
    Text ShowOpen();
    Text ShowSave();

    // The steps of the above, public because each is text work with rules of its own.
    /// The NUL-closed names at the start of the text, up to the first empty one.
    std::int16_t CountFiles(TextView strSelection);
    Text BuildFilter();
    void CheckFlags(TextView intention);
    std::int32_t CurrentFlags() const { return lngFlags_; }
    Text ParseAuswahl(TextView strAuswahl, bool blnInitial);

  private:
    /// The common steps of both file dialogs; False on Cancel. On OK strFileName_ is the buffer as it came back.
    bool ShowFileDialog(TextView intention, TextView defaultTitle, int (FileDialogPlatform::*show)(OPENFILENAME&));
    Text FirstOfSelection(TextView strAuswahl);
    Text NextOfSelection();
    Text TakeName();

    FailureReporter& failures_;
    MessageBoxes& boxes_;
    FileDialogPlatform& platform_;

    Text strDialogTitle_;
    Text strFilter_;
    std::int32_t lngFlags_ = 0;
    Text strDefaultExt_;
    Text strDefaultDir_;
    bool blnMultiSelect_ = false;
    std::int16_t intFileCount_ = 0;
    std::array<Text, 5> astrFilterText_;
    std::array<Text, 5> astrFilterSuffix_;
    std::int32_t lngHWnd_ = 0;
    bool blnKompatibel_ = false;
    Text strFileName_;
    Text strDefaultFileName_;
    std::int16_t intBufferLen_ = 512;
    Text strOrdner_;
    Text strRest_;
};

}  // namespace zentlor
