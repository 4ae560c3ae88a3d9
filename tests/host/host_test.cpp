// Plays the sessions of sessions.txt in the sample host's window.
#include "apps/echohost/main_window.h"
#include "inspector/driver.h"
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

namespace {

using namespace test;
namespace dbo = tiv::dbo;
using echohost::MainWindow;

QString yesNo(bool yes) {
    return yes ? "yes" : "no";
}

class Host : public testing::Test {
 protected:
    Host() {
        QObject::connect(&look_, &QTimer::timeout, [this] { answerDialog(); });
        look_.start(1);
    }

    void makeProject() {
        window.reset();
        QFile::remove(path);
        const int database = dbo::createProject(path.toStdString());
        dbo::storeTask(database, {"Slabs", 3, "ChAGAAA=\n"});
        dbo::storeTask(database, {"Frames", 10, "ChAGA wrong"});
        dbo::storeTask(database, {"Stages", 7, R"({"prop":{"cs":3}})"});
        dbo::closeProject(database);
        window = std::make_unique<MainWindow>();
        window->findChild<QComboBox*>()->setCurrentIndex(1);
        window->show();
        trigger("English");
        window->openProject(path);
    }

    // Dialogs are answered in the order in which they open.
    void answerDialog() {
        QWidget* dialog = QApplication::activeModalWidget();
        if (!dialog) return;
        const QString answer = answers.isEmpty() ? QString() : answers.takeFirst();
        if (auto* box = qobject_cast<QMessageBox*>(dialog)) {
            said << box->text().remove(folder.path() + '/');
            for (QAbstractButton* button : box->buttons())
                if (button->text().remove('&') == answer) return button->click();
            ADD_FAILURE() << "no button " << answer.toStdString() << ": " << box->text().toStdString();
            return void(box->close());
        }
        if (answer.isEmpty()) {
            ADD_FAILURE() << "unexpected dialog";
            return void(dialog->close());
        }
        if (auto* files = qobject_cast<QFileDialog*>(dialog)) {
            files->selectFile(file(answer));
        } else if (auto* program = dialog->findChild<QComboBox*>()) {
            dialog->findChild<QLineEdit*>()->setText(answer.section(" = ", 0, 0));
            program->setCurrentIndex(answer.section(" = ", 1).toInt());
        }
        const auto counts = dialog->findChildren<QSpinBox*>();
        for (int i = 0; i < counts.size(); ++i) counts[i]->setValue(answer.section(' ', i, i).toInt());
        QMetaObject::invokeMethod(dialog, "accept");
    }

    QString file(const QString& name) const { return folder.filePath(name); }
    void trigger(const QString& text) const {
        for (QAction* action : window->findChildren<QAction*>())
            if (action->text().remove('&') == text) return action->trigger();
        ADD_FAILURE() << "no action " << text.toStdString();
    }
    void chooseAbove(const QString& text) const {
        for (auto* box : window->findChildren<QComboBox*>())
            if (box->findText(text) >= 0) box->setCurrentText(text);
    }
    QTreeWidget* tasks() const { return window->findChild<QTreeWidget*>(); }
    QString names() const {
        QStringList result;
        for (int i = 0; i < tasks()->topLevelItemCount(); ++i) result << tasks()->topLevelItem(i)->text(0);
        return result.join('|');
    }
    Driver inspector() const {
        return Driver(
            window->findChild<QStackedWidget*>()->currentWidget()->findChild<QTreeView*>()->parentWidget());
    }
    QFrame* messageBar() const { return window->findChild<QFrame*>("messageBar"); }
    // What is in the project files.
    QString stored() const {
        QStringList result;
        const int database = dbo::openProject(path.toStdString());
        for (const dbo::Task& task : dbo::tasks(database)) result << QString::fromStdString(task.settings);
        dbo::closeProject(database);
        return result.join('|');
    }
    QString elements(const QString& name) const {
        QStringList counts;
        const int database = dbo::openProject(file(name).toStdString());
        for (const auto has :
            {dbo::hasQuads, dbo::hasBrics, dbo::hasBeams, dbo::hasCables, dbo::hasSprings}) {
            int count = -1;
            has(database, &count);
            counts << QString::number(count);
        }
        dbo::closeProject(database);
        return counts.join(' ');
    }
    void storeTask(const QString& name, const QString& programAndSettings) const {
        const int database = dbo::openProject(path.toStdString());
        dbo::storeTask(database, {name.toStdString(), programAndSettings.section(' ', 0, 0).toInt(),
                                     programAndSettings.section(' ', 1).toStdString()});
        dbo::closeProject(database);
    }
    QString content(const QString& name) const {
        QFile written(file(name));
        return written.open(QIODevice::ReadOnly) ? QString::fromUtf8(written.readAll()) : "no file";
    }

