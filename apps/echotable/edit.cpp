#include "apps/echotable/arguments.h"
#include "apps/echotable/table.h"
#include "apps/echotable/task.h"
#include "apps/echotable/text.h"
#include "apps/texts/languages.h"
#include "apps/texts/reasons.h"
#include "echo/src/inspector.h"

#include <boost/signals2/connection.hpp>

#include <QCoreApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QMessageBox>
#include <QScreen>
#include <QStyle>
#include <QVBoxLayout>

#include <utility>

namespace tiv::tool {
namespace {

// What the window edits: a settings file, or a task of a project.
struct Document {
    QString name;
    QString title;
    std::shared_ptr<Table> table;
    // Stores the settings. False, and nothing is stored, if they have changed since the window opened, unless
    // `overwrite`. Throws as writeText, and what the project database throws.
    std::function<bool(const QString& settings, bool overwrite)> save;
};

// The window of `edit`. It asks before edits are lost.
class Window : public QDialog {
    Q_DECLARE_TR_FUNCTIONS(EditWindow)

 public:
    explicit Window(Document document)
        : document_(std::move(document)), saved_(document_.table->getXMLData()) {
        setWindowTitle(document_.title);
        auto* inspector = echo::data::makeInspector(document_.table, this);
        auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
        auto* layout = new QVBoxLayout(this);
        layout->addWidget(inspector);
        layout->addWidget(buttons);
        connect(buttons, &QDialogButtonBox::accepted, this, &Window::accept);
        connect(buttons, &QDialogButtonBox::rejected, this, &Window::reject);
        change_ = document_.table->model->onChange(
            [this](const auto&) { setWindowModified(document_.table->getXMLData() != saved_); });
        fitScreen();
        inspector->setFocus();
    }

    // On OK.
    void accept() override {
        try {
            const QString settings = document_.table->getXMLData();
            const QString question = tr("%1 was changed by another program. Save over it?");
            const auto mayOverwrite = [&] {
                return ask(question, QMessageBox::Save | QMessageBox::Cancel) == QMessageBox::Save;
            };
            if (document_.save(settings, false) || (mayOverwrite() && document_.save(settings, true)))
                QDialog::accept();
        } catch (const std::exception& problem) {
            showMessage(QMessageBox::Critical,
                apps::translatedReason(QString::fromUtf8(problem.what())),
                QMessageBox::Ok);
        }
    }

    // On Cancel, Escape and when the window is closed.
    void reject() override {
        if (!isWindowModified()) return QDialog::reject();
        const int answer = ask(
            tr("%1 has unsaved changes."), QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel);
        if (answer == QMessageBox::Save) accept();
        if (answer == QMessageBox::Discard) QDialog::reject();
    }

 private:
    // Room for the longest label beside its level, and for most tables without scrolling.
    void fitScreen() {
        const int titleBar = style()->pixelMetric(QStyle::PM_TitleBarHeight);
        const QSize wanted(fontMetrics().averageCharWidth() * 80, fontMetrics().lineSpacing() * 26);
        resize(wanted.boundedTo(screen()->availableSize() - QSize(titleBar, 2 * titleBar)));
    }

    int ask(const QString& question, QMessageBox::StandardButtons answers) {
        return showMessage(QMessageBox::Warning, question.arg(document_.name), answers);
    }

    int showMessage(QMessageBox::Icon icon, const QString& text, QMessageBox::StandardButtons buttons) {
        QMessageBox message(icon, document_.name, text, buttons, this);
        message.setTextFormat(Qt::PlainText);
        if (buttons & QMessageBox::Cancel) message.setDefaultButton(QMessageBox::Cancel);
        return message.exec();
    }

    Document document_;
    QString saved_;
    boost::signals2::scoped_connection change_;
};

// In a window title, "[*]" is the place of the mark of unsaved changes, and "[*][*]" is the text "[*]".
QString titleOf(QString name, const Table& table) {
    return name.replace(QLatin1String("[*]"), QLatin1String("[*][*]")) + QStringLiteral("[*] - ") +
           programName(static_cast<int>(table.programType));
}

Document documentOf(const TaskName& task) {
    const Project project = openProject(task.project);
    const dbo::Task before = readTask(project, task);
    auto table = tableOf(before, project, task.project);
    const auto save = [task, before](const QString& settings, bool overwrite) {
        const Project now = openProject(task.project);  // it may have been moved or removed
        const dbo::Task after{before.name, before.programType, settings.toStdString()};
        if (!overwrite) return dbo::changeTasks(now.handle, {{before, after}}).empty();
        dbo::storeTask(now.handle, after);
        return true;
    };
    const QString name = visible(task.task);
    const QString file = visible(QFileInfo(task.project).fileName());
    return {name, titleOf(QStringLiteral("%1: %2").arg(file, name), *table), table, save};
}

// Null for a file that does not exist.
QString presentText(const QString& file) {
    return QFile::exists(file) ? readText(file) : QString();
}

// `before` is the text of the file that the table was made from.
Document documentOf(const QString& file, const QString& before, const std::shared_ptr<Table>& table) {
    const auto save = [file, before](const QString& settings, bool overwrite) {
        if (!overwrite && presentText(file) != before) return false;
        writeText(file, settings);
        return true;
    };
    const QString name = visible(QFileInfo(file).fileName());
    return {name, titleOf(name, *table), table, save};
}

void open(const Document& document) {
    apps::Languages languages;
    languages.choose(QLocale());
    Window(document).exec();
}

Document documentOf(const QCommandLineParser& arguments) {
    if (const auto task = taskOf(arguments)) return documentOf(*task);
    const QString file = arguments.value(settingsOption());
    if (file.isEmpty() || file == standardStream)
        throw UsageError(QStringLiteral("expected --settings with the name of a file"));
    const auto table = makeTable(arguments.positionalArguments().constFirst(), projectOf(arguments));
    const QString before = presentText(file);
    if (QFile::exists(file)) readSettings(*table, file);
    return documentOf(file, before, table);
}

std::function<void()> prepare(const QCommandLineParser& arguments) {
    const Document document = documentOf(arguments);
    requireOptions(*document.table);
    return [document] { open(document); };
}

}  // namespace

Verb edit() {
    return {QStringLiteral("edit"),
        {QStringLiteral("PROGRAM")},
        QStringLiteral(
            "Opens a settings file, new or not, or a task in the property inspector; OK saves it."),
        {settingsOption(), projectOption(), taskOption(), elementsOption()},
        nullptr,
        &prepare};
}

}  // namespace tiv::tool
