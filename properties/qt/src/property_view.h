// The table of an inspector: columns that fit, keys that never change a value by accident, and a sentence
// where there is nothing to show.
#pragma once

#include <QHash>
#include <QRegion>
#include <QString>
#include <QTreeView>

namespace tiv::properties {

class PropertyView : public QTreeView {
    Q_OBJECT
 public:
    explicit PropertyView(QWidget* parent);

    // Shown instead of rows when there are none to see.
    void setPlaceholder(const QString& text);
    // The rows or their texts have changed: makes room for them.
    void measureAgain();
    bool hasVisibleRows() const;
    // What a cell needs in its column, in pixels.
    int heightOf(const QModelIndex& cell) const;
    // Whether the cell is being painted: a view asks its delegate for the whole row of any cell.
    bool paints(const QRect& cell) const { return painted_.intersects(cell); }
    // What a text needs in any column, in pixels.
    int widthOf(const QString& text) const;
    int widestWord(const QString& text) const;
    // Opens the editor of the row.
    void editRow(const QModelIndex& index);
    // Rows that were hidden or shown have their places, and their cells for screen readers.
    void layOutNow() { executeDelayedItemsLayout(); }
    // Makes the first visible row the current one, if the current one is hidden.
    void leaveHiddenRow();

 signals:
    void resetRequested();

 protected:
    void keyPressEvent(QKeyEvent* event) override;
    void keyboardSearch(const QString& text) override;
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

 private:
    void measure();
    int margin() const;
    int wordWidth() const;
    int wrappedHeight(const QString& text, int width) const;
    QFont boldFont() const;
    void fitColumns();

    QString placeholder_;
    QRegion painted_;
    mutable QHash<QString, int> widths_;
    mutable QHash<QPair<QString, int>, int> wrappedHeights_;  // by text and width
    QString searched_;
    qint64 searchedAt_ = 0;
    int labelWidth_ = -1;  // what the widest label needs; -1: not measured
    int valueWidth_ = 0;   // the widest value offered
};

}  // namespace tiv::properties
