// A host that unloads the library and then makes its application object:  load_host LIBRARY
#include <QApplication>
#include <QLibrary>

int main(int argc, char** argv) {
    QLibrary library(QString::fromLocal8Bit(argv[argc - 1]));
    if (!library.load() || !library.unload()) return 1;
    const QApplication application(argc, argv);
    return 0;
}
