#include "apps/echohost/main_window.h"

#include "apps/echohost/dialogs.h"
#include "apps/echohost/programs.h"
#include "apps/texts/output.h"
#include "apps/texts/reasons.h"
#include "ui_main_window.h"

#include <QActionGroup>
#include <QClipboard>
#include <QCloseEvent>
#include <QDropEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QHeaderView>
#include <QMimeData>
#include <QPushButton>
#include <QScreen>
#include <QSettings>
#include <QSignalBlocker>
#include <QUrl>

#include <algorithm>

namespace echohost {
namespace {

using tiv::apps::Languages;
using tiv::apps::translatedReason;

enum Choice { AsSet, AllOff, AllFull };

constexpr int recentCount = 8;
constexpr const char* recentKey = "recentProjects";
constexpr const char* geometryKey = "geometry";
constexpr const char* panelsKey = "panels";
constexpr const char* languageKey = "language";
constexpr const char* darkKey = "dark";

QString projectFile(const QString& chosen) {
    const QLatin1String suffix(".tiv");
    return chosen.isEmpty() || chosen.endsWith(suffix, Qt::CaseInsensitive) ? chosen : chosen + suffix;
}

// The path of a single dropped file; empty for anything else.
QString droppedFile(const QMimeData* data) {
    const auto urls = data->urls();
    return urls.size() == 1 ? urls.front().toLocalFile() : QString();
}

}  // namespace

MainWindow::MainWindow()
    : previousReporter_(tiv::smartassert::setReporter([this](const tiv::smartassert::Report& report) {
          const bool isLevel = report.source == "echo/src/utils" && report.line == 48;
          const auto expression = QString::fromStdString(std::string(report.expression));
          statusBar()->showMessage(isLevel ? tr("Options with a numeric level write no ECHO line.")
                                           : tr("Assertion failed: %1").arg(expression),
              10000);
      })),
      ui_(std::make_unique<Ui::MainWindow>()) {
    tiv::dbo::setBusyTimeout(std::chrono::milliseconds(500));  // the window is blocked while it waits
    const QString language = QSettings().value(languageKey).toString();
    languages_.choose(language.isEmpty() ? QLocale() : QLocale(language));
    ui_->setupUi(this);
    ui_->addButton->setDefaultAction(ui_->addTask);
    ui_->removeButton->setDefaultAction(ui_->removeTask);
    ui_->copyButton->setDefaultAction(ui_->copyLines);
    ui_->tasks->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    ui_->tasks->header()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
    ui_->messageBar->setBackgroundRole(QPalette::ToolTipBase);
    ui_->message->setForegroundRole(QPalette::ToolTipText);
    ui_->preview->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    ui_->keywordLanguage->setCurrentIndex(Languages::current().language() == QLocale::German ? 0 : 1);
    for (QWidget* widget :
        std::initializer_list<QWidget*>{ui_->addButton, ui_->heading, ui_->keywordLanguage})
        widget->setMinimumHeight(ui_->keywordLanguage->sizeHint().height());  // aligns the views below them
    fillLanguageMenu();
    connectActions();
    restoreSettings();
    refresh();
}

MainWindow::~MainWindow() {
    tiv::smartassert::setReporter(previousReporter_);
}

void MainWindow::connectActions() {
    const std::pair<QAction*, void (MainWindow::*)()> commands[] = {
        {ui_->newProject, &MainWindow::newProject},
        {ui_->openProject, &MainWindow::chooseProject},
        {ui_->save, &MainWindow::saveProject},
        {ui_->saveAs, &MainWindow::saveProjectAs},
        {ui_->exportLines, &MainWindow::exportLines},
        {ui_->addTask, &MainWindow::addTask},
        {ui_->renameTask, &MainWindow::renameTask},
        {ui_->duplicateTask, &MainWindow::duplicateTask},
        {ui_->removeTask, &MainWindow::removeTask},
    };
    for (const auto& [action, slot] : commands)
        connect(action, &QAction::triggered, this, [this, slot = slot] {
            attempt([this, slot] { (this->*slot)(); });
        });
    const auto show = [this] { attempt([this] { showTask(); }); };
    connect(ui_->tasks, &QTreeWidget::currentItemChanged, this, show);
    connect(ui_->tasks, &QTreeWidget::itemActivated, this, [this, show] {
        show();
        ui_->inspectors->currentWidget()->setFocus();
    });
    connect(ui_->useDefaults, &QPushButton::clicked, this, [this] {
        attempt([this] { currentTask()->replaceStored(); });
    });
    connect(ui_->copyLines, &QAction::triggered, this, [this] {
        QGuiApplication::clipboard()->setText(lines());
    });
    for (QComboBox* box : {ui_->keywordLanguage, ui_->choice})
        connect(box, QOverload<int>::of(&QComboBox::currentIndexChanged), this, &MainWindow::refresh);
    connect(ui_->dark, &QAction::toggled, this, [this](bool dark) { appearance_.setDark(dark); });
    connect(ui_->dark, &QAction::triggered, this, [](bool dark) { QSettings().setValue(darkKey, dark); });
    connect(ui_->recentMenu, &QMenu::aboutToShow, this, &MainWindow::fillRecentMenu);
}

// ---- settings of the window ----

void MainWindow::restoreSettings() {
    fillRecentMenu();
    const QSettings settings;
    ui_->dark->setChecked(settings.value(darkKey).toBool());
    if (!restoreGeometry(settings.value(geometryKey).toByteArray()))
        resize((QSize(75, 36) * fontMetrics().height())
                   .boundedTo(QGuiApplication::primaryScreen()->availableSize()));
    if (!ui_->panels->restoreState(settings.value(panelsKey).toByteArray()))
        ui_->panels->setSizes({210, 490, 460});
}

void MainWindow::setDark() {
    ui_->dark->setChecked(true);
}

void MainWindow::fillRecentMenu() {
    ui_->recentMenu->clear();
    for (const QString& file : QSettings().value(recentKey).toStringList()) {
        QString text = QDir::toNativeSeparators(file);
        ui_->recentMenu->addAction(text.replace('&', QLatin1String("&&")), this, [this, file] {
            if (confirmClosing()) openProject(file);
        });
    }
}

// ---- languages ----

void MainWindow::fillLanguageMenu() {
    auto* group = new QActionGroup(this);
    for (const QLocale& locale : Languages::offered()) {
        const bool isEnglish = locale.language() == QLocale::English;
        QAction* action =
            ui_->languageMenu->addAction(isEnglish ? QStringLiteral("English") : locale.nativeLanguageName());
        action->setCheckable(true);
        action->setChecked(locale == Languages::current());
        group->addAction(action);
        connect(action, &QAction::triggered, this, [this, locale] {
            languages_.choose(locale);
            QSettings().setValue(languageKey, locale.name());
        });
    }
}

void MainWindow::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (event->type() != QEvent::LanguageChange) return;
    ui_->retranslateUi(this);
    refresh();
}

