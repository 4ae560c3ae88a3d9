// All operations of the library, and the same work done with plain Qt.
#include "bench/sample.h"
#include "bench/subjects.h"

#include <memory>

namespace bench {

std::vector<Operation> operations() {
    std::vector<Operation> all;
    for (const auto& some : {tableOperations(), inspectorOperations(), projectOperations(), peerOperations()})
        all.insert(all.end(), some.begin(), some.end());
    return all;
}

std::vector<Operation> peaks() {
    return {{"insertXMLData, 64 MiB of small lines", [](int) -> Work {
                 auto echo = std::make_shared<EchoData>(plax2, project());
                 const QString line = QStringLiteral("CgAA\n");
                 return [=, text = line.repeated((64 << 20) / line.size())] { echo->insertXMLData(text); };
             }}};
}

std::vector<Holding> holdings() {
    std::vector<Holding> all{
        {"EchoData, plax2", [] { return std::make_shared<EchoData>(plax2, project()); }}};
    for (const auto& some : {inspectorHoldings(), peerHoldings()})
        all.insert(all.end(), some.begin(), some.end());
    return all;
}

}  // namespace bench
