// Plays the sessions of sessions.txt in the sample host's window.
#include "apps/echohost/main_window.h"
#include "inspector/driver.h"
#include "support/reports.h"

#include <QTest>

#include <gtest/gtest.h>
#include <sqlite3.h>

namespace {

using namespace test;
namespace dbo = tiv::dbo;

class Host : public testing::TestWithParam<Session> {
 protected:
    Host() {
        QApplication::setStyle("windows");
        QCoreApplication::setOrganizationName("tests");
        QSettings::setDefaultFormat(QSettings::IniFormat);
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder.path());
        QObject::connect(&dialogs, &QTimer::timeout, [this] {
            dialogs.start();  // anew: an answer may open a further dialog
            answerDialog();
        });
        dialogs.start(1);
        const int database = dbo::createProject(path.toStdString(), {4, 3, 7, 2, 1});
        dbo::storeTask(database, {"Slabs", 3, "ChAGAAA=\n"});
        dbo::storeTask(database, {"Frames", 10, "ChAGA wrong"});
        dbo::storeTask(database, {"Stages", 7, R"({"prop":{"cs":3}})"});
        dbo::closeProject(database);
        openWindow("C");
        window->openProject(path);
        chooseAbove("English keywords");
    }
    ~Host() override {
        expect({});
        EXPECT_LE(inspectors()->count(), tasks()->topLevelItemCount() + 1) << "tasks that are gone";
        window.reset();  // reports go again where they went before
        const tiv::echo::EchoData unknown(static_cast<tiv::echo::EchoData::ProgrammTypes>(1000), 0);
        EXPECT_EQ(takeReports().size(), 6U) << "one of the type, five of the database";
    }

    void openWindow(const QString& locale) {
        window.reset();
        QLocale::setDefault(QLocale(locale));
        window = std::make_unique<echohost::MainWindow>();
        dbo::setBusyTimeout({});
        window->show();
    }

