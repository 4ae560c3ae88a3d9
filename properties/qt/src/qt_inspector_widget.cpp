#include "properties/qt/src/qt_inspector_widget.h"

#include "properties/definitions/paths.h"
#include "properties/qt/src/clipboard.h"
#include "properties/qt/src/filter_bar.h"
#include "properties/qt/src/property_delegate.h"
#include "properties/qt/src/property_view.h"
#include "properties/qt/src/record_item_model.h"

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QEvent>
#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QPointer>
#include <QVBoxLayout>

#include <algorithm>
#include <exception>
#include <utility>

namespace tiv::properties {
namespace {

bool concerns(const std::vector<PropertyValue>& values, const std::shared_ptr<const Property>& property) {
    return property && std::any_of(values.begin(), values.end(), [&](const PropertyValue& value) {
        return value.property == property;
    });
}

QList<QKeySequence> redoKeys() {
    auto keys = QKeySequence::keyBindings(QKeySequence::Redo);
    const QKeySequence ofWindows(QStringLiteral("Ctrl+Y"));
    if (!keys.contains(ofWindows)) keys << ofWindows;
    return keys;
}

QList<QKeySequence> keys(const QStringList& texts) {
    QList<QKeySequence> result;
    for (const QString& text : texts) result << QKeySequence(text);
    return result;
}

}  // namespace

// The view gets its parent when it is complete: under a disabled parent Qt would make its accessible interface
// within the constructor of QWidget, and keep it.
QtInspectorWidget::QtInspectorWidget(QWidget* parent, std::shared_ptr<Properties> properties,
    std::shared_ptr<SelectionManager<container::model::Key>> selection,
    std::shared_ptr<container::model::Model> model, std::shared_ptr<const DefaultEditorFactory> editors,
    std::shared_ptr<const DefaultValidatorFactory> validators, InspectorHost host)
    : QWidget(parent), properties_(std::move(properties)), host_(std::move(host)) {
    const auto record = std::make_shared<DataModelSignals>(std::move(model),
        std::move(selection),
        properties_->list.empty() ? nullptr : properties_->list.front()->record);
    editor_ = new RecordEditor(properties_, record, std::move(validators), host_.isEditable, this);
    rows_ = new RecordItemModel(
        properties_, record, [editor = editor_] { return editor->isEditable(); }, host_.keyword, this);
    view_ = new PropertyView(nullptr);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(view_);
    auto* delegate = new PropertyDelegate(view_, std::move(editors));
    view_->setItemDelegate(delegate);
    view_->setModel(rows_);
    view_->setContextMenuPolicy(Qt::CustomContextMenu);
    view_->installEventFilter(this);
    setFocusProxy(view_);
    connect(delegate, &PropertyDelegate::entered, this, &QtInspectorWidget::onEntered);
    connect(view_, &QWidget::customContextMenuRequested, this, &QtInspectorWidget::showMenu);
    connect(view_, &PropertyView::resetRequested, this, &QtInspectorWidget::onResetRequested);
    connect(rows_, &RecordItemModel::modelReset, this, &QtInspectorWidget::onRowsReset);
    connect(editor_, &RecordEditor::recordChanged, this, &QtInspectorWidget::onRecordChanged);
    connect(editor_, &RecordEditor::written, this, &QtInspectorWidget::reveal);
    connect(editor_, &RecordEditor::refused, this, &QtInspectorWidget::say);
    connect(editor_, &RecordEditor::restored, this, [this](const auto& values) {
        unhide(values);
        reveal(values);
    });
    onRowsReset();
}

void QtInspectorWidget::setPropertyFilterFunction(std::function<bool(const std::string&)> shows) {
    rows_->show(std::move(shows));
}

// ---- the record and its rows ----

void QtInspectorWidget::onRecordChanged() {
    isStale_ = true;
    if (isVisible() || rows_->isOutdated()) {
        clearMessage();
        rows_->update();
        isStale_ = false;
    }
    emit settingsChanged();
}

void QtInspectorWidget::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    if (!std::exchange(isStale_, false)) return;
    clearMessage();
    rows_->update();
}

void QtInspectorWidget::onRowsReset() {
    for (int row = 0; row < rows_->rowCount(); ++row)
        if (!rows_->property(rows_->index(row, 0))) view_->setFirstColumnSpanned(row, {}, true);
    filterRows();
    updateTexts();
}

void QtInspectorWidget::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() != QEvent::LanguageChange) return;
    if (host_.retranslate) host_.retranslate();
    clearMessage();  // still in the old language, as are open menus
    for (auto* menu : findChildren<QMenu*>(QString(), Qt::FindDirectChildrenOnly)) menu->close();
    rows_->retranslate();
    filterRows();
    updateTexts();
}

