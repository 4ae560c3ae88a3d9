// A host whose global object makes and uses echo tables when the program ends.
#include "tiv/dbo/dbo.h"
#include "tiv/echo/echo_data.h"

#include <cstdio>

namespace {

using tiv::echo::EchoData;

struct Host {
    int database = 0;
    std::unique_ptr<EchoData> early;

    ~Host() {
        EchoData late(EchoData::ESK, database);
        for (EchoData* echo : {early.get(), &late}) {
            echo->insertXMLData(R"({"prop":{"load":3}})");
            std::printf("%s", qPrintable(echo->getXMLData()));
        }
        const EchoData unknown(static_cast<EchoData::ProgrammTypes>(1000), database);  // reported
        std::printf("%s\n", qPrintable(early->getTELINP(true, true, 1)[0]));
    }
} host;

}  // namespace

int main() {
    host.database = tiv::dbo::createProject(":memory:");
    host.early = std::make_unique<EchoData>(EchoData::PLAX2, host.database);
    host.early->getTELINP(true, false, 1);
}
