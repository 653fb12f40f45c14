#include "studio/shots.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QMessageBox>
#include <QPainter>
#include <QProcess>
#include <QStyleFactory>
#include <QTemporaryDir>
#include <cstdio>

#include "studio/options_dialog.h"
#include "studio/studio.h"

namespace zentlor::studio {

namespace {

const QString kExample = QStringLiteral("examples/kunden");
constexpr int kMostMilliseconds = 30000;
constexpr int kYieldOfPicture = 260;

QPalette DarkPalette() {
    QPalette palette;
    const QColor window(0x2b, 0x2d, 0x31), base(0x1f, 0x20, 0x24), text(0xe4, 0xe6, 0xea), quiet(0x8a, 0x8e, 0x96);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText}) {
        palette.setColor(role, text);
        palette.setColor(QPalette::Disabled, role, quiet);
    }
    palette.setColor(QPalette::Window, window);
    palette.setColor(QPalette::Button, window);
    palette.setColor(QPalette::ToolTipBase, window);
    palette.setColor(QPalette::Base, base);
    palette.setColor(QPalette::AlternateBase, QColor(0x27, 0x29, 0x2d));
    palette.setColor(QPalette::PlaceholderText, quiet);
    palette.setColor(QPalette::Highlight, QColor(0x2f, 0x6f, 0xb5));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Light, QColor(0x44, 0x47, 0x4d));
    palette.setColor(QPalette::Midlight, QColor(0x3a, 0x3c, 0x42));
    palette.setColor(QPalette::Mid, QColor(0x22, 0x24, 0x27));
    palette.setColor(QPalette::Dark, QColor(0x18, 0x19, 0x1b));
    palette.setColor(QPalette::Link, QColor(0x7f, 0xb3, 0xff));
    return palette;
}

void Settle() {
    for (int i = 0; i < 10; ++i) QApplication::processEvents(QEventLoop::AllEvents, 20);
}

template <class Condition>
bool WaitFor(Condition condition) {
    QElapsedTimer timer;
    timer.start();
    while (!condition()) {
        if (timer.elapsed() > kMostMilliseconds) return false;
        QApplication::processEvents(QEventLoop::WaitForMoreEvents, 20);
    }
    Settle();
    return true;
}

class Photographer {
  public:
    explicit Photographer(const QString& folder) : folder_(folder), studio_(SettingsPath()) {
        // A box on the way is answered by the picture that waits for it, or closed.
        closer_.setInterval(150);
        QObject::connect(&closer_, &QTimer::timeout, [this] { MeetDialog(); });
        closer_.start();
        studio_.Start({});
        Settle();
    }

    bool TakeAll() {
        Save("01-empty-start");
        if (!Open(kExample)) return false;
        TakeRun();
        TakeHints("02-hints-german");
        Refresh();
        TakeDialogs("german");
        QApplication::setPalette(DarkPalette());
        Settle();
        Save("08-dark");
        Expect("09-dark-options");
        Click(6);
        Expect("14-dark-about");
        Click(8);
        TakeHelp("15-dark-help");
        QApplication::setPalette(QPalette());
        TakeEnglish();
        return TakeGate() && saved_;
    }

    bool TakeScaled() {
        if (!Open(kExample)) return false;
        TakeHints("10-scale-200");
        Expect("11-scale-200-options");
        Click(6);
        return saved_;
    }

  private:
    std::string SettingsPath() const { return settings_.filePath(QStringLiteral("settings.ini")).toStdString(); }
    PaneWidget& Pane() { return *studio_.AddIn().Pane(); }

    void Click(int button) {
        Pane().Button(button)->click();
        Settle();
    }
    void Refresh() { Click(1); }

    bool Open(const QString& path) {
        bool done = false;
        const auto connection = QObject::connect(&studio_.Opening(), &Opening::Done, [&done] { done = true; });
        studio_.Opening().Open({path});
        const bool opened = WaitFor([&] { return done; });
        QObject::disconnect(connection);
        return opened && !studio_.Projects().Empty();
    }

    void TakeRun() {
        int yields = 0;
        studio_.Events().afterEvents = [&] {
            if (++yields == kYieldOfPicture) Save("03-run-under-way");
        };
        Refresh();
        studio_.Events().afterEvents = nullptr;
    }