void QtInspectorWidget::updateTexts() {
    if (host_.name) setAccessibleName(host_.name());
    view_->setAccessibleName(accessibleName());
    if (filter_) filter_->setTexts(rows_->text("Filter"), rows_->text("Changed only"));
    view_->setPlaceholder(rows_->rowCount() > 0 ? rows_->text("No option matches the filter.")
                                                : rows_->text("No option applies."));
    view_->measureAgain();
}

// ---- gestures ----

// Selected rows are set together, but only if the row is one of them.
void QtInspectorWidget::onEntered(const QModelIndex& index, const QVariant& value) {
    const auto property = rows_->property(index);
    if (!property) return;  // its row has gone
    PropertyList edited = targets();
    if (std::find(edited.begin(), edited.end(), property) == edited.end()) edited = {property};
    clearMessage();
    editor_->set(edited, value);
}

// Queued: an observer of the record may destroy the view, which is still handling the click.
void QtInspectorWidget::onResetRequested(const QModelIndex& index) {
    const auto property = rows_->property(index);
    if (!property) return;
    const auto reset = [this, property] {
        clearMessage();
        editor_->reset({property});
    };
    QMetaObject::invokeMethod(this, reset, Qt::QueuedConnection);
}

bool QtInspectorWidget::eventFilter(QObject* /*watched*/, QEvent* event) {
    const bool asks = event->type() == QEvent::ShortcutOverride;
    if (!asks && event->type() != QEvent::KeyPress) return false;
    const auto* key = static_cast<QKeyEvent*>(event);
    if (!(asks ? isClaimed(commands(), *key) : runCommand(commands(), *key))) return false;
    event->accept();
    return true;
}

// The menu shows the first key of each.
std::vector<Command> QtInspectorWidget::commands() {
    const auto always = [] { return true; };
    const auto hasTargets = [this] { return editor_->isEditable() && !targets().empty(); };
    const auto hasChanged = [this] { return editor_->isEditable() && !shownChanged().empty(); };
    const auto gesture = [this](auto action) {
        return [this, action] {
            clearMessage();
            action();
        };
    };
    const QString resetAll = rows_->text("Reset all shown (%1)");
    std::vector<Command> list{
        {rows_->text("Choose value"),
            keys({"Return", "Enter", "F2", "F4", "Space", "Alt+Down", "Alt+Up"}),
            Command::ClaimedButNotHeld,
            hasTargets,
            [this] { view_->editRow(view_->currentIndex()); }},
        {rows_->text("Reset to default"), keys({"Del"}), Command::Claimed, hasTargets, gesture([this] {
             editor_->reset(targets());
         })},
        {resetAll.arg(shownChanged().size()), {}, Command::Claimed, hasChanged, gesture([this] {
             editor_->reset(shownChanged());
         })},
        {rows_->text("Undo"),
            QKeySequence::keyBindings(QKeySequence::Undo),
            Command::ClaimedIfPossible,
            [this] { return editor_->canUndo(); },
            gesture([this] { editor_->undo(); }),
            true},
        {rows_->text("Redo"),
            redoKeys(),
            Command::ClaimedIfPossible,
            [this] { return editor_->canRedo(); },
            gesture([this] { editor_->redo(); })},
        {rows_->text("Copy"),
            QKeySequence::keyBindings(QKeySequence::Copy),
            Command::Claimed,
            [this] { return !targets().empty(); },
            [this] { copyRows(); },
            true},
    };
    if (host_.copySettings)
        list.push_back({rows_->text("Copy settings"),
            {},
            Command::Claimed,
            [this] { return editor_->isEditable(); },
            [this] { copySettings(); }});
    list.push_back({rows_->text("Paste"),
        QKeySequence::keyBindings(QKeySequence::Paste),
        Command::Claimed,
        [this] { return editor_->isEditable(); },
        gesture([this] { paste(); })});
    list.push_back({rows_->text("Select all"),
        QKeySequence::keyBindings(QKeySequence::SelectAll),
        Command::Claimed,
        always,
        [this] { view_->selectAll(); },
        true});
    list.push_back({rows_->text("Filter"),
        QKeySequence::keyBindings(QKeySequence::Find),
        Command::Claimed,
        always,
        [this] { showFilter(); }});
    list.push_back({rows_->text("Hide filter"),
        keys({"Esc"}),
        Command::ClaimedIfPossible,
        [this] { return filter_ && filter_->isVisible(); },
        [this] {
            if (filter_) filter_->close();
        }});
    return list;
}

// popup(), not exec(): the inspector may be destroyed while the menu is open.
void QtInspectorWidget::showMenu(const QPoint& position) {
    QMenu* menu = makeMenu(commands(), this);
    if (host_.setTo) addValueMenu(*menu);
    menu->popup(view_->viewport()->mapToGlobal(position));
}

