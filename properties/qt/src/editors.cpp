#include "properties/qt/src/editors.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QEvent>
#include <QLineEdit>
#include <QTimer>
#include <QWheelEvent>

#include <utility>

namespace tiv::properties {

NamedValueEditor::NamedValueEditor(QWidget* parent, std::shared_ptr<const Property> property)
    : QComboBox(parent), property_(std::move(property)) {
    fill();
    connect(this, QOverload<int>::of(&QComboBox::activated), this, &NamedValueEditor::choose);
}

void NamedValueEditor::setValue(const QVariant& value) {
    value_ = value;
    const auto* isEqual = editor().get<IsEqual>("is_equal");
    int index = count() - 1;
    while (index >= 0 && !(isEqual ? (*isEqual)(itemData(index), value) : itemData(index) == value)) --index;
    setCurrentIndex(index);
    if (index < 0) setPlaceholderText(value.toString());
}

void NamedValueEditor::fill() {
    const auto* entries = editor().get<NamedValues>("entries");
    clear();
    if (!entries) return;
    for (const NamedValue& entry : **entries) addItem(entry.text, entry.value);
}

void NamedValueEditor::choose(int index) {
    value_ = itemData(index);
    emit chosen();
}

void NamedValueEditor::hidePopup() {
    const bool open = view()->isVisible();
    QComboBox::hidePopup();
    // A choice is signalled right after the list is hidden: wait for it.
    if (open) QTimer::singleShot(0, this, &NamedValueEditor::cancelled);
}

// The wheel scrolls the inspector; it never changes a value.
void NamedValueEditor::wheelEvent(QWheelEvent* event) {
    event->ignore();
}

void NamedValueEditor::changeEvent(QEvent* event) {
    QComboBox::changeEvent(event);
    if (event->type() != QEvent::LanguageChange) return;
    const auto* entries = editor().get<NamedValues>("entries");
    if (!entries || static_cast<int>((*entries)->size()) != count()) return;
    for (int i = 0; i < count(); ++i) setItemText(i, (**entries)[static_cast<std::size_t>(i)].text);
}

DefaultEditorFactory::DefaultEditorFactory() {
    add(QStringLiteral("named_value_list"),
        [](QWidget* parent, const auto& property) { return new NamedValueEditor(parent, property); });
    add(QStringLiteral("boolean"), [](QWidget* parent, const auto&) { return new QCheckBox(parent); });
    add(QStringLiteral("text"), [](QWidget* parent, const auto&) { return new QLineEdit(parent); });
}

QWidget* DefaultEditorFactory::create(
    QWidget* parent, const std::shared_ptr<const Property>& property) const {
    const auto* kind = property->configuration.get<QString>("editor.kind");
    auto maker = kind ? makers_.find(*kind) : makers_.end();
    if (maker == makers_.end()) {
        const bool truth = property->field->type == bond::Type::Bool;
        maker = makers_.find(truth ? QStringLiteral("boolean") : QStringLiteral("text"));
    }
    QWidget* editor = maker->second(parent, property);
    editor->setAutoFillBackground(true);  // covers the text of its row
    return editor;
}

}  // namespace tiv::properties
