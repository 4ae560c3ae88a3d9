#include "properties/qt/src/accessible_cells.h"

#include "properties/qt/src/editors.h"
#include "properties/qt/src/property_view.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QApplication>
#include <QHeaderView>
#include <QListWidget>
#include <QPersistentModelIndex>

#include <algorithm>
#include <map>
#include <utility>
#include <vector>

namespace tiv::properties {
namespace {

using Interfaces = QList<QAccessibleInterface*>;

// A PropertyView or a list of values. Its rows are the visible ones. Its children are the headings, if there are
// any, and then the cells, row by row: Qt's item views number them so in their events. An open list of values is the
// last child of its table; Qt would leave it out.
class AccessibleTable : public QAccessibleWidget, public QAccessibleTableInterface {
 public:
    explicit AccessibleTable(PropertyView* tree) : QAccessibleWidget(tree, QAccessible::Tree), tree_(tree) {}
    explicit AccessibleTable(QListWidget* list) : QAccessibleWidget(list, QAccessible::List) {}
    ~AccessibleTable() override { dropCells(); }

    QAbstractItemView& view() const { return *static_cast<QAbstractItemView*>(object()); }
    PropertyView* tree() const { return tree_; }  // null for a list, which has no headings
    int rowOf(const QModelIndex& index) const;    // -1: it is hidden, or not in the model
    QAccessibleInterface* cell(const QModelIndex& index, int column) const;

    void* interface_cast(QAccessible::InterfaceType type) override;
    QAccessibleInterface* parent() const override;
    int childCount() const override { return cellCount() + (openList() ? 1 : 0); }
    QAccessibleInterface* child(int number) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QAccessibleInterface* focusChild() const override;
    int indexOfChild(const QAccessibleInterface* child) const override;

    QAccessibleInterface* caption() const override { return nullptr; }
    QAccessibleInterface* summary() const override { return nullptr; }
    QAccessibleInterface* cellAt(int row, int column) const override;
    int rowCount() const override { return static_cast<int>(rows().size()); }
    int columnCount() const override { return view().model() ? view().model()->columnCount() : 0; }
    QString rowDescription(int /*row*/) const override { return {}; }
    QString columnDescription(int column) const override;
    Interfaces selectedCells() const override;
    QList<int> selectedRows() const override;
    QList<int> selectedColumns() const override { return {}; }
    int selectedCellCount() const override { return static_cast<int>(selectedCells().size()); }
    int selectedRowCount() const override { return static_cast<int>(selectedRows().size()); }
    int selectedColumnCount() const override { return 0; }
    bool isRowSelected(int row) const override { return selectedRows().contains(row); }
    bool isColumnSelected(int /*column*/) const override { return false; }
    bool selectRow(int row) override { return select(row, QItemSelectionModel::Select); }
    bool unselectRow(int row) override { return select(row, QItemSelectionModel::Deselect); }
    bool selectColumn(int /*column*/) override { return false; }
    bool unselectColumn(int /*column*/) override { return false; }
    void modelChange(QAccessibleTableModelChangeEvent* event) override;

 private:
    int headingRows() const { return tree_ ? 1 : 0; }
    int cellCount() const { return (headingRows() + rowCount()) * columnCount(); }
    QAccessibleInterface* openList() const;
    std::vector<int> rows() const;  // of the model
    QModelIndex indexAt(int row, int column) const;
    bool select(int row, QItemSelectionModel::SelectionFlags command);
    void dropCells();

    PropertyView* tree_ = nullptr;
    // By row and column of the model, row -1 for the headings. Qt owns the interfaces.
    mutable std::map<std::pair<int, int>, QAccessible::Id> cells_;
};

// Without an index it is the heading of its column.
class AccessibleCell : public QAccessibleInterface,
                       public QAccessibleTableCellInterface,
                       public QAccessibleActionInterface {
 public:
    AccessibleCell(const AccessibleTable& table, const QModelIndex& index, int column)
        : table_(table), index_(index), column_(column), isHeading_(!index.isValid()) {}

    const QPersistentModelIndex& index() const { return index_; }

    void* interface_cast(QAccessible::InterfaceType type) override;
    bool isValid() const override { return table_.isValid() && (isHeading_ || rowIndex() >= 0); }
    QObject* object() const override { return nullptr; }
    QAccessibleInterface* parent() const override { return table(); }
    QAccessibleInterface* child(int /*number*/) const override { return nullptr; }
    QAccessibleInterface* childAt(int /*x*/, int /*y*/) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface* /*child*/) const override { return -1; }
    QAccessible::Role role() const override;
    QAccessible::State state() const override;
    QString text(QAccessible::Text kind) const override;
    void setText(QAccessible::Text /*kind*/, const QString& /*text*/) override {}
    QRect rect() const override;