    // The answers to the next dialogs, in the order in which they open.
    void expect(const QString& list) {
        EXPECT_TRUE(answers.isEmpty()) << answers.join('|').toStdString();
        answers = list.split(", ", Qt::SkipEmptyParts);
    }
    void answerDialog() {
        QWidget* dialog = QApplication::activeModalWidget();
        if (!dialog) return;
        const bool isExpected = !answers.isEmpty();
        const QString answer = isExpected ? answers.takeFirst() : QString();
        const auto* box = qobject_cast<QMessageBox*>(dialog);
        questions << (box ? shown(box->text()) : dialog->windowTitle());
        if (box) {
            EXPECT_EQ(box->textFormat(), Qt::PlainText);
            EXPECT_EQ(
                box->windowTitle().toStdString() + (box->icon() == QMessageBox::Critical ? " error" : ""),
                questions.last().startsWith("~/") ? "host_test error" : "host_test");
        }
        if (answer == "Enter") return QTest::keyClick(dialog, Qt::Key_Return);
        for (auto* button : dialog->findChildren<QAbstractButton*>())
            if (isExpected && button->text().remove('&') == answer) return button->click();
        if (box || !isExpected) {
            ADD_FAILURE() << "no button " << answer.toStdString() << " in "
                          << dialog->windowTitle().toStdString();
            return void(dialog->close());
        }
        if (auto* files = qobject_cast<QFileDialog*>(dialog)) {
            const QString proposed = (files->selectedFiles() << files->directory().path()).first();
            questions.last() += " in " + shown(proposed) + ": " + files->nameFilters().join('|');
            files->selectFile(file(answer));
            return void(QMetaObject::invokeMethod(files, "accept"));
        }
        QApplication::setActiveWindow(dialog);
        if (const auto* name = dialog->findChild<QLineEdit*>("name")) {
            questions.last() += ": " + name->selectedText();
            QTest::keyClicks(dialog->focusWidget(), answer.section('/', 0, 0));
        }
        if (auto* program = dialog->findChild<QComboBox*>()) {
            offered.clear();
            for (int i = 0; i < program->count(); ++i) offered << program->itemText(i);
            program->setCurrentText(answer.section('/', 1));
        }
        const auto counts = dialog->findChildren<QSpinBox*>();
        for (int i = 0; i < counts.size(); ++i) counts[i]->setValue(answer.section(' ', i, i).toInt());
        auto* ok = dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok);
        for (const auto* label : dialog->findChildren<QLabel*>()) {
            questions.last() += ' ' + label->text();
            EXPECT_EQ(label->buddy() != nullptr, label->text().contains('&'));
            EXPECT_LT(label->y(), ok->mapTo(dialog, QPoint()).y());
        }
        ok->click();
        dialog->close();  // where OK is disabled
    }

    QString file(const QString& name) const { return folder.filePath(name); }
    QString shown(const QString& text) const {
        return QDir::fromNativeSeparators(text).replace(folder.path(), "~");
    }
    // As a menu shows it.
    QString textOf(const QAction* action) const {
        return shown(action->text().replace(QRegularExpression("&(.)"), "\\1"));
    }
    void trigger(const QString& text) const {
        emit window->findChild<QMenu*>("recentMenu")->aboutToShow();
        for (QAction* action : window->findChildren<QAction*>())
            if (action->isEnabled() && textOf(action) == text) return action->trigger();
        ADD_FAILURE() << "no action " << text.toStdString();
    }
    QString entries(const char* menu, bool (QAction::*are)() const) const {
        QStringList result;
        auto* opened = window->findChild<QMenu*>(menu);
        emit opened->aboutToShow();
        for (const QAction* action : opened->actions())
            if (!action->isSeparator() && (action->*are)())
                result << (textOf(action) + ' ' + action->shortcut().toString()).trimmed();
        return result.join('|');
    }
    QString contextMenu() const {
        QString result;
        QTimer::singleShot(0, [&] {
            auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            result = menu ? shown(texts(*menu).remove('&')) : "none";
            if (menu) menu->close();
        });
        QContextMenuEvent event(QContextMenuEvent::Mouse, {9, 9}, tasks()->mapToGlobal(QPoint(9, 9)));
        QApplication::sendEvent(tasks()->viewport(), &event);
        QApplication::processEvents();
        return result;
    }
    void chooseAbove(const QString& text) const {
        for (auto* box : window->findChildren<QComboBox*>())
            if (box->findText(text) >= 0) return box->setCurrentText(text);
        ADD_FAILURE() << "no choice " << text.toStdString();
    }
    // Files, or an address.
    QString drop(const QString& list) const {
        QList<QUrl> urls;
        for (const QString& name : list.split(", "))
            urls << (name.contains("://") ? QUrl(name) : QUrl::fromLocalFile(file(name)));
        QMimeData data;
        data.setUrls(urls);
        QDragEnterEvent enter({9, 99}, Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(window.get(), &enter);
        if (!enter.isAccepted()) return "refused";
        QDropEvent drop({9, 99}, Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(window.get(), &drop);
        return "taken";
    }
    void select(int row) const { tasks()->setCurrentItem(tasks()->topLevelItem(row)); }
    QTreeWidget* tasks() const { return window->findChild<QTreeWidget*>(); }
    QString names(int column) const {
        QStringList result;
        for (int i = 0; i < tasks()->topLevelItemCount(); ++i)
            result << tasks()->topLevelItem(i)->text(column);
        return result.join('|');
    }
    QStackedWidget* inspectors() const { return window->findChild<QStackedWidget*>(); }
    Driver inspector() const { return Driver(inspectors()->currentWidget()); }
    // The accessible names of what the Tab key reaches.
    QString stops() const {
        QStringList result;
        QApplication::setActiveWindow(window.get());
        for (int i = 0; i < 20; ++i) {
            result << window->focusWidget()->accessibleName();
            QTest::keyClick(window->focusWidget(), Qt::Key_Tab);
        }
        result.removeDuplicates();
        return result.join('|');
    }
    QSplitter* panels() const { return window->findChild<QSplitter*>(); }
    QString choices() const {
        QStringList result;
        const auto add = [&](const QWidget* widget, const QString& text) {
            result << text + (widget->width() < widget->sizeHint().width() ? " (cut)" : "");
        };
        for (const auto* button : window->findChildren<QToolButton*>())
            if (button->defaultAction()) add(button, button->text());
        for (const auto* box : window->findChildren<QComboBox*>()) add(box, box->currentText());
        result.sort();
        return result.join('|');
    }
    QString look() const {
        const QPalette colours = window->palette();
        EXPECT_NE(colours.color(QPalette::Text), colours.color(QPalette::Disabled, QPalette::Text));
        for (const auto& [text, ground] : {std::pair(QPalette::Text, QPalette::Base),
                 {QPalette::Text, QPalette::AlternateBase}, {QPalette::ButtonText, QPalette::Button},
                 {message()->foregroundRole(), message()->parentWidget()->backgroundRole()},
                 {QPalette::Link, QPalette::Base}, {QPalette::HighlightedText, QPalette::Highlight}})
            EXPECT_GT(std::abs(qGray(colours.color(text).rgb()) - qGray(colours.color(ground).rgb())), 99);
        return QString("%1 %2 %3")
            .arg(QApplication::style()->objectName(), colours.windowText().color().name(),
                colours.window().color().name());
    }
    QLabel* message() const { return window->findChild<QLabel*>("message"); }
    QString title() const {
        if (!window->isVisible()) return "closed";
        return window->windowTitle() + (window->isWindowModified() ? " is modified" : "");
    }
    // The content of a project file: its elements, and the settings of its tasks.
    QString stored(const QString& name) const {
        QStringList counts, settings;
        const int database = dbo::openProject(name.toStdString());
        for (const auto has :
            {dbo::hasQuads, dbo::hasBrics, dbo::hasBeams, dbo::hasCables, dbo::hasSprings}) {
            int count = -1;
            has(database, &count);
            counts << QString::number(count);
        }
        for (const dbo::Task& task : dbo::tasks(database)) settings << QString::fromStdString(task.settings);
        dbo::closeProject(database);
        return (QStringList(counts.join(' ')) + settings).join('|');
    }
    QString content(const QString& name) const {
        QFile written(file(name));
        return written.open(QIODevice::ReadOnly) ? QString::fromUtf8(written.readAll()) : "no file";
    }

    const QTemporaryDir folder;
    const QString path = file("Haus \u00e4.tiv");
    std::unique_ptr<echohost::MainWindow> window;
    QStringList answers, questions, offered;
    QTimer dialogs;
};

TEST_P(Host, IsAsWritten) {
    sqlite3* other = nullptr;
    const auto lock = [&](const Words&) {
        sqlite3_open(path.toUtf8().constData(), &other);
        sqlite3_exec(other, "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr);
    };
    const auto store = [&](const Words& w) {
        const int database = dbo::openProject(path.toStdString());
        const auto program = w.value.section(' ', 0, 0), settings = w.value.section(' ', 1);
        if (program.isEmpty())
            EXPECT_TRUE(dbo::removeTask(database, w.label.toStdString()));
        else
            dbo::storeTask(database, {w.label.toStdString(), program.toInt(), settings.toStdString()});
        dbo::closeProject(database);
    };
    const Does does{
        {"locale", [&](const Words& w) { QSettings().clear(), openWindow(w.all); }},
        {"restart", [&](const Words&) { openWindow("C"); }},
        {"open", [&](const Words& w) { expect(w.value), window->openProject(file(w.label)); }},
        {"drop", [&](const Words& w) { expect(w.value), drop(w.label); }},
        {"activate", [&](const Words&) { tasks()->setFocus(), QTest::keyClick(tasks(), Qt::Key_Return); }},
        {"select", [&](const Words& w) { expect(w.value), select(w.label.toInt()); }},
        {"change", [&](const Words& w) { inspector().choose(w.label, w.value); }},
        {"do", [&](const Words& w) { expect(w.value), trigger(w.label); }},
        {"defaults", [&](const Words&) { window->findChild<QPushButton*>("useDefaults")->click(); }},
        {"undo", [&](const Words&) { inspector().key(Qt::Key_Z, Qt::ControlModifier); }},
        {"lines-in", [&](const Words& w) { chooseAbove(w.all); }},
        {"store", store},
        {"remove", store},
        {"delete", [&](const Words&) { EXPECT_TRUE(QFile::remove(path)); }},
        {"lock", lock},
        {"unlock", [&](const Words&) { sqlite3_close(other); }},
        {"resize", [&](const Words& w) { window->resize(w.all.toInt(), 333); }},
        {"equal-panels", [&](const Words&) { panels()->setSizes(QVector<int>(3, 999).toList()); }},
        {"close", [&](const Words& w) { expect(w.all), window->close(); }},
    };
    const Sees sees{
        {"lines", [&](const Words&) { return window->findChild<QPlainTextEdit*>()->toPlainText(); }},
        {"copied", [&](const Words&) { return QApplication::clipboard()->text(); }},
        {"title", [&](const Words&) { return title(); }},
        {"widths",
            [&](const Words&) { return QString("%1 %2").arg(window->width()).arg(panels()->sizes()[0]); }},
        {"look", [&](const Words&) { return look(); }},
        {"stops", [&](const Words&) { return stops(); }},
        {"focus", [&](const Words&) { return window->focusWidget()->accessibleName(); }},
        {"dropped", [&](const Words& w) { return w.label + ": " + drop(w.label); }},
        {"file-menu", [&](const Words&) { return entries("fileMenu", &QAction::isEnabled); }},
        {"task-menu", [&](const Words&) { return entries("taskMenu", &QAction::isEnabled); }},
        {"context-menu", [&](const Words&) { return contextMenu(); }},
        {"languages", [&](const Words&) { return entries("languageMenu", &QAction::isVisible); }},
        {"language", [&](const Words&) { return entries("languageMenu", &QAction::isChecked); }},
        {"recent", [&](const Words&) { return entries("recentMenu", &QAction::isVisible); }},
        {"choices", [&](const Words&) { return choices(); }},
        {"tasks", [&](const Words&) { return names(0); }},
        {"programs", [&](const Words&) { return names(1); }},
        {"tip", [&](const Words&) { return tasks()->currentItem()->toolTip(1); }},
        {"heading", [&](const Words&) { return window->findChild<QLabel*>("heading")->text(); }},
        {"header", [&](const Words&) { return tasks()->headerItem()->text(0); }},
        {"rows", [&](const Words&) { return inspector().view ? inspector().rows().join('|') : ""; }},
        {"row", [&](const Words& w) { return w.label + " = " + inspector().row(w.label); }},
        {"message", [&](const Words&) { return message()->isVisible() ? message()->text() : ""; }},
        {"questions", [&](const Words&) { return std::exchange(questions, {}).join('|'); }},
        {"offered", [&](const Words&) { return offered.join('|'); }},
        {"status", [&](const Words&) { return window->statusBar()->currentMessage(); }},
        {"stored", [&](const Words&) { return stored(path).section('|', 1); }},
        {"file", [&](const Words& w) { return w.label + ": " + content(w.label); }},
        {"elements", [&](const Words& w) { return w.label + ": " + stored(file(w.label)); }},
    };
    if (QSysInfo::productType() == "windows" && GetParam().title.endsWith("(not on Windows)")) GTEST_SKIP();
    play(GetParam(), does, sees);
}

INSTANTIATE_TEST_SUITE_P(Session, Host, testing::ValuesIn(readSessions(TIV_SESSIONS)), testName);

}  // namespace
