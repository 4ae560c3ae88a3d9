// The one mechanism behind every program's echo table. A program is told by plain data: its settings
// records, the option number of each field, and what it does for a program type that is not its own.
//
//     constexpr OptionNumber options[] = {43, 44, 45};
//     constexpr ServedType types[] = {serves<kst::Data>(EchoData::KST, options)};
//     constexpr Program program{types, OtherTypes::AlsoInserted};
#pragma once

#include "echo/src/internal_data.h"
#include "echo/src/settings_string.h"
#include "echo/src/utils.h"
#include "properties/definitions/record_access.h"

#include <cstddef>
#include <span>

namespace tiv::echo::data {

// The row of the global option table (utils.h) that a field writes.
struct OptionNumber {
    // Implicit, so that a table of options reads as a list of numbers. A number outside the table does not
    // compile.
    consteval OptionNumber(int row, const char* key = nullptr)
        : number(row >= 0 && row < optionCount ? row : throw "no such option"), shownAs(key) {}
    int number;
    const char* shownAs;  // the key that is made visible; null: "prop.<field>"
};

// One settings record of a program.
struct ServedType {
    EchoData::ProgrammTypes type;
    const properties::RecordAccess& (*record)();
    // Replaces the record by the one that a settings string holds.
    void (*insert)(container::model::Model&, const QString& text);
    std::span<const OptionNumber> options;  // one per field, in field order
};

template <class Data>
void insertSettings(container::model::Model& model, const QString& text) {
    container::model::Transaction transaction(model);
    const std::vector<Data> records = decodeSettings<Data>(text);
    model.handle<Data>(recordKey()).modify() = records.size() == 1 ? records.front() : Data{};
    transaction.end();
}

template <class Data, std::size_t N>
constexpr ServedType serves(EchoData::ProgrammTypes type, const OptionNumber (&options)[N]) {
    static_assert(N == bond::fieldCount<decltype(Data::prop)>, "<=== every field needs its option number");
    return {type, &properties::recordAccess<Data>, &insertSettings<Data>, options};
}

// What a table does that was made for a program type it has no record for.
enum class OtherTypes {
    Refused,       // no options; asking for its lines is reported as a failed assertion
    Written,       // the first record is shown and written, but neither saved nor inserted
    AlsoInserted,  // likewise, but insertXMLData works
};

struct ReportSite {
    const char* source = nullptr;
    int line = 0;
};

struct Program {
    std::span<const ServedType> types;
    OtherTypes otherTypes;
    ReportSite refusal = {};  // of OtherTypes::Refused
};

class ProgramData : public InternalInterface {
 public:
    QString getXMLData() final;
    void insertXMLData(const QString& text) final;
    std::vector<QString> getTELINP(bool defaultsOnly, bool extensive, int language) final;

    // The record and options in use; null for a refused program type.
    const ServedType* servedType() const { return served_; }

 protected:
    // `program` is constant data. Builds the options: the default record, its properties, visibleKeys.
    ProgramData(EchoData::ProgrammTypes type, int database, const Program& program);

 private:
    bool servesType() const { return served_ && served_->type == programType; }

    const Program& program_;
    const ServedType* served_;
};

// The option fields of a record: those of the envelope's field `prop`.
inline const bond::Struct& optionFields(const ServedType& served) {
    return *served.record().schema.rows.front().nested;
}

}  // namespace tiv::echo::data
