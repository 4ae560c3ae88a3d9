#include "properties/translation/xlator.h"

#include <boost/locale/generator.hpp>
#include <boost/locale/info.hpp>

#include <optional>
#include <unordered_map>
#include <utility>

namespace tiv::translation {

struct Xlator::Implementation {
    Lookup lookup;
    std::optional<boost::locale::generator> generator;  // made with the first locale
    std::unordered_map<std::string, std::locale> locales;
    bool sourceTexts = true;  // until a struct is bound
    std::string structName;

    const std::locale& generated(const std::string& name) {
        const auto known = locales.find(name);
        if (known != locales.end()) return known->second;
        if (!generator) generator.emplace();
        return locales.emplace(name, (*generator)(name)).first->second;
    }
};

Xlator::Xlator(Lookup lookup) : implementation_(std::make_shared<Implementation>()) {
    implementation_->lookup = std::move(lookup);
}

QString Xlator::text(const std::string& key, const char* sourceText) const {
    const Implementation& i = *implementation_;
    if (i.sourceTexts || !i.lookup) return QString::fromUtf8(sourceText);
    return i.lookup(i.structName + ':' + key, sourceText);
}

const std::locale& Xlator::locale(const std::string& name) {
    const auto& info = std::use_facet<boost::locale::info>(implementation_->generated(name));
    const std::string country = info.country().empty() ? "" : '_' + info.country();
    return implementation_->generated(info.language() + country + ".UTF-8");
}

void configure_xlator(Xlator& xlator, const std::string& structName) {
    xlator.implementation_->structName = structName;
    xlator.implementation_->sourceTexts = false;
}

}  // namespace tiv::translation
