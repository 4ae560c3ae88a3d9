#include "tiv/echo/echo_data.h"

#include "echo/src/inspector.h"
#include "echo/src/internal_data.h"

namespace tiv::echo {

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
