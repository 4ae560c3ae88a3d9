#include "apps/texts/languages.h"

#include <QCoreApplication>
#include <QDir>
#include <QEvent>
#include <QLibraryInfo>
#include <QStringList>

#include <algorithm>

// The resources of a static library are registered by hand, outside of namespaces.
static void registerCatalogues() {
    Q_INIT_RESOURCE(echo_apps_translations);
}

namespace tiv::apps {
namespace {

constexpr const char* ownCatalogue = "echo_apps_";
constexpr const char* libraryCatalogue = "tiv_echotable_dll_";

QStringList folders() {
    registerCatalogues();
    const QString program = QCoreApplication::applicationDirPath();
    return {program, program + QStringLiteral("/" TIV_CATALOGUES), QStringLiteral(":/tiv/translations")};
}

bool isEnglish(const QLocale& locale) {
    return locale.language() == QLocale::English || locale.language() == QLocale::C;
}

// Installs the catalogue of the first folder that has it.
void install(
    QTranslator& translator, const QLocale& locale, const char* catalogue, const QStringList& folders) {
    for (const QString& folder : folders)
        if (translator.load(locale, QString::fromLatin1(catalogue), QString(), folder))
            return void(QCoreApplication::installTranslator(&translator));
}

}  // namespace

std::vector<QLocale> Languages::offered() {
    QStringList names;
    for (const QString& folder : folders())
        for (const auto& catalogue : {QString(ownCatalogue), QString(libraryCatalogue)})
            for (const QString& file : QDir(folder).entryList({catalogue + "*.qm"}))
                names << file.mid(catalogue.size()).chopped(3);
    names.sort();
    names.removeDuplicates();
    std::vector<QLocale> result{QLocale(QLocale::English)};
    for (const QString& name : names)
        if (const QLocale locale(name); !isEnglish(locale)) result.push_back(locale);
    return result;
}

QLocale Languages::current() {
    const auto languages = offered();
    for (const QString& name : QLocale().uiLanguages()) {
        const QLocale wanted(name);
        if (isEnglish(wanted)) break;
        auto found = std::find(languages.begin(), languages.end(), wanted);
        if (found == languages.end())
            found = std::find_if(languages.begin(), languages.end(), [&](const QLocale& language) {
                return language.language() == wanted.language();
            });
        if (found != languages.end()) return *found;
    }
    return languages.front();
}

void Languages::choose(const QLocale& locale) {
    QLocale::setDefault(locale);  // first: installing a translator makes the library read the locale again
    for (QTranslator* translator : {&texts_, &qtTexts_}) QCoreApplication::removeTranslator(translator);
    const QLocale language = current();
    if (!isEnglish(language)) {
        const QString ofQt = QLibraryInfo::location(QLibraryInfo::TranslationsPath);
        install(qtTexts_, language, "qtbase_", QStringList(ofQt) + folders());
        install(texts_, language, ownCatalogue, folders());
    }
    QEvent change(QEvent::LocaleChange);  // for the library: there may be no catalogue of the window's own
    QCoreApplication::sendEvent(QCoreApplication::instance(), &change);
}

}  // namespace tiv::apps
