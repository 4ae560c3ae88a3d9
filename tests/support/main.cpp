#include <QApplication>
#include <QFileInfo>

#include <gtest/gtest.h>

namespace test {
void recordReports();
}

namespace {

// Qt warnings are failures, except known warnings of the offscreen platform.
void onQtMessage(QtMsgType, const QMessageLogContext&, const QString& text) {
    const bool ofThePlatform = text.startsWith(QLatin1String("This plugin does not support")) ||
                               text.startsWith(QLatin1String("QStandardPaths:"));
    if (!ofThePlatform) ADD_FAILURE() << "message of Qt: " << text.toStdString();
}

}  // namespace

int main(int argc, char** argv) {
    qInstallMessageHandler(onQtMessage);
    qunsetenv("LANGUAGE");
    qputenv("LC_ALL", "C");
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    if (QFileInfo("/dev/shm").isWritable()) qputenv("TMPDIR", "/dev/shm");  // databases do not wait for a disk
    QApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    test::recordReports();
    return RUN_ALL_TESTS();
}
