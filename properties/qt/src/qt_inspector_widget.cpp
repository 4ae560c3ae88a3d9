#include "properties/qt/src/qt_inspector_widget.h"

#include "properties/qt/src/editors.h"
#include "properties/qt/src/record_item_model.h"

#include <QEvent>
#include <QHeaderView>
#include <QLabel>
#include <QStyledItemDelegate>
#include <QTimer>
#include <QTreeView>
#include <QVBoxLayout>

#include <utility>

namespace tiv::properties {
namespace {

// Makes the editors; Qt hands values through their user property.
class PropertyDelegate : public QStyledItemDelegate {
 public:
    PropertyDelegate(RecordItemModel* rows, QObject* parent) : QStyledItemDelegate(parent), rows_(rows) {}

    QWidget* createEditor(
        QWidget* parent, const QStyleOptionViewItem&, const QModelIndex& index) const override {
        const auto property = rows_->property(index);
        if (!property) return nullptr;
        QWidget* editor = factory_.create(parent, property);
        editor->setAccessibleName(index.siblingAtColumn(RecordItemModel::LabelColumn).data().toString());
        if (auto* list = qobject_cast<NamedValueEditor*>(editor)) handle(list);
        return editor;
    }

 private:
    // A choice is written at once, and the list is open from the start.
    void handle(NamedValueEditor* list) const {
        auto* self = const_cast<PropertyDelegate*>(this);
        connect(list, &NamedValueEditor::chosen, self, [self, list] {
            emit self->commitData(list);
            emit self->closeEditor(list);
        });
        connect(list, &NamedValueEditor::cancelled, self, [self, list] { emit self->closeEditor(list); });
        QTimer::singleShot(0, list, &QComboBox::showPopup);
    }

    RecordItemModel* rows_;
    DefaultEditorFactory factory_;
};

}  // namespace

QtInspectorWidget::QtInspectorWidget(QWidget* parent, std::shared_ptr<Properties> properties,
    std::shared_ptr<SelectionManager<container::model::Key>> selection,
    std::shared_ptr<container::model::Model> model)
    : QWidget(parent),
      rows_(new RecordItemModel(std::move(properties), std::move(model), std::move(selection), this)),
      view_(new QTreeView(this)),
      message_(new QLabel(this)) {
    view_->setModel(rows_);
    view_->setItemDelegate(new PropertyDelegate(rows_, view_));
    view_->setRootIsDecorated(false);
    view_->setUniformRowHeights(true);
    view_->setAlternatingRowColors(true);
    view_->setAllColumnsShowFocus(true);
    view_->setEditTriggers(QAbstractItemView::EditKeyPressed | QAbstractItemView::AnyKeyPressed);
    view_->header()->setSectionsMovable(false);
    connect(view_, &QTreeView::clicked, this, &QtInspectorWidget::edit);
    message_->setWordWrap(true);
    message_->hide();
    connect(rows_, &RecordItemModel::refused, this, &QtInspectorWidget::showMessage);
    connect(rows_, &RecordItemModel::dataChanged, message_, &QWidget::hide);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(view_);
    layout->addWidget(message_);
    setFocusProxy(view_);
    arrange();
}

void QtInspectorWidget::setPropertyFilterFunction(const std::function<bool(const std::string&)>& shows) {
    rows_->setFilter(shows);
    arrange();
}

void QtInspectorWidget::setRetranslateFunction(std::function<void()> retranslate) {
    retranslate_ = std::move(retranslate);
}

void QtInspectorWidget::arrange() {
    for (int row = 0; row < rows_->rowCount(); ++row)
        if (!rows_->property(rows_->index(row, 0))) view_->setFirstColumnSpanned(row, {}, true);
    view_->resizeColumnToContents(RecordItemModel::LabelColumn);
}

void QtInspectorWidget::edit(const QModelIndex& index) {
    if (index.flags() & Qt::ItemIsEditable) view_->edit(index);
}

void QtInspectorWidget::showMessage(const QString& text) {
    message_->setText(text);
    message_->show();
}

void QtInspectorWidget::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() != QEvent::LanguageChange) return;
    if (retranslate_) retranslate_();
    rows_->retranslate();
    arrange();
}

}  // namespace tiv::properties
