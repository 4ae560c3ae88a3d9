// What a property accepts, by "validator.kind".
#pragma once

#include "properties/definitions/property.h"

#include <QString>
#include <QVariant>

#include <functional>
#include <map>
#include <utility>

namespace tiv::properties {

class DefaultValidatorFactory {
 public:
    using Validator = std::function<bool(const QVariant&)>;
    using Maker = std::function<Validator(const Branch& validator)>;

    // With "named_value_list", which accepts exactly the values of the entries.
    DefaultValidatorFactory();
    void add(const QString& kind, Maker maker) { makers_[kind] = std::move(maker); }

    // The validator of the property's "validator.kind". Without one, or for an unknown one: numbers with at most
    // "validator.precision" decimal places where that is set; otherwise accepts everything.
    Validator create(const Property& property) const;

 private:
    std::map<QString, Maker> makers_;
};

}  // namespace tiv::properties
