// Operations on a view of 15 options: a struct with a widget `view` and a function `change(turn)`, which changes the
// value of one option.
#pragma once

#include "bench/operations.h"

#include <QCoreApplication>
#include <QWidget>

#include <memory>
#include <utility>

namespace bench {

inline void showWidget(QWidget& widget) {
    widget.resize(460, 480);
    widget.show();
    QCoreApplication::processEvents();
}

// The memory of shown widgets, in a window of a host that was shown before, and in windows of their own. `make` returns a
// widget and the object that keeps it.
template <class Make>
std::vector<Holding> shownHoldings(const std::string& name, const Make& make) {
    const auto holding = [=](bool hasHost) {
        return [=]() -> std::shared_ptr<void> {
            static QWidget* const host = [] {
                auto* window = new QWidget;
                showWidget(*window);
                return window;
            }();
            auto [widget, owner] = make();
            if (hasHost) widget->setParent(host);
            showWidget(*widget);
            return owner;
        };
    };
    return {
        {name + " shown in a host's window", holding(true)}, {name + " shown as a window", holding(false)}};
}

template <class View>
std::vector<Holding> viewHoldings(const std::string& name) {
    return shownHoldings(name, [] {
        const auto made = std::make_shared<View>();
        return std::pair<QWidget*, std::shared_ptr<void>>(&made->view, made);
    });
}

template <class View>
std::vector<Operation> viewOperations(const std::string& name) {
    using Views = std::vector<std::unique_ptr<View>>;
    const auto creates = [](int) -> Work {
        auto views = std::make_shared<Views>();
        return [=] { views->push_back(std::make_unique<View>()); };
    };
    const auto shows = [](int) -> Work {
        auto last = std::make_shared<std::unique_ptr<View>>();
        return [=] {
            last->reset();  // otherwise deactivation would repaint it
            *last = std::make_unique<View>();
            showWidget((*last)->view);
        };
    };
    const auto changes = [](int) -> Work {
        auto view = std::make_shared<View>();
        showWidget(view->view);
        return [=, turn = 0]() mutable {
            view->change(++turn);
            QCoreApplication::processEvents();
        };
    };
    return {{name + ", create", creates, 10, 30},
        {name + ", create to first paint", shows, 5, 15},
        {name + ", one change painted", changes}};
}

}  // namespace bench
