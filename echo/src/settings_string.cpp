#include "echo/src/settings_string.h"

#include "bond/compact_binary.h"
#include "bond/simple_json.h"

#include <QByteArray>

#include <cstddef>
#include <span>

namespace tiv::echo::data {
namespace {

// Takes the next non-empty line off `rest`; empty when there is none.
QStringView nextLine(QStringView& rest) {
    while (rest.startsWith(u'\n')) rest = rest.mid(1);
    const auto end = rest.indexOf(u'\n');
    const QStringView line = end < 0 ? rest : rest.left(end);
    rest = rest.mid(line.size());
    return line;
}

// Reads one line into `record`, which is in its initial state.
void readLine(SettingsForm form, QStringView line, const bond::Struct& schema, void* record) {
    if (form == SettingsForm::Json) {
        const QByteArray text = line.toUtf8();
        bond::readSimpleJson(schema, record, {text.constData(), static_cast<std::size_t>(text.size())});
        return;
    }
    const QByteArray bytes = QByteArray::fromBase64(line.toLatin1());
    bond::readCompactBinary(
        schema, record, std::as_bytes(std::span(bytes.constData(), static_cast<std::size_t>(bytes.size()))));
}

}  // namespace

SettingsForm settingsForm(const QString& text) {
    return text.startsWith(QLatin1Char('{')) ? SettingsForm::Json : SettingsForm::Base64;
}

QString settingsString(const bond::Struct& schema, const void* record) {
    bond::Bytes bytes;
    bond::writeCompactBinary(schema, record, bytes);
    const auto raw =
        QByteArray::fromRawData(reinterpret_cast<const char*>(bytes.data()), static_cast<int>(bytes.size()));
    return QString::fromLatin1(raw.toBase64().append('\n'));
}

int recordCount(QStringView text) {
    int count = 0;
    while (!nextLine(text).isEmpty()) ++count;
    return count;
}

std::shared_ptr<void> readSettings(const QString& text, const properties::RecordAccess& access) {
    const SettingsForm form = settingsForm(text);
    std::shared_ptr<void> record;
    QStringView rest(text);
    for (QStringView line = nextLine(rest); !line.isEmpty(); line = nextLine(rest)) {
        record = access.make();
        readLine(form, line, access.schema, record.get());
    }
    return recordCount(text) == 1 ? record : access.make();
}

}  // namespace tiv::echo::data
