// The settings string, in which a host stores the settings of an echo table. One base64 line of the settings record in
// Compact Binary version 1 (bond/compact_binary.h), closed by a line feed:
//
//     settingsString(schema, record)                  // "ChAGAAA=\n": field 0 at FULL_OUTPUT
//     readSettings("ChAGAAA=\n", access)              // the record
//     readSettings("{\"prop\":{\"full\":3}}", access)  // the JSON form, read but never written
#pragma once

#include "properties/definitions/record_access.h"

#include <QString>
#include <QStringView>

#include <memory>

namespace tiv::echo::data {

QString settingsString(const bond::Struct& schema, const void* record);

enum class SettingsForm { Base64, Json };

// JSON when the first character is "{": no white space is skipped.
SettingsForm settingsForm(const QString& text);

// How many records a text holds: one in each non-empty line. They need not be readable.
int recordCount(QStringView text);

// The record of a text; one with nothing set if the text holds none or several. Each record is read, but
// at most one is kept. Throws bond::StreamException and bond::CoreException with the texts in
// bond/exceptions.h.
std::shared_ptr<void> readSettings(const QString& text, const properties::RecordAccess& access);

}  // namespace tiv::echo::data
