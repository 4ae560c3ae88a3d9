// The languages of the window: English, in which the texts are written, and those with a catalogue
// "echohost_<language>.qm" or, for the inspector alone, "tiv_echotable_dll_<language>.qm". Catalogues are in the
// programs' resources, beside the program, or in the folder of the installed catalogues.
#pragma once

#include <QLocale>
#include <QTranslator>

#include <vector>

namespace echohost {

class Languages {
 public:
    static std::vector<QLocale> offered();
    // The one of `offered()` that the window now has.
    static QLocale current();

    // The widgets then receive QEvent::LanguageChange.
    void choose(const QLocale& locale);

 private:
    QTranslator texts_, qtTexts_;
};

}  // namespace echohost
