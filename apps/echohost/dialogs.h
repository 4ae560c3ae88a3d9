// The questions that the window asks before it makes something. Nothing is returned when the engineer
// cancels.
#pragma once

#include "apps/echohost/project.h"

#include <QString>

#include <optional>

class QWidget;

namespace echohost {

// How many elements of each kind a new project has.
std::optional<ElementCounts> askElementCounts(QWidget* parent);

struct NewTask {
    QString name;
    int programType;
};

std::optional<NewTask> askNewTask(QWidget* parent);

}  // namespace echohost
