#include "apps/echohost/dialogs.h"

#include "apps/echohost/programs.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>

#include <limits>

namespace echohost {
namespace {

QString text(const char* source) {
    return QCoreApplication::translate("Dialog", source);
}

// Shows the rows above OK and Cancel. Whether it was OK.
bool accepted(QDialog& dialog, QFormLayout& rows) {
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    rows.addRow(buttons);
    QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    return dialog.exec() == QDialog::Accepted;
}

}  // namespace

std::optional<ElementCounts> askElementCounts(QWidget* parent) {
    QDialog dialog(parent);
    dialog.setWindowTitle(text(QT_TRANSLATE_NOOP("Dialog", "Elements of the new project")));
    QFormLayout rows(&dialog);
    std::array<QSpinBox*, 5> fields{};
    const std::array<const char*, 5> labels = {QT_TRANSLATE_NOOP("Dialog", "&Quadrilaterals:"),
        QT_TRANSLATE_NOOP("Dialog", "S&olids:"),
        QT_TRANSLATE_NOOP("Dialog", "&Beams:"),
        QT_TRANSLATE_NOOP("Dialog", "&Cables:"),
        QT_TRANSLATE_NOOP("Dialog", "&Springs:")};
    for (std::size_t kind = 0; kind < fields.size(); ++kind) {
        fields[kind] = new QSpinBox;
        fields[kind]->setMaximum(std::numeric_limits<int>::max());
        rows.addRow(text(labels[kind]), fields[kind]);
    }
    if (!accepted(dialog, rows)) return {};
    ElementCounts counts{};
    for (std::size_t kind = 0; kind < fields.size(); ++kind) counts[kind] = fields[kind]->value();
    return counts;
}

std::optional<NewTask> askNewTask(QWidget* parent) {
    QDialog dialog(parent);
    dialog.setWindowTitle(text(QT_TRANSLATE_NOOP("Dialog", "New analysis task")));
    QFormLayout rows(&dialog);
    auto* name = new QLineEdit;
    auto* program = new QComboBox;
    for (int type = 0; type < programCount(); ++type)
        program->addItem(QStringLiteral("%1 \u2013 %2").arg(programName(type), programDescription(type)));
    rows.addRow(text(QT_TRANSLATE_NOOP("Dialog", "&Name:")), name);
    rows.addRow(text(QT_TRANSLATE_NOOP("Dialog", "&Program:")), program);
    if (!accepted(dialog, rows)) return {};
    return NewTask{name->text().trimmed(), program->currentIndex()};
}

}  // namespace echohost
