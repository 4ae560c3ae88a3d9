#include "properties/qt/src/announcer.h"

#include "properties/qt/src/property_view.h"
#include "properties/qt/src/record_item_model.h"
#include "properties/qt/src/shown_rows.h"

#include <QAccessible>
#include <QItemSelectionModel>
#include <QLabel>
#include <QLayout>

namespace tiv::properties {

void Announcer::reveal(const std::vector<PropertyValue>& values) {
    const int row = shown_->firstOf(values);
    if (row < 0) return;
    view_->layOutNow();
    const QModelIndex first = view_->model()->index(row, RecordItemModel::ValueColumn);
    auto* selection = view_->selectionModel();
    const bool isCurrent = view_->currentIndex() == first;
    if (!isCurrent && !selection->isRowSelected(row, {}))
        view_->setCurrentIndex(first);
    else
        selection->setCurrentIndex(first, QItemSelectionModel::NoUpdate);
    view_->scrollTo(first);
    if (isCurrent) announce(first);
}

// Qt sends the same event when another cell becomes the current one. A screen reader does not read out again the
// object that has its focus already, so the message below the table gets it in between.
void Announcer::announce(const QModelIndex& current) {
    if (!QAccessible::isActive() || !view_->hasFocus()) return;
    auto* table = QAccessible::queryAccessibleInterface(view_)->tableInterface();
    int visible = 0;  // index among the visible rows; hidden rows have no accessible cells
    for (int row = 0; row < current.row(); ++row)
        if (!view_->isRowHidden(row, {})) ++visible;
    makeMessage();
    QAccessibleEvent between(message_, QAccessible::Focus);
    QAccessible::updateAccessibility(&between);
    QAccessibleEvent event(table->cellAt(visible, current.column()), QAccessible::Focus);
    QAccessible::updateAccessibility(&event);
}

void Announcer::makeMessage() {
    if (message_) return;
    message_ = new QLabel(view_->parentWidget());
    message_->setWordWrap(true);
    message_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    message_->setMargin(4);
    message_->parentWidget()->layout()->addWidget(message_);
    message_->hide();
}

void Announcer::say(const QString& text) {
    makeMessage();
    message_->setText(message_->isHidden() ? text : message_->text() + '\n' + text);
    message_->show();
    if (!QAccessible::isActive() || !view_->hasFocus()) return;
    QAccessibleEvent event(message_, QAccessible::Focus);  // the only event of a label that is spoken
    QAccessible::updateAccessibility(&event);
}

void Announcer::clear() {
    if (!message_) return;
    message_->hide();
    message_->clear();
}

}  // namespace tiv::properties
