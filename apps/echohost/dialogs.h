// The dialogs and message boxes of the sample host.
#pragma once

#include <tiv/dbo/dbo.h>

#include <QMessageBox>
#include <QString>

#include <functional>
#include <optional>

namespace echohost {

// `harmless` is the default button.
QMessageBox::StandardButton ask(QWidget* parent, QMessageBox::Icon icon, const QString& text,
    QMessageBox::StandardButtons buttons, QMessageBox::StandardButton harmless);
// The index of the answer that was clicked; -1 for Cancel, the default.
int ask(QWidget* parent, QMessageBox::Icon icon, const QString& text, const QStringList& answers);

// The following return nothing when the user cancels.

// How many elements of each kind a new project has.
std::optional<tiv::dbo::ElementCounts> askElementCounts(QWidget* parent);

using IsTaken = std::function<bool(const QString& name)>;

// The name is not empty and not taken.
std::optional<QString> askTaskName(
    QWidget* parent, const QString& title, const QString& suggestion, const IsTaken& isTaken);

struct NewTask {
    QString name;
    int programType;
};

std::optional<NewTask> askNewTask(QWidget* parent, const IsTaken& isTaken);

}  // namespace echohost
