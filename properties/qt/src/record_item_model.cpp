#include "properties/qt/src/record_item_model.h"

#include "properties/definitions/paths.h"

#include <QFont>

#include <algorithm>
#include <string_view>
#include <utility>

namespace tiv::properties {
namespace {

// The entry of the value, or null.
const NamedValue* entryOf(const Property& property, std::string_view entriesPath, const QVariant& value) {
    const auto* entries = property.configuration.get<NamedValues>(entriesPath);
    const auto* isEqual = property.configuration.get<IsEqual>(path::editorIsEqual);
    if (!entries || !isEqual) return nullptr;
    for (const NamedValue& entry : **entries)
        if ((*isEqual)(entry.value, value)) return &entry;
    return nullptr;
}

bool mayHold(const Property& property, const QVariant& value) {
    return !property.configuration.get<NamedValues>(path::editorEntries) ||
           entryOf(property, path::editorEntries, value);
}

QVariant bold() {
    QFont font;
    font.setBold(true);
    return font;
}

}  // namespace

RecordItemModel::RecordItemModel(std::shared_ptr<const Properties> properties,
    std::shared_ptr<DataModelSignals> record, std::function<bool()> isEditable,
    std::function<QString(const Property&)> keyword, QObject* parent)
    : QAbstractTableModel(parent),
      properties_(std::move(properties)),
      record_(std::move(record)),
      isEditable_(std::move(isEditable)),
      keyword_(keyword ? std::move(keyword) : [](const Property&) { return QString(); }) {
    rebuild();
}

void RecordItemModel::show(std::function<bool(const std::string&)> shows) {
    shows_ = std::move(shows);
    rebuild();
}

void RecordItemModel::rebuild() {
    hasRecord_ = record_->key() != nullptr;
    std::vector<std::shared_ptr<const Property>> shown;
    for (const auto& property : properties_->list)
        if (hasRecord_ && (!shows_ || shows_(property->key))) shown.push_back(property);
    std::stable_sort(
        shown.begin(), shown.end(), [](const auto& a, const auto& b) { return a->weight < b->weight; });

    beginResetModel();
    rows_.clear();
    std::string_view category;
    for (auto& property : shown) {
        if (category != property->category) {
            category = property->category;
            if (!category.empty()) rows_.push_back({property, true});
        }
        const QVariant value = current(*property);
        rows_.push_back({std::move(property), false, value});
    }
    endResetModel();
}

void RecordItemModel::retranslate() {
    emit headerDataChanged(Qt::Horizontal, LabelColumn, ValueColumn);
    updateAll();
}

void RecordItemModel::update() {
    if (isOutdated()) return rebuild();
    for (int row = 0; row < rowCount(); ++row) {
        ShownRow& shown = rows_[static_cast<std::size_t>(row)];
        QVariant value = shown.heading ? QVariant() : current(*shown.property);
        if (value == shown.announced) continue;
        const QVariant byDefault = defaultValue(*shown.property);
        const bool marks = (value == byDefault) != (shown.announced == byDefault);
        shown.announced = std::move(value);
        // One signal for each cell: for a larger range a view repaints itself as a whole.
        for (const int column : {ValueColumn, LabelColumn, ResetColumn})
            if (marks || column == ValueColumn) emit dataChanged(index(row, column), index(row, column));
    }
}

void RecordItemModel::updateAll() {
    if (!rows_.empty()) emit dataChanged(index(0, 0), index(rowCount() - 1, ColumnCount - 1));
}

std::shared_ptr<const Property> RecordItemModel::property(const QModelIndex& index) const {
    if (!index.isValid()) return nullptr;
    const ShownRow& row = rows_[static_cast<std::size_t>(index.row())];
    return row.heading ? nullptr : row.property;
}

bool RecordItemModel::isOffered(const QModelIndex& index) const {
    const auto row = property(index);
    return row && entryOf(*row, path::editorEntries, current(*row));
}

int RecordItemModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int RecordItemModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : ColumnCount;
}

QString RecordItemModel::valueText(const Property& property, const QVariant& value) const {
    if (const NamedValue* entry = entryOf(property, path::editorEntries, value)) return entry->text;
    if (mayHold(property, value)) return value.toString();
    const NamedValue* known = entryOf(property, path::editorNames, value);
    return text("%1 (not offered)").arg(known ? known->text : value.toString());
}

// The full label, the schema's tooltip, the keyword, the default, and notes on the value.
QString RecordItemModel::tooltipText(const Property& property, const QVariant& value) const {
    QStringList lines{label(*properties_, property)};
    if (property.tooltip) lines << tooltip(*properties_, property);
    if (const QString keyword = keyword_(property); !keyword.isEmpty())
        lines << text("Keyword: %1").arg(keyword);
    lines << text("Default: %1").arg(valueText(property, defaultValue(property)));
    if (!value.isValid()) return lines.join('\n');
    if (const NamedValue* explained = entryOf(property, path::editorExplanations, value))
        lines << explained->text;
    if (!mayHold(property, value))
        lines << text("The stored value %1 is not offered. It stays until another one is chosen.")
                     .arg(value.toString());
    return lines.join('\n');
}

QVariant RecordItemModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) return {};
    const ShownRow& row = rows_[static_cast<std::size_t>(index.row())];
    if (!row.heading) return cell(index, *row.property, role);
    if (role == Qt::DisplayRole && index.column() == LabelColumn)
        return category(*properties_, *row.property);
    return role == Qt::FontRole ? bold() : QVariant();
}

QVariant RecordItemModel::cell(const QModelIndex& index, const Property& property, int role) const {
    const bool isValue = index.column() == ValueColumn;
    if (role == Qt::DisplayRole && index.column() == LabelColumn) return label(*properties_, property);
    const QVariant value = current(property);
    const bool changed = value.isValid() && value != defaultValue(property);
    switch (role) {
        case Qt::DisplayRole:
            return isValue && value.isValid() ? valueText(property, value) : QVariant();
        case Qt::EditRole:
            return isValue ? value : QVariant();
        case Qt::FontRole:
            return changed ? bold() : QVariant();
        case Qt::ToolTipRole:
            if (index.column() != ResetColumn) return tooltipText(property, value);
            return changed ? text("Reset to default") : QVariant();
        case Qt::AccessibleTextRole:
            if (index.column() == ResetColumn) return changed ? text("Reset to default") : QString();
            return data(index, Qt::DisplayRole);
        case Qt::AccessibleDescriptionRole:
            if (!isValue) return {};
            return (changed ? text("Changed. Default: %1") : text("Default: %1"))
                .arg(valueText(property, defaultValue(property)));
        case ChangedRole:
            return changed;
        case SearchRole:
            return QStringList{label(*properties_, property),
                QString::fromStdString(property.key),
                keyword_(property),
                value.isValid() ? valueText(property, value) : QString()}
                .join('\n');
        default:
            return {};
    }
}

QVariant RecordItemModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole || section == ResetColumn) return {};
    return section == LabelColumn ? text("Property") : text("Value");
}

Qt::ItemFlags RecordItemModel::flags(const QModelIndex& index) const {
    if (!property(index)) return Qt::ItemIsEnabled;
    const Qt::ItemFlags common = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
    return index.column() == ValueColumn && isEditable() ? common | Qt::ItemIsEditable : common;
}

}  // namespace tiv::properties
