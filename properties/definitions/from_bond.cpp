#include "properties/qt/inc/nextgen/from_bond.h"
#include "properties/definitions/paths.h"

#include <boost/lexical_cast.hpp>

#include <cstdint>
#include <optional>
#include <stdexcept>
#include <utility>

namespace tiv::properties {
namespace {

std::optional<int> precision(const bond::Row& field) {
    const char* text = field.attribute("Precision");
    if (!text) return std::nullopt;
    try {
        return std::stoi(text);
    } catch (const std::logic_error&) {  // "invalid stoi argument", "stoi argument out of range"
        return std::nullopt;
    }
}

NamedValues enumerators(const bond::EnumSchema& enumeration) {
    auto entries = std::make_shared<std::vector<NamedValue>>();
    for (const bond::Enumerator& e : enumeration.enumerators)
        entries->push_back({QString::fromLatin1(e.name), e.value});
    return entries;
}

bool equalNumbers(const QVariant& a, const QVariant& b) {
    const auto number = wholeNumber(a);
    return number && number == wholeNumber(b);
}

// `known` keeps the entries of an enumeration for the next field of the same type.
void configure(Configuration& configuration, const bond::Row& field,
    std::pair<const bond::EnumSchema*, NamedValues>& known) {
    if (const auto digits = precision(field)) {
        configuration.set(path::validatorPrecision, *digits);
        configuration.set(path::editorValidatorPrecision, *digits);
    }
    if (field.enumeration) {
        if (known.first != field.enumeration) known = {field.enumeration, enumerators(*field.enumeration)};
        const QString kind = QStringLiteral("named_value_list");
        for (const auto at : {path::editorKind, path::validatorKind, path::editorValidatorKind})
            configuration.set(at, kind);
        for (const auto at : {path::validatorEntries, path::editorEntries})
            configuration.set(at, known.second);
        for (const auto at : {path::validatorIsEqual, path::editorIsEqual})
            configuration.set(at, &equalNumbers);
    }
    if (const char* editor = field.attribute("Editor"))
        configuration.set(path::editorKind, QString::fromUtf8(editor));
}

class Conversion {
 public:
    explicit Conversion(const RecordAccess& record) : record_(record) {
        enter(record.schema, std::string(), 0);
    }
    std::vector<std::shared_ptr<Property>> result;

 private:
    void enter(const bond::Struct& schema, const std::string& path, std::size_t offset) {
        for (const bond::Row& field : schema.rows) {
            const std::string key = path + field.name;
            if (field.nested)
                enter(*field.nested, key + '.', offset + field.offset);
            else
                convert(field, key, offset);
        }
    }

    void convert(const bond::Row& field, const std::string& key, std::size_t offset) {
        const char* displayName = field.attribute("DisplayName");
        if (!displayName) return;
        const char* category = field.attribute("Category");
        const char* weight = field.attribute("PropertyWeight");
        auto property = std::make_shared<Property>(Property{key,
            displayName,
            field.attribute("Tooltip"),
            category ? category : "General",
            field.attribute("ColumnWidth"),
            weight ? boost::lexical_cast<std::int32_t>(weight) : 0,
            {},
            &record_,
            &field,
            offset});
        configure(property->configuration, field, known_);
        result.push_back(std::move(property));
    }

    const RecordAccess& record_;
    std::pair<const bond::EnumSchema*, NamedValues> known_{};
};

}  // namespace

void fromBond(const RecordAccess& record, Properties& properties) {
    Conversion conversion(record);
    properties.list.insert(properties.list.end(),
        std::make_move_iterator(conversion.result.begin()),
        std::make_move_iterator(conversion.result.end()));
}

}  // namespace tiv::properties
