// The widgets that edit one property. A factory makes them by "editor.kind"; they are handed their value,
// and give it back, through their user property.
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

// A list of the entries of a named value list that opens at its cell. Carries the value itself, so one that
// is not in the list stays what it is until another is chosen.
class NamedValueEditor : public QFrame {
    Q_OBJECT
    Q_PROPERTY(QVariant value READ value WRITE setValue USER true)
 public:
    NamedValueEditor(QWidget* parent, std::shared_ptr<const Property> property);

    QVariant value() const { return value_; }
    void setValue(const QVariant& value);
    // Where the cell is on the screen.
    void placeAt(const QRect& cell);

 signals:
    void chosen();     // an entry was picked, and the list is closed; value() is its value
    void cancelled();  // the list was closed without a choice

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

    // Knows "named_value_list", "boolean" and "text".
    DefaultEditorFactory();
    void add(const QString& kind, Maker maker) { makers_[kind] = std::move(maker); }

    // The editor of the property's "editor.kind"; for none, or one that is not known here, a check box
    // for a truth value and a text line for anything else. Owned by `parent`.
    QWidget* create(QWidget* parent, const std::shared_ptr<const Property>& property) const;

 private:
    std::map<QString, Maker> makers_;
};

}  // namespace tiv::properties
