#include "properties/qt/src/shown_rows.h"

#include "properties/qt/src/filter_bar.h"
#include "properties/qt/src/property_view.h"
#include "properties/qt/src/record_item_model.h"

#include <QBoxLayout>
#include <QItemSelectionModel>

#include <algorithm>
#include <utility>

namespace tiv::properties {
namespace {

bool concerns(const std::vector<PropertyValue>& values, const std::shared_ptr<const Property>& property) {
    return property && std::any_of(values.begin(), values.end(), [&](const PropertyValue& value) {
        return value.property == property;
    });
}

}  // namespace

PropertyList ShownRows::targets() const {
    QModelIndexList indexes = view_->selectionModel()->selectedRows();
    if (indexes.isEmpty()) indexes << view_->currentIndex();
    std::sort(indexes.begin(), indexes.end());
    PropertyList result;
    for (const QModelIndex& index : indexes)
        if (auto property = rows_->property(index); property && !view_->isRowHidden(index.row(), {}))
            result.push_back(std::move(property));
    return result;
}

PropertyList ShownRows::shown() const {
    return properties(false);
}

PropertyList ShownRows::hidden() const {
    return properties(true);
}

PropertyList ShownRows::properties(bool areHidden) const {
    PropertyList result;
    for (int row = 0; row < rows_->rowCount(); ++row)
        if (auto property = rows_->property(rows_->index(row, 0));
            property && view_->isRowHidden(row, {}) == areHidden)
            result.push_back(std::move(property));
    return result;
}

PropertyList ShownRows::changed() const {
    PropertyList result;
    for (const auto& property : shown())
        if (rows_->current(*property) != defaultValue(*property)) result.push_back(property);
    return result;
}

bool ShownRows::isFilterOpen() const {
    return filter_ && filter_->isVisible();
}

void ShownRows::openFilter() {
    if (!filter_) {
        QWidget* inspector = view_->parentWidget();
        filter_ = new FilterBar(inspector);
        static_cast<QBoxLayout*>(inspector->layout())->insertWidget(0, filter_);
        filter_->placeBefore(view_);
        const auto leave = [view = view_] { view->setFocus(); };
        QObject::connect(filter_, &FilterBar::queryChanged, view_, [this] { filter(); });
        QObject::connect(filter_, &FilterBar::left, view_, leave);
        QObject::connect(filter_, &FilterBar::closed, view_, leave);
        updateTexts();
    }
    filter_->open();
}

void ShownRows::closeFilter() {
    if (filter_) filter_->close();
}

void ShownRows::updateTexts() {
    if (filter_) filter_->setTexts(rows_->text("Filter"), rows_->text("Changed only"));
}

int ShownRows::firstOf(const std::vector<PropertyValue>& values) const {
    for (int row = 0; row < rows_->rowCount(); ++row)
        if (!view_->isRowHidden(row, {}) && concerns(values, rows_->property(rows_->index(row, 0))))
            return row;
    return -1;
}

// Called for a new query and for new texts only, so that a row that is set back to its default stays visible.
void ShownRows::filter() {
    if (!filter_) return;
    int heading = -1;
    for (int row = 0; row < rows_->rowCount(); ++row) {
        const QModelIndex index = rows_->index(row, 0);
        const bool isHeading = !rows_->property(index);
        const bool found = !isHeading && filter_->finds(index.data(RecordItemModel::SearchRole).toString(),
                                             index.data(RecordItemModel::ChangedRole).toBool());
        view_->setRowHidden(row, {}, !found);
        if (found && heading >= 0) view_->setRowHidden(heading, {}, false);
        if (isHeading) heading = row;
    }
    view_->leaveHiddenRow();
}

void ShownRows::unhide(const std::vector<PropertyValue>& values) {
    int heading = -1;
    for (int row = 0; row < rows_->rowCount(); ++row) {
        const auto property = rows_->property(rows_->index(row, 0));
        if (!property) heading = row;
        if (!concerns(values, property) || !view_->isRowHidden(row, {})) continue;
        view_->setRowHidden(row, {}, false);
        if (heading >= 0) view_->setRowHidden(heading, {}, false);
    }
}

}  // namespace tiv::properties
