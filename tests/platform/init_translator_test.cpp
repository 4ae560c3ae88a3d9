// The library's catalogue, in a program that loads the library at run time.
#include "support/printing.h"
#include "support/session.h"

#include <QtCore>

#include <gtest/gtest.h>

#include <cstdlib>
#include <iostream>

namespace {

QString shown(const char* text) {
    return QCoreApplication::translate("EchoData", text);
}

struct OwnWords : QTranslator {
    bool isEmpty() const override { return false; }
    QString translate(const char*, const char* text, const char*, int) const override {
        return qstrcmp(text, "Groups") == 0 ? "Abschnitte" : QString();
    }
};

TEST(Catalogue, FollowsTheLanguagesOfTheApplicationBehindTheTranslatorsOfTheHost) {
    test::setGerman(true);
    QLibrary library(TIV_LIBRARY);
    ASSERT_TRUE(library.load()) << library.errorString();
    EXPECT_EQ(shown("Loads"), "Lasten") << "at once, from the library itself";
    test::setGerman(false);
    EXPECT_EQ(shown("Loads"), "Loads");
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Austria));
    OwnWords own;
    QCoreApplication::installTranslator(&own);
    EXPECT_EQ(shown("Loads"), "Lasten");
    EXPECT_EQ(shown("Groups"), "Abschnitte");
    test::setGerman(false);
    test::setGerman(true);
    EXPECT_EQ(shown("Groups"), "Abschnitte");
    QCoreApplication::removeTranslator(&own);
    EXPECT_EQ(shown("Groups"), "Gruppen");
    test::setGerman(false);
}

#if defined(Q_OS_UNIX)  // where the environment lists the languages
TEST(Catalogue, IsThatOfTheMostPreferredLanguage) {
    const char* const rows[][2] = {
        {"en:de", "Loads"}, {"de:en", "Lasten"}, {"nl:en:de", "Loads"}, {"nl:de", "Lasten"}};
    const auto print = [] {
        QLibrary(TIV_LIBRARY).load();
        std::cerr << shown("Loads").toStdString();
        std::_Exit(0);
    };
    const QByteArray before = qgetenv("LANGUAGE");
    GTEST_FLAG_SET(death_test_style, "threadsafe");  // in a new process: Qt reads LANGUAGE once
    for (const auto& [languages, expected] : rows) {
        qputenv("LANGUAGE", languages);
        EXPECT_EXIT(print(), testing::ExitedWithCode(0), expected) << languages;
    }
    qputenv("LANGUAGE", before);
}
#endif

TEST(Catalogue, OfAThirdLanguageIsAFileBesideTheLibraryOrInItsShareFolder) {
    for (const char* place : {"lib", TIV_CATALOGUES}) {
        const QString folder(place);
        QTemporaryDir installed;
        installed.setAutoRemove(QDir::separator() == '/');  // Windows removes no library that is loaded
        const QString path = installed.path() + "/lib/" + QFileInfo(TIV_LIBRARY).fileName();
        QDir(installed.path()).mkpath("lib");
        QDir(installed.path()).mkpath(folder);
        ASSERT_TRUE(QFile::copy(TIV_LIBRARY, path));
        ASSERT_TRUE(QFile::copy(TIV_FRENCH, installed.path() + '/' + folder + "/tiv_echotable_dll_fr.qm"));
        QLocale::setDefault(QLocale(QLocale::French));
        QLibrary library(path);
        ASSERT_TRUE(library.load()) << library.errorString();
        EXPECT_EQ(shown("Loads"), "Charges") << place;
        EXPECT_EQ(shown("Groups"), "Groups") << "a text that the file lacks";
    }
    test::setGerman(false);
}

}  // namespace
