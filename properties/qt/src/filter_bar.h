// The filter above an inspector's table: a line of words and a check box.
#pragma once

#include <QString>
#include <QWidget>

class QCheckBox;
class QKeyEvent;
class QLineEdit;

namespace tiv::properties {

class FilterBar : public QWidget {
    Q_OBJECT
 public:
    explicit FilterBar(QWidget* parent);

    // Whether a row with this text is found: it contains each word, whatever the case and the accents.
    bool finds(const QString& text, bool isChanged) const;
    void setTexts(const QString& filter, const QString& changedOnly);
    // Puts the bar before `next` in the order of the Tab key.
    void placeBefore(QWidget* next);
    void open();
    // Hides the bar and clears it, so that every row is found again.
    void close();

 signals:
    void queryChanged();
    void left();  // by Return or Down: the focus moves on to the table
    void closed();

 protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

 private:
    // With `checkOnly`, returns whether the key would be handled.
    bool onKey(const QKeyEvent& event, bool checkOnly);

    QLineEdit* query_;
    QCheckBox* changedOnly_;
};

}  // namespace tiv::properties
