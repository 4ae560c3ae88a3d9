// Shared implementation of all echo tables. A program is described by plain data: its settings records,
// the option number of each field, and what its table does for a program type that it does not serve.
//
//     constexpr OptionNumber options[] = {43, 44, 45};
//     constexpr ServedType types[] = {serves<kst::Data>(EchoData::KST, options)};
//     constexpr Program program{types, OtherTypes::AlsoInserted};
#pragma once

#include "echo/schema/output_type.h"
#include "echo/src/internal_data.h"
#include "echo/src/utils.h"
#include "properties/definitions/property.h"
#include "properties/definitions/record_access.h"

#include <cstddef>
#include <span>
#include <tuple>
#include <type_traits>

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
    const properties::Properties& (*definitions)(const ServedType&);
    std::span<const OptionNumber> options;  // one per field, in field order
};

// The definitions of the record's labelled fields, each with the keywords of its option.
properties::Properties makeDefinitions(const ServedType& served);

// The same, made once and shared by all tables of the record. Never destroyed.
template <class Data>
const properties::Properties& sharedDefinitions(const ServedType& served) {
    static const auto& definitions = *new properties::Properties(makeDefinitions(served));
    return definitions;
}

template <class Options>
consteval bool hasLevelsOnly() {
    return std::apply(
        [](const auto&... field) {
            return (std::is_same_v<decltype(field.member), OutPutType Options::*> && ...);
        },
        bond::description<Options>.fields);
}

template <class Data, std::size_t N>
constexpr ServedType serves(EchoData::ProgrammTypes type, const OptionNumber (&options)[N]) {
    using Options = decltype(Data::prop);
    static_assert(N == bond::fieldCount<Options>, "<=== every field needs its option number");
    static_assert(hasLevelsOnly<Options>(), "<=== every field of an option record is an OutPutType");
    return {type, &properties::recordAccess<Data>, &sharedDefinitions<Data>, options};
}

// Behaviour of a table created for a program type it does not serve.
enum class OtherTypes {
    Refused,       // no options; asking for its lines is reported as a failed assertion
    Written,       // the first record is shown and written, but neither saved nor inserted
    AlsoInserted,  // likewise, but insertXMLData works
};

// Where a failed assertion is reported. sic: host tools match on both, so they never change.
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
    // `program` must have static lifetime. Builds the options: the default record and visibleKeys.
    ProgramData(EchoData::ProgrammTypes type, int database, const Program& program);

 private:
    ProgramData(EchoData::ProgrammTypes type, int database, const Program& program, const ServedType* served);
    bool servesType() const { return served_ && served_->type == programType; }

    const Program& program_;
    const ServedType* served_;
};

// The option fields of a record: those of the envelope's field `prop`.
inline const bond::Struct& optionFields(const ServedType& served) {
    return *served.record().schema.rows.front().nested;
}

}  // namespace tiv::echo::data
