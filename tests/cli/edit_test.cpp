// The window of `echotable edit`.
#include "apps/echotable/arguments.h"
#include "inspector/driver.h"

#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFile>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>

#include <gtest/gtest.h>

namespace {

void press(QDialogButtonBox::StandardButton button) {
    QApplication::activeModalWidget()->findChild<QDialogButtonBox*>()->button(button)->click();
}

// Opens the window and runs the steps in it; the last one closes it.
void edit(const QString& file, const std::function<void(test::Driver)>& steps) {
    const tiv::tool::Verb verb = tiv::tool::edit();
    QCommandLineParser arguments;
    arguments.addOptions(verb.options);
    ASSERT_TRUE(arguments.parse({"echotable", "esk", "--settings", file}));
    QTimer timer;
    timer.setSingleShot(true);
    QObject::connect(
        &timer, &QTimer::timeout, [&] { steps(test::Driver(QApplication::activeModalWidget())); });
    timer.start(0);
    verb.prepare(arguments)();
}

QString textOf(const QString& name) {
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QStringLiteral("no file");
}

TEST(EditWindow, SavesOnOkOnly) {
    const QTemporaryDir folder;
    const QString file = folder.filePath("static.txt");
    const struct {
        const char *before, *chosen;
        QDialogButtonBox::StandardButton pressed;
        const char* saved;
    } steps[] = {
        {"Default output", "Full output", QDialogButtonBox::Cancel, "no file"},
        {"Default output", "Full output", QDialogButtonBox::Ok, "ClAGAAA=\n"},
        {"Full output*", "No output", QDialogButtonBox::Cancel, "ClAGAAA=\n"},
    };
    for (const auto& step : steps) {
        edit(file, [&](test::Driver window) {
            EXPECT_EQ(window.widget->windowTitle(), "static.txt - esk");
            EXPECT_EQ(window.row("Loads"), step.before);
            window.choose("Loads", step.chosen);
            press(step.pressed);
        });
        EXPECT_EQ(textOf(file), step.saved);
    }
}

TEST(EditWindow, StaysOpenWhenItCannotSave) {
    const QTemporaryDir folder;
    const QString file = folder.filePath("missing/static.txt");
    edit(file, [&](test::Driver window) {
        window.choose("Loads", "Full output");
        QTimer::singleShot(0, qApp, [&] {
            auto* message = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_TRUE(message);
            EXPECT_EQ(message->text(), file + ": no such folder");
            message->accept();
        });
        press(QDialogButtonBox::Ok);
        EXPECT_EQ(window.row("Loads"), "Full output*");
        press(QDialogButtonBox::Cancel);
    });
}

}  // namespace
