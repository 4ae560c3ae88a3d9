// The options of every program as data/programs.tsv states them, independently of the library's tables.
#pragma once

#include <QString>
#include <QStringList>

#include <vector>

namespace test {

struct ExpectedOption {
    QString field;
    int byDefault;  // level in a new record
    QString label;
    QString english, german, comment;
    QString needs;    // "beams", "quads", "springs" or "-"
    QString shown;    // its key in the inspector; "-": never shown
    QString offered;  // levels, one digit each
};

// Those of a program type.
std::vector<ExpectedOption> expectedOptions(int type);

// The settings in JSON form with the given level for each option.
QString jsonSettings(const std::vector<ExpectedOption>& options, const std::vector<int>& levels);

// One of the 32 combinations of element kinds, as bits in the order quads, brics, beams, cables, springs.
class Project {
 public:
    explicit Project(unsigned kinds);
    ~Project();
    Project(const Project&) = delete;
    Project& operator=(const Project&) = delete;
    bool has(const QString& needs) const;
    const int handle;

 private:
    unsigned kinds_;
};

inline constexpr unsigned everyKind = 31;

}  // namespace test
