// echohost: a small host of the library tiv_echotable.
#include "apps/echohost/appearance.h"
#include "apps/echohost/main_window.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QIcon>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("echohost"));
    QApplication::setApplicationDisplayName(QApplication::applicationName());  // ends every window title
    QApplication::setApplicationVersion(QStringLiteral(TIV_VERSION));
    QApplication::setDesktopFileName(QApplication::applicationName());
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/echohost/echohost.png")));

    const QCommandLineOption dark(
        QStringLiteral("dark"), QStringLiteral("Shows the window in dark colours."));
    QCommandLineParser arguments;
    arguments.setApplicationDescription(
        QStringLiteral("Edits the echo tables of a project's analysis tasks."));
    arguments.addHelpOption();
    arguments.addVersionOption();
    arguments.addOption(dark);
    arguments.addPositionalArgument(
        QStringLiteral("FILE"), QStringLiteral("The project to open."), QStringLiteral("[FILE]"));
    arguments.process(application);
    const QStringList files = arguments.positionalArguments();
    if (files.size() > 1) arguments.showHelp(2);

    if (arguments.isSet(dark)) echohost::setDark(true);
    echohost::MainWindow window;
    window.show();
    if (!files.isEmpty()) window.openProject(files.front());
    return QApplication::exec();
}
