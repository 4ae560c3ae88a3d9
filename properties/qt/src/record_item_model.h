// The rows of an inspector: the shown properties of the selected record, read from it whenever they are
// asked for. Holds no values; edits do not come here but go to the record, which tells.
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
        SearchRole,                  // all that a filter finds the row by
    };

    // `editable` is asked before every edit.
    RecordItemModel(std::shared_ptr<Properties> properties, std::shared_ptr<container::model::Model> model,
        std::shared_ptr<DataModelSignals::Selection> selection, std::function<bool()> editable,
        QObject* parent);

    // Shows the properties whose keys `shows` accepts, all for an empty function: by weight and then in order
    // of the set, under the headings of their categories.
    void show(std::function<bool(const std::string&)> shows);
    // The texts have changed their language.
    void retranslate();

    // Null for a heading.
    std::shared_ptr<const Property> property(const QModelIndex& index) const;
    // Whether there is a record, and it may be edited.
    bool isEditable() const { return record() && editable_(); }
    // The key of the shown record; null while there is none.
    const container::model::Key* record() const { return signals_.record(); }
    container::model::Model& objects() const { return signals_.model(); }
    // A property's value in the shown record; invalid while there is none.
    QVariant current(const Property& property) const;
    // A value as the engineer reads it.
    QString valueText(const Property& property, const QVariant& value) const;
    // A text of the inspector itself in the engineer's language.
    QString text(const char* source) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

 signals:
    // Somebody has changed the shown record, or another one is shown.
    void recordChanged();

 private:
    struct ShownRow {
        std::shared_ptr<const Property> property;  // the row's, or the first one below the heading
        bool heading;
        QVariant told = {};  // the value that the view last heard of: only tells whether it has to hear again
    };

    void updateChanged();
    void updateAll();
    QVariant cell(const QModelIndex& index, const Property& property, int role) const;
    QString tooltipText(const Property& property, const QVariant& value) const;

    std::shared_ptr<Properties> properties_;
    DataModelSignals signals_;
    std::function<bool()> editable_;
    std::vector<ShownRow> rows_;
};

}  // namespace tiv::properties
