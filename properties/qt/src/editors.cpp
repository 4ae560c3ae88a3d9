#include "properties/qt/src/editors.h"

#include "properties/definitions/paths.h"

#include <QApplication>
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
namespace {

bool isHeldReturn(const QEvent& keyPress) {
    const auto& key = static_cast<const QKeyEvent&>(keyPress);
    return key.isAutoRepeat() && (key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter);
}

QString explanation(const Property& property, const QVariant& value) {
    const auto* texts = property.configuration.get<NamedValues>(path::editorExplanations);
    if (!texts) return {};
    for (const NamedValue& text : **texts)
        if (text.value == value) return text.text;
    return {};
}

}  // namespace

NamedValueEditor::NamedValueEditor(QWidget* parent, std::shared_ptr<const Property> property)
    : PopupEditor(parent), list_(new QListWidget(this)), property_(std::move(property)) {
    setAttribute(Qt::WA_WindowPropagation);  // colours and font of the inspector
    setLayoutDirection(parent->layoutDirection());
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSizeConstraint(QLayout::SetNoConstraint);  // a list of few entries is small
    layout->addWidget(list_);
    setFrameShape(QFrame::Box);  // also visible in a dark theme
    list_->setFrameShape(QFrame::NoFrame);
    list_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list_->setMouseTracking(true);  // for itemEntered()
    list_->installEventFilter(this);
    parent->installEventFilter(this);
    setFocusProxy(list_);
    fill();
    connect(list_, &QListWidget::itemEntered, list_, [this](auto* entry) { list_->setCurrentItem(entry); });
    connect(list_, &QListWidget::itemClicked, this, &NamedValueEditor::choose);
    connect(list_, &QListWidget::itemActivated, this, &NamedValueEditor::choose);
}

void NamedValueEditor::setValue(const QVariant& value) {
    value_ = value;
    const auto* isEqual = property_->configuration.get<IsEqual>(path::editorIsEqual);
    int row = list_->count() - 1;
    for (; row >= 0; --row) {
        const QVariant offered = list_->item(row)->data(Qt::UserRole);
        if (isEqual ? (*isEqual)(offered, value) : offered == value) break;
    }
    list_->setCurrentRow(row);
}

void NamedValueEditor::fill() {
    const auto* entries = property_->configuration.get<NamedValues>(path::editorEntries);
    if (!entries) return;
    const int marked = list_->currentRow();
    list_->clear();
    for (const NamedValue& entry : **entries) {
        auto* item = new QListWidgetItem(entry.text, list_);
        item->setData(Qt::UserRole, entry.value);
        item->setToolTip(explanation(*property_, entry.value));
    }
    static_cast<QAbstractItemView*>(list_)->setCurrentIndex(
        {});  // otherwise QListView selects the first entry on focus-in
    list_->setCurrentRow(marked);
}

void NamedValueEditor::choose(QListWidgetItem* entry) {
    if (isChosen_) return;  // in some styles a click also activates the entry
    value_ = entry->data(Qt::UserRole);
    isChosen_ = true;
    hide();
    emit chosen(value_);
}

// Below the cell, or above it where there is more room.
void NamedValueEditor::placeAt(const QRect& cell) {
    cell_ = cell;
    const QScreen* on = QGuiApplication::screenAt(cell.center());
    const QRect room = (on ? on : screen())->availableGeometry();
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
    const int top = goesBelow ? cell.bottom() + 1 : cell.top() - height;
    setGeometry(std::clamp(left, room.left(), std::max(room.left(), room.right() + 1 - width)),
        std::clamp(top, room.top(), std::max(room.top(), room.bottom() + 1 - height)),
        width,
        height);
}

// Closes the list when its inspector is hidden or disabled, and ignores the auto-repeat of the key that
// opened it.
bool NamedValueEditor::eventFilter(QObject* watched, QEvent* event) {
    if (watched == list_) return event->type() == QEvent::KeyPress && isHeldReturn(*event);
    if (event->type() == QEvent::Hide || event->type() == QEvent::EnabledChange) hide();
    return false;
}

void NamedValueEditor::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_Escape:
        case Qt::Key_Return:
        case Qt::Key_Enter:
            hide();
    }
}

// A click outside closes the list. Platforms that replay the click deliver it to the widget below, except for
// the list's own cell, where it would reopen the list. The second click of a double click closes nothing.
void NamedValueEditor::mousePressEvent(QMouseEvent* event) {
    const bool inCell = cell_.contains(mapToGlobal(event->pos()));
    if (inCell && shown_.elapsed() < QApplication::doubleClickInterval()) return;
    setAttribute(Qt::WA_NoMouseReplay, inCell);
    QFrame::mousePressEvent(event);
}

void NamedValueEditor::showEvent(QShowEvent* event) {
    QFrame::showEvent(event);
    shown_.start();
}

void NamedValueEditor::hideEvent(QHideEvent* event) {
    QFrame::hideEvent(event);
    if (!isChosen_) emit cancelled();
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
    const auto* kind = property->configuration.get<QString>(path::editorKind);
    auto maker = kind ? makers_.find(*kind) : makers_.end();
    if (maker == makers_.end()) {
        const bool isBool = property->field->type == bond::Type::Bool;
        maker = makers_.find(isBool ? QStringLiteral("boolean") : QStringLiteral("text"));
    }
    QWidget* editor = maker->second(parent, property);
    editor->setAutoFillBackground(true);  // covers the text of its row
    return editor;
}

}  // namespace tiv::properties
