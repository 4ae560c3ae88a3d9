// Draws the cells of an inspector by the style, and makes their editors.
#pragma once

#include "properties/qt/src/editors.h"

#include <QPersistentModelIndex>
#include <QStyledItemDelegate>

#include <memory>

namespace tiv::properties {

class PropertyView;

class PropertyDelegate : public QStyledItemDelegate {
    Q_OBJECT
 public:
    PropertyDelegate(PropertyView* view, std::shared_ptr<const DefaultEditorFactory> editors);

    QWidget* createEditor(
        QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    void updateEditorGeometry(
        QWidget* editor, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    // Also sets the accessible name.
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    // Emits `entered` from the event loop, not immediately.
    void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;
    void paint(
        QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

 signals:
    // The user has entered a value, which is to be written. A slot may destroy the view and this delegate.
    void entered(const QModelIndex& index, const QVariant& value) const;

 protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;

 private:
    void connectPopup(PopupEditor* popup, const QPersistentModelIndex& index) const;
    void paintArrow(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const;

    PropertyView* view_;
    std::shared_ptr<const DefaultEditorFactory> editors_;
};

}  // namespace tiv::properties
