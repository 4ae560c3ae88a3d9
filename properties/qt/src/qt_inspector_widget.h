// The property inspector: a table of labels and values over one record of an object model.
//
//     auto* inspector = new QtInspectorWidget(parent, properties, selection, model, editors, validators);
//     inspector->setPropertyFilterFunction([](const std::string& key) { return key == "prop.full"; });
//
// An edit is in the record before the next event, and every change of the record, whoever made it, is shown
// at once; a hidden inspector is updated when it is shown. Errors are shown below the table; nothing is thrown
// into the event loop. The widget shares what it is given: it may outlive the owner of the record, or go first.
//
// commands() lists what the engineer can do and by which keys; commands.h says which keys stay the host's.
#pragma once

#include "properties/definitions/property.h"
#include "properties/definitions/selection_manager.h"
#include "properties/qt/src/commands.h"
#include "properties/qt/src/record_editor.h"

#include <QWidget>

#include <functional>
#include <memory>
#include <string>
#include <vector>

class QLabel;
class QMenu;
class QMimeData;
class QModelIndex;

namespace tiv::properties {

class DefaultEditorFactory;
class FilterBar;
class PropertyView;
class RecordItemModel;

// What an inspector asks of the owner of the record. Every function may be empty.
struct InspectorHost {
    std::function<bool()> isEditable;   // empty: always
    std::function<void()> retranslate;  // the language has changed: give the properties their texts
    std::function<QString()> name;      // of the table, for screen readers
    std::function<QString()> setTo;     // title of the menu of values; empty: there is no such menu
    std::function<QString(const Property&)> keyword;           // the property's word in the user's input text
    std::function<std::unique_ptr<QMimeData>()> copySettings;  // all settings; null while there are none
    // The values of settings in the clipboard. Throws std::exception when it holds none for this record.
    std::function<std::vector<PropertyValue>(const QMimeData&)> readSettings;
};

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
    // The record has changed, whoever changed it. A slot may destroy the inspector.
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

    std::vector<Command> commands();
    void showMenu(const QPoint& position);
    void addValueMenu(QMenu& menu);

    PropertyList targets() const;
    PropertyList shownProperties() const;
    PropertyList shownChanged() const;

    void copyRows() const;
    void copySettings() const;
    void paste();
    void pasteRows(const std::vector<struct CopiedRow>& rows);
    void pasteSettings(const QMimeData& clipboard);

    void showFilter();
    void filterRows();
    void updateTexts();

    // Makes the first of these rows the current one, in view. A screen reader reads it out.
    void reveal(const std::vector<PropertyValue>& values);
    void unhide(const std::vector<PropertyValue>& values);
    void announce(const QModelIndex& current);
    void say(const QString& text);
    void makeMessage();
    void clearMessage();

    std::shared_ptr<Properties> properties_;
    InspectorHost host_;
    RecordEditor* editor_;
    RecordItemModel* rows_;
    PropertyView* view_;
    FilterBar* filter_ = nullptr;  // these two are made when they are first needed
    QLabel* message_ = nullptr;
    bool isStale_ = false;  // the record has changed while the inspector was hidden
};

}  // namespace tiv::properties
