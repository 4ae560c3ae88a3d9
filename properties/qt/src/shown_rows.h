// The rows that gestures act on: those that the filter shows, and the selected ones among them.
#pragma once

#include "properties/qt/src/record_editor.h"

#include <vector>

namespace tiv::properties {

class FilterBar;
class PropertyView;
class RecordItemModel;

class ShownRows {
 public:
    // Both must outlive this; the filter bar is put into the layout of the view's parent.
    ShownRows(PropertyView* view, const RecordItemModel* rows) : view_(view), rows_(rows) {}

    // The selected rows; without any, the current row. Rows that the filter hides are left out.
    PropertyList targets() const;
    PropertyList shown() const;
    PropertyList hidden() const;
    PropertyList changed() const;  // of those shown

    // The first shown row of these properties; -1 without one.
    int firstOf(const std::vector<PropertyValue>& values) const;

    bool isFilterOpen() const;
    void openFilter();
    void closeFilter();
    // Applies the filter to rows or texts that have changed.
    void filter();
    void updateTexts();
    // Shows rows that the filter has hidden.
    void unhide(const std::vector<PropertyValue>& values);

 private:
    PropertyList properties(bool areHidden) const;

    PropertyView* view_;
    const RecordItemModel* rows_;
    FilterBar* filter_ = nullptr;  // made when it is first needed
};

}  // namespace tiv::properties
