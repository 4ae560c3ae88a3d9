#include <bond/exceptions.h>
#include <tiv/dbo/dbo.h>
#include <tiv/echo/echo_data.h>
#include <tiv/smartassert/smart_assert.h>

#include <iostream>

int main() {
    using tiv::echo::EchoData;
    tiv::smartassert::setReporter(
        [](const tiv::smartassert::Report& report) { std::cout << "report: " << report.expression << '\n'; });
    const int project = tiv::dbo::createProject(":memory:");
    const EchoData unknown(static_cast<EchoData::ProgrammTypes>(1000), project);
    EchoData echo(EchoData::ESK, project);
    std::cout << "settings: " << echo.getXMLData().toStdString();
    try {
        echo.insertXMLData("Cg==");
    } catch (const bond::Exception& refusal) {
        std::cout << "refused: " << refusal.what() << '\n';
    }
    for (const QString& line : echo.getTELINP(true, true, 1)) std::cout << line.toStdString() << '\n';
    tiv::dbo::closeProject(project);
}
