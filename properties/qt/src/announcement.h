// Texts for screen readers.
#pragma once

#include <QAccessible>

class QWidget;

namespace tiv::properties {

// A text that a screen reader reads out while the focus stays where it is.
class Announcement {
 public:
    explicit Announcement(QWidget* parent) : parent_(parent) {}
    ~Announcement();

    Announcement(const Announcement&) = delete;
    Announcement& operator=(const Announcement&) = delete;

    void make(const QString& text);

 private:
    void drop();

    QWidget* parent_;
    QAccessible::Id id_ = 0;  // of the last one; 0: none yet
};

}  // namespace tiv::properties
