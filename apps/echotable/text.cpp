#include "apps/echotable/text.h"

#include "apps/texts/output.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QVector>

#include <algorithm>
#include <cerrno>
#include <cstdio>

namespace tiv::tool {

std::runtime_error failure(const QString& file, const QString& reason) {
    return std::runtime_error((file + QStringLiteral(": ") + reason).toStdString());
}

QString inputName(const QString& file) {
    return file == standardStream ? QStringLiteral("standard input") : file;
}

namespace {

// The last error of the file.
QString reasonOf(const QFileDevice& file) {
    const QString reason = file.errorString();
    return reason == qt_error_string(EBADF) ? QStringLiteral("closed") : reason;
}

constexpr int longest = 64 << 20;  // bytes of a settings text

// Reads the file to its end, or to one byte more than is allowed.
QByteArray start(QFile& file) {
    QByteArray bytes;
    while (bytes.size() <= longest) {
        const QByteArray more = file.read(longest + 1 - bytes.size());
        if (more.isEmpty()) break;
        bytes += more;
    }
    return bytes;
}

// UTF-16 after its byte-order mark, otherwise UTF-8.
QString decoded(const QByteArray& bytes) {
    if (!bytes.startsWith("\xff\xfe") && !bytes.startsWith("\xfe\xff")) return QString::fromUtf8(bytes);
    return QString::fromUtf16(reinterpret_cast<const char16_t*>(bytes.constData()), bytes.size() / 2);
}

// The file at the end of the links that `name` leads to. A link in /proc leads to no file: /dev/stdout and
// /dev/fd/1 are the standard output, and replacing the file that the shell has redirected it to would hide it.
QString linkedFile(const QString& name) {
    constexpr int mostLinks = 40;  // the limit of Linux
    QFileInfo file(name);
    for (int links = 0; file.isSymLink(); ++links) {
        const QString folder = file.dir().canonicalPath();
        if (folder.startsWith(QLatin1String("/proc/"))) throw failure(name, QStringLiteral("not a file"));
        if (links == mostLinks) throw failure(name, QStringLiteral("too many links"));
        file.setFile(file.symLinkTarget());
    }
    return file.filePath();
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
    // QFile reports the end of a pipe as an error; elsewhere a slow writer can leave one set in stdin.
    if (piped) failed = !open || std::ferror(stdin) != 0;
#endif
    if (failed) throw failure(inputName(name), reasonOf(file));
    if (bytes.size() > longest) throw failure(inputName(name), QStringLiteral("longer than 64 MiB"));
    return decoded(bytes).replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
}

void writeText(const QString& name, const QString& text) {
    if (name == standardStream) return print(text);
    const QFileInfo target(linkedFile(name));
    if (target.exists() && !target.isFile()) throw failure(name, QStringLiteral("not a file"));
    if (!target.dir().exists()) throw failure(name, QStringLiteral("no such folder"));
    apps::replaceFile(target.filePath(), text.toUtf8());
}

void print(const QString& text) {
    const QByteArray bytes = text.toUtf8();
    QFile file;
    const bool written =
        file.open(stdout, QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush();
    if (!written) throw failure(QStringLiteral("standard output"), reasonOf(file));
}

void complain(const QString& text) {
    std::fprintf(stderr, "echotable: %s\n", visible(text).toUtf8().constData());
}

void warn(const QString& text) {
    complain(QStringLiteral("warning: ") + text);
}

QString visible(const QString& text) {
    QString result;
    for (const QChar c : text) {
        if (c.category() != QChar::Other_Control)
            result += c;
        else if (c == QLatin1Char('\n'))
            result += QLatin1String("\\n");
        else if (c == QLatin1Char('\t'))
            result += QLatin1String("\\t");
        else
            result += QStringLiteral("\\x%1").arg(c.unicode(), 2, 16, QLatin1Char('0'));
    }
    return result;
}

QString jsonText(const QJsonDocument& document) {
    return QString::fromUtf8(document.toJson());
}

QString aligned(const std::vector<QStringList>& rows) {
    QVector<qsizetype> widths;
    for (const QStringList& row : rows) {
        widths.resize(std::max(widths.size(), row.size()));
        for (int i = 0; i < row.size(); ++i) widths[i] = std::max(widths[i], qsizetype(row[i].size()));
    }
    QString text;
    for (const QStringList& row : rows) {
        QString line;
        for (int i = 0; i < row.size(); ++i) line += row[i].leftJustified(int(widths[i]) + 2);
        while (line.endsWith(QLatin1Char(' '))) line.chop(1);
        text += line + QLatin1Char('\n');
    }
    return text;
}

}  // namespace tiv::tool
