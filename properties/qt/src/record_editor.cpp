#include "properties/qt/src/record_editor.h"

#include "properties/definitions/paths.h"

#include <QPointer>
#include <QStringList>

#include <exception>
#include <utility>

namespace tiv::properties {

RecordEditor::RecordEditor(std::shared_ptr<const Properties> properties,
    std::shared_ptr<DataModelSignals> record, std::shared_ptr<const DefaultValidatorFactory> validators,
    std::function<bool()> isEditable, QObject* parent)
    : QObject(parent),
      properties_(std::move(properties)),
      record_(std::move(record)),
      validators_(std::move(validators)),
      isEditable_(isEditable ? std::move(isEditable) : [] { return true; }) {
    connect(record_.get(), &DataModelSignals::recordChanged, this, &RecordEditor::onRecordChanged);
}

bool RecordEditor::mayEdit() {
    if (isEditable()) return true;
    emit refused(inspectorText(*properties_, QT_TR_NOOP("These settings can no longer be changed.")));
    return false;
}

void RecordEditor::set(const PropertyList& targets, const QVariant& value) {
    std::vector<PropertyValue> wanted;
    wanted.reserve(targets.size());
    for (const auto& property : targets) wanted.push_back({property, value});
    set(wanted);
}

void RecordEditor::reset(const PropertyList& targets) {
    std::vector<PropertyValue> wanted;
    wanted.reserve(targets.size());
    for (const auto& property : targets) wanted.push_back({property, defaultValue(*property)});
    load(wanted);
}

void RecordEditor::set(const std::vector<PropertyValue>& wanted) {
    std::vector<PropertyValue> accepted;
    QStringList notOffered, notNumbers;
    int places = 0;
    for (const PropertyValue& one : wanted) {
        const Configuration& configuration = one.property->configuration;
        const auto* precision = configuration.get<int>(path::validatorPrecision);
        if (one.value == record_->value(*one.property)) continue;
        if (validators_->create(*one.property)(one.value)) {
            accepted.push_back(one);
        } else if (precision && !configuration.get<QString>(path::validatorKind)) {
            places = *precision;
            notNumbers << label(*properties_, *one.property);
        } else {
            notOffered << label(*properties_, *one.property);
        }
    }
    const QPointer<RecordEditor> self(this);
    load(accepted);
    if (self && !notOffered.isEmpty())
        emit refused(
            inspectorText(*properties_, QT_TR_NOOP("Not offered for: %1")).arg(notOffered.join(", ")));
    if (self && !notNumbers.isEmpty())
        emit refused(inspectorText(*properties_, QT_TR_NOOP("Not a number of at most %1 decimal places: %2"))
                         .arg(QString::number(places), notNumbers.join(", ")));
}

void RecordEditor::load(const std::vector<PropertyValue>& wanted) {
    Step step = stepTo(wanted);
    if (step.after.empty() || !write(step.after)) return;
    const std::vector<PropertyValue> values = step.after;
    steps_.resize(taken_);
    steps_.push_back(std::move(step));
    taken_ = steps_.size();
    emit written(values);
}

RecordEditor::Step RecordEditor::stepTo(const std::vector<PropertyValue>& wanted) const {
    Step step;
    for (const PropertyValue& one : wanted) {
        QVariant now = record_->value(*one.property);
        if (now == one.value) continue;
        step.before.push_back({one.property, std::move(now)});
        step.after.push_back(one);
    }
    return step;
}

void RecordEditor::undo() {
    if (taken_ == 0) return;
    const std::vector<PropertyValue> values = steps_[taken_ - 1].before;
    if (!write(values)) return;
    --taken_;
    emit restored(values);
}

void RecordEditor::redo() {
    if (taken_ == steps_.size()) return;
    const std::vector<PropertyValue> values = steps_[taken_].after;
    if (!write(values)) return;
    ++taken_;
    emit restored(values);
}

// Returns false on failure, if an observer has changed the record as well, or if `this` was destroyed.
bool RecordEditor::write(const std::vector<PropertyValue>& values) {
    if (!mayEdit()) return false;
    const QPointer<RecordEditor> self(this);
    // Re-entrant: an observer may run an event loop in which the user edits again.
    const bool wasWriting = std::exchange(writing_, true);
    const int seenBefore = std::exchange(changesSeen_, 0);
    QString problem;
    try {
        const container::model::Key key = *record_->key();  // a copy: an observer may select another record
        setValues(values, record_->model(), key);
    } catch (const std::exception& exception) {
        problem = QString::fromUtf8(exception.what());
    }
    if (!self) return false;
    writing_ = wasWriting;
    const int seen = std::exchange(changesSeen_, changesSeen_ + seenBefore);
    if (!problem.isEmpty()) {
        emit refused(inspectorText(*properties_, QT_TR_NOOP("Not changed: %1")).arg(problem));
        return false;
    }
    if (seen <= 1) return true;
    steps_.clear();  // they no longer fit the record
    taken_ = 0;
    return false;
}

void RecordEditor::onRecordChanged() {
    if (writing_) {
        ++changesSeen_;
    } else {
        steps_.clear();
        taken_ = 0;
    }
    emit recordChanged();
}

}  // namespace tiv::properties
