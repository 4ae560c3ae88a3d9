#include "properties/qt/src/property_view.h"

#include "properties/qt/src/record_item_model.h"

#include <QApplication>
#include <QDateTime>
#include <QEvent>
#include <QFontMetrics>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPaintEvent>
#include <QPainter>

#include <algorithm>

namespace tiv::properties {
namespace {

constexpr int labelColumn = RecordItemModel::LabelColumn;
constexpr int valueColumn = RecordItemModel::ValueColumn;
constexpr int resetColumn = RecordItemModel::ResetColumn;

bool opensEditor(const QKeyEvent& event) {
    switch (event.key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_F2:
            return event.modifiers() == Qt::NoModifier || event.modifiers() == Qt::KeypadModifier;
        case Qt::Key_Space:
            return event.modifiers() == Qt::NoModifier;
        case Qt::Key_Down:
            return event.modifiers() & Qt::AltModifier;
        default:
            return false;
    }
}

}  // namespace

PropertyView::PropertyView(QWidget* parent) : QTreeView(parent) {
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setAlternatingRowColors(true);
    setAllColumnsShowFocus(true);
    setEditTriggers(NoEditTriggers);
    setSelectionMode(ExtendedSelection);
    setSelectionBehavior(SelectRows);
    setTabKeyNavigation(false);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setTextElideMode(Qt::ElideRight);
    header()->setSectionsMovable(false);
    header()->setStretchLastSection(false);
    header()->setMinimumSectionSize(1);
}

void PropertyView::setPlaceholder(const QString& text) {
    placeholder_ = text;
    viewport()->update();
}

bool PropertyView::hasVisibleRows() const {
    for (int row = 0; model() && row < model()->rowCount(); ++row)
        if (!isRowHidden(row, {})) return true;
    return false;
}

// As if everything were bold, so that a change of a value moves nothing. Kept: most levels are offered in
// every row, and shaping a text is what costs.
int PropertyView::widthOf(const QString& text) const {
    const auto known = widths_.constFind(text);
    if (known != widths_.constEnd()) return *known;
    return *widths_.insert(text, QFontMetrics(boldFont()).horizontalAdvance(text) + margin());
}

QFont PropertyView::boldFont() const {
    QFont bold = font();
    bold.setBold(true);
    return bold;
}

int PropertyView::margin() const {
    return 2 * (style()->pixelMetric(QStyle::PM_FocusFrameHMargin) + 1) + 2;
}

void PropertyView::measure() {
    const auto* rows = static_cast<const RecordItemModel*>(model());
    const auto header = [&](int column) {
        return rows->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
    };
    labelWidth_ = widthOf(header(labelColumn));
    valueWidth_ = widthOf(header(valueColumn));
    for (int row = 0; row < rows->rowCount(); ++row) {
        const QModelIndex label = rows->index(row, labelColumn);
        labelWidth_ = std::max(labelWidth_, widthOf(label.data().toString()));
        const auto property = rows->property(label);
        if (!property) continue;
        const int characters = property->columnWidth ? QString::fromUtf8(property->columnWidth).toInt() : 0;
        valueWidth_ = std::max(valueWidth_, characters * fontMetrics().averageCharWidth());
        const auto* entries = property->configuration.get<NamedValues>("editor.entries");
        if (!entries) continue;
        for (const NamedValue& entry : **entries) valueWidth_ = std::max(valueWidth_, widthOf(entry.text));
    }
}

int PropertyView::widestWord(const QString& text) const {
    int width = 0;
    for (const QString& word : text.split(QLatin1Char(' '))) width = std::max(width, widthOf(word));
    return width;
}

// Of the widest word of a label.
int PropertyView::wordWidth() const {
    int width = 0;
    for (int row = 0; row < model()->rowCount(); ++row)
        width = std::max(width, widestWord(model()->index(row, labelColumn).data().toString()));
    return width;
}

int PropertyView::heightOf(const QModelIndex& cell) const {
    const int line = fontMetrics().height() * 3 / 2;  // room for an editor
    if (cell.column() == resetColumn) return line;
    const QString text = cell.data().toString();
    const int width = columnWidth(cell.column());
    return widthOf(text) <= width ? line : std::max(line, wrappedHeight(text, width));
}

int PropertyView::wrappedHeight(const QString& text, int width) const {
    const auto known = wrappedHeights_.constFind({text, width});
    if (known != wrappedHeights_.constEnd()) return *known;
    const QRect room(0, 0, width - margin(), 10000);
    const int wrapped = QFontMetrics(boldFont()).boundingRect(room, Qt::TextWordWrap, text).height();
    return *wrappedHeights_.insert({text, width}, wrapped + fontMetrics().height() / 2);
}

void PropertyView::measureAgain() {
    labelWidth_ = -1;
    widths_.clear();
    fitColumns();
}

// The values get what they need and the labels the rest, but no word is ever cut; what does not fit into
// one line is wrapped.
void PropertyView::fitColumns() {
    if (!isVisible() || !model()) return;
    if (labelWidth_ < 0) measure();
    wrappedHeights_.clear();
    const int reset = fontMetrics().height() * 3 / 2;
    const int width = viewport()->width() - reset;
    const int left = width - valueWidth_;
    const int label = left >= labelWidth_ ? labelWidth_ : std::max(left, wordWidth());
    const bool wraps = label < labelWidth_ || width - label < valueWidth_;
    header()->resizeSection(labelColumn, label);
    header()->resizeSection(valueColumn, std::max(1, width - label));
    header()->resizeSection(resetColumn, reset);
    setUniformRowHeights(!wraps);
    setWordWrap(wraps);
    scheduleDelayedItemsLayout();  // the heights follow from the widths
}

void PropertyView::editRow(const QModelIndex& index) {
    const QModelIndex value = index.siblingAtColumn(valueColumn);
    if (value.flags() & Qt::ItemIsEditable && !isRowHidden(value.row(), {})) edit(value);
}

void PropertyView::leaveHiddenRow() {
    if (!currentIndex().isValid() || !isRowHidden(currentIndex().row(), {})) return;
    int row = 0;
    while (row < model()->rowCount() &&
           (isRowHidden(row, {}) || !(model()->index(row, valueColumn).flags() & Qt::ItemIsSelectable)))
        ++row;
    if (row < model()->rowCount()) setCurrentIndex(model()->index(row, valueColumn));
}

void PropertyView::keyPressEvent(QKeyEvent* event) {
    if (opensEditor(*event)) {
        if (!event->isAutoRepeat()) editRow(currentIndex());
        return;  // a held Return is not the host's
    }
    if (event->key() == Qt::Key_Delete && event->modifiers() == Qt::NoModifier) {
        emit resetRequested();
        return;
    }
    if (event->key() == Qt::Key_Left || event->key() == Qt::Key_Right) return event->ignore();
    QTreeView::keyPressEvent(event);
}

// Jumps to the next visible row whose label begins with what was typed.
void PropertyView::keyboardSearch(const QString& text) {
    const qint64 now = QDateTime::currentMSecsSinceEpoch();
    const bool goesOn = now - searchedAt_ < QApplication::keyboardInputInterval() && searched_ != text;
    searched_ = goesOn ? searched_ + text : text;
    searchedAt_ = now;
    const int rows = model()->rowCount();
    const int first = currentIndex().isValid() ? currentIndex().row() + (goesOn ? 0 : 1) : 0;
    for (int step = 0; step < rows; ++step) {
        const int row = (first + step) % rows;
        const QString label = model()->index(row, labelColumn).data().toString();
        if (isRowHidden(row, {}) || !label.startsWith(searched_, Qt::CaseInsensitive)) continue;
        return setCurrentIndex(model()->index(row, valueColumn));
    }
}

// Wherever a row is clicked, its value is the current cell.
void PropertyView::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QTreeView::currentChanged(current, previous);
    if (current.isValid() && current.column() != valueColumn)
        selectionModel()->setCurrentIndex(
            current.siblingAtColumn(valueColumn), QItemSelectionModel::NoUpdate);
}

QModelIndex PropertyView::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) {
    const QModelIndex index = QTreeView::moveCursor(action, modifiers);
    return index.isValid() ? index.siblingAtColumn(valueColumn) : index;
}

void PropertyView::resizeEvent(QResizeEvent* event) {
    QTreeView::resizeEvent(event);
    fitColumns();
}

void PropertyView::showEvent(QShowEvent* event) {
    QTreeView::showEvent(event);
    fitColumns();
    executeDelayedItemsLayout();  // left to the first paint event, it would ask for a second one
}

void PropertyView::changeEvent(QEvent* event) {
    QTreeView::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) measureAgain();
}

void PropertyView::paintEvent(QPaintEvent* event) {
    painted_ = event->region();
    QTreeView::paintEvent(event);
    if (placeholder_.isEmpty() || hasVisibleRows()) return;
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::Text));
    painter.drawText(
        viewport()->rect().adjusted(8, 8, -8, -8), Qt::AlignCenter | Qt::TextWordWrap, placeholder_);
}

}  // namespace tiv::properties
