// The rows of an inspector: the shown properties of the selected record, read from it at every
// request. Holds no values: edits go to the record, whose changes update this model.
#pragma once

#include "properties/definitions/property.h"
#include "properties/qt/src/data_model_signals.h"

#include <QAbstractTableModel>

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace tiv::properties {

class RecordItemModel : public QAbstractTableModel {
    Q_OBJECT
 public:
    enum Column { LabelColumn, ValueColumn, ResetColumn, ColumnCount };
    enum Role {
        ChangedRole = Qt::UserRole,  // bool: the value is not the schema's default
        SearchRole,                  // the text in which a filter searches
    };

    // `isEditable` is called before every edit. `keyword` returns the word of a property in the user's input text,
    // or an empty one.
    RecordItemModel(std::shared_ptr<const Properties> properties, std::shared_ptr<DataModelSignals> record,
        std::function<bool()> isEditable, std::function<QString(const Property&)> keyword, QObject* parent);

    // Shows the properties whose keys `shows` accepts, all for an empty function: by weight and then in order
    // of the set, under the headings of their categories.
    void show(std::function<bool(const std::string&)> shows);
    // Updates the rows after a change of the record. Without a record there are no rows.
    void update();
    // Whether there is a record where there was none at the last update, or the other way round.
    bool isOutdated() const { return hasRecord_ != (record_->key() != nullptr); }
    // Updates all texts after a change of the language.
    void retranslate();

    // Null for a heading.
    std::shared_ptr<const Property> property(const QModelIndex& index) const;
    // Whether the row's value is in the list that its property offers.
    bool isOffered(const QModelIndex& index) const;
    bool isEditable() const { return isEditable_(); }
    // A property's value in the shown record; invalid while there is none.
    QVariant current(const Property& property) const { return record_->value(property); }
    // A value as the engineer reads it.
    QString valueText(const Property& property, const QVariant& value) const;
    // A text of the inspector itself in the engineer's language.
    QString text(const char* source) const { return inspectorText(*properties_, source); }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

 private:
    struct ShownRow {
        std::shared_ptr<const Property> property;  // the row's, or the first one below the heading
        bool heading;
        QVariant announced = {};  // the last value that the view was updated for
    };

    void rebuild();
    void updateAll();
    QVariant cell(const QModelIndex& index, const Property& property, int role) const;
    QString tooltipText(const Property& property, const QVariant& value) const;

    std::shared_ptr<const Properties> properties_;
    std::shared_ptr<DataModelSignals> record_;
    std::function<bool()> isEditable_;
    std::function<QString(const Property&)> keyword_;
    std::function<bool(const std::string&)> shows_;
    std::vector<ShownRow> rows_;
    bool hasRecord_ = false;
};

}  // namespace tiv::properties
