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

// Kept letter for letter, also where an entry looks like a slip: the analysis programs read these words.
constexpr Option options[] = {
    {"VOLL", "FULL", "Default of all options"},                                       // 0
    {"GRUP", "GRP", "Group parameters"},                                              // 1
    {"LAST", "LOAD", "Loads"},                                                        // 2
    {"LSUM", "LSUM", "Sum of loads"},                                                 // 3
    {"REAK", "REAC", "Support reactions"},                                            // 4
    {"AUFL", "LINE", "Distributed support reactions"},                                // 5
    {"VERS", "DISP", "Displacements"},                                                // 6
    {"SCHN", "FORC", "Internal forces and moments"},                                  // 7
    {"NOST", "NOST", "Internal forces and moments at nodes"},                         // 8
    {"BETT", "BEDD", "Bedding stresses"},                                             // 9
    {"EIGE", "EIGE", "Eigenvalues"},                                                  // 10
    {"VOLL", "FULL", "Default of all options"},                                       // 11
    {"KNOT", "NODE", "Node coordinates, constraints"},                                // 12
    {"LAST", "LOAD", "Loads"},                                                        // 13
    {"STAB", "BEAM", "Beams (structure)"},                                            // 14
    {"MAT", "SPRI", "Spring elements (structures)"},                                  // 15, sic
    {"MAT", "BOUN", "Distributed supported elements (structures)"},                   // 16, sic
    {"SCHN", "FORC", "Internal forces and moments"},                                  // 17
    {"REAK", "REAC", "Support reactions"},                                            // 18
    {"QUER", "SECT", "Cross Section values"},                                         // 19
    {"MAT", "MAT", "Material constants"},                                             // 20
    {"SVER", "DEFO", "Beam deformations"},                                            // 21
    {"VERS", "BDEF", "Nodal displacements"},                                          // 22
    {"BEW", "REIN", "Reinforcements"},                                                // 23
    {"DEHN", "NSTR", "Strains and stiffnesses"},                                      // 24
    {"STEP", "STEP", "Output of all iterations"},                                     // 25
    {"SPAN", "STRE", "Stresses, Utilisation Level, Flexural Buckling"},               // 26
    {"TABS", "TABS", "Tabular summaries"},                                            // 27
    {"DEHN", "NSTR", "Non-linear stresses"},                                          // 28
    {"AUSN", "USEP", "Used participy factors"},                                       // 29, sic
    {"LF", "LC", "Individual loadcases"},                                             // 30
    {"VOLL", "FULL", "Default of all other options"},                                 // 31
    {"SCHU", "SHEA", "Shear design"},                                                 // 32
    {"BEME", "DESI", "Non-linear stresses"},                                          // 33, sic
    {"BEW", "REIN", "Limitation of crack width"},                                     // 34, sic
    {"RISS", "CRAC", "Limitation of crack width"},                                    // 35
    {"VELO", "VELO", "Velocities"},                                                   // 36
    {"ACCE", "ACCE", "Accelerations"},                                                // 37
    {"KNOT", "NODE", "Nodal values"},                                                 // 38
    {"ELEM", "ELEM", "Elements"},                                                     // 39
    {"MASS", "MASS", "Masses in nodes"},                                              // 40
    {"EIGE", "EIGE", "Natural frequencies"},                                          // 41
    {"SCHN", "FORC", "Internal forces and moments"},                                  // 42
    {"BA", "CS", "Construction Stages"},                                              // 43
    {"GRUP", "GRP", "Groups"},                                                        // 44
    {"LF", "LC", "Loadcases"},                                                        // 45
    {"VOLL", "FULL", "Default of all other options"},                                 // 46
    {"PARA", "PARA", "Design parameter"},                                             // 47
    {"BEME", "REIN", "Design results"},                                               // 48
    {"ZUS", "RTAB", "Reinforcement compilation"},                                     // 49
    {"INDX", "INDX", "Steel index"},                                                  // 50
    {"BMOM", "DMOM", "Internal forces of the design"},                                // 51
    {"DUST", "PUNC", "Punching checks"},                                              // 52
    {"SIGS", "SIGS", "Concrete compressive stress"},                                  // 53
    {"DEHN", "NSTR", "Fatigue design"},                                               // 54
    {"VOLL", "FULL", "Default of all other options"},                                 // 55
    {"ACT", "ACT", "Actions"},                                                        // 56
    {"LAST", "LOAD", "Loading"},                                                      // 57
    {"VOLL", "FULL", "Default of all other options"},                                 // 58
    {"TABU", "TABS", "General tables of the combinations and generated load cases"},  // 59
    {"LAST", "LOAD", "Used load cases"},                                              // 60
    {"LAST", "LOAD", "Loadtrains"},                                                   // 61
    {"AUSW", "EVAL", "Evaluation"},                                                   // 62
    {"LPOS", "LPOS", "Load positions"},                                               // 63
    {"ERG", "RES", "Results"},                                                        // 64
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
        smartassert::SmartAssert("0", "echo/src/utils", 48);
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
    static const Beginnings beginnings;
    const int english = language == 0 ? 0 : 1;
    if (extensive) return {beginnings.full[english] + EchoData::tr("extensive output of text lists")};
    return {beginnings.none[english] + EchoData::tr("no output of text lists")};
}

}  // namespace tiv::echo::data
