#include "echo/expected_options.h"

#include "tiv/dbo/dbo.h"

#include <QFile>

#include <stdexcept>

namespace test {

const std::vector<ExpectedOption>& expectedOptions() {
    static const std::vector<ExpectedOption> all = [] {
        QFile file(QStringLiteral(TIV_TEST_DATA "/programs.tsv"));
        if (!file.open(QIODevice::ReadOnly)) throw std::runtime_error("no programs.tsv");
        std::vector<ExpectedOption> rows;
        for (const QString& line : QString::fromUtf8(file.readAll()).split('\n', Qt::SkipEmptyParts)) {
            if (line.startsWith('#')) continue;
            const QStringList c = line.split('\t');
            rows.push_back(
                {c[0].toInt(), c[1], c[2], c[3].toInt(), c[4], c[5], c[6], c[7], c[8], c[9], c[10]});
        }
        return rows;
    }();
    return all;
}

std::vector<ExpectedOption> expectedOptions(int type) {
    std::vector<ExpectedOption> result;
    for (const ExpectedOption& option : expectedOptions())
        if (option.type == type) result.push_back(option);
    return result;
}

QString jsonSettings(const std::vector<ExpectedOption>& options, const std::vector<int>& levels) {
    QStringList members;
    for (std::size_t i = 0; i < options.size(); ++i)
        members << QStringLiteral("\"%1\":%2").arg(options[i].field).arg(levels[i]);
    return "{\"prop\":{" + members.join(',') + "}}";
}

Project::Project(unsigned kinds) : handle(tiv::dbo::createProject(":memory:")), kinds_(kinds) {
    using tiv::dbo::ElementKind;
    constexpr ElementKind all[] = {ElementKind::Quads, ElementKind::Brics, ElementKind::Beams,
        ElementKind::Cables, ElementKind::Springs};
    for (unsigned bit = 0; bit < 5; ++bit)
        if (kinds >> bit & 1) tiv::dbo::addElements(handle, all[bit], 1);
}

Project::~Project() {
    tiv::dbo::closeProject(handle);
}

bool Project::has(const QString& needs) const {
    const QStringList names{"quads", "brics", "beams", "cables", "springs"};
    const int bit = static_cast<int>(names.indexOf(needs));
    return bit < 0 || (kinds_ >> bit & 1);
}

}  // namespace test
