// Test data of the operations.
#pragma once

#include "tiv/echo/echo_data.h"

#include <QString>

#include <string>

namespace bench {

// A project file with elements of every kind: all options apply.
int project();
// A project file with the given number of elements of every kind.
std::string projectFile(int elements);

using tiv::echo::EchoData;
constexpr auto plax2 = EchoData::PLAX2;

// Settings of plax2: 8 and all 15 of its options, at levels other than the default.
constexpr const char* eightOptions =
    R"({"prop":{"full":1,"node":2,"beam":3,"spri":1,"boun":2,"sect":3,"mat":1,"load":2}})";
constexpr const char* allOptions =
    R"({"prop":{"full":1,"node":2,"beam":3,"spri":1,"boun":2,"sect":3,"mat":1,"load":2,"forc":3,"defo":1,"bdef":2,"reac":3,"rein":1,"nstr":2,"step":3}})";
constexpr const char* allOtherwise =
    R"({"prop":{"full":2,"node":3,"beam":1,"spri":2,"boun":3,"sect":1,"mat":2,"load":3,"forc":1,"defo":2,"bdef":3,"reac":1,"rein":2,"nstr":3,"step":1}})";

// The settings string for settings in JSON.
QString settingsString(EchoData::ProgrammTypes type, const QString& json);

// Changes the language of the application: "C" or "de".
void setLanguage(const char* language);

}  // namespace bench
