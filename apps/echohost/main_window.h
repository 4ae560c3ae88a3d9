// The window of the sample host: the project's analysis tasks, the inspector of the selected one, and the
// ECHO lines that follow from its options.
//
//     MainWindow window;
//     window.show();
//     window.openProject("house.tiv");
#pragma once

#include "apps/echohost/project.h"

#include <tiv/smartassert/smart_assert.h>

#include <QLocale>
#include <QMainWindow>
#include <QTranslator>

#include <functional>
#include <memory>
#include <utility>
#include <vector>

class QComboBox;
class QFrame;
class QKeySequence;
class QLabel;
class QMenu;
class QPlainTextEdit;
class QStackedWidget;
class QTreeWidget;

namespace echohost {

class MainWindow : public QMainWindow {
    Q_OBJECT
 public:
    // Takes the library's assertion reports for the status bar until it is destroyed.
    MainWindow();
    ~MainWindow() override;

    // Shows the project; what went wrong is said in a message box.
    void openProject(const QString& file);

 protected:
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

 private:
    // Brings everything up to date that follows from the project, the selected task and its options.
    Q_SLOT void refresh();

    using Slot = void (MainWindow::*)();

    void makeMenus();
    void makePanels();
    QMenu* makeMenu(const char* title);
    QAction* makeAction(QMenu* menu, const char* text, const QKeySequence& keys, Slot slot);
    void setText(QObject* widget, const char* text);
    void retranslate();
    void setLanguage(const QLocale& locale);

    void newProject();
    void chooseProject();
    void saveProject();
    void exportLines();
    void addTask();
    void removeTask();
    void replaceSettings();
    void showTask();

    // Qt cannot pass exceptions through its event loop: they end here, as a message. Refreshes.
    void attempt(const std::function<void()>& action);
    // False when the engineer would rather stay with the unsaved changes.
    bool mayLeave();
    void appendRow();
    int currentRow() const;
    Task* currentTask() const;  // null when none is selected
    QString lines() const;      // the input lines of the current task

    tiv::smartassert::Reporter previousReporter_;
    QTranslator texts_, qtTexts_;
    std::vector<std::pair<QObject*, const char*>> sources_;  // English texts, set again in each language
    std::unique_ptr<Project> project_;                       // null until one is open

    QAction* save_ = nullptr;
    QAction* export_ = nullptr;
    QAction* add_ = nullptr;
    QAction* remove_ = nullptr;
    QTreeWidget* tasks_ = nullptr;          // one row for each task
    QStackedWidget* inspectors_ = nullptr;  // one page for each row, filled when it is first shown
    QLabel* heading_ = nullptr;
    QFrame* messageBar_ = nullptr;
    QLabel* message_ = nullptr;
    QComboBox* language_ = nullptr;  // of the keywords, in the library's order
    QComboBox* choice_ = nullptr;
    QPlainTextEdit* preview_ = nullptr;
};

}  // namespace echohost
