// Light and dark.
#pragma once

namespace echohost {

bool isDark();

// Leaves the system's look for a light or dark one of Qt's own.
void setDark(bool dark);

}  // namespace echohost
