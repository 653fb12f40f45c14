#include "studio/shell.h"

#include <QApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QUrl>

#include "core/utilities/encoding.h"
#include "studio/qtext.h"
#include "workspace/atomic_file.h"

namespace zentlor::studio {

namespace {

constexpr int kOpened = 42;
constexpr int kFileNotFound = 2;
constexpr int kNoApplication = 31;
constexpr char16_t kNul = u'\0';

// The text in front of the first NUL.
QString UpToNul(const Text& text) {
    return ToQString(TextView(text).substr(0, text.find(kNul)));
}

// Pairs of a name and a pattern, each part closed by a NUL, as "Name (*.a *.b)".
QStringList NameFilters(const Text& filter) {
    const QStringList parts = ToQString(filter).split(QChar(kNul), Qt::SkipEmptyParts);
    QStringList filters;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        const QString patterns = QString(parts[i + 1]).replace(u';', u' ');
        filters << QStringLiteral("%1 (%2)").arg(parts[i], patterns);
    }
    return filters;
}

void PutSelection(const QStringList& files, OPENFILENAME& record) {
    Text selection = FromQString(files.front());
    if (files.size() > 1) {
        selection = FromQString(QFileInfo(files.front()).path());
        for (const QString& file : files) selection += kNul + FromQString(QFileInfo(file).fileName());
    }
    selection.append(2, kNul);
    selection.resize(std::max(selection.size(), static_cast<std::size_t>(record.nMaxFile)), kNul);
    record.lpstrFile = std::move(selection);
}

int Show(QFileDialog& dialog, OPENFILENAME& record) {
    dialog.setWindowTitle(UpToNul(record.lpstrTitle));
    dialog.setDirectory(UpToNul(record.lpstrInitialDir));
    dialog.setNameFilters(NameFilters(record.lpstrFilter));
    dialog.setDefaultSuffix(UpToNul(record.lpstrDefExt));
    dialog.selectFile(UpToNul(record.lpstrFile));
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return 0;
    PutSelection(dialog.selectedFiles(), record);
    return 1;
}

}  // namespace

int QtShell::ShellExecuteA(TextView, TextView file, TextView, TextView, ShowMode) {
    const QString target = ToQString(file);
    const QUrl url(target);
    const bool isAddress = !url.scheme().isEmpty() && !url.isLocalFile();
    if (!isAddress && !QFileInfo::exists(target)) return kFileNotFound;
    const bool opened = QDesktopServices::openUrl(isAddress ? url : QUrl::fromLocalFile(target));
    return opened ? kOpened : kNoApplication;
}

Text QtShell::GetSystemDirectoryA() {
    return u"/usr/bin";
}

void QtShell::HtmlHelpA(TextView file, int, int) {
    showHelp_(ToQString(file));
}

int QtFileDialogs::GetOpenFileNameA(OPENFILENAME& record) {
    QFileDialog dialog(QApplication::activeWindow());
    dialog.setAcceptMode(QFileDialog::AcceptOpen);
    const bool several = (record.Flags & OFN_ALLOWMULTISELECT) != 0;
    const bool mustExist = (record.Flags & OFN_FILEMUSTEXIST) != 0;
    dialog.setFileMode(several     ? QFileDialog::ExistingFiles
                       : mustExist ? QFileDialog::ExistingFile
                                   : QFileDialog::AnyFile);
    return Show(dialog, record);
}

int QtFileDialogs::GetSaveFileNameA(OPENFILENAME& record) {
    QFileDialog dialog(QApplication::activeWindow());
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setOption(QFileDialog::DontConfirmOverwrite, (record.Flags & OFN_OVERWRITEPROMPT) == 0);
    return Show(dialog, record);
}

std::intptr_t QtFileDialogs::SHBrowseForFolderA(const BROWSEINFO& record) {
    folder_ = FromQString(QFileDialog::getExistingDirectory(QApplication::activeWindow(), UpToNul(record.lpszTitle)));
    return folder_.empty() ? 0 : 1;
}

int QtFileDialogs::SHGetPathFromIDListA(std::intptr_t idList, Text& buffer) {
    if (idList == 0) return 0;
    buffer = folder_ + kNul;
    return 1;
}

Text QtFileDialogs::CurrentDirectory() {
    return FromQString(QDir::currentPath());
}

Text QtFileOutput::Dir(TextView path) {
    const QFileInfo file(ToQString(path));
    return file.exists() ? FromQString(file.fileName()) : Text();
}

void QtFileOutput::WriteFile(TextView path, std::string_view bytes) {
    workspace::WriteFileAtomically(ToUtf8(path), bytes);
}

}  // namespace zentlor::studio
