// For programs out of the documents: their reader closes the window after a moment.
#if __has_include(<QTimer>)
#include <QCoreApplication>
#include <QTimer>

inline void closeSoon() {
    QTimer::singleShot(100, QCoreApplication::instance(), &QCoreApplication::quit);
}
Q_COREAPP_STARTUP_FUNCTION(closeSoon)
#endif
