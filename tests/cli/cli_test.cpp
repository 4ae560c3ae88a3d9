// The built tool as its users run it: in a folder of its own, without a display.
#include "tiv/dbo/dbo.h"

#include <QtGui>

#include <gtest/gtest.h>

#include <map>

namespace {

QByteArray contentOf(const QString& path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll();
}

class EchotableTool : public testing::Test {
 public:
    // What a command prints, as session.txt writes it: output, "! " errors, "? " exit code.
    std::string run(const QString& arguments, const QByteArray& input = {}) const {
        return execute(TIV_ECHOTABLE, QProcess::splitCommand(arguments), input);
    }

    std::string shell(const QString& command, const QByteArray& input = {}) const {
        const QString names = "tool=\"" TIV_ECHOTABLE "\" host=\"" TIV_ECHOHOST "\" french=\"" TIV_FRENCH
                              "\" manual=\"" TIV_MAN_PAGE "\"; ";
        const QString tool = R"(echotable() { "$tool" "$@"; }; echotable)";
        return execute("bash", {"-c", names + tool + command}, input);
    }

    std::string execute(const QString& program, const QStringList& words, const QByteArray& input) const {
        QProcess process;
        auto environment = QProcessEnvironment::systemEnvironment();
        for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) environment.remove(name);
        environment.insert("LC_ALL", "C");
        process.setProcessEnvironment(environment);
        process.setWorkingDirectory(folder.path());
#if defined(Q_OS_WIN)  // without a console, which under Wine would outlive the tool and hold its folder
        process.setCreateProcessArgumentsModifier(
            [](QProcess::CreateProcessArguments* start) { start->flags |= 8; });  // DETACHED_PROCESS
#endif
        process.start(program, words);
        process.write(input);
        process.closeWriteChannel();
        EXPECT_TRUE(process.waitForFinished()) << process.errorString().toStdString();
        EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
        QByteArray result = process.readAllStandardOutput();
        for (const QByteArray& line : process.readAllStandardError().split('\n'))
            if (!line.isEmpty()) result += "! " + line + '\n';
        if (process.exitCode() != 0) result += "? " + QByteArray::number(process.exitCode()) + '\n';
        return result.replace("\r\n", "\n").toStdString();
    }

    // Runs the commands of a session in order; each prints what stands below it.
    void repeat(const QString& session, decltype(&EchotableTool::run) runs = &EchotableTool::run) const {
        QStringList lines = QString::fromUtf8(contentOf(TIV_SESSIONS + session)).split('\n');
        lines.removeLast();
        while (!lines.isEmpty()) {
            const QString command = lines.takeFirst();
            if (!command.startsWith("$ echotable")) continue;
            QByteArray input;
            std::string expected;
            while (!lines.isEmpty() && !lines[0].startsWith("$ echotable") && !lines[0].startsWith('#')) {
                const QString line = lines.takeFirst() + '\n';
                if (line.startsWith('<'))
                    input += line.mid(2).toUtf8();
                else
                    expected += line.toStdString();
            }
            const auto before = files();
            EXPECT_EQ((this->*runs)(command.mid(11), input), expected) << command.toStdString();
            EXPECT_TRUE(expected.find("? ") == std::string::npos || files() == before)
                << command.toStdString();
        }
    }

    void write(const QString& name, const QByteArray& bytes) const {
        QFile file(folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    }

    std::map<QString, QByteArray> files() const {
        std::map<QString, QByteArray> contents;
        for (const QString& name : QDir(folder.path()).entryList(QDir::Files))
            contents[name] = contentOf(folder.filePath(name));
        return contents;
    }

    const QTemporaryDir folder;
};

TEST_F(EchotableTool, MakesInputLinesFromOptions) {
    repeat("session.txt");
    EXPECT_TRUE(files()["L"].endsWith("NOST VAL NO $ Schnittgr\u00f6\u00dfen in Knoten\n"));
}

TEST_F(EchotableTool, ReportsErrorsInOneLineAndChangesNothing) {
    write("bad", "**");
    run("project create newer");
    QByteArray newer = files()["newer"];
    newer[63] = 2;  // the last byte of the format's number
    write("newer", newer);
    QDir(folder.path()).mkdir("folder");
    const int other = tiv::dbo::createProject(folder.filePath("other").toStdString());
    for (const tiv::dbo::Task& task :
        {tiv::dbo::Task{"a\n\t\x07[1m", 3, ""}, {"b", 99, "*\n*"}, {"c", 0, "**"}, {"d", 12, ""}})
        tiv::dbo::storeTask(other, task);
    tiv::dbo::closeProject(other);
    repeat("errors.txt");
}

TEST_F(EchotableTool, RunsInAShell) {
    if (!QFile::exists("/dev/full")) GTEST_SKIP() << "not this system";
    repeat("system.txt", &EchotableTool::shell);
    EXPECT_LT(QImage(folder.filePath("output0001.png")).pixelColor(5, 5).lightness(), 99) << "dark";
}

}  // namespace
