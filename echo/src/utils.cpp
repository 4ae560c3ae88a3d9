#include "echo/src/utils.h"

#include "tiv/smartassert/smart_assert.h"

#include <QLatin1String>
#include <QStringBuilder>

#include <iterator>

namespace tiv::echo::data {
namespace {

struct Option {
    const char* german;
    const char* english;
    const char* description;
};

// sic: the analysis programs read these words, so entries that look like mistakes are kept.
constexpr Option options[] = {
    {"VOLL", "FULL", QT_TRANSLATE_NOOP("EchoData", "Default of all options")},                      // 0
    {"GRUP", "GRP", QT_TRANSLATE_NOOP("EchoData", "Group parameters")},                             // 1
    {"LAST", "LOAD", QT_TRANSLATE_NOOP("EchoData", "Loads")},                                       // 2
    {"LSUM", "LSUM", QT_TRANSLATE_NOOP("EchoData", "Sum of loads")},                                // 3
    {"REAK", "REAC", QT_TRANSLATE_NOOP("EchoData", "Support reactions")},                           // 4
    {"AUFL", "LINE", QT_TRANSLATE_NOOP("EchoData", "Distributed support reactions")},               // 5
    {"VERS", "DISP", QT_TRANSLATE_NOOP("EchoData", "Displacements")},                               // 6
    {"SCHN", "FORC", QT_TRANSLATE_NOOP("EchoData", "Internal forces and moments")},                 // 7
    {"NOST", "NOST", QT_TRANSLATE_NOOP("EchoData", "Internal forces and moments at nodes")},        // 8
    {"BETT", "BEDD", QT_TRANSLATE_NOOP("EchoData", "Bedding stresses")},                            // 9
    {"EIGE", "EIGE", QT_TRANSLATE_NOOP("EchoData", "Eigenvalues")},                                 // 10
    {"VOLL", "FULL", QT_TRANSLATE_NOOP("EchoData", "Default of all options")},                      // 11
    {"KNOT", "NODE", QT_TRANSLATE_NOOP("EchoData", "Node coordinates, constraints")},               // 12
    {"LAST", "LOAD", QT_TRANSLATE_NOOP("EchoData", "Loads")},                                       // 13
    {"STAB", "BEAM", QT_TRANSLATE_NOOP("EchoData", "Beams (structure)")},                           // 14
    {"MAT", "SPRI", QT_TRANSLATE_NOOP("EchoData", "Spring elements (structures)")},                 // 15, sic
    {"MAT", "BOUN", QT_TRANSLATE_NOOP("EchoData", "Distributed supported elements (structures)")},  // 16, sic
    {"SCHN", "FORC", QT_TRANSLATE_NOOP("EchoData", "Internal forces and moments")},                 // 17
    {"REAK", "REAC", QT_TRANSLATE_NOOP("EchoData", "Support reactions")},                           // 18
    {"QUER", "SECT", QT_TRANSLATE_NOOP("EchoData", "Cross Section values")},                        // 19
    {"MAT", "MAT", QT_TRANSLATE_NOOP("EchoData", "Material constants")},                            // 20
    {"SVER", "DEFO", QT_TRANSLATE_NOOP("EchoData", "Beam deformations")},                           // 21
    {"VERS", "BDEF", QT_TRANSLATE_NOOP("EchoData", "Nodal displacements")},                         // 22
    {"BEW", "REIN", QT_TRANSLATE_NOOP("EchoData", "Reinforcements")},                               // 23
    {"DEHN", "NSTR", QT_TRANSLATE_NOOP("EchoData", "Strains and stiffnesses")},                     // 24
    {"STEP", "STEP", QT_TRANSLATE_NOOP("EchoData", "Output of all iterations")},                    // 25
    {"SPAN", "STRE", QT_TRANSLATE_NOOP("EchoData", "Stresses, Utilisation Level, Flexural Buckling")},  // 26
    {"TABS", "TABS", QT_TRANSLATE_NOOP("EchoData", "Tabular summaries")},                               // 27
    {"DEHN", "NSTR", QT_TRANSLATE_NOOP("EchoData", "Non-linear stresses")},                             // 28
    {"AUSN", "USEP", QT_TRANSLATE_NOOP("EchoData", "Used participy factors")},         // 29, sic
    {"LF", "LC", QT_TRANSLATE_NOOP("EchoData", "Individual loadcases")},               // 30
    {"VOLL", "FULL", QT_TRANSLATE_NOOP("EchoData", "Default of all other options")},   // 31
    {"SCHU", "SHEA", QT_TRANSLATE_NOOP("EchoData", "Shear design")},                   // 32
    {"BEME", "DESI", QT_TRANSLATE_NOOP("EchoData", "Non-linear stresses")},            // 33, sic
    {"BEW", "REIN", QT_TRANSLATE_NOOP("EchoData", "Limitation of crack width")},       // 34, sic
    {"RISS", "CRAC", QT_TRANSLATE_NOOP("EchoData", "Limitation of crack width")},      // 35
    {"VELO", "VELO", QT_TRANSLATE_NOOP("EchoData", "Velocities")},                     // 36
    {"ACCE", "ACCE", QT_TRANSLATE_NOOP("EchoData", "Accelerations")},                  // 37
    {"KNOT", "NODE", QT_TRANSLATE_NOOP("EchoData", "Nodal values")},                   // 38
    {"ELEM", "ELEM", QT_TRANSLATE_NOOP("EchoData", "Elements")},                       // 39
    {"MASS", "MASS", QT_TRANSLATE_NOOP("EchoData", "Masses in nodes")},                // 40
    {"EIGE", "EIGE", QT_TRANSLATE_NOOP("EchoData", "Natural frequencies")},            // 41
    {"SCHN", "FORC", QT_TRANSLATE_NOOP("EchoData", "Internal forces and moments")},    // 42
    {"BA", "CS", QT_TRANSLATE_NOOP("EchoData", "Construction Stages")},                // 43
    {"GRUP", "GRP", QT_TRANSLATE_NOOP("EchoData", "Groups")},                          // 44
    {"LF", "LC", QT_TRANSLATE_NOOP("EchoData", "Loadcases")},                          // 45
    {"VOLL", "FULL", QT_TRANSLATE_NOOP("EchoData", "Default of all other options")},   // 46
    {"PARA", "PARA", QT_TRANSLATE_NOOP("EchoData", "Design parameter")},               // 47
    {"BEME", "REIN", QT_TRANSLATE_NOOP("EchoData", "Design results")},                 // 48
    {"ZUS", "RTAB", QT_TRANSLATE_NOOP("EchoData", "Reinforcement compilation")},       // 49
    {"INDX", "INDX", QT_TRANSLATE_NOOP("EchoData", "Steel index")},                    // 50
    {"BMOM", "DMOM", QT_TRANSLATE_NOOP("EchoData", "Internal forces of the design")},  // 51
    {"DUST", "PUNC", QT_TRANSLATE_NOOP("EchoData", "Punching checks")},                // 52
    {"SIGS", "SIGS", QT_TRANSLATE_NOOP("EchoData", "Concrete compressive stress")},    // 53
    {"DEHN", "NSTR", QT_TRANSLATE_NOOP("EchoData", "Fatigue design")},                 // 54
    {"VOLL", "FULL", QT_TRANSLATE_NOOP("EchoData", "Default of all other options")},   // 55
    {"ACT", "ACT", QT_TRANSLATE_NOOP("EchoData", "Actions")},                          // 56
    {"LAST", "LOAD", QT_TRANSLATE_NOOP("EchoData", "Loading")},                        // 57
    {"VOLL", "FULL", QT_TRANSLATE_NOOP("EchoData", "Default of all other options")},   // 58
    {"TABU",
        "TABS",
        QT_TRANSLATE_NOOP("EchoData", "General tables of the combinations and generated load cases")},  // 59
    {"LAST", "LOAD", QT_TRANSLATE_NOOP("EchoData", "Used load cases")},                                 // 60
    {"LAST", "LOAD", QT_TRANSLATE_NOOP("EchoData", "Loadtrains")},                                      // 61
    {"AUSW", "EVAL", QT_TRANSLATE_NOOP("EchoData", "Evaluation")},                                      // 62
    {"LPOS", "LPOS", QT_TRANSLATE_NOOP("EchoData", "Load positions")},                                  // 63
    {"ERG", "RES", QT_TRANSLATE_NOOP("EchoData", "Results")},                                           // 64
};
static_assert(std::size(options) == optionCount);

struct Keyword {
    const char* german;
    const char* english;
};

// By level; DEFAULT_OUTPUT writes no line.
constexpr Keyword levels[] = {{}, {"NEIN", "NO"}, {"JA", "YES"}, {"VOLL", "FULL"}, {"EXTR", "EXTR"}};

QLatin1String word(const char* german, const char* english, int language) {
    return QLatin1String(language == 0 ? german : english);
}

const Option* rowOf(int option) {
    return option >= 0 && option < optionCount ? &options[option] : nullptr;
}

// Null for a level without a keyword.
QLatin1String keywordOf(OutPutType level, int language) {
    if (level < NO_OUTPUT || level > EXTENSIVE_OUTPUT) return {};
    return word(levels[level].german, levels[level].english, language);
}

}  // namespace

OptionText optionText(int option, int language) {
    const Option* row = rowOf(option);
    if (!row) return {QString(), nullptr};
    return {word(row->german, row->english, language), row->description};
}

std::optional<QString> levelKeyword(OutPutType level, int language) {
    const QLatin1String keyword = keywordOf(level, language);
    if (keyword.isNull()) return std::nullopt;
    return keyword;
}

void appendOptionLine(
    std::vector<QString>& lines, const ElementTypeFlags& flags, int option, OutPutType level, int language) {
    const Option* row = rowOf(option);
    if (!row || !isOptionApplicable(flags, option) || level == DEFAULT_OUTPUT) return;
    const QLatin1String keyword = keywordOf(level, language);
    if (keyword.isNull()) {
        smartassert::SmartAssert("0", "echo/src/utils", 48);  // sic: host tools match on this report
        return;
    }
    lines.push_back(QLatin1String("ECHO OPT ") % word(row->german, row->english, language) %
                    word(" WERT ", " VAL ", language) % keyword % QLatin1String(" $ ") %
                    EchoData::tr(row->description));
}

std::vector<QString> defaultsLine(int language, bool extensive) {
    struct Beginnings {
        QString none[2] = {QStringLiteral("ECHO VOLL NEIN $ "), QStringLiteral("ECHO FULL NO $ ")};
        QString full[2] = {QStringLiteral("ECHO VOLL VOLL $ "), QStringLiteral("ECHO FULL FULL $ ")};
    };
    static const auto& beginnings = *new Beginnings;  // never destroyed
    const int english = language == 0 ? 0 : 1;
    if (extensive) return {beginnings.full[english] + EchoData::tr("extensive output of text lists")};
    return {beginnings.none[english] + EchoData::tr("no output of text lists")};
}

}  // namespace tiv::echo::data
