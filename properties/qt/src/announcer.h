// Shows the user what a gesture has done: the first changed row in view, and messages below the table. A screen
// reader reads out both.
#pragma once

#include "properties/definitions/property.h"
#include "properties/qt/src/announcement.h"

#include <QString>

#include <vector>

class QLabel;
class QModelIndex;

namespace tiv::properties {

class PropertyView;
class ShownRows;

class Announcer {
 public:
    Announcer(PropertyView* view, const ShownRows* shown);

    // Makes the first of these rows the current one, in view. A screen reader reads it out.
    void reveal(const std::vector<PropertyValue>& values);
    // Adds the text to the message below the table.
    void showMessage(const QString& text);
    void clear();

 private:
    void announce(const QModelIndex& current);

    PropertyView* view_;
    const ShownRows* shown_;
    Announcement announcement_;
    QLabel* message_ = nullptr;  // made when it is first needed
};

}  // namespace tiv::properties
