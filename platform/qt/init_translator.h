// Installs a library's translation catalogue in the host's Qt, from the moment the library is loaded:
//
//     const tiv::qt::TIV_QT_InitTranslator translator("tiv_echotable_dll");   // static, at namespace scope
//
// The catalogue is "<name>_<language>.qm" for the first of QLocale().uiLanguages() that has one or is English, which
// needs none. It is looked for in the folder of the library, or of the program that contains it, in the folder of
// the installed catalogues (relative to the former), and in the resource ":/tiv/translations". It is installed as
// soon as there is an application object. A library loaded after the application object was made serves that object
// only. The catalogue is replaced when the languages change: after QLocale::setDefault a host installs a translator,
// or sends the application a QEvent::LocaleChange.
#pragma once

#include <QObject>
#include <QPointer>
#include <QString>

namespace tiv::qt {

class TIV_QT_InitTranslator {
 public:
    // One per library, which then stays loaded: Qt keeps a pointer to its start-up function.
    explicit TIV_QT_InitTranslator(const char* catalogue);
    // Removes the catalogue.
    ~TIV_QT_InitTranslator();

    TIV_QT_InitTranslator(const TIV_QT_InitTranslator&) = delete;
    TIV_QT_InitTranslator& operator=(const TIV_QT_InitTranslator&) = delete;

 private:
    static void install();  // requires the application object

    QString catalogue_;
    QPointer<QObject> installed_;  // a child of the application object
};

// The folder of the library that contains this code. Implemented per operating system.
QString libraryFolder();
// Keeps that library loaded until the process ends.
void keepLibraryLoaded();

}  // namespace tiv::qt
