#include "studio/command_line.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QElapsedTimer>
#include <algorithm>
#include <memory>
#include <string_view>

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

// Ends the program where the arguments ask for help or version, or are wrong.
struct Arguments {
    explicit Arguments(const QCoreApplication& application);
    QCommandLineParser parser;
    QCommandLineOption shots = Hidden(QStringLiteral("shots"), QStringLiteral("folder"));
    QCommandLineOption trace = Hidden(QStringLiteral("trace-events"), QString());
};

Arguments::Arguments(const QCoreApplication& application) {
    QCoreApplication::setApplicationName(QStringLiteral("zentlor-studio"));
    QCoreApplication::setApplicationVersion(QStringLiteral(ZENTLOR_VERSION));
    Words words;
    words.SetLanguage(QLocale().language() == QLocale::German ? 1 : 2);
    parser.addPositionalArgument(QStringLiteral("path"), words(Word::UsagePath), QStringLiteral("[path]"));
    parser.addHelpOption();
    parser.addOption(QCommandLineOption(
        QStringLiteral("version"), QCoreApplication::translate("QCommandLineParser", "Displays version information.")));
    parser.addOption(shots);
    parser.addOption(trace);
    parser.process(application);
    if (parser.isSet(QStringLiteral("version"))) parser.showVersion();
}

}  // namespace

bool OnlyAsks(int argc, const char* const* argv) {
    return std::any_of(argv + 1, argv + argc, [](std::string_view argument) {
        return argument == "--help" || argument == "-h" || argument == "--help-all" || argument == "--version";
    });
}

void Answer(const QCoreApplication& application) {
    const Arguments arguments(application);
}

int RunStudio(const QApplication& application) {
    QElapsedTimer sinceStart;
    sinceStart.start();
    const Arguments arguments(application);
    QApplication::setDesktopFileName(QStringLiteral("zentlor-studio"));
    const QCommandLineParser& parser = arguments.parser;
    if (parser.isSet(arguments.shots)) return TakeShots(parser.value(arguments.shots));

    Studio studio(workspace::DefaultSettingsPath());
    const auto eventTrace = parser.isSet(arguments.trace) ? std::make_unique<EventTrace>(studio, sinceStart) : nullptr;
    studio.Start(parser.positionalArguments());
    return QApplication::exec();
}

}  // namespace zentlor::studio
