// Paints the cells of an inspector and makes their editors.
#pragma once

#include "properties/qt/src/editors.h"

#include <QFont>
#include <QHash>
#include <QPair>
#include <QPersistentModelIndex>
#include <QStaticText>
#include <QStyledItemDelegate>

namespace tiv::properties {

class PropertyView;

class PropertyDelegate : public QStyledItemDelegate {
    Q_OBJECT
 public:
    explicit PropertyDelegate(PropertyView* view);

    QWidget* createEditor(
        QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    void updateEditorGeometry(
        QWidget* editor, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    // Hands it its label, too, for screen readers.
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    // Has `entered` said with the next event.
    void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;
    void paint(
        QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

 signals:
    // The record is to be written, which may destroy the view and this.
    void entered(const QModelIndex& index, const QVariant& value) const;

 protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

 private:
    void connectList(NamedValueEditor* list, const QPersistentModelIndex& index) const;
    void paintText(
        QPainter* painter, const QStyleOptionViewItem& cell, const QString& text, bool wraps) const;

    PropertyView* view_;
    mutable QHash<QPair<QString, QFont>, QStaticText> shapes_;
    DefaultEditorFactory factory_;
};

}  // namespace tiv::properties
