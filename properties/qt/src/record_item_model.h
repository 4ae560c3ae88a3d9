// The rows of an inspector: the shown properties of the selected record, read from it when they are
// painted and written to it in one transaction each. Holds no values of its own.
#pragma once

#include "properties/nextgen/property.h"
#include "properties/qt/src/data_model_signals.h"
#include "properties/qt/src/validators.h"

#include <QAbstractTableModel>

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace tiv::properties {

class RecordItemModel : public QAbstractTableModel {
    Q_OBJECT
 public:
    enum Column { LabelColumn, ValueColumn, ColumnCount };

    RecordItemModel(std::shared_ptr<Properties> properties, std::shared_ptr<container::model::Model> model,
        std::shared_ptr<DataModelSignals::Selection> selection, QObject* parent);

    // Shows the properties whose keys `shows` accepts, by weight and then in order of the set, under the
    // headings of their categories.
    void setFilter(const std::function<bool(const std::string&)>& shows);
    // The texts have changed their language.
    void retranslate();

    // Null for a heading.
    std::shared_ptr<const Property> property(const QModelIndex& index) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    // False, and `refused`, when the value could not be written; the record is then unchanged.
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;

 signals:
    void refused(const QString& why);

 private:
    struct ShownRow {
        std::shared_ptr<const Property> property;  // the row's, or the first one below the heading
        bool heading;
    };

    QString text(const char* source) const;
    QString valueText(const Property& property) const;
    void updateAll();

    std::shared_ptr<Properties> properties_;
    DataModelSignals signals_;
    DefaultValidatorFactory validators_;
    std::vector<ShownRow> rows_;
};

}  // namespace tiv::properties
