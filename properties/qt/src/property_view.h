// The table of an inspector: columns that fit, keys that never change a value by accident, and a placeholder
// when it is empty.
#pragma once

#include <QHash>
#include <QRegion>
#include <QString>
#include <QStyleOptionViewItem>
#include <QTreeView>

#include <optional>
#include <vector>

namespace tiv::properties {

class PropertyView : public QTreeView {
    Q_OBJECT
 public:
    explicit PropertyView(QWidget* parent);

    void setModel(QAbstractItemModel* model) override;
    void reset() override;
    // Shown instead of rows when no row is visible.
    void setPlaceholder(const QString& text);
    // Fits the columns to rows or texts that have changed.
    void measureAgain();
    bool hasVisibleRows() const;
    // The height that a cell needs in the width of its column, in pixels.
    int heightOf(const QModelIndex& cell) const;
    // True if the cell intersects the current paint region. (QTreeView paints whole rows.)
    bool paints(const QRect& cell) const { return painted_.intersects(cell); }
    bool fitsInOneLine(const QModelIndex& cell) const { return heightOf(cell) == lineHeight_; }
    // The text of a cell, with places to break the words that are wider than its column.
    QString fitted(const QModelIndex& cell) const;
    // A circular arrow: marks a changed value, and resets it when clicked.
    static QString resetSign() { return QChar(0x21BA); }
    // Leaves room behind the text for the arrow of a list.
    void makeRoomForArrow(QStyleOptionViewItem& option) const;
    // Whether a click on the cell does more than to select its row.
    bool isPressable(const QModelIndex& cell) const;
    // Does what a click on the cell does.
    void press(const QModelIndex& cell);
    // Opens the editor of the row.
    void editRow(const QModelIndex& index);
    // Applies pending row changes now, so that accessible cells exist.
    void layOutNow() { executeDelayedItemsLayout(); }
    // Makes the first visible row the current one, if the current one is hidden.
    void leaveHiddenRow();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

 signals:
    // The row's reset sign was pressed.
    void resetRequested(const QModelIndex& row);

 protected:
    void focusInEvent(QFocusEvent* event) override;
    void keyboardSearch(const QString& text) override;
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    void dataChanged(const QModelIndex& first, const QModelIndex& last, const QVector<int>& roles) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

 private:
    // What the texts of a column need, in pixels.
    struct Widths {
        int line = 0;     // the widest text in one line
        int word = 0;     // the widest word
        int margins = 0;  // what the style adds to a text; included above
    };

    void onClicked(const QModelIndex& cell);
    void onSectionResized(int section, int before, int width);
    void measure() const;
    void measureTexts() const;
    void addMargins(int column, Widths& widths) const;
    int roomForTexts() const;
    int wantedLabel(int room) const;
    void fitColumns();
    QStyleOptionViewItem boldOption(int column) const;
    QSize sizeOf(QStyleOptionViewItem& option, const QString& text) const;
    QSize sizeFor(int lines, int width) const;

    QString placeholder_;
    QRegion painted_;
    QString searched_;
    qint64 searchedAt_ = 0;
    mutable bool isMeasured_ = false;       // the next measures are then valid
    mutable std::vector<int> labelWidths_;  // by row, in one line, without margins
    mutable QHash<QString, int> heights_;   // of wrapped texts, in the columns of the last layout
    mutable Widths labels_;
    mutable Widths values_;
    mutable int leastLabel_ = 0;  // below this width a horizontal scroll bar appears
    mutable int signWidth_ = 0;
    mutable int lineHeight_ = 0;
    std::optional<double> labelShare_;  // set by the user with the divider
    bool isFitting_ = false;
    bool breaksWords_ = false;  // of the labels
};

}  // namespace tiv::properties
