// Operations on a view of 15 options: a struct with a widget `view` and a function `change(turn)`, which changes the
// value of one option.
#pragma once

#include "bench/operations.h"

#include <QCoreApplication>

#include <memory>

namespace bench {

template <class View>
std::vector<Operation> viewOperations(const std::string& name) {
    using Views = std::vector<std::unique_ptr<View>>;
    const auto show = [](View& made) {
        made.view.resize(460, 480);
        made.view.show();
        QCoreApplication::processEvents();
    };
    const auto creates = [](int) -> Work {
        auto views = std::make_shared<Views>();
        return [=] { views->push_back(std::make_unique<View>()); };
    };
    const auto shows = [=](int) -> Work {
        auto last = std::make_shared<std::unique_ptr<View>>();
        return [=] {
            last->reset();  // otherwise deactivation would repaint it
            show(*(*last = std::make_unique<View>()));
        };
    };
    const auto changes = [=](int) -> Work {
        auto view = std::make_shared<View>();
        show(*view);
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
