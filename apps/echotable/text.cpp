#include "apps/echotable/text.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QTextCodec>
#include <QVector>

#include <algorithm>
#include <cstdio>

namespace tiv::tool {

std::runtime_error failure(const QString& file, const QString& reason) {
    return std::runtime_error((file + QStringLiteral(": ") + reason).toStdString());
}

QString inputName(const QString& file) {
    return file == standardStream ? QStringLiteral("standard input") : file;
}

namespace {

constexpr int longest = 64 << 20;  // bytes of a settings text

// All of a text that is not too long.
QByteArray start(QFile& file) {
    QByteArray bytes;
    while (bytes.size() <= longest) {
        const QByteArray more = file.read(longest + 1 - bytes.size());
        if (more.isEmpty()) break;
        bytes += more;
    }
    return bytes;
}

// Whether the name leads to a file by a link of the system, as "/dev/stdout" does.
bool isRedirected(QFileInfo file) {
    for (; file.isSymLink(); file.setFile(file.symLinkTarget())) {
        const QString path = file.absoluteFilePath();
        if (path.startsWith(QLatin1String("/dev/")) || path.startsWith(QLatin1String("/proc/"))) return true;
    }
    return false;
}

}  // namespace

QString readText(const QString& name) {
    const bool piped = name == standardStream;
    const QFileInfo present(name);
    if (!piped && !present.exists()) throw failure(name, QStringLiteral("no such file"));
    if (!piped && present.isDir()) throw failure(name, QStringLiteral("not a file"));
    QFile file(name);
    const bool open = piped ? file.open(stdin, QIODevice::ReadOnly) : file.open(QIODevice::ReadOnly);
    const QByteArray bytes = open ? start(file) : QByteArray();
    bool failed = file.error() != QFileDevice::NoError;
#if defined(Q_OS_WIN)
    // Qt takes the end of a pipe for an error; elsewhere it leaves one behind in stdin while it waits.
    if (piped) failed = !open || std::ferror(stdin) != 0;
#endif
    if (failed) throw failure(inputName(name), file.errorString());
    if (bytes.size() > longest) throw failure(inputName(name), QStringLiteral("longer than 64 MiB"));
    QString text = QTextCodec::codecForUtfText(bytes, QTextCodec::codecForName("UTF-8"))->toUnicode(bytes);
    return text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
}

void writeText(const QString& name, const QString& text) {
    if (name == standardStream) return print(text);
    const QFileInfo present(name);
    if (present.exists() && (!present.isFile() || isRedirected(present)))  // it would be replaced as well
        throw failure(name, QStringLiteral("not a file"));
    if (!present.dir().exists()) throw failure(name, QStringLiteral("no such folder"));
    QSaveFile file(name);
    if (!file.open(QIODevice::WriteOnly)) throw failure(name, file.errorString());
    file.write(text.toUtf8());
    if (!file.commit()) throw failure(name, file.errorString());
}

void print(const QString& text) {
    const QByteArray bytes = text.toUtf8();
    QFile file;
    const bool written =
        file.open(stdout, QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush();
    if (!written) throw failure(QStringLiteral("standard output"), file.errorString());
}

void complain(const QString& text) {
    const QString line = QString(text).replace(QLatin1Char('\n'), QLatin1String("\\n"));
    std::fprintf(stderr, "echotable: %s\n", line.toUtf8().constData());
}

void warn(const QString& text) {
    complain(QStringLiteral("warning: ") + text);
}

QString jsonText(const QJsonDocument& document) {
    return QString::fromUtf8(document.toJson());
}

QString aligned(const std::vector<QStringList>& rows) {
    QVector<int> widths;
    for (const QStringList& row : rows) {
        widths.resize(std::max(widths.size(), row.size()));
        for (int i = 0; i < row.size(); ++i) widths[i] = std::max(widths[i], row[i].size());
    }
    QString text;
    for (const QStringList& row : rows) {
        QString line;
        for (int i = 0; i < row.size(); ++i) line += row[i].leftJustified(widths[i] + 2);
        while (line.endsWith(QLatin1Char(' '))) line.chop(1);
        text += line + QLatin1Char('\n');
    }
    return text;
}

}  // namespace tiv::tool
