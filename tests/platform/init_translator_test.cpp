// The library's catalogue in a program that loads the library while it runs.
#include "support/printing.h"
#include "support/session.h"

#include <QCoreApplication>
#include <QLibrary>
#include <QLocale>
#include <QTranslator>

#include <gtest/gtest.h>

namespace {

struct OwnWords : QTranslator {
    bool isEmpty() const override { return false; }
    QString translate(const char*, const char* text, const char*, int) const override {
        return qstrcmp(text, "Groups") == 0 ? "Abschnitte" : QString();
    }
};

TEST(Catalogue, FollowsTheLanguagesOfTheApplicationBehindTheTranslatorsOfTheHost) {
    const auto loads = [] { return QCoreApplication::translate("EchoData", "Loads"); };
    const auto groups = [] { return QCoreApplication::translate("EchoData", "Groups"); };
    test::speak(true);
    QLibrary library(TIV_LIBRARY);
    ASSERT_TRUE(library.load()) << library.errorString().toStdString();
    EXPECT_EQ(loads(), "Lasten") << "at once, from the library itself";
    test::speak(false);
    EXPECT_EQ(loads(), "Loads");
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Austria));
    OwnWords own;
    QCoreApplication::installTranslator(&own);
    EXPECT_EQ(loads(), "Lasten");
    EXPECT_EQ(groups(), "Abschnitte");
    test::speak(false);
    test::speak(true);
    EXPECT_EQ(groups(), "Abschnitte");
    QCoreApplication::removeTranslator(&own);
    EXPECT_EQ(groups(), "Gruppen");
    EXPECT_TRUE(library.unload());
    EXPECT_EQ(loads(), "Loads");
    test::speak(false);
}

}  // namespace
