#include "apps/echohost/main_window.h"

#include "apps/echohost/appearance.h"
#include "apps/echohost/dialogs.h"
#include "apps/echohost/programs.h"

#include <QActionGroup>
#include <QCloseEvent>
#include <QComboBox>
#include <QCoreApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QFontDatabase>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLibraryInfo>
#include <QMenuBar>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSaveFile>
#include <QSignalBlocker>
#include <QSplitter>
#include <QStackedWidget>
#include <QStatusBar>
#include <QToolButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <stdexcept>

namespace echohost {
namespace {

enum Choice { AsSet, AllOff, AllFull };

// A column of the window: a line of controls, and views below it.
QVBoxLayout* makePanel(QSplitter* parent, const std::vector<QWidget*>& controls) {
    auto* line = new QHBoxLayout;
    for (QWidget* control : controls) {
        control->setMinimumHeight(QComboBox().sizeHint().height());  // the views begin at one height
        line->addWidget(control);
    }
    line->addStretch();
    auto* panel = new QWidget;
    parent->addWidget(panel);
    auto* layout = new QVBoxLayout(panel);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(line);
    return layout;
}

QToolButton* makeButton(QAction* action) {
    auto* button = new QToolButton;
    button->setDefaultAction(action);
    return button;
}

// Before English, in which the texts are written.
bool wantsGerman(const QLocale& locale) {
    for (const QString& name : locale.uiLanguages()) {
        const QLocale::Language language = QLocale(name).language();
        if (language == QLocale::German) return true;
        if (language == QLocale::English) return false;
    }
    return false;
}

}  // namespace

MainWindow::MainWindow()
    : previousReporter_(tiv::smartassert::setReporter([this](const tiv::smartassert::Report& report) {
          const auto expression = QString::fromStdString(std::string(report.expression));
          statusBar()->showMessage(tr("Assertion failed: %1").arg(expression), 10000);
      })) {
    setLanguage(QLocale());
    makeMenus();
    makePanels();
    retranslate();
    resize(1160, 560);
}

MainWindow::~MainWindow() {
    tiv::smartassert::setReporter(previousReporter_);
}

// ---- the parts of the window ----

void MainWindow::setText(QObject* widget, const char* text) {
    sources_.emplace_back(widget, text);
}

QMenu* MainWindow::makeMenu(const char* title) {
    QMenu* menu = menuBar()->addMenu(QString());
    setText(menu->menuAction(), title);
    return menu;
}

QAction* MainWindow::makeAction(QMenu* menu, const char* text, const QKeySequence& keys, Slot slot) {
    QAction* action = menu->addAction(QString());
    action->setShortcut(keys);
    setText(action, text);
    connect(action, &QAction::triggered, this, [this, slot] { attempt([this, slot] { (this->*slot)(); }); });
    return action;
}

// Undo and redo have no entry: they belong to the inspector that has the focus, and so do their keys.
void MainWindow::makeMenus() {
    QMenu* file = makeMenu(QT_TR_NOOP("&File"));
    makeAction(file, QT_TR_NOOP("&New project…"), QKeySequence::New, &MainWindow::newProject);
    makeAction(file, QT_TR_NOOP("&Open project…"), QKeySequence::Open, &MainWindow::chooseProject);
    save_ = makeAction(file, QT_TR_NOOP("&Save"), QKeySequence::Save, &MainWindow::saveProject);
    export_ = makeAction(file, QT_TR_NOOP("&Export ECHO lines…"), {}, &MainWindow::exportLines);
    file->addSeparator();
    QAction* quit = file->addAction(QString(), this, &QWidget::close, QKeySequence::Quit);
    setText(quit, QT_TR_NOOP("&Quit"));

    QMenu* task = makeMenu(QT_TR_NOOP("&Task"));
    add_ = makeAction(task, QT_TR_NOOP("&Add…"), {}, &MainWindow::addTask);
    remove_ = makeAction(task, QT_TR_NOOP("&Remove"), {}, &MainWindow::removeTask);

    QMenu* view = makeMenu(QT_TR_NOOP("&View"));
    QMenu* languages = view->addMenu(QString());
    setText(languages->menuAction(), QT_TR_NOOP("&Language"));
    auto* group = new QActionGroup(this);
    for (const auto language : {QLocale::English, QLocale::German}) {
        const QLocale locale(language);
        QAction* action = languages->addAction(language == QLocale::German ? "Deutsch" : "English");
        action->setCheckable(true);
        action->setChecked((QLocale().language() == QLocale::German) == (language == QLocale::German));
        group->addAction(action);
        connect(action, &QAction::triggered, this, [this, locale] { setLanguage(locale); });
    }
    QAction* dark = view->addAction(QString());
    dark->setCheckable(true);
    dark->setChecked(isDark());
    setText(dark, QT_TR_NOOP("&Dark"));
    connect(dark, &QAction::toggled, this, &setDark);
}

void MainWindow::makePanels() {
    auto* panels = new QSplitter;
    panels->setContentsMargins(6, 6, 6, 0);
    setCentralWidget(panels);

    tasks_ = new QTreeWidget;
    tasks_->setColumnCount(2);
    tasks_->setRootIsDecorated(false);
    tasks_->header()->setStretchLastSection(false);
    tasks_->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    tasks_->header()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
    connect(tasks_, &QTreeWidget::currentItemChanged, this, [this] { attempt([this] { showTask(); }); });
    makePanel(panels, {makeButton(add_), makeButton(remove_)})->addWidget(tasks_);

    messageBar_ = new QFrame;
    messageBar_->setObjectName(QStringLiteral("messageBar"));
    messageBar_->setBackgroundRole(QPalette::ToolTipBase);
    messageBar_->setAutoFillBackground(true);
    message_ = new QLabel;
    message_->setForegroundRole(QPalette::ToolTipText);
    message_->setTextFormat(Qt::PlainText);
    message_->setWordWrap(true);
    auto* replace = new QPushButton;
    setText(replace, QT_TR_NOOP("Use defaults"));
    connect(replace, &QPushButton::clicked, this, [this] { attempt([this] { replaceSettings(); }); });
    auto* bar = new QHBoxLayout(messageBar_);
    bar->addWidget(message_, 1);
    bar->addWidget(replace);
    heading_ = new QLabel;
    inspectors_ = new QStackedWidget;
    QVBoxLayout* middle = makePanel(panels, {heading_});
    middle->addWidget(messageBar_);
    middle->addWidget(inspectors_, 1);

    language_ = new QComboBox;
    language_->addItems({QString(), QString()});
    language_->setCurrentIndex(QLocale().language() == QLocale::German ? 0 : 1);
    choice_ = new QComboBox;
    choice_->addItems({QString(), QString(), QString()});
    for (QComboBox* box : {language_, choice_})
        connect(box, QOverload<int>::of(&QComboBox::currentIndexChanged), this, &MainWindow::refresh);
    preview_ = new QPlainTextEdit;
    preview_->setReadOnly(true);
    preview_->setLineWrapMode(QPlainTextEdit::NoWrap);
    preview_->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    makePanel(panels, {language_, choice_})->addWidget(preview_);

    panels->setSizes({210, 490, 460});
    statusBar();  // from the start: the panels stay where they are when it speaks
}

// ---- languages ----

void MainWindow::setLanguage(const QLocale& locale) {
    QLocale::setDefault(locale);  // first: the library looks at it when a translator comes or goes
    const QString folder = QLibraryInfo::location(QLibraryInfo::TranslationsPath);
    for (QTranslator* translator : {&texts_, &qtTexts_}) QCoreApplication::removeTranslator(translator);
    if (!wantsGerman(locale)) return;
    if (qtTexts_.load(QStringLiteral("qtbase_de"), folder)) QCoreApplication::installTranslator(&qtTexts_);
    if (texts_.load(QStringLiteral("echohost_de"), QStringLiteral(":/echohost")))
        QCoreApplication::installTranslator(&texts_);
}

void MainWindow::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) retranslate();
}

