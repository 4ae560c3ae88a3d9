// echohost: a small host of the library tiv_echotable.
#include "apps/echohost/main_window.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QIcon>

namespace {

QStringList words(int argc, char** argv) {
    QStringList result;
    for (int i = 0; i < argc; ++i) result << QString::fromLocal8Bit(argv[i]);
    return result;
}

}  // namespace

int main(int argc, char** argv) {
    QCoreApplication::setOrganizationName(QStringLiteral("tiv"));
    QCoreApplication::setApplicationName(QStringLiteral("echohost"));
    QCoreApplication::setApplicationVersion(QStringLiteral(TIV_VERSION));

    const QCommandLineOption dark(
        QStringLiteral("dark"), QStringLiteral("Shows the window in dark colours."));
    QCommandLineParser arguments;
    arguments.setApplicationDescription(
        QStringLiteral("Edits the echo tables of a project's analysis tasks."));
    const QCommandLineOption help = arguments.addHelpOption();
    const QCommandLineOption version = arguments.addVersionOption();
    arguments.addOption(dark);
    arguments.addPositionalArgument(
        QStringLiteral("FILE"), QStringLiteral("The project to open."), QStringLiteral("[FILE]"));
    // Qt's own options begin with one dash and are still there: the letters of "-reverse" are no options.
    arguments.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    arguments.parse(words(argc, argv));
    if (arguments.isSet(help) || arguments.isSet(version)) {
        const QCoreApplication withoutDisplay(argc, argv);
        arguments.process(withoutDisplay);
    }

    QApplication application(argc, argv);
    QApplication::setApplicationDisplayName(QApplication::applicationName());  // ends every window title
    QApplication::setDesktopFileName(QApplication::applicationName());
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/echohost/echohost.png")));
    arguments.process(application);
    const QStringList files = arguments.positionalArguments();
    if (files.size() > 1) arguments.showHelp(2);

    echohost::MainWindow window;
    if (arguments.isSet(dark)) window.setDark();
    window.show();
    if (!files.isEmpty()) window.openProject(files.front());
    return QApplication::exec();
}
