#include "properties/qt/src/property_delegate.h"

#include "properties/definitions/paths.h"
#include "properties/qt/src/property_view.h"
#include "properties/qt/src/record_item_model.h"

#include <QMetaProperty>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionToolButton>

#include <utility>

namespace tiv::properties {
namespace {

bool offersList(const QModelIndex& cell) {
    if (cell.column() != RecordItemModel::ValueColumn || !(cell.flags() & Qt::ItemIsEditable)) return false;
    const auto property = static_cast<const RecordItemModel*>(cell.model())->property(cell);
    return property->configuration.get<NamedValues>(path::editorEntries);
}

}  // namespace

PropertyDelegate::PropertyDelegate(PropertyView* view, std::shared_ptr<const DefaultEditorFactory> editors)
    : QStyledItemDelegate(view), view_(view), editors_(std::move(editors)) {}

QWidget* PropertyDelegate::createEditor(
    QWidget* parent, const QStyleOptionViewItem& /*option*/, const QModelIndex& index) const {
    const auto property = static_cast<const RecordItemModel*>(index.model())->property(index);
    if (!property) return nullptr;
    QWidget* editor = editors_->create(parent, property);
    if (auto* popup = qobject_cast<PopupEditor*>(editor)) connectPopup(popup, index);
    return editor;
}

// Ends the editing when the popup emits a signal, and moves the focus back to the table. `entered` comes last: an
// observer of the record may destroy the inspector, and the popup, which is still handling a click, must outlive it.
void PropertyDelegate::connectPopup(PopupEditor* popup, const QPersistentModelIndex& index) const {
    auto* self = const_cast<PropertyDelegate*>(this);
    const auto end = [self, popup] {
        emit self->closeEditor(popup);
        self->view_->setFocus();
    };
    connect(popup, &PopupEditor::cancelled, self, end);
    connect(popup, &PopupEditor::chosen, self, [self, popup, index, end](const QVariant& value) {
        end();
        popup->setParent(nullptr);
        emit self->entered(index, value);
    });
}

// The base class closes editors that lose the focus; a popup closes itself.
bool PropertyDelegate::eventFilter(QObject* watched, QEvent* event) {
    return !qobject_cast<PopupEditor*>(watched) && QStyledItemDelegate::eventFilter(watched, event);
}

void PropertyDelegate::updateEditorGeometry(
    QWidget* editor, const QStyleOptionViewItem& option, const QModelIndex& index) const {
    if (auto* popup = qobject_cast<PopupEditor*>(editor))
        popup->placeAt({view_->viewport()->mapToGlobal(option.rect.topLeft()), option.rect.size()});
    else
        QStyledItemDelegate::updateEditorGeometry(editor, option, index);
}

void PropertyDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const {
    editor->setAccessibleName(index.siblingAtColumn(RecordItemModel::LabelColumn).data().toString());
    if (editor->focusProxy()) editor->focusProxy()->setAccessibleName(editor->accessibleName());
    QStyledItemDelegate::setEditorData(editor, index);
}

// Queued, because the view is still closing the editor.
void PropertyDelegate::setModelData(
    QWidget* editor, QAbstractItemModel* /*model*/, const QModelIndex& index) const {
    const QVariant value = editor->metaObject()->userProperty().read(editor);
    QMetaObject::invokeMethod(
        const_cast<PropertyDelegate*>(this),
        [this, row = QPersistentModelIndex(index), value] { emit entered(row, value); },
        Qt::QueuedConnection);
}

void PropertyDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const {
    QStyledItemDelegate::initStyleOption(option, index);
    if (view_->fitsInOneLine(index))
        option->features &= ~QStyleOptionViewItem::WrapText;  // makes the style lay out the text once more
    else if (index.column() == RecordItemModel::LabelColumn)
        option->text = view_->fitted(index);
    if (index.column() == RecordItemModel::ValueColumn) view_->makeRoomForArrow(*option);
    if (index.column() != RecordItemModel::ResetColumn || !index.data(RecordItemModel::ChangedRole).toBool())
        return;
    // Drawn as text, so that it has the colour that the style gives to the text.
    option->text = PropertyView::resetSign();
    option->features |= QStyleOptionViewItem::HasDisplay;
    option->displayAlignment = Qt::AlignCenter;
    const bool editable = index.siblingAtColumn(RecordItemModel::ValueColumn).flags() & Qt::ItemIsEditable;
    if (!editable) option->state &= ~QStyle::State_Enabled;
}

void PropertyDelegate::paint(
    QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
    if (!view_->paints(option.rect)) return;
    QStyledItemDelegate::paint(painter, option, index);
    const bool isPointedAt = option.state & QStyle::State_MouseOver;
    if ((isPointedAt || index.row() == view_->currentIndex().row()) && offersList(index))
        paintArrow(painter, option, index);
}

// As a tool button, whose colours fit together in every style, also in a selected row.
void PropertyDelegate::paintArrow(
    QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
    QStyleOptionViewItem cell = option;
    initStyleOption(&cell, index);
    const QStyle& style = *view_->style();
    const QRect room = style.subElementRect(QStyle::SE_ItemViewItemDecoration, &cell, view_);
    QStyleOptionToolButton button;
    button.initFrom(view_);
    button.rect = QStyle::alignedRect(cell.direction, Qt::AlignCenter, cell.decorationSize, room);
    button.state = QStyle::State_Enabled | QStyle::State_Raised;
    button.features = QStyleOptionToolButton::Arrow;
    button.arrowType = Qt::DownArrow;
    button.subControls = QStyle::SC_ToolButton;
    style.drawComplexControl(QStyle::CC_ToolButton, &button, painter, view_);
}

QSize PropertyDelegate::sizeHint(const QStyleOptionViewItem& /*option*/, const QModelIndex& index) const {
    return {view_->columnWidth(index.column()), view_->heightOf(index)};
}

}  // namespace tiv::properties
