#include "echo/expected_options.h"

#include "support/table.h"
#include "tiv/dbo/dbo.h"

namespace test {

std::vector<ExpectedOption> expectedOptions(int type) {
    static const std::vector<QStringList> rows = table("programs.tsv");
    std::vector<ExpectedOption> result;
    for (const QStringList& c : rows)
        if (c[0].toInt() == type)
            result.push_back({c[1], c[2].toInt(), c[3], c[4], c[5], c[6], c[7], c[8], c[9]});
    return result;
}

QString jsonSettings(const std::vector<ExpectedOption>& options, const std::vector<int>& levels) {
    QStringList members;
    for (std::size_t i = 0; i < options.size(); ++i)
        members << QStringLiteral("\"%1\":%2").arg(options[i].field).arg(levels[i]);
    return "{\"prop\":{" + members.join(',') + "}}";
}

Project::Project(unsigned kinds) : handle(tiv::dbo::createProject(":memory:")), kinds_(kinds) {
    for (int kind = 0; kind < 5; ++kind)
        if (kinds >> kind & 1) tiv::dbo::addElements(handle, tiv::dbo::ElementKind(kind), 1);
}

Project::~Project() {
    tiv::dbo::closeProject(handle);
}

bool Project::has(const QString& needs) const {
    const QStringList names{"quads", "brics", "beams", "cables", "springs"};
    const auto kind = names.indexOf(needs);
    return kind < 0 || (kinds_ >> kind & 1);
}

}  // namespace test
