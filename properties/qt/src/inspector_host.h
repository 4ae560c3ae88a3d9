// What the owner of the record provides to an inspector.
#pragma once

#include "properties/definitions/property.h"

#include <QString>

#include <functional>
#include <memory>
#include <vector>

class QMimeData;

namespace tiv::properties {

// Every function may be empty.
struct InspectorHost {
    std::function<bool()> isEditable;   // empty: always
    std::function<void()> retranslate;  // after a change of language: renews the texts of the properties
    std::function<QString()> name;      // of the table, for screen readers
    std::function<QString()> setTo;     // title of the menu of values; empty: there is no such menu
    std::function<QString(const Property&)> keyword;           // the property's word in the user's input text
    std::function<std::unique_ptr<QMimeData>()> copySettings;  // all settings; null while there are none
    // The values of settings in the clipboard. Throws std::exception when it holds none for this record.
    std::function<std::vector<PropertyValue>(const QMimeData&)> readSettings;
};

}  // namespace tiv::properties
