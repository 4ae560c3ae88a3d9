// A separate program: KProperty installs translators, which would slow down every translation in the others.
#include "bench/peer_view.h"

#include <KPropertyEditorView>
#include <KPropertyListData>
#include <KPropertySet>

namespace bench {
namespace {

struct KView {
    KView() {
        const QVariantList texts{
            "Default output", "No output", "Normal output", "Full output", "Extensive output"};
        for (int row = 0; row < 15; ++row)
            set.addProperty(new KProperty(QByteArray::number(row),
                new KPropertyListData({0, 1, 2, 3, 4}, texts),
                0,
                QStringLiteral("Support reactions %1").arg(row)));
        view.changeSet(&set);
    }
    void change(int turn) { set["1"].setValue(turn % 2 ? 3 : 1); }

    KPropertySet set;
    KPropertyEditorView view;
};

}  // namespace

std::vector<Operation> operations() {
    return viewOperations<KView>("peer: KProperty");
}

std::vector<Holding> holdings() {
    return viewHoldings<KView>("peer: KProperty,");
}

std::vector<Operation> peaks() {
    return {};
}

}  // namespace bench
