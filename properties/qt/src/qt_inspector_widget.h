// The property inspector: a table of labels and values over one record of an object model.
//
//     auto* inspector = new QtInspectorWidget(parent, properties, selection, model);
//     inspector->setPropertyFilterFunction([](const std::string& key) { return key == "prop.full"; });
//
// An edit is in the record as soon as it is made, and every change of the record, whoever made it, is
// shown at once. The widget shares what it is given: it may outlive the owner of the record, or go first.
#pragma once

#include "properties/nextgen/property.h"
#include "properties/nextgen/selection_manager.h"

#include <QWidget>

#include <functional>
#include <memory>
#include <string>

class QLabel;
class QTreeView;

namespace tiv::properties {

class RecordItemModel;

class QtInspectorWidget : public QWidget {
    Q_OBJECT
 public:
    QtInspectorWidget(QWidget* parent, std::shared_ptr<Properties> properties,
        std::shared_ptr<SelectionManager<container::model::Key>> selection,
        std::shared_ptr<container::model::Model> model);

    // Shows only the properties whose keys the function accepts. Without one, all are shown.
    void setPropertyFilterFunction(const std::function<bool(const std::string&)>& shows);
    // Called when the language has changed, before the widget takes the new texts from the properties.
    void setRetranslateFunction(std::function<void()> retranslate);

 protected:
    void changeEvent(QEvent* event) override;

 private:
    void arrange();
    void edit(const QModelIndex& index);
    void showMessage(const QString& text);

    RecordItemModel* rows_;
    QTreeView* view_;
    QLabel* message_;
    std::function<void()> retranslate_;
};

}  // namespace tiv::properties
