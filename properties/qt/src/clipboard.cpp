#include "properties/qt/src/clipboard.h"

#include "properties/qt/src/announcer.h"
#include "properties/qt/src/inspector_host.h"
#include "properties/qt/src/record_item_model.h"
#include "properties/qt/src/shown_rows.h"

#include <QApplication>
#include <QClipboard>
#include <QJsonArray>
#include <QJsonDocument>
#include <QMimeData>
#include <QPointer>
#include <QString>
#include <QVariant>

#include <algorithm>
#include <exception>
#include <memory>
#include <optional>

namespace tiv::properties {

struct CopiedRow {
    QString label;  // source text of the property's label
    QVariant value;
};

namespace {

QString rowsFormat() {
    return QStringLiteral("application/x-tiv-inspector-rows");
}

std::unique_ptr<QMimeData> rowsForClipboard(const std::vector<CopiedRow>& rows, const QString& text) {
    QJsonArray list;
    for (const CopiedRow& row : rows) list.append(QJsonArray{row.label, QJsonValue::fromVariant(row.value)});
    auto data = std::make_unique<QMimeData>();
    data->setText(text);
    data->setData(rowsFormat(), QJsonDocument(list).toJson(QJsonDocument::Compact));
    return data;
}

// Empty when the clipboard does not hold rows.
std::optional<std::vector<CopiedRow>> rowsFromClipboard(const QMimeData& clipboard) {
    if (!clipboard.hasFormat(rowsFormat())) return std::nullopt;
    std::vector<CopiedRow> rows;
    for (const QJsonValue row : QJsonDocument::fromJson(clipboard.data(rowsFormat())).array())
        rows.push_back({row.toArray().at(0).toString(), row.toArray().at(1).toVariant()});
    return rows;
}

}  // namespace

void Clipboard::copyRows() const {
    std::vector<CopiedRow> copied;
    QString lines;
    for (const auto& property : shown->targets()) {
        const QVariant value = rows->current(*property);
        copied.push_back({QString::fromUtf8(property->displayName), value});
        lines += label(*properties, *property) + '\t' + rows->valueText(*property, value) + '\n';
    }
    if (!copied.empty()) QApplication::clipboard()->setMimeData(rowsForClipboard(copied, lines).release());
}

void Clipboard::copySettings() const {
    if (auto settings = host->copySettings()) QApplication::clipboard()->setMimeData(settings.release());
}

void Clipboard::paste() const {
    if (!editor->mayEdit()) return;
    const QMimeData empty;
    const QMimeData* clipboard = QApplication::clipboard()->mimeData();  // null without an owner
    if (!clipboard) clipboard = &empty;
    if (const auto copied = rowsFromClipboard(*clipboard)) return pasteRows(*copied);
    if (host->readSettings) pasteSettings(*clipboard);
}

void Clipboard::pasteRows(const std::vector<CopiedRow>& copied) const {
    std::vector<PropertyValue> wanted;
    QStringList rest;
    const PropertyList known = shown->shown();
    for (const CopiedRow& row : copied) {
        const auto hasLabel = [&](const auto& property) { return row.label == property->displayName; };
        const auto found = std::find_if(known.begin(), known.end(), hasLabel);
        if (found != known.end())
            wanted.push_back({*found, row.value});
        else
            rest << rows->text(row.label.toUtf8());
    }
    const QPointer<RecordEditor> self(editor);
    editor->set(wanted);
    if (self && !rest.isEmpty()) announcer->showMessage(rows->text("Not pasted: %1").arg(rest.join(", ")));
}

// Rows that the filter hides keep their values.
void Clipboard::pasteSettings(const QMimeData& clipboard) const {
    std::vector<PropertyValue> wanted;
    try {
        wanted = host->readSettings(clipboard);
    } catch (const std::exception& problem) {
        return announcer->showMessage(rows->text("Not changed: %1").arg(QString::fromUtf8(problem.what())));
    }
    QStringList rest;
    for (const auto& property : shown->hidden()) {
        const auto isHidden = [&](const PropertyValue& one) { return one.property == property; };
        const auto found = std::find_if(wanted.begin(), wanted.end(), isHidden);
        if (found == wanted.end()) continue;
        if (found->value != rows->current(*property)) rest << label(*properties, *property);
        wanted.erase(found);
    }
    const QPointer<RecordEditor> self(editor);
    editor->load(wanted);
    if (self && !rest.isEmpty())
        announcer->showMessage(
            rows->text("Not changed, because the filter hides it: %1").arg(rest.join(", ")));
}

}  // namespace tiv::properties
