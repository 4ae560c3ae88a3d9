#include "properties/qt/src/property_delegate.h"

#include "properties/qt/src/property_view.h"
#include "properties/qt/src/record_item_model.h"

#include <QApplication>
#include <QMetaProperty>
#include <QPainter>
#include <QPainterPath>
#include <QTextOption>

#include <algorithm>
#include <utility>

namespace tiv::properties {
namespace {

QColor textColour(const QStyleOptionViewItem& cell) {
    const bool selected = cell.state & QStyle::State_Selected;
    return cell.palette.color(selected ? QPalette::HighlightedText : QPalette::Text);
}

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
    if (auto* list = qobject_cast<NamedValueEditor*>(editor)) connectList(list, index);
    return editor;
}

// A list ends the editing itself, and the focus goes back to the table. Its choice is told last of all: an
// observer of the record may destroy the inspector, which the list, in the midst of a click, must outlive.
void PropertyDelegate::connectList(NamedValueEditor* list, const QPersistentModelIndex& index) const {
    auto* self = const_cast<PropertyDelegate*>(this);
    const auto end = [self, list] {
        emit self->closeEditor(list);
        self->view_->setFocus();
    };
    connect(list, &NamedValueEditor::cancelled, self, end);
    connect(list, &NamedValueEditor::chosen, self, [self, list, index, end] {
        end();
        list->setParent(nullptr);
        emit self->entered(index, list->value());
    });
}

// An editor without the focus is done, but for a list, which says itself when it is.
bool PropertyDelegate::eventFilter(QObject* watched, QEvent* event) {
    return !qobject_cast<NamedValueEditor*>(watched) && QStyledItemDelegate::eventFilter(watched, event);
}

void PropertyDelegate::updateEditorGeometry(
    QWidget* editor, const QStyleOptionViewItem& option, const QModelIndex& index) const {
    if (auto* list = qobject_cast<NamedValueEditor*>(editor))
        list->placeAt({view_->viewport()->mapToGlobal(option.rect.topLeft()), option.rect.size()});
    else
        QStyledItemDelegate::updateEditorGeometry(editor, option, index);
}

void PropertyDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const {
    editor->setAccessibleName(index.siblingAtColumn(RecordItemModel::LabelColumn).data().toString());
    if (editor->focusProxy()) editor->focusProxy()->setAccessibleName(editor->accessibleName());
    QStyledItemDelegate::setEditorData(editor, index);
}

// Called by the view in the midst of its work.
void PropertyDelegate::setModelData(
    QWidget* editor, QAbstractItemModel* /*model*/, const QModelIndex& index) const {
    const QVariant value = editor->metaObject()->userProperty().read(editor);
    QMetaObject::invokeMethod(
        const_cast<PropertyDelegate*>(this),
        [this, row = QPersistentModelIndex(index), value] { emit entered(row, value); },
        Qt::QueuedConnection);
}

void PropertyDelegate::paint(
    QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
    if (!view_->paints(option.rect)) return;
    QStyleOptionViewItem cell = option;
    initStyleOption(&cell, index);
    const int width = cell.rect.width();
    const bool wraps = view_->widthOf(cell.text) > width;
    const bool isKept = !wraps || (view_->wordWrap() && view_->widestWord(cell.text) <= width);
    const QString text = isKept ? std::exchange(cell.text, QString()) : QString();
    view_->style()->drawControl(QStyle::CE_ItemViewItem, &cell, painter, view_);
    if (!text.isEmpty()) paintText(painter, cell, text, wraps);
    if (index.column() != RecordItemModel::ResetColumn || !index.data(RecordItemModel::ChangedRole).toBool())
        return;
    const bool editable = index.siblingAtColumn(RecordItemModel::ValueColumn).flags() & Qt::ItemIsEditable;
    if (!editable) cell.palette.setCurrentColorGroup(QPalette::Disabled);
    paintResetSign(painter, cell.rect, textColour(cell));
}

// What costs in a cell is to shape its text, which a style does three times over. Here a shape is kept:
// an inspector has few texts, and most of them in many rows. A style does what has to be cut.
void PropertyDelegate::paintText(
    QPainter* painter, const QStyleOptionViewItem& cell, const QString& text, bool wraps) const {
    const int margin = view_->style()->pixelMetric(QStyle::PM_FocusFrameHMargin) + 1;  // as in styles
    const QRect room = cell.rect.adjusted(margin, 0, -margin, 0);
    const qreal width = wraps ? room.width() : -1;
    QStaticText& shape = shapes_[{text, cell.font}];
    if (shape.text().isEmpty() || shape.textOption().textDirection() != cell.direction ||
        shape.textWidth() != width) {
        QTextOption option(wraps ? QStyle::visualAlignment(cell.direction, Qt::AlignLeft) : Qt::AlignLeft);
        option.setTextDirection(cell.direction);
        shape.setTextFormat(Qt::PlainText);
        shape.setTextOption(option);
        shape.setTextWidth(width);
        shape.setText(text);
        shape.prepare({}, cell.font);
    }
    const QRect lines =
        QStyle::alignedRect(cell.direction, cell.displayAlignment, shape.size().toSize(), room);
    painter->setFont(cell.font);
    painter->setPen(textColour(cell));
    painter->drawStaticText(lines.topLeft(), shape);
}

QSize PropertyDelegate::sizeHint(const QStyleOptionViewItem& /*option*/, const QModelIndex& index) const {
    return {view_->columnWidth(index.column()), view_->heightOf(index)};
}

}  // namespace tiv::properties
