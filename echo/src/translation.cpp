// The library's German, from the moment it is loaded.
#include "platform/qt/init_translator.h"

namespace {
const tiv::qt::TIV_QT_InitTranslator translator("tiv_echotable_dll");
}