    // A row in the middle of the list, and the code it leads to.
    void TakeHints(const char* name) {
        Refresh();
        HintList& list = Pane().List();
        const QModelIndex row = list.model()->index(list.model()->rowCount() / 3, 0);
        list.setCurrentIndex(row);
        list.scrollTo(row, QAbstractItemView::PositionAtCenter);
        Q_EMIT list.JumpWanted(row.row());
        Settle();
        Save(name);
    }

    void TakeDialogs(const QString& language) {
        Expect("04-options-" + language.toStdString());
        Click(6);
        Expect("05-about-" + language.toStdString());
        Click(8);
        TakeHelp("06-help");
    }

    void TakeHelp(const char* name) {
        Click(9);
        studio_.Help().Contents().setCurrentRow(5);
        Settle();
        SavePicture(name, studio_.Help().grab());
        studio_.Help().close();
    }

    void TakeEnglish() {
        auto& box = dynamic_cast<QtLanguageBox&>(Pane().Sprache());
        box.setCurrentIndex(1);
        Q_EMIT box.activated(1);
        Settle();
        TakeHints("07-hints-english");
    }

    // The same project with a line that does not compile.
    bool TakeGate() {
        QTemporaryDir copy;
        const QString folder = copy.filePath(QStringLiteral("kunden"));
        QDir().mkpath(folder);
        for (const QString& name : QDir(kExample).entryList(QDir::Files)) {
            QFile::copy(kExample + u'/' + name, folder + u'/' + name);
        }
        QFile module(folder + QStringLiteral("/mdl_Start.bas"));
        module.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
        if (!module.open(QIODevice::Append)) return false;
        module.write("\r\nPublic Sub Halb()\r\n    If x Then\r\nEnd Sub\r\n");
        module.close();
        if (!Open(folder)) return false;
        Expect("12-gate-refused");
        Refresh();
        studio_.Window().Menus().compile->trigger();
        Settle();
        Save("13-compile-errors");
        return true;
    }

    void Expect(const std::string& name) { expected_ = name; }

    void MeetDialog() {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (dialog == nullptr) return;
        if (auto* options = dynamic_cast<OptionsDialog*>(dialog)) {
            options->Tabs().setCurrentIndex(2);
            options->Box(CheckId::CmdIIfWirdVerwendet).setFocus();
            Settle();
        }
        if (!expected_.empty()) SaveWithDialog(std::exchange(expected_, {}), *dialog);
        dialog->close();
    }

    void SaveWithDialog(const std::string& name, QDialog& dialog) {
        QPixmap picture = studio_.Window().grab();
        const QPixmap front = dialog.grab();
        QPainter painter(&picture);
        painter.fillRect(QRect(QPoint(), studio_.Window().size()), QColor(0, 0, 0, 60));
        const QPoint at = QRect(QPoint(), studio_.Window().size()).center() - dialog.rect().center();
        painter.drawPixmap(at, front);
        painter.setPen(QColor(0, 0, 0, 140));
        painter.drawRect(QRect(at, dialog.size()).adjusted(-1, -1, 0, 0));
        painter.end();
        SavePicture(name, picture);
    }

    void Save(const std::string& name) { SavePicture(name, studio_.Window().grab()); }

    void SavePicture(const std::string& name, const QPixmap& picture) {
        const QString path = QDir(folder_).filePath(QString::fromStdString(name) + QStringLiteral(".png"));
        saved_ = picture.save(path) && saved_;
    }

    QString folder_;
    QTemporaryDir settings_;
    Studio studio_;
    QTimer closer_;
    std::string expected_;
    bool saved_ = true;
};

}  // namespace

int TakeShots(const QString& folder) {
    const bool scaled = qEnvironmentVariableIsSet("QT_SCALE_FACTOR");
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    bool taken = QDir().mkpath(folder) && QDir(kExample).exists();
    if (!taken) {
        std::fprintf(stderr, "zentlor-studio: the folder %s or %s cannot be used\n", qPrintable(folder),
                     qPrintable(kExample));
        return 2;
    }
    taken = scaled ? Photographer(folder).TakeScaled() : Photographer(folder).TakeAll();
    if (taken && !scaled) {
        // The scale of a process is fixed at its start.
        qputenv("QT_SCALE_FACTOR", "2");
        const QStringList arguments{QStringLiteral("--shots"), folder};
        taken = QProcess::execute(QCoreApplication::applicationFilePath(), arguments) == 0;
    }
    if (!taken) std::fprintf(stderr, "zentlor-studio: not every picture could be taken\n");
    return taken ? 0 : 1;
}

}  // namespace zentlor::studio
