// The sample host from outside: what its window shows, and what is in the project afterwards.
#include "apps/echohost/main_window.h"
#include "inspector/driver.h"
#include "support/printing.h"
#include "support/reports.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QSpinBox>
#include <QStackedWidget>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QTimer>
#include <QTreeWidget>

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <memory>

namespace {

using namespace test;
namespace dbo = tiv::dbo;
using echohost::MainWindow;
using tiv::echo::EchoData;

using Answer = std::function<void(QWidget*)>;

Answer press(QMessageBox::StandardButton button) {
    return [=](QWidget* dialog) { static_cast<QMessageBox*>(dialog)->button(button)->click(); };
}

Answer choose(const QString& file) {
    return [=](QWidget* dialog) {
        static_cast<QFileDialog*>(dialog)->selectFile(file);
        QMetaObject::invokeMethod(dialog, "accept");
    };
}

// Runs an action and answers the dialogs that it opens, one after the other; the texts of the messages.
QStringList answering(std::vector<Answer> answers, const std::function<void()>& action) {
    QStringList messages;
    std::size_t asked = 0;
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, [&] {
        QWidget* dialog = QApplication::activeModalWidget();
        if (!dialog) return;
        if (const auto* box = qobject_cast<QMessageBox*>(dialog)) messages << box->text();
        const Answer next = asked < answers.size() ? answers[asked] : [](QWidget* extra) {
            ADD_FAILURE() << "unexpected dialog";
            extra->close();
        };
        ++asked;
        next(dialog);
    });
    look.start(1);
    action();
    EXPECT_EQ(asked, answers.size());
    return messages;
}

class Host : public testing::Test {
 protected:
    Host() {
        const int database = dbo::createProject(path.toStdString());
        dbo::addElements(database, dbo::ElementKind::Beams, 96);
        for (const dbo::Task& task : stored) dbo::storeTask(database, task);
        dbo::closeProject(database);
        trigger("English");
        window->findChild<QComboBox*>()->setCurrentIndex(1);
        window->show();
        settle();
        window->openProject(path);
    }

    QString file(const char* name) const { return folder.filePath(name); }
    void trigger(const QString& text) const {
        for (QAction* action : window->findChildren<QAction*>())
            if (action->text() == text) return action->trigger();
        ADD_FAILURE() << "no action " << text.toStdString();
    }
    void select(int row) const {
        tasks->setCurrentItem(tasks->topLevelItem(row));
        settle();
    }
    Driver inspector() const {
        return Driver(
            window->findChild<QStackedWidget*>()->currentWidget()->findChild<QTreeView*>()->parentWidget());
    }
    void change(int row, const char* option, const char* level) const {
        select(row);
        inspector().choose(option, level);
    }
    QString lines() const { return window->findChild<QPlainTextEdit*>()->toPlainText(); }
    QString message() const {
        const auto* bar = window->findChild<QFrame*>("messageBar");
        return bar->isVisible() ? bar->findChild<QLabel*>()->text() : QString();
    }
    // The settings in the project file, one task after the other.
    QStringList settings() const {
        QStringList result;
        const int database = dbo::openProject(path.toStdString());
        for (const dbo::Task& task : dbo::tasks(database)) result << QString::fromStdString(task.settings);
        dbo::closeProject(database);
        return result;
    }

    const std::vector<dbo::Task> stored = {
        {"Slabs", 3, "ChAGAAA=\n"}, {"Frames", 10, "ChAGA wrong"}, {"Stages", 7, R"({"prop":{"cs":3}})"}};
    const QTemporaryDir folder;
    const QString path = file("Haus \u00e4.tiv");
    std::unique_ptr<MainWindow> window = std::make_unique<MainWindow>();
    QTreeWidget* const tasks = window->findChild<QTreeWidget*>();
};

