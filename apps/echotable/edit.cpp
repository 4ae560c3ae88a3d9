#include "apps/echotable/arguments.h"
#include "apps/echotable/table.h"
#include "apps/echotable/text.h"
#include "echo/src/inspector.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QFile>
#include <QFileInfo>
#include <QMessageBox>
#include <QVBoxLayout>

namespace tiv::tool {
namespace {

void open(const QString& file, const std::shared_ptr<Table>& table) {
    QDialog window;
    window.setWindowTitle(QStringLiteral("%1 - %2").arg(
        QFileInfo(file).fileName(), programName(static_cast<int>(table->programType))));
    // Room for the longest label beside its level, and for most tables without scrolling.
    window.resize(window.fontMetrics().averageCharWidth() * 80, window.fontMetrics().lineSpacing() * 26);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    auto* layout = new QVBoxLayout(&window);
    layout->addWidget(echo::data::makeInspector(table, &window));
    layout->addWidget(buttons);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &window, &QDialog::reject);
    QObject::connect(buttons, &QDialogButtonBox::accepted, &window, [&] {
        try {
            writeText(file, table->getXMLData());
            window.accept();
        } catch (const std::exception& problem) {  // the window stays, and the edits with it
            QMessageBox::critical(&window, window.windowTitle(), QString::fromUtf8(problem.what()));
        }
    });
    window.exec();
}

std::function<void()> prepare(const QCommandLineParser& arguments) {
    const QString file = arguments.value(settingsOption());
    if (file.isEmpty() || file == standardStream)
        throw UsageError(QStringLiteral("expected --settings with the name of a file"));
    const auto table = makeTable(arguments.positionalArguments().constFirst(), projectOf(arguments));
    requireOptions(*table);
    if (QFile::exists(file)) readSettings(*table, file);
    return [file, table] { open(file, table); };
}

}  // namespace

Verb edit() {
    return {QStringLiteral("edit"),
        {QStringLiteral("PROGRAM")},
        QStringLiteral("Opens a settings file, new or not, in the property inspector; OK saves it."),
        {settingsOption(), projectOption(), elementsOption()},
        nullptr,
        &prepare};
}

}  // namespace tiv::tool
