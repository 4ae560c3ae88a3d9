// The names of the analysis programs for the user, in the order of EchoData::ProgrammTypes.
#pragma once

#include <QString>

namespace echohost {

int programCount();

QString programName(int type);         // "esk.eige"
QString programDescription(int type);  // "Finite elements, eigenvalues", in the window's language

}  // namespace echohost
