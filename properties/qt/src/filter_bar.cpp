#include "properties/qt/src/filter_bar.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>

#include <algorithm>

namespace tiv::properties {
namespace {

// The text without case and accents: "Träger" and "TRAGER" fold to the same.
QString folded(const QString& text) {
    QString result;
    for (const QChar c : text.normalized(QString::NormalizationForm_KD))
        if (c.category() != QChar::Mark_NonSpacing) result += c;
    return result.toCaseFolded();
}

}  // namespace

FilterBar::FilterBar(QWidget* parent)
    : QWidget(parent), query_(new QLineEdit(this)), changedOnly_(new QCheckBox(this)) {
    query_->setClearButtonEnabled(true);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(query_);
    layout->addWidget(changedOnly_);
    query_->installEventFilter(this);
    changedOnly_->installEventFilter(this);
    connect(query_, &QLineEdit::textChanged, this, &FilterBar::queryChanged);
    connect(changedOnly_, &QCheckBox::toggled, this, &FilterBar::queryChanged);
}

bool FilterBar::finds(const QString& text, bool isChanged) const {
    if (changedOnly_->isChecked() && !isChanged) return false;
    const QString searched = folded(text);
    const QStringList words = folded(query_->text()).simplified().split(QLatin1Char(' '));
    return std::all_of(
        words.begin(), words.end(), [&](const QString& word) { return searched.contains(word); });
}

void FilterBar::setTexts(const QString& filter, const QString& changedOnly) {
    query_->setPlaceholderText(filter);
    query_->setAccessibleName(filter);
    changedOnly_->setText(changedOnly);
}

void FilterBar::placeBefore(QWidget* next) {
    QWidget* previous = next->previousInFocusChain();
    while (previous != next && previous->focusPolicy() == Qt::NoFocus)
        previous = previous->previousInFocusChain();
    setTabOrder(previous, query_);
    setTabOrder(query_, changedOnly_);
}

void FilterBar::open() {
    show();
    query_->setFocus(Qt::ShortcutFocusReason);  // also selects its text
}

void FilterBar::close() {
    query_->clear();
    changedOnly_->setChecked(false);
    hide();
    emit closed();
}

bool FilterBar::onKey(const QKeyEvent& event, bool checkOnly) {
    switch (event.key()) {
        case Qt::Key_Escape:
            if (!checkOnly) query_->text().isEmpty() ? close() : query_->clear();
            return true;
        case Qt::Key_Down:
        case Qt::Key_Return:
        case Qt::Key_Enter:
            if (!checkOnly) emit left();
            return true;
        default:
            return false;
    }
}

// Keeps Return and Escape in the bar from the host, and the Space that checks the box.
bool FilterBar::eventFilter(QObject* watched, QEvent* event) {
    const bool isOverride = event->type() == QEvent::ShortcutOverride;
    if (!isOverride && event->type() != QEvent::KeyPress) return false;
    const auto* key = static_cast<QKeyEvent*>(event);
    const bool isCheck = isOverride && watched == changedOnly_ && key->key() == Qt::Key_Space;
    if (!isCheck && !onKey(*key, isOverride)) return false;
    event->accept();
    return true;
}

}  // namespace tiv::properties
