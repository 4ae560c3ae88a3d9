#include "echo/src/levels.h"

#include "properties/definitions/paths.h"
#include "tiv/echo/echo_data.h"

#include <map>
#include <memory>
#include <utility>

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

std::vector<OutPutType> offeredLevels(const std::string& key) {
    std::vector<OutPutType> levels{DEFAULT_OUTPUT, NO_OUTPUT};
    const auto offer = [&](std::initializer_list<OutPutType> more) {
        levels.insert(levels.end(), more.begin(), more.end());
    };
    if (key == "prop.esk_reac" || key == "prop.line")
        offer({NORMAL_OUTPUT, FULL_OUTPUT});
    else if (key == "prop.mexora_load" || key == "prop.mexora_tabs")
        offer({NORMAL_OUTPUT});
    else if (key == "prop.mexora_full")
        offer({FULL_OUTPUT});
    else
        offer({NORMAL_OUTPUT, FULL_OUTPUT, EXTENSIVE_OUTPUT});
    if (key == "prop.nost" || key == "prop.esk_forc") offer({FOUR, FIVE, SIX, SEVEN});
    return levels;
}

namespace {

using NamedLevels = std::vector<properties::NamedValue>;

// Names of all levels, by level: also to display stored values that are not offered.
NamedLevels levelNames() {
    NamedLevels names;
    for (const bond::Enumerator& level : outPutTypes)
        names.push_back({levelText(static_cast<OutPutType>(level.value)), level.value});
    return names;
}

// Extra explanation for the numeric levels.
NamedLevels levelExplanations() {
    NamedLevels texts;
    for (const OutPutType level : {FOUR, FIVE, SIX, SEVEN})
        texts.push_back({EchoData::tr("Numeric level %1: kept with the settings, but the input text has no "
                                      "keyword for it, so no line is written.")
                             .arg(levelText(level)),
            int{level}});
    return texts;
}

}  // namespace

void offerLevels(properties::Properties& properties) {
    const auto names = std::make_shared<const NamedLevels>(levelNames());
    const auto explanations = std::make_shared<const NamedLevels>(levelExplanations());
    std::map<std::vector<OutPutType>, properties::NamedValues> known;  // most options offer the same levels
    for (const auto& property : properties.list) {
        const std::vector<OutPutType> levels = offeredLevels(property->key);
        properties::NamedValues& entries = known[levels];
        if (!entries) {
            NamedLevels offered;
            for (const OutPutType level : levels)
                offered.push_back((*names)[static_cast<std::size_t>(level)]);
            entries = std::make_shared<const NamedLevels>(std::move(offered));
        }
        properties::Configuration& configuration = property->configuration;
        configuration.set(properties::path::editorEntries, entries);
        configuration.set(properties::path::validatorEntries, entries);
        configuration.set(properties::path::editorNames, names);
        configuration.set(properties::path::editorExplanations, explanations);
    }
}

}  // namespace tiv::echo::data
