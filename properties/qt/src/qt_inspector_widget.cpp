#include "properties/qt/src/qt_inspector_widget.h"

#include "properties/qt/src/accessible_cells.h"
#include "properties/qt/src/data_model_signals.h"
#include "properties/qt/src/property_delegate.h"
#include "properties/qt/src/property_view.h"
#include "properties/qt/src/record_editor.h"
#include "properties/qt/src/record_item_model.h"

#include <QEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace tiv::properties {

// The view gets its parent when it is complete. Under a disabled parent, Qt would make its accessible interface in
// the constructor of QWidget, as that of a plain QWidget, and keep it.
QtInspectorWidget::QtInspectorWidget(QWidget* parent, std::shared_ptr<Properties> properties,
    std::shared_ptr<SelectionManager<container::model::Key>> selection,
    std::shared_ptr<container::model::Model> model, std::shared_ptr<const DefaultEditorFactory> editors,
    std::shared_ptr<const DefaultValidatorFactory> validators, InspectorHost host)
    : QWidget(parent),
      properties_(std::move(properties)),
      host_(std::move(host)),
      record_(std::make_shared<DataModelSignals>(std::move(model), std::move(selection),
          properties_->list.empty() ? nullptr : properties_->list.front()->record)),
      editor_(new RecordEditor(properties_, record_, std::move(validators), host_.isEditable, this)),
      rows_(new RecordItemModel(
          properties_, record_, [editor = editor_] { return editor->isEditable(); }, host_.keyword, this)),
      view_(new PropertyView(nullptr)),
      shown_(view_, rows_),
      announcer_(view_, &shown_),
      clipboard_{properties_.get(), &host_, editor_, rows_, &shown_, &announcer_},
      commands_{&host_, editor_, rows_, view_, &shown_, &clipboard_, &announcer_} {
    installAccessibleCells();
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
    // popup(), not exec(): the inspector may be destroyed while the menu is open.
    connect(view_, &QWidget::customContextMenuRequested, this, [this](const QPoint& position) {
        makeMenu(commands_, this)->popup(view_->viewport()->mapToGlobal(position));
    });
    connect(view_, &PropertyView::resetRequested, this, &QtInspectorWidget::onResetRequested);
    connect(rows_, &RecordItemModel::modelReset, this, &QtInspectorWidget::onRowsReset);
    connect(editor_, &RecordEditor::recordChanged, this, &QtInspectorWidget::onRecordChanged);
    connect(editor_, &RecordEditor::written, this, [this](const auto& values) { announcer_.reveal(values); });
    connect(editor_, &RecordEditor::refused, this, [this](const QString& reason) {
        announcer_.showMessage(reason);
    });
    connect(editor_, &RecordEditor::restored, this, [this](const auto& values) {
        shown_.unhide(values);
        announcer_.reveal(values);
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
        announcer_.clear();
        rows_->update();
        isStale_ = false;
    }
    emit settingsChanged();
}

void QtInspectorWidget::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    if (!std::exchange(isStale_, false)) return;
    announcer_.clear();
    rows_->update();
}

void QtInspectorWidget::onRowsReset() {
    for (int row = 0; row < rows_->rowCount(); ++row)
        if (!rows_->property(rows_->index(row, 0))) view_->setFirstColumnSpanned(row, {}, true);
    shown_.filter();
    updateTexts();
}

void QtInspectorWidget::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() != QEvent::LanguageChange) return;
    if (host_.retranslate) host_.retranslate();
    announcer_.clear();  // still in the old language, as are open menus
    for (auto* menu : findChildren<QMenu*>(QString(), Qt::FindDirectChildrenOnly)) menu->close();
    rows_->retranslate();
    shown_.filter();
    updateTexts();
}

void QtInspectorWidget::updateTexts() {
    if (host_.name) setAccessibleName(host_.name());
    view_->setAccessibleName(accessibleName());
    shown_.updateTexts();
    view_->setPlaceholder(rows_->rowCount() > 0 ? rows_->text("No option matches the filter.")
                                                : rows_->text("No option applies."));
    view_->measureAgain();
}

// ---- gestures ----

// Selected rows are set together, but only if the row is one of them.
void QtInspectorWidget::onEntered(const QModelIndex& index, const QVariant& value) {
    const auto property = rows_->property(index);
    if (!property) return;  // its row is gone
    PropertyList edited = shown_.targets();
    if (std::find(edited.begin(), edited.end(), property) == edited.end()) edited = {property};
    announcer_.clear();
    editor_->set(edited, value);
}

// Queued: an observer of the record may destroy the view, which is still handling the click.
void QtInspectorWidget::onResetRequested(const QModelIndex& index) {
    const auto property = rows_->property(index);
    if (!property) return;
    const auto reset = [this, property] {
        announcer_.clear();
        editor_->reset({property});
    };
    QMetaObject::invokeMethod(this, reset, Qt::QueuedConnection);
}

bool QtInspectorWidget::eventFilter(QObject* /*watched*/, QEvent* event) {
    const bool isOverride = event->type() == QEvent::ShortcutOverride;
    if (!isOverride && event->type() != QEvent::KeyPress) return false;
    const auto* key = static_cast<QKeyEvent*>(event);
    if (!(isOverride ? isClaimed(commands_, *key) : runCommand(commands_, *key))) return false;
    event->accept();
    return true;
}

}  // namespace tiv::properties
