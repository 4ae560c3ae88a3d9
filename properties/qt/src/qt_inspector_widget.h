// The property inspector: a table of labels and values over one record of an object model.
//
//     auto* inspector = new QtInspectorWidget(parent, properties, selection, model, editors, validators);
//     inspector->setPropertyFilterFunction([](const std::string& key) { return key == "prop.full"; });
//
// An edit is in the record before the next event, and every change of the record, whoever made it, is
// shown at once. What cannot be done is said below the table; nothing is thrown into the event loop.
// The widget shares what it is given: it may outlive the owner of the record, or go first.
//
//     click, Return, F2, Space, Alt+Down    opens the list of values      Delete    back to the default
//     Ctrl+F    filter     Ctrl+Z, Ctrl+Y    undo, redo (the host's when there is nothing to undo here)
//     Ctrl+C    the selected rows as text    Ctrl+V    the settings in the clipboard
#pragma once

#include "properties/definitions/property.h"
#include "properties/definitions/selection_manager.h"

#include <QPointer>
#include <QUndoStack>
#include <QWidget>

#include <functional>
#include <memory>
#include <string>
#include <vector>

class QCheckBox;
class QLabel;
class QLineEdit;
class QMenu;

namespace tiv::properties {

class DefaultEditorFactory;
class DefaultValidatorFactory;
class PropertyView;
class RecordItemModel;

// What an inspector asks of the owner of the record. Every function may be empty.
struct InspectorHost {
    std::function<bool()> isEditable;       // empty: always
    std::function<void()> retranslate;      // the language has changed: give the properties their texts
    std::function<QString()> copySettings;  // all settings as one text
    std::function<void(const QString&)> pasteSettings;  // throws std::exception when it cannot read the text
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
    bool eventFilter(QObject* watched, QEvent* event) override;

 private:
    void onResetRequested(const QModelIndex& row);
    void onEntered(const QModelIndex& index, const QVariant& value);
    void onRecordChanged();
    bool onKey(const QKeyEvent& event, bool onlyAsk);
    bool onFilterKey(const QKeyEvent& event, bool onlyAsk);
    void showMenu(const QPoint& position);
    void addLevelMenu(QMenu& menu, const std::vector<std::shared_ptr<const Property>>& targets);

    std::vector<std::shared_ptr<const Property>> selectedProperties() const;
    std::vector<std::shared_ptr<const Property>> shownChanged() const;

    // One gesture: sets the value of all targets that offer it, in one transaction and one undo step.
    void choose(const std::vector<std::shared_ptr<const Property>>& targets, const QVariant& value);
    void reset(const std::vector<std::shared_ptr<const Property>>& targets);
    void apply(const std::vector<PropertyValue>& wanted);
    bool write(const std::vector<PropertyValue>& values);
    // Runs something that changes the record. False if it failed, or if `this` is gone.
    bool change(const std::function<void()>& action);
    void announce(const std::vector<PropertyValue>& values);
    void undo();
    void redo();
    void copyRows() const;
    void copySettings() const;
    void pasteSettings();

    void showFilter();
    void hideFilter();
    void filterRows();
    void updatePlaceholder();
    void say(const QString& text);

    RecordItemModel* rows_;
    PropertyView* view_;
    InspectorHost host_;
    std::shared_ptr<const DefaultValidatorFactory> validators_;
    std::shared_ptr<Properties> properties_;
    QUndoStack undo_;
    QWidget* filterBar_ = nullptr;  // these four are made when they are first needed
    QLineEdit* query_ = nullptr;
    QCheckBox* changedOnly_ = nullptr;
    QLabel* message_ = nullptr;
    bool changing_ = false;  // a change of ours is under way
    int changesSeen_ = 0;    // by the record since it began
};

}  // namespace tiv::properties