    QAccessibleInterface* table() const override { return const_cast<AccessibleTable*>(&table_); }
    Interfaces columnHeaderCells() const override;
    Interfaces rowHeaderCells() const override { return {}; }
    int columnIndex() const override { return column_; }
    int rowIndex() const override { return table_.rowOf(index_); }
    int columnExtent() const override { return 1; }
    int rowExtent() const override { return 1; }
    bool isSelected() const override { return table_.view().selectionModel()->isSelected(index_); }

    QStringList actionNames() const override;
    void doAction(const QString& name) override;
    QStringList keyBindingsForAction(const QString& /*name*/) const override { return {}; }

 private:
    const AccessibleTable& table_;  // deletes its cells
    QPersistentModelIndex index_;
    int column_;
    bool isHeading_;
};

std::vector<int> AccessibleTable::rows() const {
    std::vector<int> rows;
    for (int row = 0; view().model() && row < view().model()->rowCount(); ++row)
        if (!tree_ || !tree_->isRowHidden(row, {})) rows.push_back(row);
    return rows;
}

int AccessibleTable::rowOf(const QModelIndex& index) const {
    const std::vector<int> known = rows();
    const auto row = std::find(known.begin(), known.end(), index.row());
    return row == known.end() ? -1 : static_cast<int>(row - known.begin());
}

QModelIndex AccessibleTable::indexAt(int row, int column) const {
    const std::vector<int> known = rows();
    if (row < 0 || row >= static_cast<int>(known.size())) return {};
    return view().model()->index(known[static_cast<std::size_t>(row)], column);
}

QAccessibleInterface* AccessibleTable::cell(const QModelIndex& index, int column) const {
    QAccessible::Id& id = cells_[{index.row(), column}];
    if (auto* known = static_cast<AccessibleCell*>(QAccessible::accessibleInterface(id))) {
        if (known->index() == index) return known;
        QAccessible::deleteAccessibleInterface(id);  // its row is gone
    }
    auto* made = new AccessibleCell(*this, index, column);
    id = QAccessible::registerAccessibleInterface(made);
    return made;
}

void AccessibleTable::dropCells() {
    for (const auto& [place, id] : std::exchange(cells_, {})) QAccessible::deleteAccessibleInterface(id);
}

void AccessibleTable::modelChange(QAccessibleTableModelChangeEvent* event) {
    if (event->modelChangeType() != QAccessibleTableModelChangeEvent::DataChanged) dropCells();
}

void* AccessibleTable::interface_cast(QAccessible::InterfaceType type) {
    if (type == QAccessible::TableInterface) return static_cast<QAccessibleTableInterface*>(this);
    return QAccessibleWidget::interface_cast(type);
}

QAccessibleInterface* AccessibleTable::openList() const {
    const auto* popup = qobject_cast<NamedValueEditor*>(QApplication::activePopupWidget());
    const bool isOurs = popup && tree_ && popup->parentWidget() == tree_->viewport();
    return isOurs ? QAccessible::queryAccessibleInterface(popup->focusProxy()) : nullptr;
}

QAccessibleInterface* AccessibleTable::parent() const {
    if (tree_ || !view().window()->parentWidget()) return QAccessibleWidget::parent();
    return QAccessible::queryAccessibleInterface(view().window()->parentWidget()->parentWidget());
}

QAccessibleInterface* AccessibleTable::child(int number) const {
    if (number == cellCount()) return openList();
    const int columns = columnCount();
    if (number < 0 || columns == 0) return nullptr;
    const int row = number / columns - headingRows();
    return row < 0 ? cell({}, number) : cellAt(row, number % columns);
}

QAccessibleInterface* AccessibleTable::cellAt(int row, int column) const {
    const QModelIndex index = indexAt(row, column);
    return index.isValid() ? cell(index, column) : nullptr;
}

QAccessibleInterface* AccessibleTable::childAt(int x, int y) const {
    const QModelIndex index = view().indexAt(view().viewport()->mapFromGlobal(QPoint(x, y)));
    return cellAt(rowOf(index), index.column());
}

QAccessibleInterface* AccessibleTable::focusChild() const {
    const QModelIndex current = view().currentIndex();
    return view().hasFocus() ? cellAt(rowOf(current), current.column()) : nullptr;
}

int AccessibleTable::indexOfChild(const QAccessibleInterface* child) const {
    if (child && child == openList()) return cellCount();
    const auto* cell = dynamic_cast<const AccessibleCell*>(child);
    if (!cell || cell->table() != this || !cell->isValid()) return -1;
    return (headingRows() + cell->rowIndex()) * columnCount() + cell->columnIndex();
}

QString AccessibleTable::columnDescription(int column) const {
    return view().model() ? view().model()->headerData(column, Qt::Horizontal).toString() : QString();
}

Interfaces AccessibleTable::selectedCells() const {
    Interfaces cells;
    for (const int row : selectedRows())
        for (int column = 0; column < columnCount(); ++column) cells << cellAt(row, column);
    return cells;
}

QList<int> AccessibleTable::selectedRows() const {
    QList<int> selected;
    for (int row = 0; row < rowCount(); ++row)
        if (view().selectionModel()->isSelected(indexAt(row, 0))) selected << row;
    return selected;
}

bool AccessibleTable::select(int row, QItemSelectionModel::SelectionFlags command) {
    const QModelIndex index = indexAt(row, 0);
    if (index.isValid()) view().selectionModel()->select(index, command | QItemSelectionModel::Rows);
    return index.isValid();
}

void* AccessibleCell::interface_cast(QAccessible::InterfaceType type) {
    if (isHeading_) return nullptr;
    if (type == QAccessible::TableCellInterface) return static_cast<QAccessibleTableCellInterface*>(this);
    if (type == QAccessible::ActionInterface) return static_cast<QAccessibleActionInterface*>(this);
    return nullptr;
}

QAccessible::Role AccessibleCell::role() const {
    if (isHeading_) return QAccessible::ColumnHeader;
    return table_.tree() ? QAccessible::TreeItem : QAccessible::ListItem;
}

QAccessible::State AccessibleCell::state() const {
    QAccessible::State state;
    state.invalid = !isValid();
    if (isHeading_ || state.invalid) return state;
    const QAbstractItemView& view = table_.view();
    state.disabled = !view.isEnabled();
    state.invisible = !table_.rect().intersects(rect());
    state.selected = isSelected();
    state.focused = view.currentIndex() == index_;
    state.selectable = state.focusable = index_.flags().testFlag(Qt::ItemIsSelectable);
    state.extSelectable = state.selectable && view.selectionMode() == QAbstractItemView::ExtendedSelection;
    return state;
}

QString AccessibleCell::text(QAccessible::Text kind) const {
    if (kind == QAccessible::Description) return index_.data(Qt::AccessibleDescriptionRole).toString();
    if (kind != QAccessible::Name) return {};
    if (isHeading_) return table_.columnDescription(column_);
    const QString name = index_.data(Qt::AccessibleTextRole).toString();
    return name.isEmpty() ? index_.data().toString() : name;
}

QRect AccessibleCell::rect() const {
    const QWidget* area = isHeading_ ? table_.tree()->header()->viewport() : table_.view().viewport();
    QRect cell = table_.view().visualRect(index_);
    if (isHeading_)
        cell = {table_.tree()->columnViewportPosition(column_),
            0,
            table_.tree()->columnWidth(column_),
            area->height()};
    return {area->mapToGlobal(cell.topLeft()), cell.size()};
}

Interfaces AccessibleCell::columnHeaderCells() const {
    return table_.tree() ? Interfaces{table_.cell({}, column_)} : Interfaces{};
}

QStringList AccessibleCell::actionNames() const {
    if (!state().selectable || state().disabled) return {};
    if (table_.tree() && !table_.tree()->isPressable(index_)) return {setFocusAction()};
    return {pressAction(), setFocusAction()};
}

// Ignores modifier keys: some assistive programs act while the user holds theirs. A press may delete this cell.
void AccessibleCell::doAction(const QString& name) {
    if (!actionNames().contains(name)) return;
    QAbstractItemView& view = table_.view();
    PropertyView* tree = table_.tree();
    const QModelIndex index = index_;
    view.setFocus();
    view.selectionModel()->setCurrentIndex(
        index, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    if (name == pressAction()) tree ? tree->press(index) : emit view.clicked(index);
}

QAccessibleInterface* makeInterface(const QString& /*className*/, QObject* object) {
    if (auto* tree = qobject_cast<PropertyView*>(object)) return new AccessibleTable(tree);
    auto* list = qobject_cast<QListWidget*>(object);
    return list && qobject_cast<NamedValueEditor*>(list->parent()) ? new AccessibleTable(list) : nullptr;
}

}  // namespace

void installAccessibleCells() {
    QAccessible::installFactory(makeInterface);
}

}  // namespace tiv::properties
