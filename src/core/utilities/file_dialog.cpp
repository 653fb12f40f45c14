// The text work around the platform's file dialogs. Every text that goes over ends in a NUL of its own, and a
// multi-selection comes back as names between NULs.

#include "core/utilities/file_dialog.h"

#include <algorithm>
#include <limits>

namespace zentlor {

namespace {

constexpr TextView kModule = u"FileDialog";
constexpr char16_t kNul = u'\0';
constexpr TextView kNulNul(u"\0\0", 2);
constexpr std::int16_t kLargeBuffer = 2000;
constexpr std::size_t kFolderBuffer = 512;

constexpr std::int32_t kOpenFlags = OFN_FILEMUSTEXIST | OFN_PATHMUSTEXIST | OFN_HIDEREADONLY;
constexpr std::int32_t kSaveFlags = OFN_PATHMUSTEXIST | OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT;
constexpr std::int32_t kMultiFlags = OFN_ALLOWMULTISELECT | OFN_EXPLORER;

Text WithNul(TextView text) {
    return Text(text) + kNul;
}

// The text in front of the first NUL. Without any NUL there is no answer.
Text UpToNul(TextView text) {
    const auto nul = text.find(kNul);
    if (nul == TextView::npos) throw InvalidCall();
    return Text(text.substr(0, nul));
}

std::int16_t CountNames(TextView strSelection) {
    std::int16_t count = 0;
    int expected = 0;
    int found = InStr(1, strSelection, kNul);
    // A selection that lacks its closing NUL ends with the text.
    while (found != expected && found != 0) {
        expected = found + 1;
        if (count == std::numeric_limits<std::int16_t>::max()) throw Overflow();
        ++count;
        found = InStr(expected, strSelection, kNul);
    }
    return count;
}

}  // namespace

FileDialog::FileDialog(FailureReporter& failures, MessageBoxes& boxes, FileDialogPlatform& platform)
    : failures_(failures), boxes_(boxes), platform_(platform) {
    Frame(failures_, {kModule, u"Class_Initialize"}, [&] {
        strFileName_.assign(static_cast<std::size_t>(intBufferLen_), kNul);
        strDefaultExt_ = kNul;
        DefaultDir(platform_.CurrentDirectory());
    });
}

void FileDialog::DefaultDir(TextView strAktDefaultDir) {
    strDefaultDir_ = WithNul(strAktDefaultDir);
}

void FileDialog::DefaultExt(TextView strAktDefaultExt) {
    strDefaultExt_ = WithNul(strAktDefaultExt);
}

void FileDialog::DialogTitle(TextView title) {
    strDialogTitle_ = WithNul(title);
}

void FileDialog::Filter(TextView aktFilter) {
    strFilter_ = aktFilter;
    if (!aktFilter.ends_with(kNulNul)) strFilter_.append(kNulNul);
}

void FileDialog::FilterText(int number, TextView filterText) {
    astrFilterText_.at(static_cast<std::size_t>(number - 1)) = filterText;
}

void FileDialog::FilterSuffix(int number, TextView filterSuffix) {
    astrFilterSuffix_.at(static_cast<std::size_t>(number - 1)) = filterSuffix;
}

void FileDialog::MultiSelect(bool blnAktMultiSelect) {
    blnMultiSelect_ = blnAktMultiSelect;
    intBufferLen_ = kLargeBuffer;
}

void FileDialog::MultiSelectOCXCompatible(bool blnAktKompatibel) {
    blnKompatibel_ = blnAktKompatibel;
    if (blnKompatibel_) MultiSelect(true);
}

Text FileDialog::BuildFilter() {
    Text result;
    Frame(failures_, {kModule, u"BuildFilter"}, [&] {
        for (std::size_t i = 0; i < astrFilterText_.size(); ++i) {
            if (astrFilterText_[i].empty() || astrFilterSuffix_[i].empty()) continue;
            result.append(WithNul(astrFilterText_[i])).append(WithNul(astrFilterSuffix_[i]));
        }
        if (!strFilter_.empty()) {
            strFilter_.resize(strFilter_.find_last_not_of(kNul) + 1);
            result.insert(0, WithNul(strFilter_));
        }
        if (result.empty()) result = WithNul(u"Alle Dateien") + u"*.*";
        result.append(kNulNul);
    });
    return result;
}

void FileDialog::CheckFlags(TextView intention) {
    Frame(failures_, {kModule, u"CheckFlags"}, [&] {
        const std::int32_t multi = blnMultiSelect_ ? kMultiFlags : 0;
        if (lngFlags_ != 0) {
            lngFlags_ |= multi;
        } else if (intention == u"Open") {
            lngFlags_ = kOpenFlags | multi;
        } else if (intention == u"Save") {
            lngFlags_ = kSaveFlags;
        } else {
            boxes_.Show(u"Unbekannte Intention: " + Text(intention), BoxIcon::Critical, u"CheckFlags");
        }
    });
}

bool FileDialog::ShowFileDialog(TextView intention, TextView defaultTitle,
                                int (FileDialogPlatform::*show)(OPENFILENAME&)) {
    OPENFILENAME record;
    record.lpstrFilter = BuildFilter();
    CheckFlags(intention);
    if (strDialogTitle_.empty()) DialogTitle(defaultTitle);
    const auto bufferLength = static_cast<std::size_t>(intBufferLen_);
    if (strDefaultFileName_.size() > bufferLength) throw InvalidCall();
    strFileName_ = strDefaultFileName_;
    strFileName_.resize(bufferLength, kNul);
    record.hwndOwner = lngHWnd_;
    record.lpstrFile = strFileName_;
    record.nMaxFile = intBufferLen_;
    record.lpstrInitialDir = strDefaultDir_;
    record.lpstrTitle = strDialogTitle_;
    record.Flags = lngFlags_;
    record.lpstrDefExt = strDefaultExt_;
    const bool chosen = (platform_.*show)(record) != 0;
    strFileName_ = chosen ? record.lpstrFile : Text();
    return chosen;
}

Text FileDialog::ShowOpen() {
    Text result;
    Frame(failures_, {kModule, u"ShowOpen"}, [&] {
        if (!ShowFileDialog(u"Open", u"Datei öffnen", &FileDialogPlatform::GetOpenFileNameA)) {
            intFileCount_ = 0;
            return;
        }
        if (!blnMultiSelect_) {
            intFileCount_ = 1;
            strFileName_ = UpToNul(strFileName_);
        } else if (blnKompatibel_) {
            strFileName_.resize(std::min(strFileName_.find(kNulNul), strFileName_.size()));
        } else {
            strFileName_ = ParseAuswahl(Text(strFileName_), true);
        }
        result = strFileName_;
    });
    return result;
}

Text FileDialog::ShowSave() {
    Text result;
    Frame(failures_, {kModule, u"ShowSave"}, [&] {
        if (!ShowFileDialog(u"Save", u"Datei speichern unter", &FileDialogPlatform::GetSaveFileNameA)) return;
        strFileName_ = UpToNul(strFileName_);
        result = strFileName_;
    });
    return result;
}

Text FileDialog::ShowFolder() {
    Text result;
    Frame(failures_, {kModule, u"ShowFolder"}, [&] {
        BROWSEINFO record;
        record.hOwner = lngHWnd_;
        record.lpszTitle = strDialogTitle_;
        const std::intptr_t idList = platform_.SHBrowseForFolderA(record);
        Text buffer(kFolderBuffer, u' ');
        const bool chosen = platform_.SHGetPathFromIDListA(idList, buffer) != 0;
        strFileName_ = chosen ? UpToNul(buffer) : Text();
        result = strFileName_;
    });
    return result;
}

std::int16_t FileDialog::CountFiles(TextView strSelection) {
    std::int16_t count = 0;
    Frame(failures_, {kModule, u"CountFiles"}, [&] { count = CountNames(strSelection); });
    return count;
}

Text FileDialog::ParseAuswahl(TextView strAuswahl, bool blnInitial) {
    Text result;
    Frame(failures_, {kModule, u"ParseAuswahl"},
          [&] { result = blnInitial ? FirstOfSelection(strAuswahl) : NextOfSelection(); });
    return result;
}

Text FileDialog::FirstOfSelection(TextView strAuswahl) {
    Text first = UpToNul(strAuswahl);
    const TextView behind = strAuswahl.substr(first.size() + 1);
    if (behind.starts_with(kNul)) {
        intFileCount_ = 1;
        strRest_.clear();  // one file, and GetNextFile has nothing to give
        return first;
    }
    strOrdner_ = first;
    if (strOrdner_.ends_with(platform_.PathSeparator())) strOrdner_.pop_back();
    strRest_ = behind;
    intFileCount_ = CountFiles(strRest_);
    return TakeName();
}

Text FileDialog::NextOfSelection() {
    const bool atEnd = InStr(1, strRest_, kNul) < 2;
    return atEnd ? Text() : TakeName();
}

Text FileDialog::TakeName() {
    const Text name = UpToNul(strRest_);
    strRest_.erase(0, name.size() + 1);
    return strOrdner_ + platform_.PathSeparator() + name;
}

}  // namespace zentlor
