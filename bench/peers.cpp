// The same work without the library, with plain Qt.
#include "bench/peer_view.h"
#include "bench/subjects.h"

#include <QCoreApplication>
#include <QStandardItemModel>
#include <QTreeView>

#include <memory>

namespace bench {
namespace {

// One line: the comment translated, three texts inserted into a pattern.
Work qtLines(int /*runs*/) {
    return [] {
        std::vector<QString> lines;
        for (int i = 0; i < 15; ++i)
            lines.push_back(QStringLiteral("ECHO OPT %1 VAL %2 $ %3")
                                .arg(QLatin1String("REAC"))
                                .arg(QLatin1String("FULL"))
                                .arg(QCoreApplication::translate("EchoData", "Support reactions")));
    };
}

struct BareView {
    BareView() : model(15, 2) {
        for (int row = 0; row < 15; ++row) {
            model.setItem(row, 0, new QStandardItem(QStringLiteral("Support reactions %1").arg(row)));
            model.setItem(row, 1, new QStandardItem(QStringLiteral("Default output")));
        }
        view.setModel(&model);
    }
    void change(int turn) {
        model.item(1, 1)->setText(turn % 2 ? QStringLiteral("Full output") : QStringLiteral("No output"));
    }

    QStandardItemModel model;
    QTreeView view;
};

}  // namespace

std::vector<Operation> peerOperations() {
    auto result = viewOperations<BareView>("peer: bare QTreeView");
    result.push_back({"peer: 15 x (translate, three arg)", qtLines});
    return result;
}

std::vector<Holding> peerHoldings() {
    return viewHoldings<BareView>("peer: bare QTreeView,");
}

}  // namespace bench