// ---- the project ----

void MainWindow::attempt(const std::function<void()>& action) {
    try {
        action();
    } catch (const std::exception& problem) {
        ask(this,
            QMessageBox::Critical,
            translatedReason(QString::fromUtf8(problem.what())),
            QMessageBox::Ok,
            QMessageBox::Ok);
    }
    refresh();
}

void MainWindow::openProject(const QString& file) {
    attempt([&] {
        project_ = std::make_unique<Project>(file);
        const QString path = QFileInfo(file).absoluteFilePath();
        QStringList recent = QSettings().value(recentKey).toStringList();
        recent.removeAll(path);
        recent.prepend(path);
        QSettings().setValue(recentKey, QStringList(recent.mid(0, recentCount)));
        listTasks({});
        ui_->inspectors->currentWidget()->setFocus();
    });
}

QString MainWindow::projectFolder() const {
    return project_ ? QFileInfo(project_->file()).path() : QString();
}

QString MainWindow::askNewFile(const QString& title) {
    return projectFile(QFileDialog::getSaveFileName(this,
        title,
        projectFolder(),
        tr("Projects (*.tiv)"),
        nullptr,
        QFileDialog::DontConfirmOverwrite));  // a project is never overwritten
}

void MainWindow::newProject() {
    if (!confirmClosing()) return;
    const auto counts = askElementCounts(this);
    if (!counts) return;
    const QString file = askNewFile(tr("New project"));
    if (file.isEmpty()) return;
    tiv::dbo::closeProject(tiv::dbo::createProject(file.toStdString(), *counts));
    openProject(file);
}

