// Turns a record's description into property definitions. Called once for each record:
//
//     fromBond(recordAccess<esk::Data>(), properties);    // "prop.full" "prop.grp" "prop.load" ...
//
// Attributes read (exact names):
//     DisplayName      label; a field without it gets no property
//     Tooltip          text; absent: none
//     Category         text; absent: "General"
//     Editor           text, becomes "editor.kind", also over an enumeration's list editor
//     ColumnWidth      text; absent: none
//     PropertyWeight   whole 32-bit number, optional sign; absent: 0
//     Precision        as std::stoi reads it; absent or invalid: none
//
// Settings written:
//     validator.precision editor.validator.precision                             the field has a Precision
//     validator.kind editor.validator.kind           "named_value_list"          enumerations
//     validator.entries editor.entries               name and value of each      enumerations
//     validator.is_equal editor.is_equal             compares as numbers         enumerations
//     editor.kind                                    "named_value_list", or the Editor attribute's text
#pragma once

#include "properties/definitions/property.h"

namespace tiv::properties {

// Appends a property for every field with a label, in order of the schema; nested structs are entered.
// Throws boost::bad_lexical_cast (a std::bad_cast) on a PropertyWeight that is no whole 32-bit number;
// `properties` is then unchanged.
void fromBond(const RecordAccess& record, Properties& properties);

}  // namespace tiv::properties
