#include "echo/src/levels.h"

#include "properties/definitions/paths.h"
#include "tiv/echo/echo_data.h"

#include <memory>

namespace tiv::echo::data {

QString levelText(OutPutType level) {
    switch (level) {
        case DEFAULT_OUTPUT:
            return EchoData::tr("Default output");
        case NO_OUTPUT:
            return EchoData::tr("No output");
        case NORMAL_OUTPUT:
            return EchoData::tr("Normal output");
        case FULL_OUTPUT:
            return EchoData::tr("Full output");
        case EXTENSIVE_OUTPUT:
            return EchoData::tr("Extensive output");
        case FOUR:
            return QStringLiteral("4");
        case FIVE:
            return QStringLiteral("5");
        case SIX:
            return QStringLiteral("6");
        case SEVEN:
            return QStringLiteral("7");
    }
    return QString::number(level);
}

std::vector<properties::NamedValue> offeredLevels(const std::string& key) {
    std::vector<properties::NamedValue> entries;
    const auto offer = [&](std::initializer_list<OutPutType> levels) {
        for (const OutPutType level : levels) entries.push_back({levelText(level), int{level}});
    };
    offer({DEFAULT_OUTPUT, NO_OUTPUT});
    if (key == "prop.esk_reac" || key == "prop.line")
        offer({NORMAL_OUTPUT, FULL_OUTPUT});
    else if (key == "prop.mexora_load" || key == "prop.mexora_tabs")
        offer({NORMAL_OUTPUT});
    else if (key == "prop.mexora_full")
        offer({FULL_OUTPUT});
    else
        offer({NORMAL_OUTPUT, FULL_OUTPUT, EXTENSIVE_OUTPUT});
    if (key == "prop.nost" || key == "prop.esk_forc") offer({FOUR, FIVE, SIX, SEVEN});
    return entries;
}

namespace {

// How every level reads, for values that are stored though they are not offered.
properties::NamedValues levelNames() {
    auto names = std::make_shared<std::vector<properties::NamedValue>>();
    for (const bond::Enumerator& level : outPutTypes)
        names->push_back({levelText(static_cast<OutPutType>(level.value)), level.value});
    return names;
}

// What a level does not say of itself.
properties::NamedValues levelExplanations() {
    auto texts = std::make_shared<std::vector<properties::NamedValue>>();
    for (const OutPutType level : {FOUR, FIVE, SIX, SEVEN})
        texts->push_back({EchoData::tr("Numeric level %1: kept with the settings, but the input text has no "
                                       "keyword for it, so no line is written.")
                              .arg(levelText(level)),
            int{level}});
    return texts;
}

}  // namespace

void offerLevels(properties::Properties& properties) {
    const properties::NamedValues names = levelNames();
    const properties::NamedValues explanations = levelExplanations();
    for (const auto& property : properties.list) {
        const auto entries =
            std::make_shared<const std::vector<properties::NamedValue>>(offeredLevels(property->key));
        properties::Configuration& configuration = property->configuration;
        configuration.set(properties::path::editorEntries, entries);
        configuration.set(properties::path::validatorEntries, entries);
        configuration.set(properties::path::editorNames, names);
        configuration.set(properties::path::editorExplanations, explanations);
    }
}

}  // namespace tiv::echo::data
