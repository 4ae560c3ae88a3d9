#include "apps/echohost/dialogs.h"

#include "apps/echohost/programs.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

#include <algorithm>
#include <array>
#include <limits>
#include <vector>

namespace echohost {
namespace {

QString text(const char* source) {
    return QCoreApplication::translate("Dialog", source);
}

// Rows of fields above OK and Cancel.
class Form {
 public:
    Form(QWidget* parent, const QString& title) : dialog_(parent) {
        dialog_.setWindowTitle(title);
        layout_->addLayout(rows_);
        QObject::connect(buttons_, &QDialogButtonBox::accepted, &dialog_, &QDialog::accept);
        QObject::connect(buttons_, &QDialogButtonBox::rejected, &dialog_, &QDialog::reject);
    }

    void addRow(const char* label, QWidget* field) { rows_->addRow(text(label), field); }

    // A field for a name. OK is disabled while the name is empty or taken.
    QLineEdit* addName(const QString& suggestion, const IsTaken& isTaken) {
        auto* name = new QLineEdit;
        name->setObjectName(QStringLiteral("name"));
        auto* remark = new QLabel;
        remark->setTextFormat(Qt::PlainText);
        remark->setWordWrap(true);
        addRow(QT_TRANSLATE_NOOP("Dialog", "&Name:"), name);
        rows_->addRow(QString(), remark);
        QPushButton* ok = buttons_->button(QDialogButtonBox::Ok);
        const auto check = [=](const QString& typed) {
            const bool taken = isTaken(typed.trimmed());
            ok->setDisabled(taken || typed.trimmed().isEmpty());
            remark->setText(
                taken ? text(QT_TRANSLATE_NOOP("Dialog", "A task of this name already exists.")) : QString());
        };
        QObject::connect(name, &QLineEdit::textChanged, name, check);
        name->setText(suggestion);
        name->selectAll();
        check(suggestion);
        return name;
    }

    bool isAccepted() {
        layout_->addWidget(buttons_);  // behind the fields in the tab order, too: the first one has the focus
        return dialog_.exec() == QDialog::Accepted;
    }

 private:
    QDialog dialog_;
    QVBoxLayout* layout_ = new QVBoxLayout(&dialog_);
    QFormLayout* rows_ = new QFormLayout;
    QDialogButtonBox* buttons_ = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
};

}  // namespace

QMessageBox::StandardButton ask(QWidget* parent, QMessageBox::Icon icon, const QString& text,
    QMessageBox::StandardButtons buttons, QMessageBox::StandardButton harmless) {
    QMessageBox box(icon, QCoreApplication::applicationName(), text, buttons, parent);
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(harmless);
    return static_cast<QMessageBox::StandardButton>(box.exec());
}

int ask(QWidget* parent, QMessageBox::Icon icon, const QString& text, const QStringList& answers) {
    QMessageBox box(icon, QCoreApplication::applicationName(), text, QMessageBox::Cancel, parent);
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(QMessageBox::Cancel);
    std::vector<QAbstractButton*> buttons;
    for (const QString& answer : answers) buttons.push_back(box.addButton(answer, QMessageBox::AcceptRole));
    box.exec();
    const auto clicked = std::find(buttons.begin(), buttons.end(), box.clickedButton());
    return clicked == buttons.end() ? -1 : static_cast<int>(clicked - buttons.begin());
}

std::optional<tiv::dbo::ElementCounts> askElementCounts(QWidget* parent) {
    Form form(parent, text(QT_TRANSLATE_NOOP("Dialog", "Elements of the new project")));
    std::array<QSpinBox*, 5> fields{};
    const std::array<const char*, 5> labels = {QT_TRANSLATE_NOOP("Dialog", "&Quadrilaterals:"),
        QT_TRANSLATE_NOOP("Dialog", "S&olids:"),
        QT_TRANSLATE_NOOP("Dialog", "&Beams:"),
        QT_TRANSLATE_NOOP("Dialog", "&Cables:"),
        QT_TRANSLATE_NOOP("Dialog", "&Springs:")};
    for (std::size_t kind = 0; kind < fields.size(); ++kind) {
        fields[kind] = new QSpinBox;
        fields[kind]->setMaximum(std::numeric_limits<int>::max());
        form.addRow(labels[kind], fields[kind]);
    }
    if (!form.isAccepted()) return {};
    tiv::dbo::ElementCounts counts{};
    for (std::size_t kind = 0; kind < fields.size(); ++kind) counts[kind] = fields[kind]->value();
    return counts;
}

std::optional<QString> askTaskName(
    QWidget* parent, const QString& title, const QString& suggestion, const IsTaken& isTaken) {
    Form form(parent, title);
    const QLineEdit* name = form.addName(suggestion, isTaken);
    if (!form.isAccepted()) return {};
    return name->text().trimmed();
}

std::optional<NewTask> askNewTask(QWidget* parent, const IsTaken& isTaken) {
    Form form(parent, text(QT_TRANSLATE_NOOP("Dialog", "New analysis task")));
    const QLineEdit* name = form.addName(QString(), isTaken);
    auto* program = new QComboBox;
    program->setMinimumWidth(60);  // the descriptions are long
    for (int type = 0; type < programCount(); ++type)
        program->addItem(QStringLiteral("%1 \u2013 %2").arg(programName(type), programDescription(type)));
    form.addRow(QT_TRANSLATE_NOOP("Dialog", "&Program:"), program);
    if (!form.isAccepted()) return {};
    return NewTask{name->text().trimmed(), program->currentIndex()};
}

}  // namespace echohost
