// The settings string: what a host keeps of an echo table. One base64 line of the settings record in
// Compact Binary version 1 (bond/compact_binary.h), closed by a line feed:
//
//     settingsString(record)                       // "ChAGAAA=\n": field 0 at FULL_OUTPUT
//     decodeSettings<esk::Data>("ChAGAAA=\n")      // one record
//     decodeSettings<esk::Data>("{\"prop\":{\"full\":3}}")   // the JSON form, read but never written
#pragma once

#include "bond/schema.h"

#include <QString>
#include <QStringView>

#include <vector>

namespace tiv::echo::data {

QString settingsString(const bond::Struct& schema, const void* record);

enum class SettingsForm { Base64, Json };

// JSON when the first character is "{": no white space is skipped.
SettingsForm settingsForm(const QString& text);

// Takes the next non-empty line off `rest`; empty when there is none.
QStringView nextLine(QStringView& rest);

// Reads one line into `record`, which is in its initial state. Throws bond::StreamException and
// bond::CoreException with the texts in bond/exceptions.h.
void readSettingsLine(SettingsForm form, QStringView line, const bond::Struct& schema, void* record);

// The records of a text, one per non-empty line. Throws as readSettingsLine.
template <class Data>
std::vector<Data> decodeSettings(const QString& text) {
    std::vector<Data> records;
    const SettingsForm form = settingsForm(text);
    QStringView rest(text);
    for (QStringView line = nextLine(rest); !line.isEmpty(); line = nextLine(rest))
        readSettingsLine(form, line, bond::structOf<Data>(), &records.emplace_back());
    return records;
}

}  // namespace tiv::echo::data
