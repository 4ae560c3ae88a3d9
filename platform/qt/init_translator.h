// Installs a library's translation catalogue in the host's Qt, from the moment the library is loaded:
//
//     const tiv::qt::TIV_QT_InitTranslator translator("tiv_echotable_dll");   // static, at namespace scope
//
// The catalogue is "<name>_<language>.qm" for the first of QLocale().uiLanguages() that has one or is English,
// which needs none. It is looked for beside the library, in the folder of the installed catalogues, as the
// libraries see it, and in the resource ":/tiv/translations". It is installed when the application object
// exists: at once, or as soon as the host makes one; a library loaded behind an application object serves that
// one only. It follows the languages: after QLocale::setDefault a host installs a translator of its own, or
// sends the application a QEvent::LocaleChange.
#pragma once

#include <QObject>
#include <QPointer>
#include <QString>

namespace tiv::qt {

class TIV_QT_InitTranslator {
 public:
    // One per library. A library loaded before the application object must stay loaded.
    explicit TIV_QT_InitTranslator(const char* catalogue);
    // Takes the catalogue out again.
    ~TIV_QT_InitTranslator();

    TIV_QT_InitTranslator(const TIV_QT_InitTranslator&) = delete;
    TIV_QT_InitTranslator& operator=(const TIV_QT_InitTranslator&) = delete;

 private:
    static void install();  // now that the application object exists

    QString catalogue_;
    QPointer<QObject> installed_;  // a child of the application object
};

// The folder of the library that this code was linked into; one implementation per operating system.
QString libraryFolder();

}  // namespace tiv::qt
