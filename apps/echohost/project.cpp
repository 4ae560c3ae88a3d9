#include "apps/echohost/project.h"

#include <bond/exceptions.h>

#include <QCoreApplication>
#include <QFile>
#include <QScopeGuard>

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace echohost {

namespace dbo = tiv::dbo;
using tiv::echo::EchoData;

Task::Task(dbo::Task stored, int database) : task_(std::move(stored)), database_(database) {}

EchoData& Task::echo() {
    if (echo_) return *echo_;
    echo_ = std::make_unique<EchoData>(static_cast<EchoData::ProgrammTypes>(task_.programType), database_);
    const QString settings = QString::fromStdString(task_.settings);
    try {
        echo_->insertXMLData(settings);
        const auto records = settings.split(QLatin1Char('\n'), Qt::SkipEmptyParts).size();
        if (records > 1)
            problem_ = QCoreApplication::translate("Project", "%1 records instead of one").arg(records);
    } catch (const bond::Exception& refusal) {
        problem_ = QString::fromUtf8(refusal.what());
    }  // with a problem, the options have their defaults now
    unedited_ = echo_->getXMLData();
    return *echo_;
}

bool Task::isEdited() const {
    return echo_ && echo_->getXMLData() != unedited_;
}

QString Task::problem() const {
    return isEdited() ? QString() : problem_;
}

void Task::replaceStored() {
    unedited_ = echo().getXMLData();
    task_.settings = unedited_.toStdString();
    problem_.clear();
    isStored_ = false;
}

void Task::save() {
    if (!isChanged()) return;
    replaceStored();
    dbo::storeTask(database_, task_);
    isStored_ = true;
}

void createProject(const QString& file, const ElementCounts& counts) {
    const int database = dbo::createProject(file.toStdString());
    try {
        const auto close = qScopeGuard([&] { dbo::closeProject(database); });
        for (std::size_t kind = 0; kind < counts.size(); ++kind)
            if (counts[kind] > 0)
                dbo::addElements(database, static_cast<dbo::ElementKind>(kind), counts[kind]);
    } catch (...) {
        QFile::remove(file);
        throw;
    }
}

Project::Project(const QString& file) : file_(file), database_(dbo::openProject(file.toStdString())) {
    for (dbo::Task& task : dbo::tasks(database_))
        tasks_.push_back(std::make_unique<Task>(std::move(task), database_));
}

Project::~Project() {
    dbo::closeProject(database_);
}

void Project::addTask(const QString& name, int programType) {
    if (name.isEmpty())
        throw std::invalid_argument(
            QCoreApplication::translate("Project", "A task needs a name.").toStdString());
    for (const auto& task : tasks_)
        if (task->name() == name)
            throw std::invalid_argument(
                QCoreApplication::translate("Project", "There is a task \"%1\" already.")
                    .arg(name)
                    .toStdString());
    tasks_.push_back(std::make_unique<Task>(dbo::Task{name.toStdString(), programType, {}}, database_));
    tasks_.back()->replaceStored();
}

void Project::removeTask(std::size_t index) {
    removed_.push_back(tasks_.at(index)->name().toStdString());
    tasks_.erase(tasks_.begin() + static_cast<std::ptrdiff_t>(index));
}

bool Project::isChanged() const {
    return !removed_.empty() ||
           std::any_of(tasks_.begin(), tasks_.end(), [](const auto& task) { return task->isChanged(); });
}

void Project::save() {
    for (; !removed_.empty(); removed_.pop_back()) dbo::removeTask(database_, removed_.back());
    for (const auto& task : tasks_) task->save();
}

}  // namespace echohost