void MainWindow::chooseProject() {
    if (!confirmClosing()) return;
    const QString file =
        QFileDialog::getOpenFileName(this, tr("Open project"), projectFolder(), tr("Projects (*.tiv)"));
    if (!file.isEmpty()) openProject(file);
}

void MainWindow::saveProject() {
    const QString selected = currentTask() ? currentTask()->name() : QString();
    try {
        if (project_->save([this](const QString& task) { return askWhoseToKeep(task); })) listTasks(selected);
        return;
    } catch (const std::exception& problem) {
        const int answer = ask(this,
            QMessageBox::Critical,
            translatedReason(QString::fromUtf8(problem.what())),
            {ui_->saveAs->text()});
        if (answer == 0) saveProjectAs();
    }
}

Project::Keep MainWindow::askWhoseToKeep(const QString& task) {
    const int answer = ask(this,
        QMessageBox::Warning,
        tr("You have changed the task \"%1\". Another program has changed or removed it, too.").arg(task),
        {tr("Keep &mine"), tr("Take &theirs")});
    constexpr Project::Keep keeps[] = {Project::Keep::Mine, Project::Keep::Theirs};
    return answer < 0 ? Project::Keep::Neither : keeps[answer];
}

void MainWindow::saveProjectAs() {
    const QString file = askNewFile(tr("Save project as"));
    if (file.isEmpty()) return;
    const int row = currentRow();
    project_->copyTo(file);
    openProject(file);
    ui_->tasks->setCurrentItem(ui_->tasks->topLevelItem(row));
}

bool MainWindow::confirmClosing() {
    if (!project_ || !project_->isChanged()) return true;
    const auto answer = ask(this,
        QMessageBox::Warning,
        tr("%1 has unsaved changes.").arg(QFileInfo(project_->file()).fileName()),
        QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel,
        QMessageBox::Save);
    if (answer == QMessageBox::Save) attempt([this] { saveProject(); });
    return answer == QMessageBox::Discard || !project_->isChanged();
}

void MainWindow::closeEvent(QCloseEvent* event) {
    event->setAccepted(confirmClosing());
    if (!event->isAccepted()) return;
    QSettings settings;
    settings.setValue(geometryKey, saveGeometry());
    settings.setValue(panelsKey, ui_->panels->saveState());
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event) {
    if (!droppedFile(event->mimeData()).isEmpty()) event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent* event) {
    const QString file = droppedFile(event->mimeData());
    event->acceptProposedAction();
    // Queued: a message box here would block the program from which the file was dragged.
    QMetaObject::invokeMethod(
        this,
        [this, file] {
            if (confirmClosing()) openProject(file);
        },
        Qt::QueuedConnection);
}

void MainWindow::exportLines() {
    const QString file = QFileDialog::getSaveFileName(this, tr("Export ECHO lines"), projectFolder());
    if (!file.isEmpty()) tiv::apps::replaceFile(file, lines().toUtf8());
}

// ---- its tasks ----

int MainWindow::currentRow() const {
    return ui_->tasks->indexOfTopLevelItem(ui_->tasks->currentItem());
}

Task* MainWindow::currentTask() const {
    const int row = currentRow();
    return row < 0 ? nullptr : project_->tasks()[static_cast<std::size_t>(row)].get();
}

void MainWindow::listTasks(const QString& selected) {
    {
        const QSignalBlocker quiet(ui_->tasks);
        ui_->tasks->clear();
        for (const auto& task : project_->tasks()) {
            auto* item = new QTreeWidgetItem(ui_->tasks);
            if (!ui_->tasks->currentItem() || task->name() == selected) ui_->tasks->setCurrentItem(item);
        }
    }
    showTask();
}

void MainWindow::showTask() {
    Task* task = currentTask();
    // First, because making the table can throw.
    if (!task || !task->madeEcho()) ui_->inspectors->setCurrentWidget(ui_->nothing);
    if (task) ui_->inspectors->setCurrentWidget(pageOf(task->echo()));
}

