#include "echo/src/program_data.h"

#include "echo/schema/output_type.h"
#include "properties/qt/inc/nextgen/from_bond.h"
#include "tiv/smartassert/smart_assert.h"

#include <QStringList>

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

// One text for all tables, which share it.
const QString& keywords(int option) {
    static const QStringList all = [] {
        QStringList texts;
        for (int i = 0; i < optionCount; ++i) texts << bothKeywords(i);
        return texts;
    }();
    return all[option];
}

}  // namespace

ProgramData::ProgramData(EchoData::ProgrammTypes type, int database, const Program& program)
    : InternalInterface(type, database), program_(program), served_(servedTypeFor(program, type)) {
    if (!served_) return;
    const properties::RecordAccess& record = served_->record();
    translation::configure_xlator(*properties->xlator, record.schema.name);
    properties::fromBond(record, *properties);

    container::model::Transaction transaction(*model);
    record.insertDefault(transaction, recordKey());
    transaction.end();

    for (const bond::Row& field : optionFields(*served_).rows) {
        const OptionNumber& option = served_->options[field.id];
        properties->list[field.id]->configuration.set(keywordPath, keywords(option.number));
        showOption(option.shownAs ? option.shownAs : std::string("prop.") + field.name, option.number);
    }
}

QString ProgramData::getXMLData() {
    if (!servesType()) return {};
    const properties::RecordAccess& record = served_->record();
    return settingsString(record.schema, record.read(*model, recordKey()));
}

void ProgramData::insertXMLData(const QString& text) {
    if (servesType() || program_.otherTypes == OtherTypes::AlsoInserted) served_->insert(*model, text);
}

std::vector<QString> ProgramData::getTELINP(bool defaultsOnly, bool extensive, int language) {
    if (defaultsOnly) return defaultsLine(language, extensive);
    if (!served_) {
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
