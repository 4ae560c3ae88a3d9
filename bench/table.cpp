#include "apps/echotable/table.h"
#include "bench/sample.h"
#include "bench/subjects.h"
#include "bond/exceptions.h"
#include "echo/src/internal_data.h"

#include <memory>
#include <stdexcept>

namespace bench {
namespace {

// Operations on one table of plax2 with these settings.
template <class Call>
auto on(const char* settings, Call call) {
    return [=](int) -> Work {
        auto echo = std::make_shared<EchoData>(plax2, project());
        echo->insertXMLData(settings);
        return [=] { call(*echo); };
    };
}

auto inserts(const QString& text) {
    return on("CgAA", [text](EchoData& echo) { echo.insertXMLData(text); });
}

auto writes(const char* settings, bool defaultsOnly, const char* language) {
    const auto lines = on(settings, [=](EchoData& echo) { echo.getTELINP(defaultsOnly, false, 1); });
    return [=](int runs) {
        setLanguage(language);
        return lines(runs);
    };
}

void insertBroken(EchoData& echo) {
    try {
        echo.insertXMLData(QStringLiteral("ChACUAiQ"));
    } catch (const bond::Exception&) {
        return;
    }
    throw std::logic_error("settings without an end were read");
}

// Tables of every type, made, loaded, saved and written as lines; all are kept.
Work wholeLives(int /*runs*/) {
    std::vector<QString> settings;
    for (unsigned type = 0; type < tiv::echo::data::programTypeCount; ++type)
        settings.push_back(
            settingsString(static_cast<EchoData::ProgrammTypes>(type), R"({"prop":{"0":1,"1":2}})"));
    auto alive = std::make_shared<std::vector<std::unique_ptr<EchoData>>>();
    return [=] {
        const std::size_t type = alive->size() % settings.size();
        EchoData& echo = *alive->emplace_back(
            std::make_unique<EchoData>(static_cast<EchoData::ProgrammTypes>(type), project()));
        echo.insertXMLData(settings[type]);
        if (echo.getXMLData() != settings[type]) throw std::logic_error("other settings came back");
        echo.getTELINP(false, false, 1);
    };
}

}  // namespace

std::vector<Operation> tableOperations() {
    std::vector<Operation> result{
        {"getXMLData, 8 options set", on(eightOptions, [](EchoData& echo) { echo.getXMLData(); })},
        {"insertXMLData, binary", inserts(settingsString(plax2, eightOptions))},
        {"insertXMLData, JSON", inserts(eightOptions)},
        {"insertXMLData, refused", on("CgAA", insertBroken)},
        {"getTELINP, 15 lines", writes(allOptions, false, "C")},
        {"getTELINP, 15 lines, German catalogue", writes(allOptions, false, "de")},
        {"getTELINP, no line", writes("CgAA", false, "C")},
        {"getTELINP, no line, German catalogue", writes("CgAA", false, "de")},
        {"getTELINP, all options at once", writes(allOptions, true, "C")},
        {"getTELINP, all options at once, German catalogue", writes(allOptions, true, "de")},
    };
    const QStringList programs = tiv::tool::programNames();
    for (int type = 0; type < programs.size(); ++type)
        result.push_back({"EchoData, " + programs[type].toStdString(), [=](int) -> Work {
                              return [=] { EchoData(static_cast<EchoData::ProgrammTypes>(type), project()); };
                          }});
    for (const int tables : {100, 1000, 10000})
        result.push_back({"one of " + std::to_string(tables) + " tables", wholeLives, 0, tables});
    return result;
}

}  // namespace bench
