// The widgets that edit one property. A factory makes them by "editor.kind". Their value is set
// and read through their user property.
#pragma once

#include "properties/definitions/property.h"

#include <QElapsedTimer>
#include <QFrame>
#include <QRect>
#include <QString>
#include <QVariant>
#include <QWidget>

#include <functional>
#include <map>
#include <memory>
#include <utility>

class QListWidget;
class QListWidgetItem;

namespace tiv::properties {

// An editor with a window of its own that opens at its cell. It is closed when it emits one of its signals.
class PopupEditor : public QFrame {
    Q_OBJECT
 public:
    explicit PopupEditor(QWidget* parent) : QFrame(parent, Qt::Popup) {}
    // `cell` is in global coordinates.
    virtual void placeAt(const QRect& cell) = 0;

 signals:
    void chosen(const QVariant& value);
    void cancelled();
};

// A list of the entries of a named value list. Holds the value itself, so a value that is not in the list
// stays until another one is chosen.
class NamedValueEditor : public PopupEditor {
    Q_OBJECT
    Q_PROPERTY(QVariant value READ value WRITE setValue USER true)
 public:
    NamedValueEditor(QWidget* parent, std::shared_ptr<const Property> property);

    QVariant value() const { return value_; }
    void setValue(const QVariant& value);
    void placeAt(const QRect& cell) override;

 protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void changeEvent(QEvent* event) override;

 private:
    void fill();
    void choose(QListWidgetItem* entry);

    QListWidget* list_;
    std::shared_ptr<const Property> property_;
    QVariant value_;
    QRect cell_;
    QElapsedTimer shown_;
    bool isChosen_ = false;
};

class DefaultEditorFactory {
 public:
    using Maker = std::function<QWidget*(QWidget* parent, const std::shared_ptr<const Property>&)>;

    // With the kinds "named_value_list", "boolean" and "text".
    DefaultEditorFactory();
    void add(const QString& kind, Maker maker) { makers_[kind] = std::move(maker); }

    // The editor of the property's "editor.kind". Without one, or for an unknown one, a check box for a bool and
    // a text line for any other type. Owned by `parent`.
    QWidget* create(QWidget* parent, const std::shared_ptr<const Property>& property) const;

 private:
    std::map<QString, Maker> makers_;
};

}  // namespace tiv::properties
