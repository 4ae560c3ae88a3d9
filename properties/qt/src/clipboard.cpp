#include "properties/qt/src/clipboard.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace tiv::properties {
namespace {

QString rowsFormat() {
    return QStringLiteral("application/x-tiv-inspector-rows");
}

}  // namespace

std::unique_ptr<QMimeData> rowsForClipboard(const std::vector<CopiedRow>& rows, const QString& text) {
    QJsonArray list;
    for (const CopiedRow& row : rows) list.append(QJsonArray{row.label, QJsonValue::fromVariant(row.value)});
    auto data = std::make_unique<QMimeData>();
    data->setText(text);
    data->setData(rowsFormat(), QJsonDocument(list).toJson(QJsonDocument::Compact));
    return data;
}

std::optional<std::vector<CopiedRow>> rowsFromClipboard(const QMimeData& clipboard) {
    if (!clipboard.hasFormat(rowsFormat())) return std::nullopt;
    std::vector<CopiedRow> rows;
    for (const QJsonValue row : QJsonDocument::fromJson(clipboard.data(rowsFormat())).array())
        rows.push_back({row.toArray().at(0).toString(), row.toArray().at(1).toVariant()});
    return rows;
}

}  // namespace tiv::properties
