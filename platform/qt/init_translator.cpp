#include "platform/qt/init_translator.h"

#include <QCoreApplication>
#include <QEvent>
#include <QLocale>
#include <QReadWriteLock>
#include <QStringList>
#include <QTranslator>

#include <memory>
#include <utility>

namespace tiv::qt {
namespace {

// Translates from the catalogue of the application's language and reloads it when that changes. The translator
// itself stays installed, so the order of the application's translators does not change.
class Catalogue : public QTranslator {
 public:
    Catalogue(QString name, QCoreApplication* application)
        : QTranslator(application), name_(std::move(name)) {
        updateLanguages();
        application->installEventFilter(this);
        QCoreApplication::installTranslator(this);
    }

    bool isEmpty() const override { return !current_; }
    // May be called in any thread.
    QString translate(
        const char* context, const char* text, const char* disambiguation, int n) const override {
        const QReadLocker lock(&lock_);
        return current_ ? current_->translate(context, text, disambiguation, n) : QString();
    }

 private:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (watched != QCoreApplication::instance()) return false;
        if (event->type() == QEvent::LanguageChange) updateLanguages();
        if (event->type() == QEvent::LocaleChange && updateLanguages()) {
            QEvent change(QEvent::LanguageChange);
            QCoreApplication::sendEvent(watched, &change);
        }
        return false;
    }

    // Returns whether the languages have changed.
    bool updateLanguages() {
        const QStringList languages = QLocale().uiLanguages();
        if (languages == languages_) return false;
        languages_ = languages;
        auto next = catalogueOf(languages);  // destroys the previous catalogue after the lock is released
        const QWriteLocker lock(&lock_);
        current_.swap(next);
        return true;
    }

    // Null for English, the language of the source texts, and if no language has a catalogue.
    std::unique_ptr<QTranslator> catalogueOf(const QStringList& languages) const {
        const QString folder = libraryFolder();
        const QString folders[] = {folder,
            folder + QStringLiteral("/" TIV_CATALOGUES_FROM_LIBRARIES),
            folder + QStringLiteral("/" TIV_CATALOGUES_FROM_PROGRAMS),
            QStringLiteral(":/tiv/translations")};
        auto translator = std::make_unique<QTranslator>();
        for (const QString& name : languages) {
            const QLocale language(name);
            if (language.language() == QLocale::English || language.language() == QLocale::C) return nullptr;
            for (const QString& place : folders)
                if (translator->load(language, name_, QStringLiteral("_"), place)) return translator;
        }
        return nullptr;
    }

    QString name_;
    QStringList languages_;        // in order of preference
    mutable QReadWriteLock lock_;  // of current_
    std::unique_ptr<QTranslator> current_;
};

// A global, because the start-up functions of Qt have no argument. This code is linked statically, so each library has
// its own installer.
TIV_QT_InitTranslator* installer = nullptr;

}  // namespace

TIV_QT_InitTranslator::TIV_QT_InitTranslator(const char* catalogue)
    : catalogue_(QString::fromLatin1(catalogue)) {
    keepLibraryLoaded();
    installer = this;
    if (QCoreApplication::instance())
        install();
    else
        qAddPreRoutine(install);
}

TIV_QT_InitTranslator::~TIV_QT_InitTranslator() {
    installer = nullptr;
    delete installed_.data();
}

void TIV_QT_InitTranslator::install() {
    if (installer) installer->installed_ = new Catalogue(installer->catalogue_, QCoreApplication::instance());
}

}  // namespace tiv::qt
