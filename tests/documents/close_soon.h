// Included into the programs of the documents: closes their window after a moment, as a reader would.
#if __has_include(<QTimer>)
#include <QCoreApplication>
#include <QTimer>

inline void closeSoon() {
    QTimer::singleShot(100, QCoreApplication::instance(), &QCoreApplication::quit);
}
Q_COREAPP_STARTUP_FUNCTION(closeSoon)
#endif
