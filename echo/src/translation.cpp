// The library's German, from the moment it is loaded.
#include "platform/qt/init_translator.h"

// The resources initialise themselves, but not before everything else that does.
static const char* catalogue() {
    Q_INIT_RESOURCE(translations);
    return "tiv_echotable_dll";
}

namespace {
const tiv::qt::TIV_QT_InitTranslator translator(catalogue());
}
