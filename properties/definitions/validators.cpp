#include "properties/definitions/validators.h"

#include "properties/definitions/paths.h"

#include <algorithm>
#include <cmath>

namespace tiv::properties {
namespace {

DefaultValidatorFactory::Validator namedValues(const Branch& validator) {
    const auto* entries = validator.get<NamedValues>(path::entries);
    const auto* isEqual = validator.get<IsEqual>(path::isEqual);
    if (!entries) return [](const QVariant&) { return false; };
    return [list = *entries, equal = isEqual ? *isEqual : nullptr](const QVariant& value) {
        return std::any_of(list->begin(), list->end(), [&](const NamedValue& entry) {
            return equal ? equal(entry.value, value) : entry.value == value;
        });
    };
}

DefaultValidatorFactory::Validator decimalPlaces(int places) {
    return [places](const QVariant& value) {
        bool number = false;
        const double scaled = value.toDouble(&number) * std::pow(10.0, places);
        return number && std::abs(scaled - std::round(scaled)) <= 1e-9 * std::max(1.0, std::abs(scaled));
    };
}

}  // namespace

DefaultValidatorFactory::DefaultValidatorFactory() {
    add(QStringLiteral("named_value_list"), namedValues);
}

DefaultValidatorFactory::Validator DefaultValidatorFactory::create(const Property& property) const {
    const Branch validator = property.configuration.branch(path::validator);
    const auto* kind = validator.get<QString>(path::kind);
    const auto maker = kind ? makers_.find(*kind) : makers_.end();
    if (maker != makers_.end()) return maker->second(validator);
    if (const auto* places = validator.get<int>(path::precision)) return decimalPlaces(*places);
    return [](const QVariant&) { return true; };
}

}  // namespace tiv::properties
