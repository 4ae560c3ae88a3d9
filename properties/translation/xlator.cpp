#include "properties/translation/xlator.h"

#include <utility>

namespace tiv::translation {

struct Xlator::Implementation {
    Lookup lookup;
    bool sourceTexts = true;  // until a struct is bound
    std::string structName;
};

Xlator::Xlator(Lookup lookup) : implementation_(std::make_shared<Implementation>()) {
    implementation_->lookup = std::move(lookup);
}

QString Xlator::text(const std::string& key, const char* sourceText) const {
    const Implementation& i = *implementation_;
    if (i.sourceTexts || !i.lookup) return QString::fromUtf8(sourceText);
    return i.lookup(i.structName + ':' + key, sourceText);
}

void configure_xlator(Xlator& xlator, const std::string& structName) {
    xlator.implementation_->structName = structName;
    xlator.implementation_->sourceTexts = false;
}

}  // namespace tiv::translation
