#include "properties/translation/xlator.h"

#include <boost/locale/generator.hpp>
#include <boost/locale/info.hpp>

#include <unordered_map>

namespace tiv::translation {

struct Xlator::Locales {
    boost::locale::generator generator;
    std::unordered_map<std::string, std::locale> known;

    const std::locale& named(const std::string& name) {
        const auto found = known.find(name);
        return found != known.end() ? found->second : known.emplace(name, generator(name)).first->second;
    }
};

const std::locale& Xlator::locale(const std::string& name) {
    if (!locales_) locales_ = std::make_shared<Locales>();
    const auto& info = std::use_facet<boost::locale::info>(locales_->named(name));
    const std::string country = info.country().empty() ? "" : '_' + info.country();
    return locales_->named(info.language() + country + ".UTF-8");
}

}  // namespace tiv::translation
