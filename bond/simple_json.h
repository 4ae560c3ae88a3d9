// SimpleJSON: the second form that a settings string may have on input, and a readable dump of a record.
// EchoData's insertXMLData reads it.
//
//     bond::writeSimpleJson(data)      {"prop":{"cs":3,"grp":0,"lc":0}}
//
// A record is an object with one member per field. The member has the field's name, or the text of its
// "JsonName" attribute where there is one. Numbers, booleans and texts are themselves, an enumeration is
// its number.
#pragma once

#include "bond/schema.h"

#include <string>
#include <string_view>

namespace bond {

// Every field of the record, defaults included, without blanks. Infinities and NaN, for which JSON has
// no form, are written as null.
std::string writeSimpleJson(const Struct& description, const void* record);

template <class Record>
std::string writeSimpleJson(const Record& record) {
    return writeSimpleJson(structOf<Record>(), &record);
}

// Reads UTF-8 text into `record`, a fresh object of the type that `description` describes: fields that
// the text lacks keep their default.
//   - A field is found under its exact name or its id in decimal ("0", also "+0" or "00"). Names end at
//     their first NUL, because the reference implementation compares C strings. Of several members for one
//     field, the first of a fitting JSON type is used.
//   - Fitting: true or false for Bool; a whole number within its range for an integer; a number that is
//     within its range when rounded for Float and Double (17 digits may be off by the last bits); a text
//     for String; an object for a record; for an enumeration a whole number of 32 bits, listed or not, or
//     a text. A text that is no enumerator's exact name leaves the default.
//   - Other members, and whatever follows the document, are ignored. A document that is no object
//     gives the defaults.
//
// Throws CoreException "JSON parser error: <RapidJSON's message> at offset <bytes>"; `record` is then as
// it was. Brackets may be nested to any depth.
void readSimpleJson(const Struct& description, void* record, std::string_view text);

template <class Record>
Record readSimpleJson(std::string_view text) {
    Record record;
    readSimpleJson(structOf<Record>(), &record, text);
    return record;
}

}  // namespace bond
