#include "properties/qt/src/record_item_model.h"

#include <QFont>

#include <algorithm>
#include <exception>
#include <string_view>
#include <utility>

namespace tiv::properties {

RecordItemModel::RecordItemModel(std::shared_ptr<Properties> properties,
    std::shared_ptr<container::model::Model> model, std::shared_ptr<DataModelSignals::Selection> selection,
    QObject* parent)
    : QAbstractTableModel(parent),
      properties_(std::move(properties)),
      signals_(std::move(model), std::move(selection)) {
    connect(&signals_, &DataModelSignals::recordChanged, this, &RecordItemModel::updateAll);
    setFilter([](const std::string&) { return true; });
}

void RecordItemModel::setFilter(const std::function<bool(const std::string&)>& shows) {
    std::vector<std::shared_ptr<const Property>> shown;
    for (const auto& property : properties_->list)
        if (shows(property->key)) shown.push_back(property);
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
        rows_.push_back({std::move(property), false});
    }
    endResetModel();
}

void RecordItemModel::retranslate() {
    emit headerDataChanged(Qt::Horizontal, LabelColumn, ValueColumn);
    updateAll();
}

void RecordItemModel::updateAll() {
    if (!rows_.empty()) emit dataChanged(index(0, 0), index(rowCount() - 1, ColumnCount - 1));
}

std::shared_ptr<const Property> RecordItemModel::property(const QModelIndex& index) const {
    if (!index.isValid()) return nullptr;
    const ShownRow& row = rows_[static_cast<std::size_t>(index.row())];
    return row.heading ? nullptr : row.property;
}

int RecordItemModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int RecordItemModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : ColumnCount;
}

QString RecordItemModel::text(const char* source) const {
    return properties_->xlator ? properties_->xlator->text("inspector", source) : QString::fromUtf8(source);
}

QString RecordItemModel::valueText(const Property& property) const {
    const container::model::Key* record = signals_.record();
    if (!record) return {};
    const QVariant current = value(property, signals_.model(), *record);
    const Branch editor = property.configuration.branch("editor");
    const auto* entries = editor.get<NamedValues>("entries");
    const auto* isEqual = editor.get<IsEqual>("is_equal");
    if (entries && isEqual)
        for (const NamedValue& entry : **entries)
            if ((*isEqual)(entry.value, current)) return entry.text;
    return current.toString();
}

QVariant RecordItemModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) return {};
    const ShownRow& row = rows_[static_cast<std::size_t>(index.row())];
    if (row.heading) {
        if (role == Qt::DisplayRole && index.column() == LabelColumn)
            return category(*properties_, *row.property);
        if (role == Qt::FontRole) {
            QFont font;
            font.setBold(true);
            return font;
        }
        return {};
    }
    if (role == Qt::EditRole && index.column() == ValueColumn) {
        const container::model::Key* record = signals_.record();
        return record ? value(*row.property, signals_.model(), *record) : QVariant();
    }
    if (role == Qt::ToolTipRole) {
        const QString own = tooltip(*properties_, *row.property);
        return own.isEmpty() ? data(index, Qt::DisplayRole) : own;
    }
    if (role != Qt::DisplayRole) return {};
    return index.column() == LabelColumn ? label(*properties_, *row.property) : valueText(*row.property);
}

QVariant RecordItemModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
    return section == LabelColumn ? text("Property") : text("Value");
}

Qt::ItemFlags RecordItemModel::flags(const QModelIndex& index) const {
    if (!property(index)) return Qt::ItemIsEnabled;
    const Qt::ItemFlags common = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
    return index.column() == ValueColumn && signals_.record() ? common | Qt::ItemIsEditable : common;
}

bool RecordItemModel::setData(const QModelIndex& index, const QVariant& newValue, int role) {
    const auto edited = property(index);
    if (!edited || index.column() != ValueColumn || role != Qt::EditRole) return false;
    const container::model::Key* record = signals_.record();
    if (!record) return false;
    if (value(*edited, signals_.model(), *record) == newValue) return true;
    if (!validators_.create(*edited)(newValue)) {
        emit refused(text("This value is not offered."));
        return false;
    }
    try {
        const container::model::Key key = *record;  // an observer may select another record
        setValue(*edited, signals_.model(), key, newValue);
    } catch (const std::exception& problem) {
        emit refused(QString::fromUtf8(problem.what()));
        return false;
    }
    return true;
}

}  // namespace tiv::properties
