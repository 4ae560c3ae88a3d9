#include "echo/src/inspector.h"

#include "echo/src/internal_data.h"
#include "echo/src/levels.h"
#include "properties/definitions/validators.h"
#include "properties/qt/src/editors.h"
#include "properties/qt/src/qt_inspector_widget.h"

#include <QByteArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <stdexcept>

namespace tiv::echo::data {
namespace {

constexpr char settingsFirstByte = 0x0a;  // Compact Binary: a struct with id 0

using WeakTable = std::weak_ptr<InternalInterface>;

// Whether a line begins as settings do, with the envelope's field "prop". Whether it can be read is another
// question.
bool beginsAsSettings(const QString& line) {
    if (line.startsWith(QLatin1Char('{')))
        return QJsonDocument::fromJson(line.toUtf8()).object().contains(QStringLiteral("prop"));
    const auto bytes =
        QByteArray::fromBase64Encoding(line.toLatin1(), QByteArray::AbortOnBase64DecodingErrors);
    return bytes && bytes.decoded.startsWith(settingsFirstByte);
}

// The loader is lenient with what a host has stored; a clipboard may hold anything, and a text of two
// lines, or a word that only happens to be read, would reset every option.
void paste(InternalInterface& table, const QString& text) {
    const QString line = text.trimmed();
    if (line.contains(QLatin1Char('\n')) || !beginsAsSettings(line))
        throw std::invalid_argument(EchoData::tr("The clipboard does not hold settings.").toStdString());
    table.insertXMLData(line);
}

properties::InspectorHost host(
    const WeakTable& weak, const std::shared_ptr<properties::Properties>& properties) {
    return {
        [weak] { return !weak.expired(); },
        [properties] { offerLevels(*properties); },
        [weak] {
            const auto table = weak.lock();
            return table ? table->getXMLData() : QString();
        },
        [weak](const QString& text) {
            if (const auto table = weak.lock()) paste(*table, text);
        },
    };
}

}  // namespace

QWidget* makeInspector(const std::shared_ptr<InternalInterface>& table, QWidget* parent) {
    offerLevels(*table->properties);
    static const auto editors = std::make_shared<const properties::DefaultEditorFactory>();
    static const auto validators = std::make_shared<const properties::DefaultValidatorFactory>();
    auto* inspector = new properties::QtInspectorWidget(parent,
        table->properties,
        table->selection,
        table->model,
        editors,
        validators,
        host(table, table->properties));
    inspector->setPropertyFilterFunction([keys = table->visibleKeys](const std::string& key) {
        return std::find(keys.begin(), keys.end(), key) != keys.end();
    });
    table->selection->select(recordKey());
    return inspector;
}

}  // namespace tiv::echo::data