void MainWindow::retranslate() {
    for (const auto& [widget, text] : sources_) widget->setProperty("text", tr(text));
    tasks_->setHeaderLabels({tr("Task"), tr("Program")});
    language_->setItemText(0, tr("German keywords"));
    language_->setItemText(1, tr("English keywords"));
    choice_->setItemText(AsSet, tr("Options as set"));
    choice_->setItemText(AllOff, tr("All options off"));
    choice_->setItemText(AllFull, tr("All options full"));
    refresh();
}

// ---- the project ----

void MainWindow::attempt(const std::function<void()>& action) {
    try {
        action();
    } catch (const std::exception& problem) {
        QMessageBox::critical(this, QCoreApplication::applicationName(), QString::fromUtf8(problem.what()));
    }
    refresh();
}

void MainWindow::openProject(const QString& file) {
    attempt([&] {
        auto project = std::make_unique<Project>(file);
        {
            const QSignalBlocker quiet(tasks_);
            tasks_->clear();
        }
        while (QWidget* page = inspectors_->widget(0)) delete page;
        project_ = std::move(project);
        for (std::size_t i = 0; i < project_->tasks().size(); ++i) appendRow();
        tasks_->setCurrentItem(tasks_->topLevelItem(0));
    });
}

void MainWindow::newProject() {
    if (!mayLeave()) return;
    const auto counts = askElementCounts(this);
    if (!counts) return;
    QString file = QFileDialog::getSaveFileName(this,
        tr("New project"),
        QString(),
        tr("Projects (*.tiv)"),
        nullptr,
        QFileDialog::DontConfirmOverwrite);  // a project is never overwritten
    if (file.isEmpty()) return;
    const QLatin1String suffix(".tiv");
    if (!file.endsWith(suffix, Qt::CaseInsensitive)) file += suffix;
    createProject(file, *counts);
    openProject(file);
}

