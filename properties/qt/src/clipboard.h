// Rows of an inspector in the clipboard: as text for other programs, and with labels and values for
// inspectors, whatever their language. The format "application/x-tiv-inspector-rows" is a JSON list:
//
//     [["Loads", 4], ["Sum of loads", 3]]
#pragma once

#include "properties/definitions/property.h"

#include <QMimeData>
#include <QString>
#include <QVariant>

#include <memory>
#include <optional>
#include <vector>

namespace tiv::properties {

struct CopiedRow {
    QString label;  // source text of the property's label
    QVariant value;
};

std::unique_ptr<QMimeData> rowsForClipboard(const std::vector<CopiedRow>& rows, const QString& text);
// Empty when the clipboard does not hold rows.
std::optional<std::vector<CopiedRow>> rowsFromClipboard(const QMimeData& clipboard);

}  // namespace tiv::properties
