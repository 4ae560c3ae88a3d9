#include "apps/echohost/programs.h"

#include <tiv/echo/echo_data.h>

#include <QCoreApplication>

#include <iterator>

namespace echohost {
namespace {

constexpr struct {
    const char* name;
    const char* description;
} programs[] = {
    {"qsx.bruc", QT_TRANSLATE_NOOP("Program", "Cross sections, ultimate limit state")},
    {"qsx.riss", QT_TRANSLATE_NOOP("Program", "Cross sections, crack width")},
    {"qsx.elpl", QT_TRANSLATE_NOOP("Program", "Cross sections, elastic-plastic")},
    {"esk", QT_TRANSLATE_NOOP("Program", "Finite elements, static analysis")},
    {"esk.eige", QT_TRANSLATE_NOOP("Program", "Finite elements, eigenvalues")},
    {"dimvel.bruc", QT_TRANSLATE_NOOP("Program", "Design of quadrilaterals, ultimate limit state")},
    {"dimvel.riss", QT_TRANSLATE_NOOP("Program", "Design of quadrilaterals, serviceability")},
    {"kst", QT_TRANSLATE_NOOP("Program", "Construction stages")},
    {"vibr", QT_TRANSLATE_NOOP("Program", "Earthquake and vibration")},
    {"mexora", QT_TRANSLATE_NOOP("Program", "Superposition")},
    {"plax2", QT_TRANSLATE_NOOP("Program", "Beam statics")},
    {"tiviload", QT_TRANSLATE_NOOP("Program", "Loading")},
    {"kurta", QT_TRANSLATE_NOOP("Program", "Without output options")},
    {"rova", QT_TRANSLATE_NOOP("Program", "Load trains")},
};

static_assert(std::size(programs) == tiv::echo::EchoData::ROVA + 1);

bool isKnown(int type) {
    return type >= 0 && type < programCount();
}

}  // namespace

int programCount() {
    return static_cast<int>(std::size(programs));
}

QString programName(int type) {
    return isKnown(type) ? QString::fromLatin1(programs[type].name) : QString::number(type);
}

QString programDescription(int type) {
    return QCoreApplication::translate("Program",
        isKnown(type) ? programs[type].description : QT_TRANSLATE_NOOP("Program", "Unknown program"));
}

}  // namespace echohost