TEST_F(Host, SavesWhatWasEditedAndKeepsEveryOtherTextByteForByte) {
    for (const int row : {2, 1, 0}) select(row);
    EXPECT_FALSE(window->isWindowModified());
    EXPECT_EQ(lines(), "ECHO OPT FULL VAL FULL $ Default of all options\n");
    change(0, "Loads", "No output");
    EXPECT_EQ(lines(), "ECHO OPT FULL VAL FULL $ Default of all options\nECHO OPT LOAD VAL NO $ Loads\n");
    EXPECT_TRUE(window->isWindowModified());
    EXPECT_EQ(settings()[0], "ChAGAAA=\n");
    trigger("&Save");
    EXPECT_FALSE(window->isWindowModified());
    EXPECT_EQ(settings(), (QStringList{"ChAGUAIAAA==\n", "ChAGA wrong", R"({"prop":{"cs":3}})"}));
}

TEST_F(Host, ReportsSettingsThatItCannotReadAndReplacesThemOnlyOnPurpose) {
    select(2);
    EXPECT_EQ(message(), QString());
    select(1);
    const QString problem =
        "The stored settings cannot be read: Read out of bounds: 2 bytes requested, offset: 6, length: 7. "
        "They are kept until you change an option or use the defaults.";
    EXPECT_EQ(message(), problem);
    EXPECT_EQ(lines(), "");
    change(1, "Reinforcements", "No output");
    EXPECT_EQ(message(), QString());
    inspector().key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(message(), problem);
    EXPECT_FALSE(window->isWindowModified());
    window->findChild<QFrame*>("messageBar")->findChild<QAbstractButton*>()->click();
    EXPECT_EQ(message(), QString());
    EXPECT_TRUE(window->isWindowModified());
    EXPECT_EQ(settings()[1], "ChAGA wrong");
    trigger("&Save");
    EXPECT_EQ(settings()[1], "CgAA\n");
}

TEST_F(Host, ShowsAndExportsTheLinesThatWereAskedFor) {
    const auto boxes = window->findChildren<QComboBox*>();
    const struct {
        int language, choice;
        const char* text;
    } rows[] = {
        {0, 0, "ECHO OPT VOLL WERT VOLL $ Default of all options\n"},
        {0, 1, "ECHO VOLL NEIN $ no output of text lists\n"},
        {1, 2, "ECHO FULL FULL $ extensive output of text lists\n"},
    };
    for (const auto& row : rows) {
        boxes[0]->setCurrentIndex(row.language);
        boxes[1]->setCurrentIndex(row.choice);
        EXPECT_EQ(lines(), row.text);
        answering({choose(file("lines.txt"))}, [&] { trigger("&Export ECHO lines…"); });
        QFile written(file("lines.txt"));
        ASSERT_TRUE(written.open(QIODevice::ReadOnly));
        EXPECT_EQ(QString::fromUtf8(written.readAll()), row.text);
        written.remove();
    }
}

TEST_F(Host, SpeaksGermanAtRunTime) {
    select(0);
    const Driver driver = inspector();
    trigger("Deutsch");
    settle();
    EXPECT_EQ(lines(), "ECHO OPT FULL VAL FULL $ Voreinstellung aller Optionen\n");
    EXPECT_EQ(driver.row("Lasten"), "Standardausgabe");
    EXPECT_EQ(tasks->headerItem()->text(0), "Aufgabe");
    trigger("&Speichern");
    select(1);
    EXPECT_TRUE(message().startsWith("Die gespeicherten Einstellungen sind nicht lesbar: Read out"))
        << message().toStdString();
    trigger("English");
    settle();
    EXPECT_EQ(tasks->headerItem()->text(0), "Task");
    EXPECT_EQ(driver.row("Loads"), "Default output");
}

