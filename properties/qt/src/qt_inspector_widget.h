// The property inspector: a table of labels and values over one record of an object model.
//
//     auto* inspector = new QtInspectorWidget(parent, properties, selection, model, editors, validators);
//     inspector->setPropertyFilterFunction([](const std::string& key) { return key == "prop.full"; });
//
// An edit is in the record before the next event. Every change of the record, whatever its cause, is shown at
// once; a hidden inspector is updated when it is shown. Errors are shown below the table; nothing is thrown
// into the event loop. The widget shares its arguments, so it and the owner of the record may be destroyed in any
// order.
//
// commands.h lists the keys that the inspector claims; all others are left to the host.
#pragma once

#include "properties/definitions/property.h"
#include "properties/definitions/selection_manager.h"
#include "properties/definitions/validators.h"
#include "properties/qt/src/announcer.h"
#include "properties/qt/src/clipboard.h"
#include "properties/qt/src/commands.h"
#include "properties/qt/src/inspector_host.h"
#include "properties/qt/src/shown_rows.h"

#include <QWidget>

#include <functional>
#include <memory>
#include <string>

class QModelIndex;

namespace tiv::properties {

class DataModelSignals;
class DefaultEditorFactory;
class PropertyView;
class RecordEditor;
class RecordItemModel;

class QtInspectorWidget : public QWidget {
    Q_OBJECT
 public:
    QtInspectorWidget(QWidget* parent, std::shared_ptr<Properties> properties,
        std::shared_ptr<SelectionManager<container::model::Key>> selection,
        std::shared_ptr<container::model::Model> model, std::shared_ptr<const DefaultEditorFactory> editors,
        std::shared_ptr<const DefaultValidatorFactory> validators, InspectorHost host = {});

    // Shows only the properties whose keys the function accepts; all of them for an empty function.
    void setPropertyFilterFunction(std::function<bool(const std::string&)> shows);

 signals:
    // The record has changed, whatever the cause. A slot may destroy the inspector.
    void settingsChanged();

 protected:
    void changeEvent(QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

 private:
    void onRecordChanged();
    void onRowsReset();
    void onEntered(const QModelIndex& index, const QVariant& value);
    void onResetRequested(const QModelIndex& index);

    void updateTexts();

    std::shared_ptr<Properties> properties_;
    InspectorHost host_;
    std::shared_ptr<DataModelSignals> record_;
    RecordEditor* editor_;
    RecordItemModel* rows_;
    PropertyView* view_;
    ShownRows shown_;
    Announcer announcer_;
    Clipboard clipboard_;
    CommandParts commands_;
    bool isStale_ = false;  // the record has changed while the inspector was hidden
};

}  // namespace tiv::properties
