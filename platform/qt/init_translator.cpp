#include "platform/qt/init_translator.h"

#include <QCoreApplication>
#include <QEvent>
#include <QLocale>
#include <QObject>
#include <QTranslator>

#include <memory>
#include <utility>

namespace tiv::qt {
namespace {

// The catalogue of the application's locale, changed with it.
class Catalogue : public QObject {
 public:
    Catalogue(QString name, QCoreApplication* application) : QObject(application), name_(std::move(name)) {
        application->installEventFilter(this);
        follow();
    }

 private:
    bool eventFilter(QObject* watched, QEvent* event) override {
        const bool maybeOther =
            event->type() == QEvent::LocaleChange || event->type() == QEvent::LanguageChange;
        if (maybeOther && watched == QCoreApplication::instance()) follow();
        return false;
    }

    void follow() {
        const QString locale = QLocale().name();
        if (locale == locale_) return;
        locale_ = locale;  // before the change: installing sends a LanguageChange itself
        auto translator = std::make_unique<QTranslator>();
        const QString folder = libraryFolder();
        const bool found = load(*translator, folder) ||
                           load(*translator, folder + QStringLiteral("/" TIV_CATALOGUES)) ||
                           load(*translator, QStringLiteral(":/tiv/translations"));
        const auto previous = std::exchange(translator_, found ? std::move(translator) : nullptr);
        if (translator_) QCoreApplication::installTranslator(translator_.get());
        if (previous) QCoreApplication::removeTranslator(previous.get());
    }

    bool load(QTranslator& translator, const QString& folder) const {
        return translator.load(QLocale(), name_, QStringLiteral("_"), folder);
    }

    QString name_;
    QString locale_;
    std::unique_ptr<QTranslator> translator_;
};

// A pre-routine has no argument: this code is linked into each library, which has one installer.
TIV_QT_InitTranslator* installer = nullptr;

}  // namespace

TIV_QT_InitTranslator::TIV_QT_InitTranslator(const char* catalogue)
    : catalogue_(QString::fromLatin1(catalogue)) {
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
