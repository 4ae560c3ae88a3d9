#include "echo/src/program_data.h"

#include "echo/schema/output_type.h"
#include "properties/qt/inc/nextgen/from_bond.h"
#include "tiv/smartassert/smart_assert.h"

#include <QStringList>

#include <string>

namespace tiv::echo::data {
namespace {

const Variant* variantFor(const Program& program, EchoData::ProgrammTypes type) {
    for (const Variant& variant : program.variants)
        if (variant.type == type) return &variant;
    return program.otherTypes == OtherTypes::Refused ? nullptr : program.variants.data();
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
    : InternalInterface(type, database), program_(program), variant_(variantFor(program, type)) {
    if (!variant_) return;
    const properties::RecordAccess& record = variant_->record();
    translation::configure_xlator(*properties->xlator, record.schema.name);
    properties::fromBond(record, *properties);

    container::model::Transaction transaction(*model);
    record.insertDefault(transaction, recordKey());
    transaction.end();

    for (const bond::Row& field : optionFields(*variant_).rows) {
        const OptionNumber& option = variant_->options[field.id];
        properties->list[field.id]->configuration.set("inspector.keyword", keywords(option.number));
        showOption(option.shownAs ? option.shownAs : std::string("prop.") + field.name, option.number);
    }
}

QString ProgramData::getXMLData() {
    if (!servesType()) return {};
    const properties::RecordAccess& record = variant_->record();
    return settingsString(record.schema, record.read(*model, recordKey()));
}

void ProgramData::insertXMLData(const QString& text) {
    if (servesType() || program_.otherTypes == OtherTypes::AlsoInserted) variant_->insert(*model, text);
}

std::vector<QString> ProgramData::getTELINP(bool defaultsOnly, bool extensive, int language) {
    if (defaultsOnly) return defaultsLine(language, extensive);
    if (!variant_) {
        smartassert::SmartAssert(
            R"(0 && "invalid programtypoe")", program_.refusal.source, program_.refusal.line);
        return {};
    }
    const bond::Struct& envelope = variant_->record().schema;
    const void* options = envelope.rows.front().in(variant_->record().read(*model, recordKey()));
    std::vector<QString> lines;
    for (const bond::Row& field : optionFields(*variant_).rows) {
        const auto level = *static_cast<const OutPutType*>(field.in(options));
        appendOptionLine(lines, flags, variant_->options[field.id].number, level, language);
    }
    return lines;
}

}  // namespace tiv::echo::data
