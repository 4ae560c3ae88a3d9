// The window of `echotable edit`.
#include "apps/echotable/arguments.h"
#include "inspector/driver.h"
#include "tiv/dbo/dbo.h"

#include <gtest/gtest.h>

namespace {

using Button = QMessageBox::StandardButton;

// By a button of the window, Escape (NoButton) or the title bar (Close).
void leave(test::Driver window, Button how) {
    if (how == Button::NoButton) return window.key(Qt::Key_Escape);
    if (how == Button::Close) return void(window.widget->close());
    window.widget->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::StandardButton(how))->click();
}

// Opens the window and runs the steps in it; the last one closes it.
void edit(const QStringList& words, const std::function<void(test::Driver)>& steps) {
    const tiv::tool::Verb verb = tiv::tool::edit();
    QCommandLineParser arguments;
    arguments.addOptions(verb.options);
    ASSERT_TRUE(arguments.parse(QStringList("echotable") + words));
    QTimer::singleShot(0, qApp, [&] {
        QWidget* window = QApplication::activeModalWidget();
        auto* view = window->findChild<QTreeView*>();
        EXPECT_EQ(window->focusWidget(), view);
        EXPECT_FALSE(view->verticalScrollBar()->isVisible() && QApplication::font().pointSize() < 24);
        EXPECT_EQ(window->size(), window->size().boundedTo(window->screen()->availableSize()));
        steps(test::Driver(window));
    });
    verb.prepare(arguments)();
}

// The question or error that the action opens, which is then answered.
std::string asked(Button answer, const std::function<void()>& action) {
    QString text;
    QTimer::singleShot(0, qApp, [&] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (!box) return;
        text = box->text();
        EXPECT_EQ(box->textFormat(), Qt::PlainText);
        EXPECT_EQ(box->defaultButton(), box->button(Button::Cancel));  // null for an error
        box->button(answer)->click();
    });
    action();
    test::settle();
    return text.toStdString();
}

TEST(EditWindow, LosesNoEditWithoutAQuestion) {
    const QTemporaryDir folder;
    const QString name =
        QSysInfo::productType() == "windows" ? "x.txt" : "[*].txt";  // no "*" is allowed there
    QFile file(folder.filePath(name));
    QLocale::setDefault(QLocale::French);  // tests/data/french has a few texts
    const std::string question = name.toStdString() + " a été modifié.";
    const std::string other = name.toStdString() + " was changed by another program. Save over it?";
    const struct {
        const char *before, *chosen;
        Button left;
        std::string asked;
        Button answer;
        const char* saved;
    } steps[] = {
        {"Default output", "Default output", Button::NoButton, "", Button::Discard, ""},
        {"Default output", "Full output", Button::NoButton, question, Button::Discard, ""},
        {"Default output", "Full output", Button::Ok, "", Button::Discard, "ClAGAAA=\n"},
        {"Full output*", "No output", Button::Cancel, question, Button::Discard, "ClAGAAA=\n"},
        {"Full output*", "No output", Button::Close, question, Button::Save, "ClACAAA=\n"},
        {"No output*", "Full output", Button::Close, question, Button::Cancel, "ClACAAA=\n"},
        {"No output*", "Full output", Button::Ok, other, Button::Cancel, "CgAA\n"},
    };
    for (const auto& step : steps) {
        edit({"esk", "--settings", file.fileName()}, [&](test::Driver window) {
            EXPECT_EQ(window.widget->windowTitle(), QString(name).replace("[*]", "[*][*]") + "[*] - esk");
            EXPECT_EQ(window.row("Charges"), step.before);
            window.choose("Charges", step.chosen);
            EXPECT_EQ(window.widget->isWindowModified(), QString(step.before).remove('*') != step.chosen);
            if (step.asked == other && file.open(QIODevice::WriteOnly)) file.write("CgAA\n"), file.close();
            EXPECT_EQ(asked(step.answer, [&] { leave(window, step.left); }), step.asked);
            EXPECT_EQ(window.widget->isVisible(), step.answer == Button::Cancel);
            if (window.widget->isVisible()) asked(Button::Discard, [&] { leave(window, Button::Cancel); });
        });
        EXPECT_EQ(file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray(), step.saved);
        file.close();
    }
    test::setGerman(false);
}

TEST(EditWindow, StaysOpenWhenItCannotSaveAndGivesTheReasonInGerman) {
    const QTemporaryDir folder;
    const QString settings = folder.filePath("missing/static.txt"), project = folder.filePath("P");
    const int database = tiv::dbo::createProject(project.toStdString());
    tiv::dbo::storeTask(database, {"static", 3, "CgAA\n"});
    tiv::dbo::closeProject(database);
    test::setGerman(true);
    const std::pair<QStringList, QString> rows[] = {
        {{"--project", project, "--task", "static"}, project + ": Datei nicht vorhanden"},
        {{"esk", "--settings", settings}, settings + ": Ordner nicht vorhanden"},
    };
    for (const auto& row : rows)
        edit(row.first, [&](test::Driver window) {
            QFile::remove(project);
            window.choose("Lasten", "Vollständige Ausgabe");
            EXPECT_EQ(asked(Button::Ok, [&] { leave(window, Button::Ok); }), row.second.toStdString());
            EXPECT_TRUE(window.widget->isVisible());
            EXPECT_EQ(window.row("Lasten"), "Vollständige Ausgabe*");
            asked(Button::Discard, [&] { leave(window, Button::Cancel); });
        });
    test::setGerman(false);
}

TEST(EditWindow, AsksInGermanBeforeItSavesOverAnotherProgramsChange) {
    const QTemporaryDir folder;
    const QString file = folder.filePath("P");
    const int project = tiv::dbo::createProject(file.toStdString());
    const auto settings = [&] { return tiv::dbo::tasks(project)[0].settings; };
    tiv::dbo::storeTask(project, {"static", 3, "CgAA\n"});
    const QFont font = QApplication::font();
    QApplication::setFont(QFont(font.family(), 24));
    test::setGerman(true);
    edit({"--project", file, "--task", "static"}, [&](test::Driver window) {
        EXPECT_EQ(window.widget->windowTitle(), "P: static[*] - esk");
        const auto* cancel = window.widget->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Cancel);
        EXPECT_EQ(cancel->text().remove('&'), "Abbrechen");
        window.choose("Lasten", "Vollständige Ausgabe");
        tiv::dbo::storeTask(project, {"static", 3, "ClACAAA=\n"});
        for (const Button answer : {Button::Cancel, Button::Save}) {
            EXPECT_EQ(settings(), "ClACAAA=\n");
            EXPECT_EQ(asked(answer, [&] { leave(window, Button::Ok); }),
                "static wurde von einem anderen Programm geändert. Trotzdem speichern?");
            EXPECT_EQ(window.widget->isVisible(), answer == Button::Cancel);
        }
    });
    test::setGerman(false);
    QApplication::setFont(font);
    EXPECT_EQ(settings(), "ClAGAAA=\n");
    tiv::dbo::closeProject(project);
}

}  // namespace
