// The echo tables of the analysis programs, one class each. The facts of a program are in its source file
// (qsx_data.cpp ... rova_data.cpp). To add a program, see docs/architecture.md.
#pragma once

#include "echo/src/program_data.h"

namespace tiv::echo::data {

class QsxData final : public ProgramData {
 public:
    QsxData(EchoData::ProgrammTypes type, int database);
};

class EskData final : public ProgramData {
 public:
    EskData(EchoData::ProgrammTypes type, int database);
};

class DimvelData final : public ProgramData {
 public:
    DimvelData(EchoData::ProgrammTypes type, int database);
};

class KSTData final : public ProgramData {
 public:
    KSTData(EchoData::ProgrammTypes type, int database);
};

class VibrData final : public ProgramData {
 public:
    VibrData(EchoData::ProgrammTypes type, int database);
};

class MexoraData final : public ProgramData {
 public:
    MexoraData(EchoData::ProgrammTypes type, int database);
};

class Plax2Data final : public ProgramData {
 public:
    Plax2Data(EchoData::ProgrammTypes type, int database);
};

class TiviloadData final : public ProgramData {
 public:
    TiviloadData(EchoData::ProgrammTypes type, int database);
};

class RovaData final : public ProgramData {
 public:
    RovaData(EchoData::ProgrammTypes type, int database);
};

// A program without options: nothing to show, to keep or to write.
class KurtaData : public InternalInterface {
 public:
    KurtaData(EchoData::ProgrammTypes type, int database)
        : InternalInterface(type, database, noDefinitions()) {}
    QString getXMLData() final { return {}; }
    void insertXMLData(const QString& /*text*/) final {}
    std::vector<QString> getTELINP(bool, bool, int) final { return {}; }
};

// Stands in for an unknown program type.
class DummyData final : public KurtaData {
 public:
    using KurtaData::KurtaData;
};

}  // namespace tiv::echo::data
