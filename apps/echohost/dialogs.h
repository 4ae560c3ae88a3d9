// The dialogs that ask for the data of new projects and tasks. They return nothing when the user cancels.
#pragma once

#include <tiv/dbo/dbo.h>

#include <QString>

#include <functional>
#include <optional>

class QWidget;

namespace echohost {

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
