#include "properties/qt/src/editors.h"

#include <QCheckBox>
#include <QEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QMouseEvent>
#include <QScreen>
#include <QScrollBar>
#include <QVBoxLayout>

#include <algorithm>

namespace tiv::properties {

NamedValueEditor::NamedValueEditor(QWidget* parent, std::shared_ptr<const Property> property)
    : QFrame(parent, Qt::Popup), list_(new QListWidget(this)), property_(std::move(property)) {
    setAttribute(Qt::WA_WindowPropagation);  // colours and font of the inspector
    setLayoutDirection(parent->layoutDirection());
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(list_);
    setFrameShape(QFrame::Box);  // seen in a dark theme, too
    list_->setFrameShape(QFrame::NoFrame);
    list_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list_->setMouseTracking(true);  // what the mouse is over is marked
    setFocusProxy(list_);
    fill();
    connect(list_, &QListWidget::itemEntered, list_, [this](auto* entry) { list_->setCurrentItem(entry); });
    connect(list_, &QListWidget::itemClicked, this, &NamedValueEditor::choose);
    connect(list_, &QListWidget::itemActivated, this, &NamedValueEditor::choose);
}

void NamedValueEditor::setValue(const QVariant& value) {
    value_ = value;
    const auto* isEqual = property_->configuration.get<IsEqual>("editor.is_equal");
    int row = list_->count() - 1;
    for (; row >= 0; --row) {
        const QVariant offered = list_->item(row)->data(Qt::UserRole);
        if (isEqual ? (*isEqual)(offered, value) : offered == value) break;
    }
    list_->setCurrentRow(row);
}

void NamedValueEditor::fill() {
    const auto* entries = property_->configuration.get<NamedValues>("editor.entries");
    if (!entries) return;
    const int marked = list_->currentRow();
    list_->clear();
    for (const NamedValue& entry : **entries)
        (new QListWidgetItem(entry.text, list_))->setData(Qt::UserRole, entry.value);
    list_->setCurrentRow(marked);
}

void NamedValueEditor::choose(QListWidgetItem* entry) {
    isChosen_ = entry->isSelected();  // where none is marked, the first is the current one all the same
    if (isChosen_) value_ = entry->data(Qt::UserRole);
    hide();
}

// Below the cell, or above it where there is more room.
void NamedValueEditor::placeAt(const QRect& cell) {
    cell_ = cell;
    const QRect room = screen()->availableGeometry();
    const int below = room.bottom() - cell.bottom();
    const int above = cell.top() - room.top();
    int width = list_->sizeHintForColumn(0) + 2 * frameWidth();
    int height = list_->sizeHintForRow(0) * list_->count() + 2 * frameWidth();
    const bool goesBelow = height <= below || below >= above;
    if (height > std::max(below, above)) {
        height = std::max(below, above);
        width += list_->verticalScrollBar()->sizeHint().width();
    }
    width = std::clamp(width, cell.width(), std::max(cell.width(), room.width()));
    const int left = isRightToLeft() ? cell.right() + 1 - width : cell.left();
    setGeometry(std::clamp(left, room.left(), std::max(room.left(), room.right() + 1 - width)),
        goesBelow ? cell.bottom() + 1 : cell.top() - height,
        width,
        height);
}

void NamedValueEditor::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) hide();
}

// A click outside closes the list and does there what it does, but for one into the list's own cell,
// which would open it again.
void NamedValueEditor::mousePressEvent(QMouseEvent* event) {
    setAttribute(Qt::WA_NoMouseReplay, cell_.contains(event->globalPos()));
    QFrame::mousePressEvent(event);
}

void NamedValueEditor::hideEvent(QHideEvent* event) {
    QFrame::hideEvent(event);
    emit closed();
}

void NamedValueEditor::changeEvent(QEvent* event) {
    QFrame::changeEvent(event);
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
