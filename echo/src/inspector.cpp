#include "echo/src/inspector.h"

#include "echo/src/internal_data.h"
#include "echo/src/levels.h"
#include "echo/src/settings_string.h"
#include "properties/definitions/validators.h"
#include "properties/qt/src/editors.h"
#include "properties/qt/src/qt_inspector_widget.h"

#include <QByteArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMimeData>

#include <algorithm>
#include <stdexcept>

namespace tiv::echo::data {
namespace {

constexpr char settingsFirstByte = 0x0a;  // Compact Binary: a struct with id 0

using WeakTable = std::weak_ptr<InternalInterface>;

// The clipboard format of copied settings. Its content is the name of their record.
QString settingsFormat() {
    return QStringLiteral("application/x-tiv-echo-settings");
}

const properties::RecordAccess& recordOf(const InternalInterface& table) {
    return *table.properties->list.front()->record;
}

// True if the line looks like settings, with the envelope's field "prop". Does not check that it can be
// decoded.
bool beginsAsSettings(const QString& line) {
    if (settingsForm(line) == SettingsForm::Json)
        return QJsonDocument::fromJson(line.toUtf8()).object().contains(QStringLiteral("prop"));
    const auto bytes =
        QByteArray::fromBase64Encoding(line.toLatin1(), QByteArray::AbortOnBase64DecodingErrors);
    return bytes && bytes.decoded.startsWith(settingsFirstByte);
}

std::unique_ptr<QMimeData> copySettings(InternalInterface& table) {
    auto data = std::make_unique<QMimeData>();
    data->setText(table.getXMLData());
    data->setData(settingsFormat(), recordOf(table).schema.name);
    return data;
}

// insertXMLData is lenient with what a host has stored. A clipboard can hold anything: two lines, or a word
// that happens to be valid base64, would reset every option.
std::vector<properties::PropertyValue> readSettings(
    const InternalInterface& table, const QMimeData& clipboard) {
    const properties::RecordAccess& record = recordOf(table);
    if (clipboard.hasFormat(settingsFormat()) && clipboard.data(settingsFormat()) != record.schema.name)
        throw std::invalid_argument(
            EchoData::tr("The clipboard holds settings of another program.").toStdString());
    const QString line = clipboard.text().trimmed();
    if (recordCount(line) > 1 || !beginsAsSettings(line))
        throw std::invalid_argument(EchoData::tr("The clipboard does not hold settings.").toStdString());

    const auto read = data::readSettings(line, record);
    std::vector<properties::PropertyValue> values;
    for (const auto& property : table.inspected->list)
        values.push_back({property, properties::value(*property, read.get())});
    return values;
}

properties::InspectorHost host(
    const WeakTable& weak, const std::shared_ptr<properties::Properties>& properties) {
    return {
        [weak] { return !weak.expired(); },
        [properties] { offerLevels(*properties); },
        [] { return EchoData::tr("Output options"); },
        [] { return EchoData::tr("Set to"); },
        [](const properties::Property& property) {
            const auto* keyword = property.configuration.get<QString>(keywordPath);
            return keyword ? *keyword : QString();
        },
        [weak] {
            const auto table = weak.lock();
            return table ? copySettings(*table) : nullptr;
        },
        [weak](const QMimeData& clipboard) {
            const auto table = weak.lock();
            return table ? readSettings(*table, clipboard) : std::vector<properties::PropertyValue>();
        },
    };
}

}  // namespace

QWidget* makeInspector(const std::shared_ptr<InternalInterface>& table, QWidget* parent) {
    if (!table->inspected)
        table->inspected =
            std::make_shared<properties::Properties>(properties::withOwnSettings(*table->properties));
    offerLevels(*table->inspected);
    static const auto& editors =
        *new std::shared_ptr(std::make_shared<const properties::DefaultEditorFactory>());
    static const auto& validators =
        *new std::shared_ptr(std::make_shared<const properties::DefaultValidatorFactory>());
    auto* inspector = new properties::QtInspectorWidget(parent,
        table->inspected,
        table->selection,
        table->model,
        editors,
        validators,
        host(table, table->inspected));
    inspector->setPropertyFilterFunction([keys = table->visibleKeys](const std::string& key) {
        return std::find(keys.begin(), keys.end(), key) != keys.end();
    });
    table->selection->select(recordKey());
    return inspector;
}

}  // namespace tiv::echo::data
