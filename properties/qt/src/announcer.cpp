#include "properties/qt/src/announcer.h"

#include "properties/qt/src/property_view.h"
#include "properties/qt/src/record_item_model.h"
#include "properties/qt/src/shown_rows.h"

#include <QAccessible>
#include <QItemSelectionModel>
#include <QLabel>
#include <QLayout>

namespace tiv::properties {

Announcer::Announcer(PropertyView* view, const ShownRows* shown) : view_(view), shown_(shown) {}

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

// Screen readers read out Qt's event when another cell becomes the current one, but none when the value changes.
void Announcer::announce(const QModelIndex& current) {
    if (!QAccessible::isActive() || !view_->hasFocus()) return;
    const QString label = current.siblingAtColumn(RecordItemModel::LabelColumn).data().toString();
    const QString state = current.data(Qt::AccessibleDescriptionRole).toString();
    announcement_.make(
        label + QStringLiteral(". ") + current.data().toString() + QStringLiteral(". ") + state);
}

void Announcer::showMessage(const QString& text) {
    if (!message_) {
        message_ = new QLabel(view_->parentWidget());
        message_->setWordWrap(true);
        message_->setTextInteractionFlags(Qt::TextSelectableByMouse);
        message_->setMargin(4);
        message_->parentWidget()->layout()->addWidget(message_);
        message_->hide();
    }
    message_->setText(message_->isHidden() ? text : message_->text() + '\n' + text);
    message_->show();
    if (view_->hasFocus()) announcement_.make(message_->text());
}

void Announcer::clear() {
    if (!message_) return;
    message_->hide();
    message_->clear();
}

}  // namespace tiv::properties