// Of all values that the rows offer.
void QtInspectorWidget::addValueMenu(QMenu& menu) {
    auto* values = new QMenu(host_.setTo(), &menu);
    menu.insertMenu(menu.actions().at(1), values);  // behind the command that opens the list
    std::vector<NamedValue> offered;
    for (const auto& property : targets()) {
        const auto* entries = property->configuration.get<NamedValues>(path::editorEntries);
        if (!entries) continue;
        for (const NamedValue& entry : **entries) {
            const auto same = [&](const NamedValue& known) { return known.value == entry.value; };
            if (std::none_of(offered.begin(), offered.end(), same)) offered.push_back(entry);
        }
    }
    for (const NamedValue& entry : offered) {
        const auto set = [this, value = entry.value] {
            clearMessage();
            editor_->set(targets(), value);
        };
        connect(values->addAction(entry.text), &QAction::triggered, this, set, Qt::QueuedConnection);
    }
    values->setEnabled(editor_->isEditable() && !offered.empty());
}

// Those of the selected rows; without any, of the current row. A row that the filter hides is none of them.
PropertyList QtInspectorWidget::targets() const {
    QModelIndexList indexes = view_->selectionModel()->selectedRows();
    if (indexes.isEmpty()) indexes << view_->currentIndex();
    std::sort(indexes.begin(), indexes.end());
    PropertyList result;
    for (const QModelIndex& index : indexes)
        if (auto property = rows_->property(index); property && !view_->isRowHidden(index.row(), {}))
            result.push_back(std::move(property));
    return result;
}

PropertyList QtInspectorWidget::shownProperties() const {
    PropertyList result;
    for (int row = 0; row < rows_->rowCount(); ++row)
        if (auto property = rows_->property(rows_->index(row, 0)); property && !view_->isRowHidden(row, {}))
            result.push_back(std::move(property));
    return result;
}

PropertyList QtInspectorWidget::shownChanged() const {
    PropertyList result;
    for (const auto& property : shownProperties())
        if (rows_->current(*property) != defaultValue(*property)) result.push_back(property);
    return result;
}

// ---- clipboard ----

void QtInspectorWidget::copyRows() const {
    std::vector<CopiedRow> copied;
    QString lines;
    for (const auto& property : targets()) {
        const QVariant value = rows_->current(*property);
        copied.push_back({QString::fromUtf8(property->displayName), value});
        lines += label(*properties_, *property) + '\t' + rows_->valueText(*property, value) + '\n';
    }
    if (!copied.empty()) QApplication::clipboard()->setMimeData(rowsForClipboard(copied, lines).release());
}

void QtInspectorWidget::copySettings() const {
    if (auto settings = host_.copySettings()) QApplication::clipboard()->setMimeData(settings.release());
}

void QtInspectorWidget::paste() {
    if (!editor_->mayEdit()) return;
    const QMimeData empty;
    const QMimeData* clipboard = QApplication::clipboard()->mimeData();  // null: it has no owner
    if (!clipboard) clipboard = &empty;
    if (const auto rows = rowsFromClipboard(*clipboard)) return pasteRows(*rows);
    if (host_.readSettings) pasteSettings(*clipboard);
}

void QtInspectorWidget::pasteRows(const std::vector<CopiedRow>& rows) {
    std::vector<PropertyValue> wanted;
    QStringList rest;
    const PropertyList shown = shownProperties();
    for (const CopiedRow& row : rows) {
        const auto hasLabel = [&](const auto& property) { return row.label == property->displayName; };
        const auto found = std::find_if(shown.begin(), shown.end(), hasLabel);
        if (found != shown.end())
            wanted.push_back({*found, row.value});
        else
            rest << rows_->text(row.label.toUtf8());
    }
    const QPointer<QtInspectorWidget> self(this);
    editor_->set(wanted);
    if (self && !rest.isEmpty()) say(rows_->text("Not pasted: %1").arg(rest.join(", ")));
}

// What the filter hides stays.
void QtInspectorWidget::pasteSettings(const QMimeData& clipboard) {
    std::vector<PropertyValue> wanted;
    try {
        wanted = host_.readSettings(clipboard);
    } catch (const std::exception& problem) {
        return say(rows_->text("Not changed: %1").arg(QString::fromUtf8(problem.what())));
    }
    QStringList rest;
    for (int row = 0; row < rows_->rowCount(); ++row) {
        const auto property = rows_->property(rows_->index(row, 0));
        if (!property || !view_->isRowHidden(row, {})) continue;
        const auto hidden = [&](const PropertyValue& one) { return one.property == property; };
        const auto found = std::find_if(wanted.begin(), wanted.end(), hidden);
        if (found == wanted.end()) continue;
        if (found->value != rows_->current(*property)) rest << label(*properties_, *property);
        wanted.erase(found);
    }
    const QPointer<QtInspectorWidget> self(this);
    editor_->load(wanted);
    if (self && !rest.isEmpty())
        say(rows_->text("Not changed, because the filter hides it: %1").arg(rest.join(", ")));
}

