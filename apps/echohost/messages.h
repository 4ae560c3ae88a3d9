// Error texts of the libraries, in the window's language.
#pragma once

#include <QString>

namespace echohost {

// "<path>: <reason>", or a reason alone, with its reason translated. Unknown reasons stay as they are.
QString translatedReason(const QString& text);

}  // namespace echohost
