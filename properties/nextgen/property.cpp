#include "properties/nextgen/property.h"

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

// Calls `visit` with the field's member as a pointer of its own type.
template <class Byte, class Visit>
auto visitMember(const bond::Row& field, Byte* record, Visit visit) {
    const auto as = [&]<class T>(T) {
        return visit(static_cast<std::conditional_t<std::is_const_v<Byte>, const T, T>*>(field.in(record)));
    };
    switch (field.type) {
        case bond::Type::Bool:
            return as(bool{});
        case bond::Type::Int8:
            return as(std::int8_t{});
        case bond::Type::Int16:
            return as(std::int16_t{});
        case bond::Type::Int64:
            return as(std::int64_t{});
        case bond::Type::UInt8:
            return as(std::uint8_t{});
        case bond::Type::UInt16:
            return as(std::uint16_t{});
        case bond::Type::UInt32:
            return as(std::uint32_t{});
        case bond::Type::UInt64:
            return as(std::uint64_t{});
        case bond::Type::Float:
            return as(float{});
        case bond::Type::Double:
            return as(double{});
        case bond::Type::String:
            return as(std::string{});
        case bond::Type::Int32:
        case bond::Type::Enum:
        case bond::Type::Struct:
            break;  // a struct is entered by from_bond and is never a field here
    }
    return as(std::int32_t{});
}

template <class T>
T converted(const QVariant& value) {
    bool ok = true;
    if constexpr (std::is_same_v<T, std::string>) {
        if (!value.canConvert<QString>()) conversionFailed();
        return value.toString().toStdString();
    } else if constexpr (std::is_same_v<T, bool>) {
        if (value.type() == QVariant::Bool) return value.toBool();
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
        const bool negative = value.type() != QVariant::ULongLong && value.toLongLong() < 0;
        if (!ok || negative || number > std::numeric_limits<T>::max()) conversionFailed();
        return static_cast<T>(number);
    } else {
        if (value.type() == QVariant::Double) conversionFailed();  // would be rounded
        const qlonglong number = value.toLongLong(&ok);
        const bool fits = number >= std::numeric_limits<T>::min() && number <= std::numeric_limits<T>::max();
        if (!ok || !fits) conversionFailed();
        return static_cast<T>(number);
    }
}

QVariant read(const bond::Row& field, const void* record) {
    return visitMember(field, record, [](const auto* member) -> QVariant {
        using T = std::remove_cv_t<std::remove_pointer_t<decltype(member)>>;
        if constexpr (std::is_same_v<T, std::string>)
            return QString::fromStdString(*member);
        else if constexpr (std::is_same_v<T, bool>)
            return *member;
        else if constexpr (std::is_floating_point_v<T>)
            return double{*member};
        else if constexpr (sizeof(T) == 8)
            return std::is_signed_v<T> ? QVariant(static_cast<qlonglong>(*member))
                                       : QVariant(static_cast<qulonglong>(*member));
        else if constexpr (std::is_same_v<T, std::uint32_t>)
            return QVariant(*member);
        else
            return QVariant(int{*member});
    });
}

const void* structAt(const Property& property, const void* record) {
    return static_cast<const std::byte*>(record) + property.offset;
}

}  // namespace

QString label(const Properties& properties, const Property& property) {
    return translated(properties, property.key, property.displayName);
}

QString tooltip(const Properties& properties, const Property& property) {
    return property.tooltip ? translated(properties, property.key + ".tooltip", property.tooltip) : QString();
}

QString category(const Properties& properties, const Property& property) {
    return translated(properties, property.key + ": category", property.category);
}

QVariant value(const Property& property, const Model& model, const Key& key) {
    return read(*property.field, structAt(property, property.record->read(model, key)));
}

QVariant defaultValue(const Property& property) {
    return read(*property.field, structAt(property, property.record->schema.defaults));
}

void setValue(const Property& property, Model& model, const Key& key, const QVariant& value) {
    Transaction transaction(model);
    void* record = static_cast<std::byte*>(property.record->modify(model, key)) + property.offset;
    visitMember(*property.field, record, [&](auto* member) {
        *member = converted<std::remove_pointer_t<decltype(member)>>(value);
    });
    transaction.end();
}

}  // namespace tiv::properties