    const QTemporaryDir folder;
    const QString path = file("Haus \u00e4.tiv");
    std::unique_ptr<MainWindow> window;
    QStringList answers, said;

 private:
    QTimer look_;
};

TEST_F(Host, KeepsToItsSessions) {
    std::shared_ptr<sqlite3> other;
    const auto lock = [&] {
        sqlite3* connection = nullptr;
        sqlite3_open(path.toUtf8().constData(), &connection);
        other = {connection, &sqlite3_close};
        sqlite3_exec(connection, "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr);
    };
    const Does does{
        {"project", [&](const Words&) { makeProject(); }},
        {"open", [&](const Words& w) { window->openProject(file(w.all)); }},
        {"select", [&](const Words& w) { tasks()->setCurrentItem(tasks()->topLevelItem(w.all.toInt())); }},
        {"change", [&](const Words& w) { inspector().choose(w.label, w.value); }},
        {"answer", [&](const Words& w) { answers << w.all; }},
        {"do", [&](const Words& w) { trigger(w.all); }},
        {"defaults", [&](const Words&) { messageBar()->findChild<QAbstractButton*>()->click(); }},
        {"undo", [&](const Words&) { inspector().key(Qt::Key_Z, Qt::ControlModifier); }},
        {"lines-in", [&](const Words& w) { chooseAbove(w.all); }},
        {"store", [&](const Words& w) { storeTask(w.label, w.value); }},
        {"lock", [&](const Words&) { lock(); }},
        {"unlock", [&](const Words&) { other.reset(); }},
        {"close", [&](const Words&) { window->close(); }},
    };
    const Sees sees{
        {"lines", [&](const Words&) { return window->findChild<QPlainTextEdit*>()->toPlainText(); }},
        {"title", [&](const Words&) { return window->windowTitle(); }},
        {"modified", [&](const Words&) { return yesNo(window->isWindowModified()); }},
        {"visible", [&](const Words&) { return yesNo(window->isVisible()); }},
        {"tasks", [&](const Words&) { return names(); }},
        {"heading", [&](const Words&) { return tasks()->headerItem()->text(0); }},
        {"rows", [&](const Words&) { return inspector().rows().join('|'); }},
        {"row", [&](const Words& w) { return w.label + " = " + inspector().row(w.label); }},
        {"message",
            [&](const Words&) {
                return messageBar()->isVisible() ? messageBar()->findChild<QLabel*>()->text() : "";
            }},
        {"said", [&](const Words&) { return std::exchange(said, {}).join('|'); }},
        {"status", [&](const Words&) { return window->statusBar()->currentMessage(); }},
        {"stored", [&](const Words&) { return stored(); }},
        {"file", [&](const Words& w) { return w.label + ": " + content(w.label); }},
        {"elements", [&](const Words& w) { return w.label + ": " + elements(w.label); }},
    };
    playSessions(TIV_SESSIONS, does, sees);
    EXPECT_TRUE(answers.isEmpty());
    window.reset();  // reports go again where they went before
    const tiv::echo::EchoData unknown(static_cast<tiv::echo::EchoData::ProgrammTypes>(14), 0);
    EXPECT_EQ(takeReports().size(), 6U) << "one of the type, five of the database";
}

}  // namespace
