#include "properties/qt/src/editors.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QEvent>
#include <QItemSelectionModel>
#include <QLineEdit>
#include <QTimer>
#include <QWheelEvent>

namespace tiv::properties {

NamedValueEditor::NamedValueEditor(QWidget* parent, std::shared_ptr<const Property> property)
    : QComboBox(parent), property_(std::move(property)) {
    fill();
    connect(this, QOverload<int>::of(&QComboBox::activated), this, &NamedValueEditor::choose);
}

void NamedValueEditor::setValue(const QVariant& value) {
    value_ = value;
    const auto* isEqual = property_->configuration.get<IsEqual>("editor.is_equal");
    int index = count() - 1;
    while (index >= 0 && !(isEqual ? (*isEqual)(itemData(index), value) : itemData(index) == value)) --index;
    setCurrentIndex(index);
    if (view()->isVisible()) view()->setCurrentIndex(model()->index(index, modelColumn()));
}

// Keeps the choice: only the texts differ from one call to the next.
void NamedValueEditor::fill() {
    const auto* entries = property_->configuration.get<NamedValues>("editor.entries");
    if (!entries) return;
    for (int i = 0; i < static_cast<int>((*entries)->size()); ++i) {
        const NamedValue& entry = (**entries)[static_cast<std::size_t>(i)];
        if (i < count())
            setItemText(i, entry.text);
        else
            addItem(entry.text, entry.value);
    }
}

void NamedValueEditor::choose(int index) {
    if (!view()->selectionModel()->isSelected(model()->index(index, modelColumn())))
        return;  // none was marked
    value_ = itemData(index);
    isChosen_ = true;
    emit chosen();
}

void NamedValueEditor::showPopup() {
    QComboBox::showPopup();
    view()->window()->installEventFilter(this);
    if (currentIndex() < 0) view()->clearSelection();
}

bool NamedValueEditor::eventFilter(QObject* watched, QEvent* event) {
    // A choice is signalled right after the list is hidden: wait for it.
    if (event->type() == QEvent::Hide)
        QTimer::singleShot(0, this, [this] {
            if (!isChosen_) emit cancelled();
        });
    return QComboBox::eventFilter(watched, event);
}

// The wheel scrolls the inspector; it never changes a value.
void NamedValueEditor::wheelEvent(QWheelEvent* event) {
    event->ignore();
}

void NamedValueEditor::changeEvent(QEvent* event) {
    QComboBox::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) fill();
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
