// The output levels with the texts that the engineer reads, and which of them each option offers.
#pragma once

#include "echo/schema/output_type.h"
#include "properties/definitions/property.h"

#include <QString>

#include <string>
#include <vector>

namespace tiv::echo::data {

// "Full output" in the language of the application; the number itself outside 0 to 8.
QString levelText(OutPutType level);

// The levels offered for a property key, in order: 0 to 4 for most.
std::vector<OutPutType> offeredLevels(const std::string& key);

// Gives every property its offered levels, with texts in the application's current language.
void offerLevels(properties::Properties& properties);

}  // namespace tiv::echo::data
