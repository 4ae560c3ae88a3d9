// Property definitions: what the inspector shows of each field. Made by from_bond from a record's
// description, whose texts live as long as the process.
#pragma once

#include "properties/definitions/configuration.h"
#include "properties/definitions/record_access.h"
#include "properties/translation/xlator.h"

#include <QString>
#include <QVariant>

#include <cstddef>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace tiv::properties {

struct Property {
    std::string key;          // path of field names from the record down to the field: "prop.full"
    const char* displayName;  // source texts, translated where they are shown
    const char* tooltip;      // null: none
    const char* category;     // empty: shown without a heading
    const char* columnWidth;  // null: none; else the least width of the value column in characters
    int weight;               // lighter properties are shown first
    Configuration configuration;
    const RecordAccess* record;  // the record that holds the field
    const bond::Row* field;
    std::size_t offset;  // of the field's struct within the record, in bytes
};

// The properties of one record, in order of the schema.
struct Properties {
    std::vector<std::shared_ptr<Property>> list;
    std::shared_ptr<const translation::Xlator> xlator;  // null: source texts are shown as they are
};

// The same properties with configurations of their own, for settings that the shared definitions of a
// record cannot hold. Settings that are not set again are read from `definitions`.
Properties withOwnSettings(const Properties& definitions);

// The texts of a property in the language of its set's translator.
QString label(const Properties& properties, const Property& property);
QString tooltip(const Properties& properties, const Property& property);  // null when it has none
QString category(const Properties& properties, const Property& property);
// A text of the inspector itself, by its source text.
QString inspectorText(const Properties& properties, const char* source);

// The field's value in the record under `key`: int for an enumeration, else bool, int, unsigned int,
// qlonglong, qulonglong, double or QString. A float is the double with the same shortest text: 0.12, not
// 0.11999999731779099. Throws what Model::read throws.
QVariant value(
    const Property& property, const container::model::Model& model, const container::model::Key& key);
// The field's value in a record outside a model.
QVariant value(const Property& property, const void* record);
// The field's value in a record with nothing set.
QVariant defaultValue(const Property& property);

struct PropertyValue {
    std::shared_ptr<const Property> property;
    QVariant value;
};
// A whole number of 64 bits; those of a negative one are its two's complement.
struct WholeNumber {
    bool isNegative;
    qulonglong bits;
    bool operator==(const WholeNumber&) const = default;
};
// None for a value that is no whole number. A float or double, which would be rounded, never is.
std::optional<WholeNumber> wholeNumber(const QVariant& value);
// Sets the fields of one record in one transaction. A text is converted to the field's type.
// Throws std::runtime_error "Conversion failed." when a value does not fit its field, and what
// Transaction and ObjectHandle::modify throw; the record is then unchanged.
void setValues(
    std::span<const PropertyValue> values, container::model::Model& model, const container::model::Key& key);

}  // namespace tiv::properties
