#include "studio/command_line.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QElapsedTimer>
#include <memory>

#include "studio/event_trace.h"
#include "studio/shots.h"
#include "studio/studio.h"

namespace zentlor::studio {

namespace {

QCommandLineOption Hidden(const QString& name, const QString& value) {
    QCommandLineOption option(name, QString(), value);
    option.setFlags(QCommandLineOption::HiddenFromHelp);
    return option;
}

}  // namespace

int RunStudio(QApplication& application) {
    QElapsedTimer sinceStart;
    sinceStart.start();
    QApplication::setApplicationName(QStringLiteral("zentlor-studio"));
    QApplication::setApplicationVersion(QStringLiteral(ZENTLOR_VERSION));
    QApplication::setDesktopFileName(QStringLiteral("zentlor-studio"));

    Words words;
    words.SetLanguage(QLocale().language() == QLocale::German ? 1 : 2);
    QCommandLineParser parser;
    parser.addPositionalArgument(QStringLiteral("path"), words(Word::UsagePath), QStringLiteral("[path]"));
    parser.addHelpOption();
    parser.addOption(QCommandLineOption(
        QStringLiteral("version"), QCoreApplication::translate("QCommandLineParser", "Displays version information.")));
    const QCommandLineOption shots = Hidden(QStringLiteral("shots"), QStringLiteral("folder"));
    const QCommandLineOption trace = Hidden(QStringLiteral("trace-events"), QString());
    parser.addOption(shots);
    parser.addOption(trace);
    parser.process(application);
    if (parser.isSet(QStringLiteral("version"))) parser.showVersion();
    if (parser.isSet(shots)) return TakeShots(parser.value(shots));

    Studio studio(workspace::DefaultSettingsPath());
    const auto eventTrace = parser.isSet(trace) ? std::make_unique<EventTrace>(studio, sinceStart) : nullptr;
    studio.Start(parser.positionalArguments());
    return QApplication::exec();
}

}  // namespace zentlor::studio
