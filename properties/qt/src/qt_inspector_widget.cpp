#include "properties/qt/src/qt_inspector_widget.h"

#include "properties/definitions/paths.h"
#include "properties/definitions/validators.h"
#include "properties/qt/src/property_delegate.h"
#include "properties/qt/src/property_view.h"
#include "properties/qt/src/record_item_model.h"

#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QEvent>
#include <QHBoxLayout>
#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QUndoCommand>
#include <QVBoxLayout>

#include <algorithm>
#include <cstddef>
#include <exception>
#include <memory>
#include <utility>

namespace tiv::properties {
namespace {

// One undo step. Plain data: the inspector writes it, so that a step that cannot be taken is not taken.
struct Step : public QUndoCommand {
    Step(std::vector<PropertyValue> from, std::vector<PropertyValue> to)
        : before(std::move(from)), after(std::move(to)) {}
    const std::vector<PropertyValue> before, after;
};

// Without case and accents: "Träger" and "TRAGER" fold to the same.
QString folded(const QString& text) {
    QString result;
    for (const QChar c : text.normalized(QString::NormalizationForm_KD))
        if (c.category() != QChar::Mark_NonSpacing) result += c;
    return result.toCaseFolded();
}

// From the values before to those after, of the same properties; none when nothing differs.
std::unique_ptr<Step> stepBetween(
    const std::vector<PropertyValue>& before, const std::vector<PropertyValue>& after) {
    std::vector<PropertyValue> from, to;
    for (std::size_t i = 0; i < after.size(); ++i) {
        if (before[i].value == after[i].value) continue;
        from.push_back(before[i]);
        to.push_back(after[i]);
    }
    return to.empty() ? nullptr : std::make_unique<Step>(std::move(from), std::move(to));
}

std::vector<PropertyValue> valuesOf(const RecordItemModel& rows, const Properties& properties) {
    std::vector<PropertyValue> values;
    values.reserve(properties.list.size());
    for (const auto& property : properties.list) values.push_back({property, rows.current(*property)});
    return values;
}

}  // namespace

QtInspectorWidget::QtInspectorWidget(QWidget* parent, std::shared_ptr<Properties> properties,
    std::shared_ptr<SelectionManager<container::model::Key>> selection,
    std::shared_ptr<container::model::Model> model, std::shared_ptr<const DefaultEditorFactory> editors,
    std::shared_ptr<const DefaultValidatorFactory> validators, InspectorHost host)
    : QWidget(parent),
      rows_(new RecordItemModel(
          properties, std::move(model), std::move(selection),
          host.isEditable ? host.isEditable : [] { return true; }, this)),
      view_(new PropertyView(this)),
      host_(std::move(host)),
      validators_(std::move(validators)),
      properties_(std::move(properties)) {
    auto* delegate = new PropertyDelegate(view_, std::move(editors));
    view_->setItemDelegate(delegate);
    view_->setModel(rows_);
    view_->setContextMenuPolicy(Qt::CustomContextMenu);
    view_->installEventFilter(this);
    connect(delegate, &PropertyDelegate::entered, this, &QtInspectorWidget::onEntered);
    connect(view_, &QWidget::customContextMenuRequested, this, &QtInspectorWidget::showMenu);
    connect(view_, &PropertyView::resetRequested, this, &QtInspectorWidget::onResetRequested);
    connect(rows_, &RecordItemModel::recordChanged, this, &QtInspectorWidget::onRecordChanged);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(view_);
    setFocusProxy(view_);
    setAccessibleName(rows_->text("Output options"));
    view_->setAccessibleName(accessibleName());
    updatePlaceholder();
}

void QtInspectorWidget::setPropertyFilterFunction(std::function<bool(const std::string&)> shows) {
    rows_->show(std::move(shows));
    for (int row = 0; row < rows_->rowCount(); ++row)
        if (!rows_->property(rows_->index(row, 0))) view_->setFirstColumnSpanned(row, {}, true);
    filterRows();
    view_->measureAgain();
}

// ---- what the engineer does ----

// Queued: an observer of the record may destroy the view, which is still handling the click.
void QtInspectorWidget::onResetRequested(const QModelIndex& row) {
    const auto property = rows_->property(row);
    if (!property) return;
    QMetaObject::invokeMethod(
        this, [this, property] { reset({property}); }, Qt::QueuedConnection);
}

void QtInspectorWidget::onEntered(const QModelIndex& index, const QVariant& value) {
    const auto property = rows_->property(index);
    if (!property) return;  // its row has gone
    auto targets = selectedProperties();
    if (std::find(targets.begin(), targets.end(), property) == targets.end()) targets = {property};
    choose(targets, value);
}

// With `onlyAsk`, says whether the key would do something here; otherwise it is the host's.
bool QtInspectorWidget::onKey(const QKeyEvent& event, bool onlyAsk) {
    const auto does = [&](bool possible, auto action) {
        if (possible && !onlyAsk) action();
        return possible;
    };
    auto& key = const_cast<QKeyEvent&>(event);
    if (key.matches(QKeySequence::Undo)) return does(undo_.canUndo(), [&] { undo(); });
    if (key.matches(QKeySequence::Redo) || (key.key() == Qt::Key_Y && key.modifiers() == Qt::ControlModifier))
        return does(undo_.canRedo(), [&] { redo(); });
    if (key.key() == Qt::Key_Delete && !(key.modifiers() & ~Qt::KeypadModifier))
        return does(rows_->isEditable() || !onlyAsk, [&] { reset(selectedProperties()); });
    if (key.matches(QKeySequence::Copy)) return does(true, [&] { copyRows(); });
    if (key.matches(QKeySequence::Paste)) return does(bool(host_.pasteSettings), [&] { pasteSettings(); });
    if (key.matches(QKeySequence::Find)) return does(true, [&] { showFilter(); });
    if (key.key() == Qt::Key_Escape && key.modifiers() == Qt::NoModifier)
        return does(filterBar_ && filterBar_->isVisible(), [&] { hideFilter(); });
    return false;
}

// In the filter bar, where Return and Escape are not the host's, either.
bool QtInspectorWidget::onFilterKey(const QKeyEvent& event, bool onlyAsk) {
    switch (event.key()) {
        case Qt::Key_Escape:
            if (!onlyAsk) query_->text().isEmpty() ? hideFilter() : query_->clear();
            return true;
        case Qt::Key_Return:
        case Qt::Key_Enter:
            if (!onlyAsk) view_->setFocus();
            return true;
        default:
            return false;
    }
}

bool QtInspectorWidget::eventFilter(QObject* watched, QEvent* event) {
    const bool asks = event->type() == QEvent::ShortcutOverride;
    if (!asks && event->type() != QEvent::KeyPress) return false;
    auto* key = static_cast<QKeyEvent*>(event);
    if (!(watched == view_ ? onKey(*key, asks) : onFilterKey(*key, asks))) return false;
    event->accept();
    return true;
}

void QtInspectorWidget::showMenu(const QPoint& position) {
    const auto selected = selectedProperties();
    const auto changed = shownChanged();
    const bool editable = rows_->isEditable();
    auto* menu = new QMenu(this);  // not waited for: the inspector may go while it is open
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const auto add = [&](const QString& text, bool enabled, auto action) {
        QAction* entry = menu->addAction(text);
        entry->setEnabled(enabled);
        connect(entry, &QAction::triggered, this, action, Qt::QueuedConnection);
    };
    addLevelMenu(*menu, selected);
    add(rows_->text("Reset to default"), editable && !selected.empty(), [this, selected] {
        reset(selected);
    });
    add(rows_->text("Reset all shown (%1)").arg(changed.size()),
        editable && !changed.empty(),
        [this, changed] { reset(changed); });
    menu->addSeparator();
    add(rows_->text("Undo"), editable && undo_.canUndo(), [this] { undo(); });
    add(rows_->text("Redo"), editable && undo_.canRedo(), [this] { redo(); });
    menu->addSeparator();
    add(rows_->text("Copy"), !selected.empty(), [this] { copyRows(); });
    if (host_.copySettings) add(rows_->text("Copy settings"), editable, [this] { copySettings(); });
    if (host_.pasteSettings) add(rows_->text("Paste settings"), editable, [this] { pasteSettings(); });
    menu->addSeparator();
    add(rows_->text("Filter"), true, [this] { showFilter(); });
    menu->popup(view_->viewport()->mapToGlobal(position));
}

void QtInspectorWidget::addLevelMenu(
    QMenu& menu, const std::vector<std::shared_ptr<const Property>>& targets) {
    QMenu* levels = menu.addMenu(rows_->text("Set to"));
    std::vector<NamedValue> offered;
    for (const auto& property : targets) {
        const auto* entries = property->configuration.get<NamedValues>(path::editorEntries);
        if (!entries) continue;
        for (const NamedValue& entry : **entries) {
            const auto same = [&](const NamedValue& known) { return known.value == entry.value; };
            if (std::none_of(offered.begin(), offered.end(), same)) offered.push_back(entry);
        }
    }
    for (const NamedValue& entry : offered)
        connect(
            levels->addAction(entry.text),
            &QAction::triggered,
            this,
            [this, targets, value = entry.value] { choose(targets, value); },
            Qt::QueuedConnection);
    levels->setEnabled(rows_->isEditable() && !offered.empty());
}

std::vector<std::shared_ptr<const Property>> QtInspectorWidget::selectedProperties() const {
    QModelIndexList indexes = view_->selectionModel()->selectedRows();
    std::sort(indexes.begin(), indexes.end());
    std::vector<std::shared_ptr<const Property>> result;
    for (const QModelIndex& index : indexes)
        if (auto property = rows_->property(index); property && !view_->isRowHidden(index.row(), {}))
            result.push_back(std::move(property));
    return result;
}

std::vector<std::shared_ptr<const Property>> QtInspectorWidget::shownChanged() const {
    std::vector<std::shared_ptr<const Property>> result;
    for (int row = 0; row < rows_->rowCount(); ++row) {
        const QModelIndex index = rows_->index(row, 0);
        if (!view_->isRowHidden(row, {}) && index.data(RecordItemModel::ChangedRole).toBool())
            result.push_back(rows_->property(index));
    }
    return result;
}

// ---- changes of the record ----

void QtInspectorWidget::choose(
    const std::vector<std::shared_ptr<const Property>>& targets, const QVariant& value) {
    std::vector<PropertyValue> wanted;
    QStringList skipped;
    for (const auto& property : targets) {
        if (rows_->current(*property) == value) continue;
        if (validators_->create(*property)(value))
            wanted.push_back({property, value});
        else
            skipped << label(*properties_, *property);
    }
    const QPointer<QtInspectorWidget> self(this);
    apply(wanted);
    if (self && !skipped.isEmpty()) say(rows_->text("Not offered for: %1").arg(skipped.join(", ")));
}

void QtInspectorWidget::reset(const std::vector<std::shared_ptr<const Property>>& targets) {
    std::vector<PropertyValue> wanted;
    wanted.reserve(targets.size());
    for (const auto& property : targets) wanted.push_back({property, defaultValue(*property)});
    apply(wanted);
}

void QtInspectorWidget::apply(const std::vector<PropertyValue>& wanted) {
    std::vector<PropertyValue> current;
    current.reserve(wanted.size());
    for (const PropertyValue& one : wanted) current.push_back({one.property, rows_->current(*one.property)});
    auto step = stepBetween(current, wanted);
    if (step && write(step->after)) undo_.push(step.release());
}

// What a screen reader reads out after a gesture of the engineer.
void QtInspectorWidget::announce(const std::vector<PropertyValue>& values) {
    if (!QAccessible::isActive()) return;
    view_->layOutNow();
    QAccessibleTableInterface* table = QAccessible::queryAccessibleInterface(view_)->tableInterface();
    int visible = 0;  // rows before this one: no others have cells
    for (int row = 0; row < rows_->rowCount(); ++row) {
        if (view_->isRowHidden(row, {})) continue;
        const QModelIndex index = rows_->index(row, RecordItemModel::ValueColumn);
        const auto property = rows_->property(index);
        const auto isRow = [&](const PropertyValue& value) { return value.property == property; };
        if (std::any_of(values.begin(), values.end(), isRow)) {
            QAccessibleValueChangeEvent event(
                table->cellAt(visible, RecordItemModel::ValueColumn), index.data());
            QAccessible::updateAccessibility(&event);
        }
        ++visible;
    }
}

bool QtInspectorWidget::write(const std::vector<PropertyValue>& values) {
    const bool isWritten = change([&] {
        const container::model::Key key = *rows_->record();  // a copy: an observer may select another record
        setValues(values, rows_->objects(), key);
    });
    if (isWritten) announce(values);
    return isWritten;
}

bool QtInspectorWidget::change(const std::function<void()>& action) {
    if (!rows_->isEditable()) {
        say(rows_->text("These settings can no longer be changed."));
        return false;
    }
    const QPointer<QtInspectorWidget> self(this);
    // An observer may run an event loop, and the engineer another gesture in that.
    const bool wasChanging = std::exchange(changing_, true);
    const int seenBefore = std::exchange(changesSeen_, 0);
    QString problem;
    try {
        action();
    } catch (const std::exception& exception) {
        problem = QString::fromUtf8(exception.what());
    }
    if (!self) return false;
    changing_ = wasChanging;
    const int seen = std::exchange(changesSeen_, changesSeen_ + seenBefore);
    if (!problem.isEmpty()) {
        say(rows_->text("Not changed: %1").arg(problem));
        return false;
    }
    if (seen > 1) undo_.clear();  // an observer went on changing: our steps no longer fit
    return seen <= 1;
}

void QtInspectorWidget::onRecordChanged() {
    if (message_) message_->hide();
    if (changing_)
        ++changesSeen_;
    else
        undo_.clear();
    emit settingsChanged();
}

void QtInspectorWidget::undo() {
    const auto values = static_cast<const Step&>(*undo_.command(undo_.index() - 1)).before;
    if (write(values)) undo_.undo();
}

void QtInspectorWidget::redo() {
    const auto values = static_cast<const Step&>(*undo_.command(undo_.index())).after;
    if (write(values)) undo_.redo();
}

// ---- clipboard ----

void QtInspectorWidget::copyRows() const {
    QStringList lines;
    for (const auto& property : selectedProperties())
        lines << label(*properties_, *property) + '\t' +
                     rows_->valueText(*property, rows_->current(*property));
    if (!lines.isEmpty()) QApplication::clipboard()->setText(lines.join('\n') + '\n');
}

void QtInspectorWidget::copySettings() const {
    QApplication::clipboard()->setText(host_.copySettings());
}

void QtInspectorWidget::pasteSettings() {
    const std::vector<PropertyValue> before = valuesOf(*rows_, *properties_);
    const QString text = QApplication::clipboard()->text();
    if (!change([&] { host_.pasteSettings(text); })) return;
    auto step = stepBetween(before, valuesOf(*rows_, *properties_));
    if (!step) return;
    announce(step->after);
    undo_.push(step.release());
}

// ---- filter ----

void QtInspectorWidget::showFilter() {
    if (!filterBar_) {
        filterBar_ = new QWidget(this);
        query_ = new QLineEdit(filterBar_);
        query_->setClearButtonEnabled(true);
        query_->installEventFilter(this);
        changedOnly_ = new QCheckBox(filterBar_);
        auto* layout = new QHBoxLayout(filterBar_);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->addWidget(query_);
        layout->addWidget(changedOnly_);
        static_cast<QVBoxLayout*>(this->layout())->insertWidget(0, filterBar_);
        changedOnly_->installEventFilter(this);
        QWidget* before = view_->previousInFocusChain();
        while (before != view_ && before->focusPolicy() == Qt::NoFocus)
            before = before->previousInFocusChain();
        setTabOrder(before, query_);
        setTabOrder(query_, changedOnly_);
        connect(query_, &QLineEdit::textChanged, this, &QtInspectorWidget::filterRows);
        connect(changedOnly_, &QCheckBox::toggled, this, &QtInspectorWidget::filterRows);
        filterRows();
    }
    filterBar_->show();
    query_->setFocus(Qt::ShortcutFocusReason);
    query_->selectAll();
}

void QtInspectorWidget::hideFilter() {
    query_->clear();
    changedOnly_->setChecked(false);
    filterBar_->hide();
    view_->setFocus(Qt::OtherFocusReason);
}

// Only a new query, or new texts, hide and show rows: one that is set back to its default stays.
void QtInspectorWidget::filterRows() {
    if (filterBar_) {
        query_->setPlaceholderText(rows_->text("Filter"));
        query_->setAccessibleName(rows_->text("Filter"));
        changedOnly_->setText(rows_->text("Changed only"));
        const QString wanted = folded(query_->text());
        int heading = -1;
        for (int row = 0; row < rows_->rowCount(); ++row) {
            const QModelIndex index = rows_->index(row, 0);
            const bool isHeading = !rows_->property(index);
            const bool found =
                !isHeading &&
                (!changedOnly_->isChecked() || index.data(RecordItemModel::ChangedRole).toBool()) &&
                folded(index.data(RecordItemModel::SearchRole).toString()).contains(wanted);
            view_->setRowHidden(row, {}, !found);
            if (found && heading >= 0) view_->setRowHidden(heading, {}, false);
            if (isHeading) heading = row;
        }
        view_->leaveHiddenRow();
    }
    updatePlaceholder();
}

void QtInspectorWidget::updatePlaceholder() {
    view_->setPlaceholder(rows_->rowCount() > 0 ? rows_->text("No option matches the filter.")
                                                : rows_->text("No option applies."));
}

// ---- texts ----

void QtInspectorWidget::say(const QString& text) {
    if (!message_) {
        message_ = new QLabel(this);
        message_->setWordWrap(true);
        message_->setTextInteractionFlags(Qt::TextSelectableByMouse);
        message_->setMargin(4);
        layout()->addWidget(message_);
    }
    message_->setText(text);
    message_->show();
}

void QtInspectorWidget::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() != QEvent::LanguageChange) return;
    if (host_.retranslate) host_.retranslate();
    setAccessibleName(rows_->text("Output options"));
    view_->setAccessibleName(accessibleName());
    if (message_) message_->hide();  // its text is of the other language, as a menu's are
    for (auto* menu : findChildren<QMenu*>(QString(), Qt::FindDirectChildrenOnly)) menu->close();
    rows_->retranslate();
    filterRows();
    view_->measureAgain();
}

}  // namespace tiv::properties