void MainWindow::chooseProject() {
    if (!mayLeave()) return;
    const QString file =
        QFileDialog::getOpenFileName(this, tr("Open project"), QString(), tr("Projects (*.tiv)"));
    if (!file.isEmpty()) openProject(file);
}

void MainWindow::saveProject() {
    project_->save();
}

bool MainWindow::mayLeave() {
    if (!project_ || !project_->isChanged()) return true;
    const auto answer = QMessageBox::warning(this,
        QCoreApplication::applicationName(),
        tr("%1 has unsaved changes.").arg(QFileInfo(project_->file()).fileName()),
        QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel);
    if (answer == QMessageBox::Save) attempt([this] { saveProject(); });
    return answer == QMessageBox::Discard || !project_->isChanged();
}

void MainWindow::closeEvent(QCloseEvent* event) {
    event->setAccepted(mayLeave());
}

void MainWindow::exportLines() {
    const QString file = QFileDialog::getSaveFileName(this, tr("Export ECHO lines"));
    if (file.isEmpty()) return;
    QSaveFile output(file);
    const bool written =
        output.open(QIODevice::WriteOnly) && output.write(lines().toUtf8()) >= 0 && output.commit();
    if (!written) throw std::runtime_error((file + ": " + output.errorString()).toStdString());
}

// ---- its tasks ----

int MainWindow::currentRow() const {
    return tasks_->indexOfTopLevelItem(tasks_->currentItem());
}

Task* MainWindow::currentTask() const {
    const int row = currentRow();
    return row < 0 ? nullptr : project_->tasks()[static_cast<std::size_t>(row)].get();
}

void MainWindow::appendRow() {
    inspectors_->addWidget(new QWidget);
    tasks_->addTopLevelItem(new QTreeWidgetItem);
}

void MainWindow::showTask() {
    Task* task = currentTask();
    if (!task) return;
    QWidget* page = inspectors_->widget(currentRow());
    if (!page->layout()) {
        QWidget* inspector = task->echo().createPropertyInspector(page);
        // By name: the inspector's class is the library's own.
        connect(inspector, SIGNAL(settingsChanged()), this, SLOT(refresh()));
        auto* layout = new QVBoxLayout(page);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->addWidget(inspector);
    }
    inspectors_->setCurrentWidget(page);
}

void MainWindow::addTask() {
    const auto task = askNewTask(this);
    if (!task) return;
    project_->addTask(task->name, task->programType);
    appendRow();
    tasks_->setCurrentItem(tasks_->topLevelItem(tasks_->topLevelItemCount() - 1));
}

void MainWindow::removeTask() {
    const int row = currentRow();
    const auto answer = QMessageBox::question(this,
        QCoreApplication::applicationName(),
        tr("Remove the task \"%1\" and its settings?").arg(currentTask()->name()));
    if (answer != QMessageBox::Yes) return;
    {
        const QSignalBlocker quiet(tasks_);
        delete tasks_->takeTopLevelItem(row);
    }
    delete inspectors_->widget(row);
    project_->removeTask(static_cast<std::size_t>(row));
    showTask();
}

void MainWindow::replaceSettings() {
    currentTask()->replaceStored();
}

// ---- what follows ----

QString MainWindow::lines() const {
    Task* task = currentTask();
    if (!task) return {};
    const int choice = choice_->currentIndex();
    QString text;
    for (const QString& line :
        task->echo().getTELINP(choice != AsSet, choice == AllFull, language_->currentIndex()))
        text += line + '\n';
    return text;
}

void MainWindow::refresh() {
    const Task* task = currentTask();
    setWindowTitle(
        project_ ? QFileInfo(project_->file()).fileName() + "[*]" : QCoreApplication::applicationName());
    setWindowModified(project_ && project_->isChanged());
    save_->setEnabled(isWindowModified());
    add_->setEnabled(project_ != nullptr);
    for (QAction* action : {export_, remove_}) action->setEnabled(task);

    for (int row = 0; row < tasks_->topLevelItemCount(); ++row) {
        const Task& shown = *project_->tasks()[static_cast<std::size_t>(row)];
        QTreeWidgetItem* item = tasks_->topLevelItem(row);
        item->setText(0, shown.name());
        item->setText(1, programName(shown.programType()));
        item->setToolTip(1, programDescription(shown.programType()));
    }
    heading_->setText(task ? programDescription(task->programType()) : tr("No task is selected."));
    const QString problem = task ? task->problem() : QString();
    messageBar_->setVisible(!problem.isEmpty());
    message_->setText(
        tr("The stored settings cannot be read: %1. They are kept until you change an option "
           "or use the defaults.")
            .arg(problem));
    preview_->setPlainText(lines());
}

}  // namespace echohost