QWidget* MainWindow::pageOf(tiv::echo::EchoData& echo) {
    if (QWidget* page = pages_[&echo]) return page;
    QWidget* inspector = echo.createPropertyInspector(this);
    // By name: the inspector's class is internal to the library.
    connect(inspector, SIGNAL(settingsChanged()), this, SLOT(refresh()));
    connect(&echo, &QObject::destroyed, inspector, [inspector] { delete inspector; });
    ui_->inspectors->addWidget(inspector);
    // The new widgets are at the end of the tab order. The widgets on their right follow them.
    QWidget* last = previousInFocusChain();
    while (last->focusPolicy() == Qt::NoFocus) last = last->previousInFocusChain();
    for (QWidget* widget :
        std::initializer_list<QWidget*>{ui_->keywordLanguage, ui_->choice, ui_->copyButton, ui_->preview}) {
        setTabOrder(last, widget);
        last = widget;
    }
    pages_[&echo] = inspector;
    return inspector;
}

void MainWindow::addTask() {
    const auto task = askNewTask(this, [this](const QString& name) { return project_->hasTask(name); });
    if (!task) return;
    project_->addTask(task->name, task->programType);
    listTasks(task->name);
}

void MainWindow::renameTask() {
    const QString present = currentTask()->name();
    const auto name = askTaskName(this, tr("Rename the task"), present, [&](const QString& typed) {
        return typed != present && project_->hasTask(typed);
    });
    if (name) currentTask()->rename(*name);
}

void MainWindow::duplicateTask() {
    const auto name =
        askTaskName(this, tr("Duplicate the task"), currentTask()->name(), [this](const QString& typed) {
            return project_->hasTask(typed);
        });
    if (!name) return;
    const auto row = currentTask()->row();
    project_->addTask(*name, row.programType, row.settings);
    listTasks(*name);
}

void MainWindow::removeTask() {
    const int row = currentRow();
    const auto answer = ask(this,
        QMessageBox::Question,
        tr("Remove the task \"%1\" and its settings?").arg(currentTask()->name()),
        QMessageBox::Yes | QMessageBox::No,
        QMessageBox::No);
    if (answer != QMessageBox::Yes) return;
    const auto& tasks = project_->tasks();
    project_->removeTask(static_cast<std::size_t>(row));
    const auto next = std::min(static_cast<std::size_t>(row), tasks.size() - 1);
    listTasks(tasks.empty() ? QString() : tasks[next]->name());
}

// ---- what depends on project and options ----

QString MainWindow::lines() const {
    Task* task = currentTask();
    if (!task || !task->madeEcho()) return {};
    const int choice = ui_->choice->currentIndex();
    QString text;
    for (const QString& line :
        task->madeEcho()->getTELINP(choice != AsSet, choice == AllFull, ui_->keywordLanguage->currentIndex()))
        text += line + '\n';
    return text;
}

void MainWindow::refresh() {
    const Task* task = currentTask();
    const QString file = project_ ? QFileInfo(project_->file()).fileName() : QString();
    setWindowTitle(project_ ? QString(file).replace(QLatin1String("[*]"), QLatin1String("[*][*]")) + "[*]"
                            : QCoreApplication::applicationName());
    setWindowModified(project_ && project_->isChanged());
    ui_->save->setEnabled(isWindowModified());
    for (QAction* action : {ui_->saveAs, ui_->addTask}) action->setEnabled(project_ != nullptr);
    for (QAction* action :
        {ui_->exportLines, ui_->copyLines, ui_->renameTask, ui_->duplicateTask, ui_->removeTask})
        action->setEnabled(task);

    for (int row = 0; row < ui_->tasks->topLevelItemCount(); ++row) {
        const Task& shown = *project_->tasks()[static_cast<std::size_t>(row)];
        QTreeWidgetItem* item = ui_->tasks->topLevelItem(row);
        item->setText(0, shown.name());
        item->setText(1, programName(shown.programType()));
        item->setToolTip(1, programDescription(shown.programType()));
    }
    ui_->heading->setText(task ? programDescription(task->programType()) : tr("No task is selected."));
    const QString problem = task ? task->problem() : QString();
    ui_->messageBar->setVisible(!problem.isEmpty());
    ui_->message->setText(
        tr("The stored settings cannot be read: %1. They are kept until you change an option "
           "or use the defaults.")
            .arg(translatedReason(problem)));
    ui_->preview->setPlainText(lines());
}

}  // namespace echohost
