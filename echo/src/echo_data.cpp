#include "tiv/echo/echo_data.h"

#include "echo/src/inspector.h"
#include "echo/src/internal_data.h"

namespace tiv::echo {

#if defined(Q_CC_GNU)
// Forces the two inline functions to be emitted, so that the library exports them.
QT_WARNING_PUSH
QT_WARNING_DISABLE_DEPRECATED
[[gnu::used]] static QString (*const translations[])(const char*, const char*, int) = {
    &EchoData::tr, &EchoData::trUtf8};
QT_WARNING_POP
#endif

EchoData::EchoData(ProgrammTypes type, int database) : data(data::makeInternalData(type, database)) {}

EchoData::~EchoData() = default;

QWidget* EchoData::createPropertyInspector(QWidget* parent) {
    return data::makeInspector(data, parent);
}

std::vector<QString> EchoData::getTELINP(bool defaultsOnly, bool extensive, int language) {
    return data->getTELINP(defaultsOnly, extensive, language);
}

QString EchoData::getXMLData() {
    return data->getXMLData();
}

void EchoData::insertXMLData(const QString& text) {
    data->insertXMLData(text);
}

}  // namespace tiv::echo
