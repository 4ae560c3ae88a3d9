#include "properties/definitions/property.h"

#include "bond/member.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <stdexcept>
#include <type_traits>
#include <utility>

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
    if constexpr (std::is_same_v<T, std::string>) {
        if (!value.canConvert<QString>()) conversionFailed();
        return value.toString().toStdString();
    } else if constexpr (std::is_floating_point_v<T>) {
        bool isNumber = false;
        const double number = value.toDouble(&isNumber);
        // The greatest float, printed and read as a double, can be slightly above it.
        if (!isNumber || !std::isfinite(static_cast<T>(number))) conversionFailed();
        return static_cast<T>(number);
    } else {
        using Stored = std::conditional_t<std::is_same_v<T, bool>, std::uint8_t, T>;
        const auto number = wholeNumber(value);
        if (!number) conversionFailed();
        const bool fits = number->isNegative ? std::in_range<Stored>(static_cast<qlonglong>(number->bits))
                                             : std::in_range<Stored>(number->bits);
        if (!fits || (std::is_same_v<T, bool> && number->bits > 1)) conversionFailed();
        return static_cast<T>(number->bits);
    }
}

double shortest(double number) {
    return number;
}

// The double with the same shortest text.
double shortest(float number) {
    std::array<char, 32> text;
    const char* end = std::to_chars(text.data(), text.data() + text.size(), number).ptr;
    double result = 0;
    std::from_chars(text.data(), end, result);
    return result;
}

QVariant read(const bond::Row& field, const void* record) {
    return bond::visitMember(field, record, []<class T>(const T& member) -> QVariant {
        if constexpr (std::is_same_v<T, std::string>)
            return QString::fromStdString(member);
        else if constexpr (std::is_same_v<T, bool> || std::is_same_v<T, std::uint32_t>)
            return member;
        else if constexpr (std::is_floating_point_v<T>)
            return shortest(member);
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

Properties withOwnSettings(const Properties& definitions) {
    Properties result{{}, definitions.xlator};
    result.list.reserve(definitions.list.size());
    for (const auto& definition : definitions.list) {
        auto property = std::make_shared<Property>(*definition);
        property->configuration = Configuration({definition, &definition->configuration});
        result.list.push_back(std::move(property));
    }
    return result;
}

std::optional<WholeNumber> wholeNumber(const QVariant& value) {
    const int type = value.userType();
    if (type == QMetaType::Double || type == QMetaType::Float) return std::nullopt;
    bool isSigned = false, isUnsigned = false;
    const qlonglong number = value.toLongLong(&isSigned);
    const qulonglong bits = value.toULongLong(&isUnsigned);
    const bool isNegative =
        isSigned && number < 0 && type != QMetaType::ULongLong && type != QMetaType::ULong;
    if (isNegative) return WholeNumber{true, static_cast<qulonglong>(number)};
    return isUnsigned ? std::optional(WholeNumber{false, bits}) : std::nullopt;
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
    return value(property, property.record->read(model, key));
}

QVariant value(const Property& property, const void* record) {
    return read(*property.field, structAt(property, record));
}

QVariant defaultValue(const Property& property) {
    return value(property, property.record->schema.defaults);
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
