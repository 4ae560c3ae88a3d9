// A host's window with one echo table and an inspector of it.
#pragma once

#include "echo/expected_options.h"
#include "inspector/driver.h"
#include "tiv/echo/echo_data.h"

#include <memory>

namespace test {

// A project with elements of every kind, for the life of the program.
inline int everyElement() {
    static const Project project(everyKind);
    return project.handle;
}

struct Host {
    explicit Host(int type, const QString& settings = QStringLiteral("CgAA"), bool isEnabled = true)
        : echo(std::make_unique<tiv::echo::EchoData>(
              static_cast<tiv::echo::EchoData::ProgrammTypes>(type), everyElement())) {
        echo->insertXMLData(settings);
        window.setEnabled(isEnabled);
        driver = std::make_unique<Driver>(inspector());
    }
    QWidget* inspector() {
        QWidget* widget = echo->createPropertyInspector(&window);
        if (!window.layout()) new QVBoxLayout(&window);
        window.layout()->addWidget(widget);
        window.resize(640, 480);
        window.show();
        return widget;
    }

    std::unique_ptr<tiv::echo::EchoData> echo;
    QWidget window;
    std::unique_ptr<Driver> driver;
};

}  // namespace test
