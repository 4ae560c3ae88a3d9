// Texts for screen readers.
#pragma once

#include <QAccessible>

namespace tiv::properties {

// A text that a screen reader reads out while the focus stays where it is.
class Announcement {
 public:
    Announcement() = default;
    ~Announcement();

    Announcement(const Announcement&) = delete;
    Announcement& operator=(const Announcement&) = delete;

    void make(const QString& text);

 private:
    void drop();

    QAccessible::Id id_ = 0;  // of the last one; 0: none yet
};

}  // namespace tiv::properties
