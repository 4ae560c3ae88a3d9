#include "bench/sample.h"

#include "tiv/dbo/dbo.h"

#include <QCoreApplication>
#include <QEvent>
#include <QFile>
#include <QLocale>
#include <QTemporaryDir>

std::string bench::projectFile(int elements) {
    static const QTemporaryDir folder;
    const QString file = folder.filePath(QString::number(elements));
    const std::string path = file.toStdString();
    if (QFile::exists(file)) return path;
    using tiv::dbo::ElementKind;
    const int database = tiv::dbo::createProject(path);
    for (const auto kind : {ElementKind::Quads,
             ElementKind::Brics,
             ElementKind::Beams,
             ElementKind::Cables,
             ElementKind::Springs})
        tiv::dbo::addElements(database, kind, elements);
    tiv::dbo::closeProject(database);
    return path;
}

int bench::project() {
    static const int database = tiv::dbo::openProject(projectFile(1));
    return database;
}

QString bench::settingsString(EchoData::ProgrammTypes type, const QString& json) {
    EchoData echo(type, project());
    echo.insertXMLData(json);
    return echo.getXMLData();
}

void bench::setLanguage(const char* language) {
    QLocale::setDefault(QLocale(language));
    QEvent change(QEvent::LocaleChange);
    QCoreApplication::sendEvent(QCoreApplication::instance(), &change);
}
