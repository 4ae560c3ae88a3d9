// All operations of the library, and the same work done with plain Qt.
#include "bench/rooms.h"
#include "bench/sample.h"

#include <QCoreApplication>
#include <QWidget>

namespace bench {

std::vector<Operation> operations() {
    std::vector<Operation> all;
    for (const auto& some : {tableOperations(), inspectorOperations(), projectOperations(), peerOperations()})
        all.insert(all.end(), some.begin(), some.end());
    return all;
}

std::vector<Holding> holdings() {
    return {
        {"EchoData, plax2", [] { return std::make_shared<EchoData>(plax2, project()); }},
        {"inspector shown",
            [] {
                static EchoData echo(plax2, project());
                std::shared_ptr<QWidget> widget(echo.createPropertyInspector(nullptr));
                widget->show();
                QCoreApplication::processEvents();
                return widget;
            }},
    };
}

}  // namespace bench
