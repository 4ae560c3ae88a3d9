// The languages of a window: English, in which the texts are written, and those with a catalogue
// "echo_apps_<language>.qm" or, for the inspector alone, "tiv_echotable_dll_<language>.qm". Catalogues are in the
// program's resources, beside the program, or in the folder of the installed catalogues.
//
//     Languages languages;
//     languages.choose(QLocale());   // of the user; languages.choose(QLocale("de")) is German
#pragma once

#include <QLocale>
#include <QTranslator>

#include <vector>

namespace tiv::apps {

class Languages {
 public:
    static std::vector<QLocale> offered();
    // The one of `offered()` that windows now use; "de" is also used for "de_AT".
    static QLocale current();

    // Until this object is destroyed. The widgets then receive QEvent::LanguageChange.
    void choose(const QLocale& locale);

 private:
    QTranslator texts_, qtTexts_;
};

}  // namespace tiv::apps
