// The export: where the dialog starts and what name it offers, and which of the two file forms the chosen name asks
// for.

#include "core/results/export.h"

#include "core/analysis/source_model.h"
#include "core/results/records.h"
#include "core/utilities/encoding.h"
#include "core/utilities/paths.h"

namespace zentlor {

namespace {

struct ProjectFile {
    Text strProjektPfad;  ///< ends with the separator
    Text strProjektName;
};

ProjectFile ProjectFileOf(const VBProject& project, FileOutput& files) {
    const Text& strProjektDatei = project.FileName();
    const bool folder = strProjektDatei.ends_with(kPathSeparator);
    if (folder) return {strProjektDatei, project.Name()};
    const Text name = files.Dir(strProjektDatei);
    const auto dot = name.rfind(u'.');
    if (dot == Text::npos) throw InvalidCall();
    return {strProjektDatei.substr(0, strProjektDatei.size() - name.size()), name.substr(0, dot)};
}

Text AskForFile(Session& session, FileDialogPlatform& dialogs, const ProjectFile& file) {
    FileDialog dialog(session, session.host().boxes, dialogs);
    dialog.InitDir(file.strProjektPfad);
    dialog.DefaultExt(u"TXT");
    dialog.DefaultFileName(session.GetResourceString(228, file.strProjektName));
    dialog.MultiSelect(false);
    dialog.FilterText(1, session.GetResourceString(229));
    dialog.FilterSuffix(1, u"*.txt");
    dialog.FilterText(2, session.GetResourceString(230));
    dialog.FilterSuffix(2, u"*.csv");
    return dialog.ShowSave();
}

// The text behind the last "." of the whole path, or the whole path.
TextView EndingOf(TextView path) {
    return path.substr(path.rfind(u'.') + 1);
}

std::string RecordsFor(Session& session, TextView path) {
    const TextView ending = EndingOf(path);
    const bool isCsv = EqualIgnoringCase(ending, u"CSV");
    std::string bytes;
    if (!isCsv && !EqualIgnoringCase(ending, u"TXT")) return bytes;
    ForEachRecord(session, isCsv ? RecordForm::Csv : RecordForm::Txt,
                  [&](TextView record) { bytes += ToWindows1252(record); });
    return bytes;
}

}  // namespace

void ExportErgebnisse(Session& session, FileDialogPlatform& dialogs, FileOutput& files) {
    Frame(session, {u"docAddIn", u"ExportErgebnisse"}, [&] {
        if (session.lvwErgebnis.Count() == 0) {
            session.host().boxes.Show(session.GetResourceString(227), BoxIcon::Exclamation,
                                      session.GetResourceString(226));
            return;
        }
        const Text path = AskForFile(session, dialogs, ProjectFileOf(session.ActiveVBProject(), files));
        if (path.empty()) return;
        files.WriteFile(path, RecordsFor(session, path));
    });
}

}  // namespace zentlor
