#include "properties/qt/src/property_delegate.h"

#include "properties/qt/src/property_view.h"
#include "properties/qt/src/record_item_model.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QMetaProperty>
#include <QPainter>
#include <QPainterPath>
#include <QTimer>

#include <algorithm>

namespace tiv::properties {
namespace {

// An arrow that turns back, in the text's colour: the sign of a changed value, and its reset button.
void paintResetSign(QPainter* painter, const QRectF& cell, const QColor& colour) {
    const qreal side = 0.55 * std::min(cell.width(), cell.height());
    QRectF circle(0, 0, side, side);
    circle.moveCenter(cell.center());
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(colour, std::max(1.0, side / 8), Qt::SolidLine, Qt::FlatCap));
    painter->drawArc(circle, -150 * 16, 290 * 16);
    const QPointF tip(circle.left() + 0.12 * side, circle.top() + 0.04 * side);
    QPainterPath head(tip);
    head.lineTo(tip + QPointF(0.0, 0.48 * side));
    head.lineTo(tip + QPointF(0.48 * side, 0.40 * side));
    painter->fillPath(head, colour);
    painter->restore();
}

}  // namespace

PropertyDelegate::PropertyDelegate(PropertyView* view) : QStyledItemDelegate(view), view_(view) {}

QWidget* PropertyDelegate::createEditor(
    QWidget* parent, const QStyleOptionViewItem& /*option*/, const QModelIndex& index) const {
    const auto property = static_cast<const RecordItemModel*>(index.model())->property(index);
    if (!property) return nullptr;
    QWidget* editor = factory_.create(parent, property);
    editor->setAccessibleName(index.siblingAtColumn(RecordItemModel::LabelColumn).data().toString());
    if (auto* list = qobject_cast<NamedValueEditor*>(editor)) {
        list->view()->setAccessibleName(editor->accessibleName());
        open(list);
    }
    return editor;
}

// The list is open from the start, and closing it ends the editing. The focus stays with the table.
void PropertyDelegate::open(NamedValueEditor* list) const {
    auto* self = const_cast<PropertyDelegate*>(this);
    connect(list, &NamedValueEditor::chosen, self, [self, list] {
        emit self->commitData(list);
        emit self->closeEditor(list);
    });
    connect(list, &NamedValueEditor::cancelled, self, [self, list] {
        emit self->closeEditor(list, RevertModelCache);
    });
    QTimer::singleShot(0, list, [list, view = view_] {
        view->setFocus();
        static_cast<QComboBox*>(list)->showPopup();
    });
}

// An editor without the focus is done, but for one whose list is what is edited with.
bool PropertyDelegate::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusOut && qobject_cast<NamedValueEditor*>(watched)) return false;
    return QStyledItemDelegate::eventFilter(watched, event);
}

void PropertyDelegate::setModelData(
    QWidget* editor, QAbstractItemModel* /*model*/, const QModelIndex& index) const {
    emit entered(index, editor->metaObject()->userProperty().read(editor));
}

void PropertyDelegate::paint(
    QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
    QStyledItemDelegate::paint(painter, option, index);
    if (index.column() != RecordItemModel::ResetColumn || !index.data(RecordItemModel::ChangedRole).toBool())
        return;
    const bool selected = option.state & QStyle::State_Selected;
    const bool editable = index.siblingAtColumn(RecordItemModel::ValueColumn).flags() & Qt::ItemIsEditable;
    paintResetSign(painter,
        option.rect,
        option.palette.color(editable ? QPalette::Normal : QPalette::Disabled,
            selected ? QPalette::HighlightedText : QPalette::Text));
}

QSize PropertyDelegate::sizeHint(const QStyleOptionViewItem& /*option*/, const QModelIndex& index) const {
    return {view_->columnWidth(index.column()), view_->heightOf(index)};
}

}  // namespace tiv::properties
