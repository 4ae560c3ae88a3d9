#include "properties/qt/src/property_view.h"

#include "properties/definitions/paths.h"
#include "properties/qt/src/record_item_model.h"
#include "properties/qt/src/text_widths.h"

#include <QApplication>
#include <QDateTime>
#include <QEvent>
#include <QFontMetrics>
#include <QHeaderView>
#include <QPaintEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QScrollBar>

#include <algorithm>
#include <cmath>

namespace tiv::properties {
namespace {

constexpr int labelColumn = RecordItemModel::LabelColumn;
constexpr int valueColumn = RecordItemModel::ValueColumn;
constexpr int resetColumn = RecordItemModel::ResetColumn;
constexpr int fewestLines = 3, mostLines = 20;  // of the size hints

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
    setTextElideMode(Qt::ElideRight);
    header()->setSectionsMovable(false);
    header()->setStretchLastSection(false);
    header()->setMinimumSectionSize(1);
    viewport()->setAttribute(Qt::WA_Hover);
    connect(this, &QTreeView::clicked, this, &PropertyView::onClicked);
    connect(header(), &QHeaderView::sectionResized, this, &PropertyView::onSectionResized);
    connect(header(), &QHeaderView::sectionHandleDoubleClicked, this, [this] {
        labelShare_.reset();
        fitColumns();
    });
}

void PropertyView::onClicked(const QModelIndex& cell) {
    if (QApplication::keyboardModifiers() & (Qt::ControlModifier | Qt::ShiftModifier))
        return;  // selects rows
    press(cell);
}

// A click on a label only selects its row.
bool PropertyView::isPressable(const QModelIndex& cell) const {
    if (!(cell.siblingAtColumn(valueColumn).flags() & Qt::ItemIsEditable)) return false;
    return cell.column() == valueColumn ||
           (cell.column() == resetColumn && cell.data(RecordItemModel::ChangedRole).toBool());
}

void PropertyView::press(const QModelIndex& cell) {
    if (cell.column() == valueColumn) editRow(cell);
    if (cell.column() == resetColumn) emit resetRequested(cell);
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

void PropertyView::setModel(QAbstractItemModel* model) {
    QTreeView::setModel(model);
    header()->setSectionResizeMode(
        valueColumn, QHeaderView::Fixed);  // the only divider is the one behind the labels
    header()->setSectionResizeMode(resetColumn, QHeaderView::Fixed);
}

// In bold, so that marking a value as changed never moves the columns.
QStyleOptionViewItem PropertyView::boldOption(int column) const {
    QStyleOptionViewItem option;
    option.initFrom(this);
    option.font = font();
    option.font.setBold(true);
    option.fontMetrics = QFontMetrics(option.font);
    option.features = QStyleOptionViewItem::HasDisplay;
    if (column == valueColumn) makeRoomForArrow(option);
    return option;
}

void PropertyView::makeRoomForArrow(QStyleOptionViewItem& option) const {
    option.features |= QStyleOptionViewItem::HasDecoration;
    option.decorationPosition = QStyleOptionViewItem::Right;
    option.decorationSize = {fontMetrics().height(), fontMetrics().height()};
}

QSize PropertyView::sizeOf(QStyleOptionViewItem& option, const QString& text) const {
    option.text = text;
    return style()->sizeFromContents(QStyle::CT_ItemViewItem, &option, {}, this);
}

void PropertyView::measure() const {
    if (isMeasured_ || !model()) return;
    isMeasured_ = true;
    heights_.clear();
    measureTexts();
    addMargins(labelColumn, labels_);
    addMargins(valueColumn, values_);
    leastLabel_ = std::min(labels_.word, 8 * boldOption(labelColumn).fontMetrics.averageCharWidth());
    QStyleOptionViewItem sign = boldOption(resetColumn);
    signWidth_ = std::max(sizeOf(sign, resetSign()).width(), lineHeight_);
}

// The values include all that are offered, so that a choice never moves the columns.
void PropertyView::measureTexts() const {
    const auto& rows = *static_cast<const RecordItemModel*>(model());
    const QStyleOptionViewItem bold = boldOption(labelColumn);
    TextWidths texts(bold.font);
    const auto add = [&](Widths& widths, const QString& text) {
        if (texts.isKnown(text)) return;  // most levels are offered in every row
        widths.line = std::max(widths.line, texts.of(text));
        for (const QString& word : text.split(QLatin1Char(' ')))
            widths.word = std::max(widths.word, texts.of(word));
    };
    labels_ = values_ = {};
    labelWidths_.clear();
    for (int row = 0; row < rows.rowCount(); ++row) {
        const QModelIndex label = rows.index(row, labelColumn);
        const QString text = label.data().toString();
        add(labels_, text);
        labelWidths_.push_back(texts.of(text));
        const auto property = rows.property(label);
        if (!property) continue;
        const int characters = property->columnWidth ? QString::fromUtf8(property->columnWidth).toInt() : 0;
        values_.line = std::max(values_.line, characters * bold.fontMetrics.averageCharWidth());
        add(values_, label.siblingAtColumn(valueColumn).data().toString());
        const auto* entries = property->configuration.get<NamedValues>(path::editorEntries);
        if (!entries) continue;
        for (const NamedValue& entry : **entries) add(values_, entry.text);
    }
}

// The style is queried with one letter for what it adds to a text.
void PropertyView::addMargins(int column, Widths& widths) const {
    const QString letter(QLatin1Char('x'));
    QStyleOptionViewItem option = boldOption(column);
    const QSize size = sizeOf(option, letter);
    const int heading = header()->sectionSizeHint(column);
    widths.margins = size.width() - option.fontMetrics.horizontalAdvance(letter) + 1;  // widths are rounded
    widths.word = std::max(widths.word + widths.margins, heading);
    widths.line = std::max(widths.line + widths.margins, heading);
    lineHeight_ = std::max(size.height(), fontMetrics().height() * 3 / 2);  // room for an editor
}

int PropertyView::heightOf(const QModelIndex& cell) const {
    measure();
    if (!wordWrap() || cell.column() == resetColumn) return lineHeight_;
    const bool isLabel = cell.column() == labelColumn;
    const int line =
        isLabel ? labelWidths_[static_cast<std::size_t>(cell.row())] + labels_.margins : values_.line;
    const int width = columnWidth(cell.column());
    if (line <= width) return lineHeight_;
    const QString text = cell.data().toString();
    const auto known = heights_.constFind(text);
    if (known != heights_.constEnd()) return *known;
    QStyleOptionViewItem option = boldOption(cell.column());
    option.features |= QStyleOptionViewItem::WrapText;
    option.rect.setWidth(width);
    return *heights_.insert(text, std::max(lineHeight_, sizeOf(option, fitted(cell)).height()));
}

QString PropertyView::fitted(const QModelIndex& cell) const {
    QString text = cell.data().toString();
    if (cell.column() != labelColumn || !breaksWords_) return text;
    const QFontMetrics metrics = boldOption(labelColumn).fontMetrics;
    const int room = columnWidth(labelColumn) - labels_.margins;
    QStringList words = text.split(QLatin1Char(' '));
    for (QString& word : words)
        if (metrics.horizontalAdvance(word) > room) word = breakable(word, metrics, room);
    return words.join(QLatin1Char(' '));
}

void PropertyView::reset() {
    isMeasured_ = false;
    QTreeView::reset();
}

void PropertyView::measureAgain() {
    isMeasured_ = false;
    updateGeometry();
    fitColumns();
}

// The width for labels and values. The scroll bar is left out where every row fits in one line: with the bar of an
// earlier layout rows might wrap, and so need the bar.
int PropertyView::roomForTexts() const {
    const QSize whole = maximumViewportSize();
    const int room = whole.width() - signWidth_;
    const int label = wantedLabel(room);
    const bool fits = label >= labels_.line && room - label >= values_.line &&
                      model()->rowCount() * lineHeight_ <= whole.height();
    return (fits ? whole : viewport()->size()).width() - signWidth_;
}

int PropertyView::wantedLabel(int room) const {
    return labelShare_ ? static_cast<int>(std::lround(*labelShare_ * room))
                       : std::min(labels_.line, room - values_.line);
}

// The labels get the width that they need, and the values the rest. In less room the labels are wrapped, then the
// values, and last the words of the labels are broken. A share that the user has set with the divider is kept within
// these limits.
void PropertyView::fitColumns() {
    if (isFitting_ || !isVisible() || !model()) return;
    const QScopedValueRollback<bool> fitting(isFitting_, true);
    measure();
    const int room = roomForTexts();
    const int most = std::max(room - values_.word, leastLabel_);
    const int least = std::min(labels_.word, most);
    const int label = std::clamp(wantedLabel(room), least, most);
    const int value = std::max(room - label, values_.word);
    const bool wraps = label < labels_.line || value < values_.line;
    breaksWords_ = label < labels_.word;
    if (label != columnWidth(labelColumn) || value != columnWidth(valueColumn)) heights_.clear();
    header()->resizeSection(labelColumn, label);
    header()->resizeSection(valueColumn, value);
    header()->resizeSection(resetColumn, signWidth_);
    setUniformRowHeights(!wraps);
    setWordWrap(wraps);
    scheduleDelayedItemsLayout();  // the heights follow from the widths
}

void PropertyView::onSectionResized(int section, int /*before*/, int width) {
    if (isFitting_ || section != labelColumn || !isMeasured_) return;
    labelShare_ = static_cast<double>(width) / std::max(1, roomForTexts());
    fitColumns();
}

// Every text in one line.
QSize PropertyView::sizeHint() const {
    measure();
    const int rows = model() ? model()->rowCount() : 0;
    const int bar = rows > mostLines ? verticalScrollBar()->sizeHint().width() : 0;
    const int columns = labels_.line + values_.line + signWidth_;
    return sizeFor(std::clamp(rows, fewestLines, mostLines), columns + bar);
}

QSize PropertyView::minimumSizeHint() const {
    measure();
    const int bar = verticalScrollBar()->sizeHint().width();
    return sizeFor(fewestLines, leastLabel_ + values_.word + signWidth_ + bar);
}

QSize PropertyView::sizeFor(int lines, int width) const {
    const int frame = 2 * frameWidth();
    return {width + frame, header()->sizeHint().height() + lines * lineHeight_ + frame};
}

// A Return that ends the editing of a text arrives here, too, as a line edit leaves it to its parent.
void PropertyView::editRow(const QModelIndex& index) {
    if (state() == EditingState) return;
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

// Selects the current row, because the commands act on the selected rows. A click selects by itself.
void PropertyView::focusInEvent(QFocusEvent* event) {
    QTreeView::focusInEvent(event);
    if (event->reason() == Qt::MouseFocusReason || selectionModel()->hasSelection()) return;
    selectionModel()->select(currentIndex(), QItemSelectionModel::Select | QItemSelectionModel::Rows);
}

// Jumps to the next visible row whose label begins with the typed letters.
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

// The current cell is always the value of its row, wherever the row is clicked.
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

void PropertyView::dataChanged(const QModelIndex& first, const QModelIndex& last, const QVector<int>& roles) {
    QTreeView::dataChanged(first, last, roles);
    if (!isMeasured_ || first != last || first.column() != valueColumn) return;
    // The widths include all values that are offered.
    if (!static_cast<const RecordItemModel*>(model())->isOffered(first)) measureAgain();
}

// The columns are fitted first; otherwise the base class would show a scroll bar.
void PropertyView::resizeEvent(QResizeEvent* event) {
    fitColumns();
    QTreeView::resizeEvent(event);
}

void PropertyView::showEvent(QShowEvent* event) {
    QTreeView::showEvent(event);
    fitColumns();
    executeDelayedItemsLayout();  // otherwise the first paint would schedule a second one
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
