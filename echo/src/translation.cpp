// Installs the library's translation catalogue when the library is loaded.
#include "platform/qt/init_translator.h"

// The order of static initialisation is unspecified, so the resources are registered before the translator uses them.
static const char* catalogue() {
    Q_INIT_RESOURCE(translations);
    return "tiv_echotable_dll";
}

namespace {
const tiv::qt::TIV_QT_InitTranslator translator(catalogue());
}
