// The window of the sample host: the project's analysis tasks, the inspector of the selected one, and the
// ECHO lines that follow from its options.
//
//     MainWindow window;
//     window.show();
//     window.openProject("house.tiv");
#pragma once

#include "apps/echohost/appearance.h"
#include "apps/echohost/project.h"
#include "apps/texts/languages.h"

#include <tiv/smartassert/smart_assert.h>

#include <QMainWindow>
#include <QPointer>

#include <functional>
#include <map>
#include <memory>

namespace echohost {

namespace Ui {
class MainWindow;
}

// Its geometry, panels, language and colours are kept in QSettings.
class MainWindow : public QMainWindow {
    Q_OBJECT
 public:
    // Shows the library's assertion reports in the status bar until it is destroyed.
    MainWindow();
    ~MainWindow() override;

    // Errors are shown in a message box.
    void openProject(const QString& file);
    // For this run of the program; the stored setting does not change.
    void setDark();

 protected:
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

 private:
    // Updates everything that depends on the project, the selected task and its options. Throws nothing.
    Q_SLOT void refresh();

    void connectActions();
    void fillLanguageMenu();
    void fillRecentMenu();
    void restoreSettings();

    void newProject();
    void chooseProject();
    void saveProject();
    void saveProjectAs();
    void exportLines();
    void addTask();
    void renameTask();
    void duplicateTask();
    void removeTask();
    // Without such a task, the first one is selected.
    void listTasks(const QString& selected);
    void showTask();
    QWidget* pageOf(tiv::echo::EchoData& echo);

    // Shows exceptions in a message box, because Qt cannot pass them through its event loop. Then refreshes.
    void attempt(const std::function<void()>& action);
    Project::Keep askWhoseToKeep(const QString& task);
    // Where file dialogs open. Empty without a project: where the last one was.
    QString projectFolder() const;
    QString askNewFile(const QString& title);
    // Whether the project may be closed: asks the user if there are unsaved changes.
    bool confirmClosing();

    int currentRow() const;
    Task* currentTask() const;  // null when none is selected
    QString lines() const;      // the input lines of the current task

    tiv::smartassert::Reporter previousReporter_;
    Appearance appearance_;
    tiv::apps::Languages languages_;
    std::unique_ptr<Ui::MainWindow> ui_;
    std::map<const QObject*, QPointer<QWidget>> pages_;  // of the echo tables that were shown
    std::unique_ptr<Project> project_;                   // null until one is open
};

}  // namespace echohost
