#include "apps/echohost/project.h"

#include <bond/exceptions.h>

#include <QFile>
#include <QScopeGuard>

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace echohost {

namespace dbo = tiv::dbo;
using tiv::echo::EchoData;

namespace {

bool same(const std::optional<dbo::Task>& a, const std::optional<dbo::Task>& b) {
    if (!a || !b) return !a && !b;
    return a->name == b->name && a->programType == b->programType && a->settings == b->settings;
}

std::optional<dbo::Task> find(const std::vector<dbo::Task>& rows, const std::string& name) {
    const auto found =
        std::find_if(rows.begin(), rows.end(), [&](const dbo::Task& row) { return row.name == name; });
    return found == rows.end() ? std::nullopt : std::optional(*found);
}

dbo::ElementCounts elementCounts(int database) {
    dbo::ElementCounts counts{};
    dbo::hasQuads(database, counts.data());
    dbo::hasBrics(database, &counts[1]);
    dbo::hasBeams(database, &counts[2]);
    dbo::hasCables(database, &counts[3]);
    dbo::hasSprings(database, &counts[4]);
    return counts;
}

}  // namespace

// ---- a task ----

Task::Task(std::optional<dbo::Task> stored, dbo::Task row, int database)
    : stored_(std::move(stored)), row_(std::move(row)), database_(database) {}

EchoData& Task::echo() {
    if (echo_) return *echo_;
    echo_ = std::make_unique<EchoData>(static_cast<EchoData::ProgrammTypes>(row_.programType), database_);
    const QString settings = QString::fromStdString(row_.settings);
    try {
        echo_->insertXMLData(settings);
        const auto records = settings.split(QLatin1Char('\n'), Qt::SkipEmptyParts).size();
        if (records > 1) problem_ = QStringLiteral("%1 records instead of one").arg(records);
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
    row_.settings = unedited_.toStdString();
    problem_.clear();
}

dbo::Task Task::row() const {
    dbo::Task row = row_;
    if (isEdited()) row.settings = echo_->getXMLData().toStdString();
    return row;
}

bool Task::isChanged() const {
    return !same(stored_, row());
}

void Task::markStored() {
    if (isEdited()) replaceStored();
    stored_ = row_;
}

void Task::load(const dbo::Task& stored) {
    stored_ = row_ = stored;
    problem_.clear();
    echo_.reset();
}

// ---- the project ----

Project::Project(const QString& file) : file_(file), database_(dbo::openProject(file.toStdString())) {
    auto close = qScopeGuard([this] { dbo::closeProject(database_); });
    read(database_);
    close.dismiss();
}

Project::~Project() {
    dbo::closeProject(database_);
}

bool Project::hasTask(const QString& name) const {
    return std::any_of(tasks_.begin(), tasks_.end(), [&](const auto& task) { return task->name() == name; });
}

void Project::addTask(const QString& name, int programType, const std::optional<std::string>& settings) {
    const dbo::Task row{name.toStdString(), programType, settings.value_or(std::string())};
    auto task = std::make_unique<Task>(std::nullopt, row, database_);
    if (!settings) task->replaceStored();
    tasks_.push_back(std::move(task));
}

void Project::removeTask(std::size_t index) {
    if (const auto& stored = tasks_.at(index)->stored()) removed_.push_back(*stored);
    tasks_.erase(tasks_.begin() + static_cast<std::ptrdiff_t>(index));
}

bool Project::isChanged() const {
    return !removed_.empty() ||
           std::any_of(tasks_.begin(), tasks_.end(), [](const auto& task) { return task->isChanged(); });
}

bool Project::save(const Ask& ask) {
    // Opened again by name: the open handle still refers to a file that was deleted, moved or replaced.
    const int database = dbo::openProject(file_.toStdString());
    const auto close = qScopeGuard([&] { dbo::closeProject(database); });
    std::set<const Task*> dropped;
    for (;;) {
        std::vector<dbo::TaskChange> changes;
        for (const dbo::Task& row : removed_) changes.push_back({row, std::nullopt});
        for (const auto& task : tasks_)
            if (task->isChanged() && !dropped.contains(task.get()))
                changes.push_back({task->stored(), task->row()});
        const auto conflicts = dbo::changeTasks(database, changes);
        if (conflicts.empty()) break;
        if (!resolveConflicts({conflicts.begin(), conflicts.end()}, database, ask, dropped)) return false;
    }
    removed_.clear();
    for (const auto& task : tasks_) task->markStored();
    read(database);  // without those that were dropped
    return true;
}

// Rebases each refused change on the row that the file has now, or drops it. If the user cancels, nothing is
// changed.
bool Project::resolveConflicts(
    const std::set<std::string>& names, int database, const Ask& ask, std::set<const Task*>& dropped) {
    const auto rows = dbo::tasks(database);
    std::vector<std::function<void()>> steps;
    for (const std::string& name : names) {
        const auto theirs = find(rows, name);
        const bool isRemoved = find(removed_, name).has_value();
        Task* const task = isRemoved ? nullptr : changedTask(name);
        const auto mine = task ? std::optional(task->row()) : std::nullopt;
        const Keep keep = same(mine, theirs) ? Keep::Mine : ask(QString::fromStdString(name));
        if (keep == Keep::Neither) return false;
        if (isRemoved)
            steps.emplace_back([this, name, theirs, keep] {
                std::erase_if(removed_, [&](const dbo::Task& row) { return row.name == name; });
                if (theirs && keep == Keep::Mine) removed_.push_back(*theirs);
            });
        else if (keep == Keep::Mine)
            steps.emplace_back([this, task, name, theirs] {
                // Renamed onto a task that another program has added: that one is replaced.
                if (task->stored() && task->stored()->name != name) removed_.push_back(*task->stored());
                task->setStored(theirs);
            });
        else if (theirs)
            steps.emplace_back([task, theirs] { task->load(*theirs); });
        else
            steps.emplace_back([&dropped, task] { dropped.insert(task); });
    }
    for (const auto& step : steps) step();
    return true;
}

// The changed task that was read under the name, or else the one that has it now.
Task* Project::changedTask(const std::string& name) const {
    Task* result = nullptr;
    for (const auto& task : tasks_) {
        if (!task->isChanged()) continue;
        if (task->stored() && task->stored()->name == name) return task.get();
        if (task->row().name == name) result = task.get();
    }
    if (!result) throw std::logic_error("no changed task: " + name);
    return result;
}

void Project::read(int database) {
    std::vector<std::unique_ptr<Task>> tasks;
    for (const dbo::Task& row : dbo::tasks(database)) {
        const auto held = std::find_if(tasks_.begin(), tasks_.end(), [&](const auto& task) {
            return task && task->stored()->name == row.name;
        });
        if (held == tasks_.end()) {
            tasks.push_back(std::make_unique<Task>(row, row, database_));
            continue;
        }
        if (!same((*held)->stored(), row)) (*held)->load(row);
        tasks.push_back(std::move(*held));
    }
    tasks_ = std::move(tasks);
}

void Project::copyTo(const QString& file) const {
    const auto counts = elementCounts(database_);
    const int database = dbo::createProject(file.toStdString(), counts);
    try {
        const auto close = qScopeGuard([&] { dbo::closeProject(database); });
        std::vector<dbo::TaskChange> changes;
        for (const auto& task : tasks_) changes.push_back({std::nullopt, task->row()});
        dbo::changeTasks(database, changes);
    } catch (...) {
        QFile::remove(file);
        throw;
    }
}

}  // namespace echohost
