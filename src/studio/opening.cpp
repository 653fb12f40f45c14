#include "studio/opening.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>

#include "studio/qtext.h"

namespace zentlor::studio {

namespace {

constexpr int kMostSentences = 8;
constexpr const char* kPatterns =
    "*.bas *.cls *.frm *.form *.report *.txt *.accdb *.accda *.accde *.mdb *.mda *.mde *.adp *.xls *.xlsm *.xlsb *.xla "
    "*.xlam *.xlt *.xltm *.doc *.docm *.dot *.dotm *.ppt *.pptm *.pot *.potm *.pps *.ppsm *.ppa *.ppam *.vsdm *.bin";

}  // namespace

Opening::Opening(MainWindow& window, OpenProjects& projects, StudioSettings& settings, const Words& words,
                 AddInLibrary& addIn, IdleQueue& idle)
    : window_(window), projects_(projects), settings_(settings), words_(words), addIn_(addIn), idle_(idle) {
    // The pane may stand in the middle of a run: what was read waits for its end.
    connect(&loader_, &Loader::Finished, this, [this] { idle_.Add([this] { Finish(); }); });
    connect(&watch_, &FileWatch::Changed, this, [this] {
        if (StopsRun(Word::RunInterruptReload)) Begin(paths_, Reading::Changed);
    });
}

// False if a run is under way that the user wants to keep.
bool Opening::StopsRun(Word question) {
    if (!addIn_.Running()) return true;
    const auto answer = QMessageBox::question(&window_, kDefaultTitle, words_(question));
    if (answer != QMessageBox::Yes) return false;
    addIn_.Stop();
    return true;
}

void Opening::Open(const QStringList& paths) {
    if (!StopsRun(Word::RunInterruptOpen)) return;
    QStringList absolute;
    for (const QString& path : paths) absolute << QDir::cleanPath(QFileInfo(path).absoluteFilePath());
    Begin(absolute, Reading::Opened);
}

void Opening::ChooseFile() {
    const QString filter = QStringLiteral("%1 (%2);;%3 (*)")
                               .arg(words_(Word::FilterCode), QString::fromLatin1(kPatterns), words_(Word::FilterAll));
    const QStringList files = QFileDialog::getOpenFileNames(&window_, words_(Word::OpenFileTitle), QString(), filter,
                                                            nullptr, QFileDialog::HideNameFilterDetails);
    if (!files.isEmpty()) Open(files);
}

void Opening::ChooseFolder() {
    const QString folder = QFileDialog::getExistingDirectory(&window_, words_(Word::OpenFolderTitle));
    if (!folder.isEmpty()) Open({folder});
}

void Opening::Reload() {
    if (!paths_.isEmpty() && StopsRun(Word::RunInterruptOpen)) Begin(paths_, Reading::Opened);
}

void Opening::Close() {
    if (!StopsRun(Word::RunInterruptOpen)) return;
    idle_.Add([this] {
        paths_.clear();
        watch_.Watch({}, {}, {});
        projects_.Close();
        addIn_.ForgetHints();
    });
}

void Opening::Begin(const QStringList& paths, Reading reading) {
    loading_ = paths;
    reading_ = reading;
    readAt_ = QDateTime::currentDateTime();
    window_.ShowNotice(words_(Word::Loading).arg(QFileInfo(paths.front()).fileName()));
    loader_.Start(paths);
}

void Opening::Finish() {
    workspace::Workspace result = loader_.Take();
    const bool nothing = result.projects.empty();
    window_.ShowNotice(QString());
    TellFaults(result);
    if (!nothing) Install(std::move(result));
    Q_EMIT Done();
}

void Opening::Install(workspace::Workspace&& result) {
    // The hints of code that was only changed are what its author works off.
    const bool isOther = paths_ != loading_;
    paths_ = loading_;
    projects_.Take(std::move(result), reading_);
    if (isOther) addIn_.ForgetHints();
    watch_.Watch(paths_, projects_.All(), readAt_);
    if (paths_.size() == 1) settings_.AddRecentPath(paths_.front());
    window_.ShowRecent(settings_.RecentPaths());
    TellSuccess();
}

void Opening::TellSuccess() {
    if (reading_ == Reading::Changed) {
        window_.ShowNotice(words_(Word::Reloaded));
        return;
    }
    int modules = 0;
    int lines = 0;
    for (const workspace::OpenedProject& opened : projects_.All()) {
        modules += static_cast<int>(opened.project->VBComponents().size());
        lines += opened.LineCount();
    }
    window_.ShowNotice(words_.Counted(modules, Word::OneModule, Word::ManyModules) + QStringLiteral(", ") +
                       words_.Counted(lines, Word::OneLine, Word::ManyLines));
}

void Opening::TellFaults(const workspace::Workspace& result) {
    QStringList sentences;
    for (const workspace::Unreadable& fault : result.unreadable) sentences << words_.Of(fault.sentence);
    for (const readers::Sentence& problem : result.problems) sentences << words_.Of(problem);
    if (result.projects.empty()) {
        for (const readers::Document& document : result.empty) {
            sentences << words_(Word::NoCodeInside).arg(QString::fromStdString(document.path));
        }
    }
    if (sentences.isEmpty()) return;
    const qsizetype more = sentences.size() - kMostSentences;
    sentences = sentences.mid(0, kMostSentences);
    if (more > 0) sentences << words_(Word::AndMore).arg(more);
    const Word title = result.projects.empty() ? Word::CannotOpen : Word::ReadPartly;
    QMessageBox box(QMessageBox::Warning, words_(title), sentences.join(QStringLiteral("\n\n")), QMessageBox::Ok,
                    &window_);
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

}  // namespace zentlor::studio