// ---- filter ----

void QtInspectorWidget::showFilter() {
    if (!filter_) {
        filter_ = new FilterBar(this);
        static_cast<QVBoxLayout*>(layout())->insertWidget(0, filter_);
        filter_->placeBefore(view_);
        connect(filter_, &FilterBar::queryChanged, this, &QtInspectorWidget::filterRows);
        connect(filter_, &FilterBar::left, view_, [this] { view_->setFocus(); });
        connect(filter_, &FilterBar::closed, view_, [this] { view_->setFocus(); });
        updateTexts();
    }
    filter_->open();
}

// Only a new query, or new texts, hide and show rows: one that is set back to its default stays.
void QtInspectorWidget::filterRows() {
    if (!filter_) return;
    int heading = -1;
    for (int row = 0; row < rows_->rowCount(); ++row) {
        const QModelIndex index = rows_->index(row, 0);
        const bool isHeading = !rows_->property(index);
        const bool found = !isHeading && filter_->finds(index.data(RecordItemModel::SearchRole).toString(),
                                             index.data(RecordItemModel::ChangedRole).toBool());
        view_->setRowHidden(row, {}, !found);
        if (found && heading >= 0) view_->setRowHidden(heading, {}, false);
        if (isHeading) heading = row;
    }
    view_->leaveHiddenRow();
}

// ---- what is seen and spoken ----

void QtInspectorWidget::unhide(const std::vector<PropertyValue>& values) {
    int heading = -1;
    for (int row = 0; row < rows_->rowCount(); ++row) {
        const auto property = rows_->property(rows_->index(row, 0));
        if (!property) heading = row;
        if (!concerns(values, property) || !view_->isRowHidden(row, {})) continue;
        view_->setRowHidden(row, {}, false);
        if (heading >= 0) view_->setRowHidden(heading, {}, false);
    }
}

void QtInspectorWidget::reveal(const std::vector<PropertyValue>& values) {
    int row = 0;
    while (row < rows_->rowCount() &&
           (view_->isRowHidden(row, {}) || !concerns(values, rows_->property(rows_->index(row, 0)))))
        ++row;
    if (row == rows_->rowCount()) return;
    view_->layOutNow();
    const QModelIndex first = rows_->index(row, RecordItemModel::ValueColumn);
    auto* selection = view_->selectionModel();
    const bool isCurrent = view_->currentIndex() == first;
    if (!isCurrent && !selection->isRowSelected(row, {}))
        view_->setCurrentIndex(first);
    else
        selection->setCurrentIndex(first, QItemSelectionModel::NoUpdate);
    view_->scrollTo(first);
    if (isCurrent) announce(first);
}

// Qt sends the same event when another cell becomes the current one. A screen reader does not read out again the
// object that has its focus already, so the message below the table gets it in between.
void QtInspectorWidget::announce(const QModelIndex& current) {
    if (!QAccessible::isActive() || !view_->hasFocus()) return;
    auto* table = QAccessible::queryAccessibleInterface(view_)->tableInterface();
    int visible = 0;  // index among the visible rows; hidden rows have no accessible cells
    for (int row = 0; row < current.row(); ++row)
        if (!view_->isRowHidden(row, {})) ++visible;
    makeMessage();
    QAccessibleEvent between(message_, QAccessible::Focus);
    QAccessible::updateAccessibility(&between);
    QAccessibleEvent event(table->cellAt(visible, current.column()), QAccessible::Focus);
    QAccessible::updateAccessibility(&event);
}

void QtInspectorWidget::makeMessage() {
    if (message_) return;
    message_ = new QLabel(this);
    message_->setWordWrap(true);
    message_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    message_->setMargin(4);
    layout()->addWidget(message_);
    message_->hide();
}

void QtInspectorWidget::say(const QString& text) {
    makeMessage();
    message_->setText(message_->isHidden() ? text : message_->text() + '\n' + text);
    message_->show();
    if (!QAccessible::isActive() || !view_->hasFocus()) return;
    QAccessibleEvent event(message_, QAccessible::Focus);  // the only event of a label that is spoken
    QAccessible::updateAccessibility(&event);
}

void QtInspectorWidget::clearMessage() {
    if (!message_) return;
    message_->hide();
    message_->clear();
}

}  // namespace tiv::properties
