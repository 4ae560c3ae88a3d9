// The table of an inspector: columns that fit, keys that never change a value by accident, and a sentence
// where there is nothing to show.
#pragma once

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
    // Opens the editor of the row.
    void editRow(const QModelIndex& index);

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
    void fitColumns();

    QString placeholder_;
    QString searched_;
    qint64 searchedAt_ = 0;
    int labelWidth_ = -1;  // what the widest label needs; -1: not measured
    int wordWidth_ = 0;    // the widest word of a label
    int valueWidth_ = 0;   // the widest value offered
};

}  // namespace tiv::properties
