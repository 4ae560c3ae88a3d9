// Writes the record that an inspector shows. Each gesture is one transaction and one step that can be undone:
//
//     RecordEditor editor(properties, record, validators, isEditable, parent);
//     editor.set({load, grp}, 3);     // written({{load, 3}, {grp, 3}})
//     editor.undo();                  // written({{load, 0}, {grp, 0}})
//
// An observer of the record may run an event loop, in which the user makes the next gesture; it may write the
// record itself, or destroy the inspector and with it the editor. Nothing is thrown. A change of the record from
// outside clears the steps, because they no longer fit.
#pragma once

#include "properties/definitions/property.h"
#include "properties/definitions/validators.h"
#include "properties/qt/src/data_model_signals.h"

#include <QObject>
#include <QString>
#include <QVariant>

#include <cstddef>
#include <functional>
#include <memory>
#include <vector>

namespace tiv::properties {

using PropertyList = std::vector<std::shared_ptr<const Property>>;

class RecordEditor : public QObject {
    Q_OBJECT
 public:
    RecordEditor(std::shared_ptr<const Properties> properties, std::shared_ptr<DataModelSignals> record,
        std::shared_ptr<const DefaultValidatorFactory> validators, std::function<bool()> isEditable,
        QObject* parent);

    // Whether there is a record, and it may be changed.
    bool isEditable() const { return record_->key() && isEditable_(); }
    // The same; emits refused() if not.
    bool mayEdit();
    bool canUndo() const { return isEditable() && taken_ > 0; }
    bool canRedo() const { return isEditable() && taken_ < steps_.size(); }

    // Sets the value of those properties that accept it, and emits refused() for the others.
    void set(const PropertyList& targets, const QVariant& value);
    void set(const std::vector<PropertyValue>& wanted);
    // Sets the values, offered or not: those of stored settings and defaults.
    void load(const std::vector<PropertyValue>& wanted);
    void reset(const PropertyList& targets);
    // Without a step to undo or redo, they do nothing.
    void undo();
    void redo();

 signals:
    // The record has changed, whatever the cause.
    void recordChanged();
    // A gesture has written these values, which differ from those before.
    void written(const std::vector<PropertyValue>& values);
    // The same for a step that was undone or redone.
    void restored(const std::vector<PropertyValue>& values);
    // A gesture was refused, as a whole or in part: a sentence for the user.
    void refused(const QString& reason);

 private:
    struct Step {
        std::vector<PropertyValue> before, after;  // of the same properties
    };

    void onRecordChanged();
    Step stepTo(const std::vector<PropertyValue>& wanted) const;
    bool write(const std::vector<PropertyValue>& values);

    std::shared_ptr<const Properties> properties_;
    std::shared_ptr<DataModelSignals> record_;
    std::shared_ptr<const DefaultValidatorFactory> validators_;
    std::function<bool()> isEditable_;
    std::vector<Step> steps_;
    std::size_t taken_ = 0;  // the number of first steps that can be undone; the others can be redone
    bool writing_ = false;
    int changesSeen_ = 0;  // of the record, since this editor began to write
};

}  // namespace tiv::properties
