#include "properties/qt/src/announcement.h"

#include <QCoreApplication>

#include <utility>

namespace tiv::properties {
namespace {

// Exists only to send its event; it is not in the list of children of its parent. The parent is the application: with
// a dialog as the parent, Orca would read out the dialog and its labels first.
class Notification : public QAccessibleInterface {
 public:
    explicit Notification(QString text) : text_(std::move(text)) {}

    bool isValid() const override { return true; }
    QObject* object() const override { return nullptr; }
    QAccessibleInterface* childAt(int /*x*/, int /*y*/) const override { return nullptr; }
    QAccessibleInterface* parent() const override { return QAccessible::queryAccessibleInterface(qApp); }
    QAccessibleInterface* child(int /*index*/) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface* /*child*/) const override { return -1; }
    QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Name ? text_ : QString();
    }
    void setText(QAccessible::Text /*kind*/, const QString& /*text*/) override {}
    QRect rect() const override { return {}; }
    QAccessible::Role role() const override { return QAccessible::Notification; }
    QAccessible::State state() const override { return {}; }

 private:
    QString text_;
};

}  // namespace

Announcement::~Announcement() {
    drop();
}

// A new interface for each text, because screen readers cache the name of an interface.
void Announcement::make(const QString& text) {
    if (!QAccessible::isActive()) return;
    drop();
    auto* notification = new Notification(text);
    id_ = QAccessible::registerAccessibleInterface(notification);  // takes ownership
    QAccessibleEvent event(notification, QAccessible::ObjectShow);
    QAccessible::updateAccessibility(&event);
}

void Announcement::drop() {
    if (id_ != 0) QAccessible::deleteAccessibleInterface(std::exchange(id_, 0));
}

}  // namespace tiv::properties
