#include "bench/peer_view.h"
#include "bench/sample.h"
#include "bench/subjects.h"

#include <QApplication>
#include <QCheckBox>
#include <QLineEdit>
#include <QTest>
#include <QTreeView>

#include <memory>

namespace bench {
namespace {

using Widget = std::unique_ptr<QWidget>;

struct Table {
    Table() : echo(plax2, project()) { setLanguage("C"); }
    QWidget* create() { return widgets.emplace_back(echo.createPropertyInspector(nullptr)).get(); }
    QWidget* show() {
        QWidget* widget = create();
        showWidget(*widget);
        return widget;
    }

    EchoData echo;
    std::vector<Widget> widgets;
};

Work creates(int runs) {
    auto table = std::make_shared<Table>();
    table->widgets.reserve(static_cast<std::size_t>(runs));
    return [=] { table->create(); };
}

Work shows(int /*runs*/) {
    auto table = std::make_shared<Table>();
    return [=] {
        table->widgets.clear();  // otherwise deactivation would repaint it
        table->show();
    };
}

Work destroys(int runs) {
    auto table = std::make_shared<Table>();
    for (int i = 0; i < runs; ++i) table->show();
    return [=] { table->widgets.pop_back(); };
}

// Alternates between two settings and paints each.
auto changes(const char* one, const char* other) {
    return [=](int) -> Work {
        auto table = std::make_shared<Table>();
        table->show();
        const QString texts[] = {settingsString(plax2, one), settingsString(plax2, other)};
        return [=, turn = 0]() mutable {
            table->echo.insertXMLData(texts[++turn % 2]);
            QCoreApplication::processEvents();
        };
    };
}

// One change of a record that the given number of hidden inspectors show.
auto changesHidden(int inspectors) {
    return [=](int) -> Work {
        auto table = std::make_shared<Table>();
        for (int i = 0; i < inspectors; ++i) table->create();
        const QString texts[] = {
            settingsString(plax2, R"({"prop":{"node":2}})"), settingsString(plax2, R"({"prop":{"node":3}})")};
        return [=, turn = 0]() mutable { table->echo.insertXMLData(texts[++turn % 2]); };
    };
}

Work filters(int /*runs*/) {
    auto table = std::make_shared<Table>();
    QWidget* widget = table->show();
    QApplication::setActiveWindow(widget);
    QTest::keyClick(widget->findChild<QTreeView*>(), Qt::Key_F, Qt::ControlModifier);
    auto* query = widget->findChild<QLineEdit*>();
    return [table, query, turn = 0]() mutable {
        query->setText(++turn % 2 ? "reac" : "s");
        QCoreApplication::processEvents();
    };
}

}  // namespace

std::vector<Operation> inspectorOperations() {
    return {
        {"inspector, create", creates, 10, 30},
        {"inspector, create to first paint", shows, 5, 15},
        {"inspector, one change painted", changes(R"({"prop":{"node":2}})", R"({"prop":{"node":3}})")},
        {"inspector, one change that marks its row", changes("{}", R"({"prop":{"node":3}})")},
        {"inspector, 15 changes painted", changes(allOptions, allOtherwise)},
        {"one change, 10 hidden inspectors", changesHidden(10)},
        {"one change, 100 hidden inspectors", changesHidden(100), 5, 15},
        {"one change, 1000 hidden inspectors", changesHidden(1000), 5, 15},
        {"inspector, filter", filters},
        {"inspector, destroy", destroys, 5, 15},
    };
}

std::vector<Holding> inspectorHoldings() {
    return shownHoldings("inspector,", [] {
        static EchoData echo(plax2, project());
        QWidget* const made = echo.createPropertyInspector(nullptr);
        return std::pair<QWidget*, std::shared_ptr<void>>(made, made);
    });
}

}  // namespace bench