TEST_F(Host, AddsAndRemovesTasksWhenItSaves) {
    const auto add = [](const char* name, int program) {
        return [=](QWidget* dialog) {
            dialog->findChild<QLineEdit*>()->setText(name);
            dialog->findChild<QComboBox*>()->setCurrentIndex(program);
            static_cast<QDialog*>(dialog)->accept();
        };
    };
    EXPECT_EQ(answering({add("Stages", 3), press(QMessageBox::Ok)}, [&] { trigger("&Add…"); }),
        QStringList("There is a task \"Stages\" already."));
    EXPECT_EQ(answering({add(" ", 3), press(QMessageBox::Ok)}, [&] { trigger("&Add…"); }),
        QStringList("A task needs a name."));
    EXPECT_FALSE(window->isWindowModified());
    answering({add("Load trains", 13)}, [&] { trigger("&Add…"); });
    EXPECT_EQ(inspector().rows().size(), 4);
    select(1);
    answering({press(QMessageBox::No)}, [&] { trigger("&Remove"); });
    EXPECT_EQ(answering({press(QMessageBox::Yes)}, [&] { trigger("&Remove"); }),
        QStringList("Remove the task \"Frames\" and its settings?"));
    EXPECT_EQ(settings().size(), 3);
    trigger("&Save");
    EXPECT_EQ(settings(), (QStringList{"ChAGAAA=\n", R"({"prop":{"cs":3}})", "CgAA\n"}));
    EXPECT_EQ(inspector().rows(), (QStringList{"Construction Stages=Full output*", "Groups=Default output",
                                      "Loadcases=Default output"}));
}

TEST_F(Host, AsksBeforeUnsavedChangesAreLost) {
    change(2, "Groups", "No output");
    const auto close = [&] { window->close(); };
    EXPECT_EQ(
        answering({press(QMessageBox::Cancel)}, close), QStringList("Haus \u00e4.tiv has unsaved changes."));
    EXPECT_TRUE(window->isVisible());
    sqlite3* other = nullptr;
    sqlite3_open(path.toStdString().c_str(), &other);
    sqlite3_exec(other, "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr);
    EXPECT_EQ(answering({press(QMessageBox::Save), press(QMessageBox::Ok)}, close)[1],
        path + ": database is locked");
    EXPECT_TRUE(window->isVisible());
    EXPECT_TRUE(window->isWindowModified());
    sqlite3_close(other);
    answering({press(QMessageBox::Save)}, close);
    EXPECT_FALSE(window->isVisible());
    EXPECT_EQ(settings()[2], "ChAGMAIAAA==\n");
}

TEST_F(Host, MakesAProjectAndNeverOverwritesOne) {
    const Answer counts = [](QWidget* dialog) {
        dialog->findChildren<QSpinBox*>()[0]->setValue(480);
        static_cast<QDialog*>(dialog)->accept();
    };
    const QString made = file("new.tiv");
    answering({counts, choose(made)}, [&] { trigger("&New project…"); });
    EXPECT_EQ(window->windowTitle(), "new.tiv[*]");
    EXPECT_EQ(tasks->topLevelItemCount(), 0);
    const int database = dbo::openProject(made.toStdString());
    EXPECT_TRUE(dbo::hasQuads(database, nullptr) && !dbo::hasBeams(database, nullptr));
    dbo::closeProject(database);
    EXPECT_EQ(answering({counts, choose(path), press(QMessageBox::Ok)}, [&] { trigger("&New project…"); }),
        QStringList(path + ": already exists"));
    EXPECT_EQ(settings().size(), 3);
}

TEST_F(Host, ShowsTheReportsOfTheLibrary) {
    const int database = dbo::openProject(path.toStdString());
    dbo::storeTask(database, {"Newer", 14, "kept"});
    window->openProject(path);
    select(3);
    EXPECT_EQ(window->statusBar()->currentMessage(), R"(Assertion failed: 0 && "invalid prog_type")");
    change(0, "Internal forces and moments at nodes", "6");
    EXPECT_TRUE(window->statusBar()->currentMessage().startsWith("Assertion failed: "));
    EXPECT_EQ(lines(), "ECHO OPT FULL VAL FULL $ Default of all options\n");
    trigger("&Save");
    EXPECT_EQ(settings()[3], "kept");
    window.reset();
    const EchoData unknown(static_cast<EchoData::ProgrammTypes>(14), database);
    EXPECT_EQ(takeReports(), Reports({R"(0 && "invalid prog_type" at echo/src/internal_data:120)"}));
    dbo::closeProject(database);
}

}  // namespace
