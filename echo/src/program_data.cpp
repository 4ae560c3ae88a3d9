#include "echo/src/program_data.h"

#include "echo/src/settings_string.h"
#include "properties/qt/inc/nextgen/from_bond.h"
#include "tiv/smartassert/smart_assert.h"

#include <memory>
#include <string>

namespace tiv::echo::data {
namespace {

const ServedType* servedTypeFor(const Program& program, EchoData::ProgrammTypes type) {
    for (const ServedType& served : program.types)
        if (served.type == type) return &served;
    return program.otherTypes == OtherTypes::Refused ? nullptr : program.types.data();
}

// "REAC, REAK", or the one keyword that an option has in both languages.
QString bothKeywords(int option) {
    const QString english = optionText(option, 1).keyword;
    const QString german = optionText(option, 0).keyword;
    return english == german ? english : english + QStringLiteral(", ") + german;
}

const properties::Properties& definitionsOf(const ServedType* served) {
    return served ? served->definitions(*served) : noDefinitions();
}

}  // namespace

properties::Properties makeDefinitions(const ServedType& served) {
    const properties::RecordAccess& record = served.record();
    properties::Properties definitions{{}, makeXlator(record.schema.name)};
    properties::fromBond(record, definitions);
    for (const auto& property : definitions.list) {
        const int option = served.options[property->field->id].number;
        property->configuration.set(keywordPath, bothKeywords(option));
    }
    return definitions;
}

ProgramData::ProgramData(EchoData::ProgrammTypes type, int database, const Program& program)
    : ProgramData(type, database, program, servedTypeFor(program, type)) {}

ProgramData::ProgramData(
    EchoData::ProgrammTypes type, int database, const Program& program, const ServedType* served)
    : InternalInterface(type, database, definitionsOf(served)), program_(program), served_(served) {
    if (!served_) return;
    container::model::Transaction transaction(*model);
    served_->record().insertDefault(transaction, recordKey());
    transaction.end();

    visibleKeys.reserve(served_->options.size());
    for (const bond::Row& field : optionFields(*served_).rows) {
        const OptionNumber& option = served_->options[field.id];
        showOption(option.shownAs ? option.shownAs : std::string("prop.") + field.name, option.number);
    }
}

QString ProgramData::getXMLData() {
    if (!servesType()) return {};
    const properties::RecordAccess& record = served_->record();
    return settingsString(record.schema, record.read(*model, recordKey()));
}

void ProgramData::insertXMLData(const QString& text) {
    if (!servesType() && program_.otherTypes != OtherTypes::AlsoInserted) return;
    const properties::RecordAccess& record = served_->record();
    container::model::Transaction transaction(*model);
    record.replace(*model, recordKey(), readSettings(text, record).get());
    transaction.end();
}

std::vector<QString> ProgramData::getTELINP(bool defaultsOnly, bool extensive, int language) {
    if (defaultsOnly) return defaultsLine(language, extensive);
    if (!served_) {
        // sic: host tools match on the reported text, source and line.
        smartassert::SmartAssert(
            R"(0 && "invalid programtypoe")", program_.refusal.source, program_.refusal.line);
        return {};
    }
    const bond::Struct& envelope = served_->record().schema;
    const void* options = envelope.rows.front().in(served_->record().read(*model, recordKey()));
    std::vector<QString> lines;
    for (const bond::Row& field : optionFields(*served_).rows) {
        const auto level = *static_cast<const OutPutType*>(field.in(options));
        appendOptionLine(lines, flags, served_->options[field.id].number, level, language);
    }
    return lines;
}

}  // namespace tiv::echo::data
