// Error texts of the libraries, in the language of the windows.
#pragma once

#include <QString>

namespace tiv::apps {

// "<path>: <reason>", or a reason alone, with its reason translated. Unknown reasons stay as they are.
QString translatedReason(const QString& text);

}  // namespace tiv::apps
