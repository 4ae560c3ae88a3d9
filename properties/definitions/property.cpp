#include "properties/definitions/property.h"

#include "bond/member.h"

#include <cmath>
#include <limits>
#include <stdexcept>
#include <type_traits>

namespace tiv::properties {
namespace {

using container::model::Key;
using container::model::Model;
using container::model::Transaction;

QString translated(const Properties& properties, const std::string& key, const char* source) {
    return properties.xlator ? properties.xlator->text(key, source) : QString::fromUtf8(source);
}

[[noreturn]] void conversionFailed() {
    throw std::runtime_error("Conversion failed.");
}

template <class T>
T converted(const QVariant& value) {
    bool ok = true;
    if (std::is_integral_v<T> && isFloatingPoint(value)) conversionFailed();  // would be rounded
    if constexpr (std::is_same_v<T, std::string>) {
        if (!value.canConvert<QString>()) conversionFailed();
        return value.toString().toStdString();
    } else if constexpr (std::is_same_v<T, bool>) {
        if (value.userType() == QMetaType::Bool) return value.toBool();
        const qlonglong number = value.toLongLong(&ok);
        if (!ok || number < 0 || number > 1) conversionFailed();
        return number == 1;
    } else if constexpr (std::is_floating_point_v<T>) {
        const double number = value.toDouble(&ok);
        if (!ok || !std::isfinite(number) || std::abs(number) > std::numeric_limits<T>::max())
            conversionFailed();
        return static_cast<T>(number);
    } else if constexpr (std::is_unsigned_v<T>) {
        const qulonglong number = value.toULongLong(&ok);
        const bool negative = value.userType() != QMetaType::ULongLong && value.toLongLong() < 0;
        if (!ok || negative || number > std::numeric_limits<T>::max()) conversionFailed();
        return static_cast<T>(number);
    } else {
        const qlonglong number = value.toLongLong(&ok);
        const bool fits = number >= std::numeric_limits<T>::min() && number <= std::numeric_limits<T>::max();
        if (!ok || !fits) conversionFailed();
        return static_cast<T>(number);
    }
}

QVariant read(const bond::Row& field, const void* record) {
    return bond::visitMember(field, record, []<class T>(const T& member) -> QVariant {
        if constexpr (std::is_same_v<T, std::string>)
            return QString::fromStdString(member);
        else if constexpr (std::is_same_v<T, bool> || std::is_same_v<T, std::uint32_t>)
            return member;
        else if constexpr (std::is_floating_point_v<T>)
            return double{member};
        else if constexpr (std::is_same_v<T, std::int64_t>)
            return static_cast<qlonglong>(member);
        else if constexpr (std::is_same_v<T, std::uint64_t>)
            return static_cast<qulonglong>(member);
        else
            return int{member};
    });
}

const void* structAt(const Property& property, const void* record) {
    return static_cast<const std::byte*>(record) + property.offset;
}

}  // namespace

bool isFloatingPoint(const QVariant& value) {
    return value.userType() == QMetaType::Double || value.userType() == QMetaType::Float;
}

QString label(const Properties& properties, const Property& property) {
    return translated(properties, property.key, property.displayName);
}

QString tooltip(const Properties& properties, const Property& property) {
    return property.tooltip ? translated(properties, property.key + ".tooltip", property.tooltip) : QString();
}

QString category(const Properties& properties, const Property& property) {
    return translated(properties, property.key + ": category", property.category);
}

QString inspectorText(const Properties& properties, const char* source) {
    return translated(properties, "inspector", source);
}

QVariant value(const Property& property, const Model& model, const Key& key) {
    return read(*property.field, structAt(property, property.record->read(model, key)));
}

QVariant defaultValue(const Property& property) {
    return read(*property.field, structAt(property, property.record->schema.defaults));
}

void setValues(std::span<const PropertyValue> values, Model& model, const Key& key) {
    Transaction transaction(model);
    for (const PropertyValue& change : values) {
        const Property& property = *change.property;
        void* record = static_cast<std::byte*>(property.record->modify(model, key)) + property.offset;
        bond::visitMember(
            *property.field, record, [&]<class T>(T& member) { member = converted<T>(change.value); });
    }
    transaction.end();
}

}  // namespace tiv::properties
