// The inspector of an echo table: rows, keys, clicks, and the resulting settings.
#include "echo/src/inspector.h"
#include "echo/schema/esk.h"
#include "echo/src/internal_data.h"
#include "inspector/host.h"
#include "properties/qt/inc/nextgen/from_bond.h"
#include "properties/qt/src/editors.h"
#include "properties/qt/src/qt_inspector_widget.h"
#include "support/every_type.h"
#include "support/printing.h"

#include <QTest>

#include <private/qguiapplication_p.h>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>

namespace {

using namespace test;
using namespace tiv::properties;
using tiv::container::model::Transaction;
using tiv::echo::EchoData;

QString json(const char* members) {
    return QStringLiteral("{\"prop\":{%1}}").arg(members);
}

// The difference between the colour and the pixel that is closest to it.
int distance(const QImage& image, const QColor& colour) {
    int least = 999;
    for (int x = 3; x < image.width() - 3; ++x)
        for (int y = 3; y < image.height() - 3; ++y) {
            const QColor c = image.pixelColor(x, y);
            least = std::min(least, std::abs(c.red() - colour.red()) + std::abs(c.green() - colour.green()) +
                                        std::abs(c.blue() - colour.blue()));
        }
    return least;
}

// The greatest difference of a pixel. Styles round their gradients anew for each painted part.
int distance(const QImage& a, const QImage& b) {
    int greatest = 0;
    for (int x = 0; x < a.width(); ++x)
        for (int y = 0; y < a.height(); ++y)
            greatest = std::max(greatest, std::abs(qGray(a.pixel(x, y)) - qGray(b.pixel(x, y))));
    return greatest;
}

// True if something is drawn there.
bool isDrawn(QWidget* table, const QRect& room) {
    const QImage image = table->grab(room).toImage();
    return distance(image, image.mirrored()) > 30;
}

TEST(Inspector, ShowsTheApplicableOptionsInOrderWithExactlyTheirLevels) {
    for (const unsigned kinds : {0U, everyKind}) {
        const Project project(kinds);
        for (int type = 0; type < tiv::echo::data::programTypeCount; ++type) {
            SCOPED_TRACE(type);
            EchoData echo(static_cast<EchoData::ProgrammTypes>(type), project.handle);
            const std::unique_ptr<QWidget> widget(echo.createPropertyInspector(nullptr));
            Driver driver(widget.get());
            const QRect screen = widget->screen()->availableGeometry();
            widget->setFont(QFont("DejaVu Serif", 8));
            widget->setLayoutDirection(type % 2 ? Qt::RightToLeft : Qt::LeftToRight);
            QStringList labels;
            for (const ExpectedOption& o : expectedOptions(type)) {
                if (o.shown == "-" || !project.has(o.needs)) continue;
                labels << o.label;
                if (kinds == 0) continue;
                const QStringList texts{"Default output", "No output", "Normal output", "Full output",
                    "Extensive output", "4", "5", "6", "7"};
                QStringList offered;
                for (const QChar digit : o.offered) offered << texts[digit.digitValue()];
                // Every second cell is at the lower edge of the screen.
                const QRect cell = driver.cell(o.label, 1);
                const int bottom = driver.view->viewport()->mapTo(widget.get(), cell.bottomLeft()).y();
                widget->move(0, labels.size() % 2 ? screen.bottom() - bottom - 1 : 0);
                driver.click(o.label);
                EXPECT_EQ(driver.offered(), offered) << o.label;
                EXPECT_EQ(driver.marked(), driver.row(o.label)) << o.label;
                for (int i = 0; i < offered.size(); ++i) {
                    const QString tip = driver.list()->model()->index(i, 0).data(Qt::ToolTipRole).toString();
                    EXPECT_EQ(tip.startsWith("Numeric level " + offered[i]), offered[i].size() == 1);
                }
                const QRect list = driver.list()->window()->frameGeometry();
                const QRect at = cell.translated(driver.view->viewport()->mapToGlobal(QPoint()));
                EXPECT_EQ(driver.list()->font().family(), "DejaVu Serif");
                EXPECT_EQ(driver.list()->layoutDirection(), widget->layoutDirection());
                EXPECT_TRUE(screen.contains(list)) << o.label;
                EXPECT_GE(list.width(), cell.width());
                EXPECT_FALSE(list.intersects(at));
                driver.key(Qt::Key_Escape);
                EXPECT_FALSE(driver.list());
            }
            QStringList shown;
            for (const QString& row : driver.rows()) shown << row.section('=', 0, 0);
            EXPECT_EQ(shown, labels);
            EXPECT_EQ(driver.message(), "");
        }
    }
}

TEST(Inspector, ChangesNothingByWheelOrNavigation) {
    Host host(EchoData::PLAX2, json(R"("node":3,"step":1)"));
    const QString before = host.echo->getXMLData();
    Driver& driver = *host.driver;
    host.window.resize(460, 150);  // some rows are out of sight
    settle();
    for (int i = 0; i < 3; ++i) driver.wheel(driver.view->viewport());
    EXPECT_GT(driver.view->verticalScrollBar()->value(), 0);
    driver.key(Qt::Key_F2);
    ASSERT_TRUE(driver.list());
    driver.wheel(driver.list()->viewport());
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r", true);
    QApplication::sendEvent(driver.list(), &held);
    EXPECT_TRUE(driver.list());
    driver.key(Qt::Key_Escape);
    held.setAccepted(true);
    QApplication::sendEvent(driver.view, &held);
    EXPECT_TRUE(held.isAccepted() && !driver.list()) << "the host does not get it";
    for (const auto key : {Qt::Key_Down, Qt::Key_Home, Qt::Key_End, Qt::Key_Up, Qt::Key_PageUp, Qt::Key_Left,
             Qt::Key_PageDown, Qt::Key_Right, Qt::Key_Tab, Qt::Key_Backtab}) {
        driver.view->setFocus();
        QTest::keyClick(driver.view, key);
        EXPECT_EQ(driver.view->currentIndex().column(), 1);
        const QRect current = driver.view->visualRect(driver.view->currentIndex());
        EXPECT_TRUE(driver.view->viewport()->rect().contains(current.center()));
    }
    EXPECT_EQ(host.echo->getXMLData(), before);
}

TEST(Inspector, FollowsEveryChangeOfTheRecordInAllInspectors) {
    Host host(EchoData::ESK);
    host.driver->choose("Loads", "Full output");
    Driver second(host.inspector());  // on a visible page: its rows still have one line
    EXPECT_LT(second.cell("Loads", 0).height(), 2 * second.view->fontMetrics().height());
    Driver& first = *host.driver;
    first.view->setFocus();
    first.key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(host.echo->getXMLData(), "CgAA\n") << "undo of the first inspector";
    first.click("Loads");
    ASSERT_TRUE(first.list());
    host.echo->insertXMLData(json(R"("load":2,"bedd":3)"));
    for (const Driver* driver : {&first, &second}) {
        EXPECT_EQ(driver->row("Loads"), "Normal output*");
        EXPECT_EQ(driver->row("Bedding stresses"), "Full output*");
    }
    EXPECT_EQ(first.marked(), "Normal output");  // the open list follows
    first.key(Qt::Key_Escape);
    second.click("Loads");
    second.pick("No output");
    EXPECT_EQ(host.echo->getXMLData(), "ClAC0AkGAAA=\n") << "before the next event";
    settle();
    EXPECT_EQ(first.row("Loads"), "No output*");
    EXPECT_EQ(first.view->currentIndex().data().toString(), "No output");  // still on its row
    bool isFirst = true;  // another edit comes between: the undo steps no longer fit
    QObject::connect(
        qobject_cast<QtInspectorWidget*>(first.widget), &QtInspectorWidget::settingsChanged, [&] {
            if (std::exchange(isFirst, false)) QTest::keyClick(first.view, Qt::Key_Delete);
        });
    first.choose("Loads", "Full output");
    first.key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(first.row("Loads"), "Default output");
}

QStringList announced;  // names of the cells that got the focus, and notifications

// The parent is disabled: Qt then asks for accessible interfaces early.
TEST(Inspector, IsReadOutByAScreenReader) {
    // Only the platform plugin can report a screen reader.
    auto* platform = QGuiApplicationPrivate::platformIntegration()->accessibility();
    platform->setActive(true);
    Host host(EchoData::ESK, json(R"("load":3)"), false);
    host.window.setEnabled(true);
    host.window.resize(640, 180);
    Driver& driver = *host.driver;
    driver.view->setFocus();
    auto* tree = QAccessible::queryAccessibleInterface(driver.view);
    EXPECT_EQ(tree->text(QAccessible::Name), "Output options");
    const auto cell = [&](int row, int column) { return tree->tableInterface()->cellAt(row, column); };
    EXPECT_EQ(cell(2, 0)->text(QAccessible::Name), "Loads");
    EXPECT_EQ(cell(2, 1)->text(QAccessible::Name), "Full output");
    EXPECT_EQ(cell(2, 1)->text(QAccessible::Description), "Changed. Default: Default output");
    EXPECT_EQ(cell(3, 1)->text(QAccessible::Description), "Default: Default output");
    EXPECT_EQ(cell(2, 2)->text(QAccessible::Name), "Reset to default");
    EXPECT_EQ(cell(3, 2)->text(QAccessible::Name), "");
    EXPECT_EQ(
        cell(3, 1)->tableCellInterface()->columnHeaderCells().value(0)->text(QAccessible::Name), "Value");
    tree->tableInterface()->selectRow(2);
    EXPECT_EQ(driver.view->selectionModel()->selectedRows().size(), 2);
    for (const int row : {0, 2, 8}) {
        const QAccessible::State state = cell(row, 1)->state();
        EXPECT_EQ(cell(row, 1)->role(), QAccessible::TreeItem);
        EXPECT_EQ(state.selected, row < 8);
        EXPECT_EQ(state.focused, cell(row, 1) == tree->focusChild()) << row;
        EXPECT_EQ(state.focused, row == 0);
        EXPECT_EQ(state.invisible, row == 8);
    }
    const auto previous = QAccessible::installUpdateHandler([](QAccessibleEvent* event) {
        if (event->type() == QAccessible::Focus ||
            event->accessibleInterface()->role() == QAccessible::Notification)
            announced << event->accessibleInterface()->text(QAccessible::Name);
    });
    const auto press = [&](int key, Qt::KeyboardModifiers modifiers = {}) {
        announced.clear();
        driver.key(key, modifiers);
        return announced.join('|');
    };
    const auto paste = [&](const char* settings) {
        QApplication::clipboard()->setText(json(settings));
        return press(Qt::Key_V, Qt::ControlModifier);
    };
    driver.click("Loads");
    EXPECT_EQ(QAccessible::queryAccessibleInterface(driver.list())->text(QAccessible::Name), "Loads");
    driver.key(Qt::Key_Up);
    EXPECT_TRUE(press(Qt::Key_Return).endsWith("|Loads. Normal output. Changed. Default: Default output"));
    EXPECT_EQ(press(Qt::Key_Z, Qt::ControlModifier), "Loads. Full output. Changed. Default: Default output");
    EXPECT_EQ(paste(R"("disp":2,"load":4)"), "Loads. Extensive output. Changed. Default: Default output");
    EXPECT_EQ(paste(R"("disp":)"), "Not changed: The clipboard does not hold settings.");
    EXPECT_EQ(paste(R"("grp":1,"disp":1,"load":4)"), "No output") << "of another row";
    EXPECT_EQ(press(Qt::Key_F, Qt::ControlModifier), "Filter");
    driver.type("sum");
    driver.view->setFocus();
    EXPECT_EQ(paste(R"("lsum":2,"disp":1,"load":4,"grp":1)"),
        "Sum of loads. Normal output. Changed. Default: Default output");
    // All rows are shown again, and one is changed, before the view lays them out.
    QTest::keyClick(driver.widget->findChild<QLineEdit*>(), Qt::Key_Escape);
    QTest::keyClick(driver.widget->findChild<QLineEdit*>(), Qt::Key_Escape);
    EXPECT_EQ(paste(R"("lsum":2,"disp":1,"load":4,"grp":1,"bedd":2)"), "Normal output");
    EXPECT_EQ(driver.row("Bedding stresses"), "Normal output*");
    QAccessible::installUpdateHandler(previous);
    platform->setActive(false);
}

// By an assistive program, without keys and mouse; some rows are hidden.
TEST(Inspector, IsOperatedByPressingItsCells) {
    Host host(EchoData::ESK);
    Driver& driver = *host.driver;
    driver.key(Qt::Key_F, Qt::ControlModifier);
    driver.type("load");
    EXPECT_LT(QApplication::focusWidget()->parentWidget()->y(), driver.view->y());
    const auto cell = [](QWidget* view, int row, int column) {
        return QAccessible::queryAccessibleInterface(view)->tableInterface()->cellAt(row, column);
    };
    const auto actions = [&](int column) { return cell(driver.view, 0, column)->actionInterface(); };
    const QString press = QAccessibleActionInterface::pressAction();
    actions(1)->doAction(press);
    settle();
    ASSERT_EQ(driver.offered().value(3), "Full output");
    auto* tree = QAccessible::queryAccessibleInterface(driver.view);
    auto* list = tree->child(tree->childCount() - 1);
    EXPECT_TRUE(list->parent() == tree && tree->indexOfChild(list) == tree->childCount() - 1);
    list->child(3)->actionInterface()->doAction(press);
    settle();
    EXPECT_EQ(driver.row("Loads"), "Full output*");
    EXPECT_TRUE(driver.hasFocus());
    for (int i = 0; i < tree->childCount(); ++i) {
        const QPoint at = tree->child(i)->rect().center();
        EXPECT_EQ(tree->indexOfChild(tree->child(i)), i);
        EXPECT_TRUE(i < 3 || tree->childAt(at.x(), at.y()) == tree->child(i)) << i;
    }
    driver.view->clearSelection();
    actions(2)->doAction(press);
    settle();
    EXPECT_EQ(driver.row("Loads"), "Default output");
    EXPECT_EQ(driver.view->selectionModel()->selectedRows().size(), 1);
    for (const int column : {0, 2}) EXPECT_FALSE(actions(column)->actionNames().contains(press));
    host.window.setEnabled(false);
    EXPECT_EQ(actions(1)->actionNames(), QStringList());
    auto* gone = cell(driver.view, 0, 1);
    qobject_cast<QtInspectorWidget*>(driver.widget)->setPropertyFilterFunction({});
    EXPECT_TRUE(!gone->isValid() && gone->rect().isEmpty() && gone->text(QAccessible::Name).isEmpty());
}

// Another type of object under the record's key shows no rows; an open transaction of the host prevents changes.
TEST(Inspector, FollowsWhatItsHostDoesWithTheModel) {
    const auto table = tiv::echo::data::makeInternalData(EchoData::ESK, everyElement());
    const std::unique_ptr<QWidget> widget(tiv::echo::data::makeInspector(table, nullptr));
    Driver driver(widget.get());
    const auto replace = [&](const auto& record) {
        Transaction transaction(*table->model);
        transaction.erase(tiv::echo::data::recordKey());
        transaction.insert(tiv::echo::data::recordKey(), record);
        transaction.end();
        settle();
    };
    for (const bool hidden : {false, true}) {
        widget->setVisible(!hidden);
        replace(tiv::echo::esk::EigeData{});
        EXPECT_EQ(driver.rows(), QStringList());
        driver.key(Qt::Key_Delete);
        replace(tiv::echo::esk::Data{});
        widget->show();
        EXPECT_EQ(driver.rows().size(), 9);
    }
    int changes = 0;
    auto* inspector = qobject_cast<QtInspectorWidget*>(widget.get());
    QObject::connect(inspector, &QtInspectorWidget::settingsChanged, [&] { ++changes; });
    widget->hide();
    table->insertXMLData(json(R"("load":3)"));
    EXPECT_EQ(changes, 1) << "also while it is hidden";
    inspector->setPropertyFilterFunction([](const std::string& key) { return key == "prop.load"; });
    EXPECT_EQ(driver.rows(), QStringList("Loads=Full output*"));
    inspector->setPropertyFilterFunction({});
    EXPECT_EQ(driver.rows().size(), 10);
    widget->show();
    {
        const Transaction open(*table->model);
        driver.choose("Loads", "No output");
        EXPECT_EQ(driver.row("Loads"), "Full output*");
        EXPECT_TRUE(driver.message().startsWith("Not changed: Transaction in progress."));
        EXPECT_LE(widget->minimumSizeHint().width(), 460) << "the message has several lines";
    }
    driver.choose("Loads", "No output");
    EXPECT_EQ(driver.row("Loads"), "No output*");
    EXPECT_EQ(driver.message(), "");
}

TEST(Inspector, EditsFieldsOfEveryTypeInOrderOfWeightUnderTheirCategories) {
    const auto properties = std::make_shared<Properties>();
    const auto model = std::make_shared<tiv::container::model::Model>();
    const auto selection = std::make_shared<SelectionManager<tiv::container::model::Key>>();
    fromBond(recordAccess<EveryType>(), *properties);
    Transaction transaction(*model);
    transaction.insert(0, EveryType());
    transaction.end();
    QtInspectorWidget widget(nullptr, properties, selection, model, std::make_shared<DefaultEditorFactory>(),
        std::make_shared<DefaultValidatorFactory>());
    Driver driver(&widget);
    EXPECT_EQ(driver.rows(), QStringList());
    selection->select(0);
    const QStringList ordered{"General=*", "Width=0", "Yes=true", "Big=0", "Factor=0.5",
        "Name=", "Level=DEFAULT_OUTPUT", "Construction Stages=DEFAULT_OUTPUT", "Groups=DEFAULT_OUTPUT",
        "Loadcases=DEFAULT_OUTPUT", "General=*", "Small=0"};
    EXPECT_EQ(driver.rows(), ordered);
    EXPECT_GT(driver.cell("General", 0).width(), driver.cell("Width", 0).width());
    EXPECT_EQ(driver.tip("Yes"), "Yes\nWhether it is on\nDefault: true");
    const char* const rows[][4] = {
        {"Width", "1.25", "1.25*", ""},
        {"Width", "1.2505", "1.25*", "Not a number of at most 2 decimal places: Width"},
        {"Width", "wide", "1.25*", "Not a number of at most 2 decimal places: Width"},
        {"Factor", "half", "0.5", "Not changed: Conversion failed."},
        {"Name", "a b", "a b*", ""},
        {"Small", "-128", "-128*", ""},
        {"Level", "8", "SEVEN*", ""},
        {"Level", "9", "SEVEN*", "Not offered for: Level"},
        {"Yes", " ", "false*", ""},
    };
    for (const auto& [label, typed, shown, message] : rows) {
        driver.click(label);
        driver.type(typed);
        driver.key(Qt::Key_Return);
        EXPECT_EQ(driver.row(label), shown) << label;
        EXPECT_EQ(driver.message(), message) << label;
    }
    driver.key(Qt::Key_F, Qt::ControlModifier);
    driver.type("ma");
    EXPECT_EQ(driver.rows(), (QStringList{"General=*", "Small=-128*"}));
}

// The width for the text of a cell, which in the value column ends before the arrow.
int textWidth(const Driver& driver, const QString& label, int column) {
    const int arrow = column == 1 ? driver.view->fontMetrics().height() + 6 : 0;
    return driver.cell(label, column).width() - 6 - arrow;
}

TEST(Inspector, CutsNothingAt460Pixels) {
    const QFont before = QApplication::font();
    for (const int points : {9, 12, 24})
        for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft})
            for (const auto type : {EchoData::QSX_ELPL, EchoData::ESK, EchoData::MEXORA, EchoData::PLAX2}) {
                const bool german = direction == Qt::LeftToRight;  // its words are longer
                SCOPED_TRACE(points * (german ? 1 : -1));
                setGerman(german);
                QFont font("DejaVu Sans", points);
                QApplication::setFont(font);
                QApplication::setLayoutDirection(direction);
                EchoData echo(type, everyElement());
                const auto options = expectedOptions(static_cast<int>(type));
                echo.insertXMLData(jsonSettings(options, std::vector<int>(options.size(), 2)));
                const std::unique_ptr<QWidget> widget(echo.createPropertyInspector(nullptr));
                widget->setMinimumSize(1, 1);
                Driver driver(widget.get());
                widget->resize(460, 400);
                widget->move(200, 0);
                settle();
                font.setBold(true);
                const auto fits = [&](const QString& label, int column, const QString& text, int wrap) {
                    const int width = textWidth(driver, label, column);
                    const QRect needed =
                        QFontMetrics(font).boundingRect(QRect(0, 0, width, 9999), wrap, text);
                    EXPECT_LE(needed.width(), width) << text;
                    QRect cell = driver.cell(label, column);
                    EXPECT_LE(needed.height(), cell.height()) << text;
                    cell.setTop(cell.center().y() + needed.height() / 2 - QFontMetrics(font).height() / 2);
                    EXPECT_TRUE(points == 24 || isDrawn(driver.view->viewport(), cell.adjusted(3, 0, -3, -3)))
                        << "the last line of " << text;
                };
                const bool breaks = points == 24 || (german && points == 12);
                for (const QString& row : driver.rows()) {
                    const QString label = row.section('=', 0, 0);
                    fits(label, 0, label, breaks ? Qt::TextWrapAnywhere : Qt::TextWordWrap);
                    fits(label, 1, row.section('=', 1).remove('*'), Qt::TextWordWrap);
                }
                EXPECT_EQ(driver.view->horizontalScrollBar()->maximum() > 0, german && points == 24);
                driver.key(Qt::Key_End);
                driver.key(Qt::Key_Up);
                driver.key(Qt::Key_F2);
                const QRect cell = driver.view->visualRect(driver.view->currentIndex())
                                       .translated(driver.view->viewport()->mapToGlobal(QPoint()));
                const QRect list = driver.list()->window()->geometry();
                EXPECT_EQ(german ? list.left() : list.right(), german ? cell.left() : cell.right());
                EXPECT_GE(driver.list()->viewport()->width(), driver.list()->sizeHintForColumn(0));
                driver.key(Qt::Key_Escape);
            }
    setGerman(false);
    QApplication::setLayoutDirection(Qt::LeftToRight);
    QApplication::setFont(before);
}

TEST(Inspector, HasRoomForEveryTextInOneLineAtItsHint) {
    Host host(EchoData::PLAX2);
    Driver& driver = *host.driver;
    QFont font = QApplication::font();
    font.setBold(true);
    for (const std::string change : {"", "value", "font", "style", "language"}) {
        host.echo->insertXMLData(json(change == "value" ? R"("full":1234567)" : R"("full":99)"));
        if (change == "font") font.setPointSize(14), driver.widget->setFont(font);
        if (change == "language") setGerman(true);
        if (change == "style") driver.view->setStyleSheet("QTreeView::item{padding-left:30px}");
        const int padding = driver.view->styleSheet().isEmpty() ? 0 : 30;
        settle();
        host.window.resize(host.window.sizeHint());
        settle();
        const QFontMetrics metrics(font);
        driver.key(Qt::Key_F2);
        const QStringList offered = driver.offered();  // in every row
        driver.key(Qt::Key_Escape);
        for (const QString& row : driver.rows()) {
            const QString label = row.section('=', 0, 0);
            EXPECT_GE(textWidth(driver, label, 0) - padding, metrics.horizontalAdvance(label)) << label;
            EXPECT_LT(driver.cell(label, 1).height(), 2 * metrics.height());
            for (const QString& text : offered + QStringList(row.section('=', 1).remove('*')))
                EXPECT_GE(textWidth(driver, label, 1) - padding, metrics.horizontalAdvance(text)) << text;
        }
        EXPECT_EQ(driver.view->verticalScrollBar()->maximum(), 0);
    }
    setGerman(false);
}

TEST(Inspector, MovesItsDividerBetweenTheLeastWidthsOfBothSides) {
    Host host(EchoData::ESK);
    Driver& driver = *host.driver;
    QWidget* header = driver.view->header()->viewport();
    const auto label = [&] { return driver.cell("Loads", 0).width(); };
    const auto drag = [&](int to, int from = 0) {
        QTest::mousePress(header, Qt::LeftButton, {}, QPoint(from ? from : label(), 5));
        QMouseEvent move(QEvent::MouseMove, QPointF(to, 5), header->mapToGlobal(QPoint(to, 5)), Qt::NoButton,
            Qt::LeftButton, {});
        QApplication::sendEvent(header, &move);
        QTest::mouseRelease(header, Qt::LeftButton, {}, QPoint(to, 5));
        settle();
        EXPECT_EQ(driver.cell("Loads", 2).right() + 1, driver.view->viewport()->width()) << to;
    };
    const int before = label();
    drag(300);
    drag(500, driver.cell("Loads", 2).left());
    EXPECT_EQ(label(), 300) << "there is one divider";
    drag(driver.view->viewport()->width() - 5, 400);  // moves no column
    host.window.resize(940, 480);
    settle();
    EXPECT_NEAR(label(), 450, 20) << "the share of the labels stays";
    QFont bold = driver.view->font();
    bold.setBold(true);
    drag(2000);
    EXPECT_GE(textWidth(driver, "Loads", 1), QFontMetrics(bold).horizontalAdvance("Extensive"));
    EXPECT_GT(label(), 700);
    drag(1);
    EXPECT_GE(textWidth(driver, "Loads", 0), QFontMetrics(bold).horizontalAdvance("Displacements"));
    EXPECT_LT(label(), 200);
    QTest::mouseDClick(header, Qt::LeftButton, {}, QPoint(label(), 5));
    settle();
    EXPECT_EQ(label(), before);
}

// Draws selected rows pale, as the native style of Windows does.
struct PaleStyle : public QProxyStyle {
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
        const QWidget* widget) const override {
        if (element != CE_ItemViewItem) return QProxyStyle::drawControl(element, option, painter, widget);
        auto cell = *qstyleoption_cast<const QStyleOptionViewItem*>(option);
        cell.palette.setColor(QPalette::Highlight, QColor("#cde8ff"));
        cell.palette.setColor(QPalette::HighlightedText, QColor("#202060"));
        QProxyStyle::drawControl(element, &cell, painter, widget);
    }
};

TEST(Inspector, DrawsTextsAndSignsInTheColoursOfTheStyle) {
    PaleStyle style;
    Host host(EchoData::ESK, json(R"("load":3,"lsum":3)"));
    Driver& driver = *host.driver;
    driver.widget->setFont(QFont("DejaVu Sans", 20));
    driver.view->setStyle(&style);
    driver.click("Loads", 0);
    const auto expectColour = [&](const QString& label, const QColor& colour) {
        for (const int column : {0, 1, 2}) {
            QRect cell = driver.cell(label, column);
            if (column == 1) cell.setWidth(textWidth(driver, label, 1));  // without the arrow
            const QImage image = driver.view->viewport()->grab(cell).toImage();
            EXPECT_LT(distance(image, colour), 60) << label << column;
            const int empty = column == 2 ? image.width() / 4 : 0;  // a sign is in the middle
            EXPECT_GT(distance(image.copy(0, 0, empty, image.height()), colour), 60);
        }
    };
    expectColour("Loads", "#202060");
    expectColour("Sum of loads", "#000000");
    host.echo.reset();
    const QImage sign = driver.view->viewport()->grab(driver.cell("Sum of loads", 2)).toImage();
    EXPECT_GT(distance(sign, "#000000"), 60) << "disabled";
    EXPECT_LT(distance(sign, driver.view->palette().color(QPalette::Disabled, QPalette::Text)), 60);
}

TEST(Inspector, PaintsWhateverChanges) {
    Host host(EchoData::ESK);
    Driver& driver = *host.driver;
    QWidget& table = *driver.view->viewport();
    const auto hasArrow = [&](const char* label) {
        return isDrawn(&table, driver.cell(label, 1).adjusted(textWidth(driver, label, 1) + 6, 3, -3, -3));
    };
    QImage last;
    const auto expectPainted = [&](const char* after) {
        settle();
        const QPoint at = driver.view->mapTo(&host.window, QPoint());
        const QImage seen = host.window.screen()
                                ->grabWindow(host.window.winId())
                                .toImage()
                                .copy(QRect(at, driver.view->size()));
        EXPECT_LE(distance(seen, driver.view->grab().toImage()), 1) << after;
        EXPECT_NE(seen, last) << after;
        last = seen;
    };
    expectPainted("show");
    const auto ground = [&](const char* label) {
        return table.grab(driver.cell(label, 0)).toImage().pixel(1, 1);
    };
    EXPECT_NE(ground("Loads"), ground("Sum of loads"));
    host.echo->insertXMLData(json(R"("load":3)"));
    expectPainted("a mark");
    host.echo->insertXMLData(json(R"("load":2)"));
    expectPainted("another value");
    driver.widget->hide();
    host.echo->insertXMLData(json(R"("load":4)"));
    driver.widget->show();
    expectPainted("what changed while it was hidden");
    host.echo->insertXMLData(json(R"("load":2)"));
    expectPainted("the value from before");
    driver.click("Displacements", 0);
    expectPainted("a selection");
    EXPECT_TRUE(hasArrow("Displacements"));
    EXPECT_FALSE(hasArrow("Group parameters"));
    QTest::mouseMove(&table, driver.cell("Group parameters", 1).center());
    expectPainted("the arrow below the mouse");
    EXPECT_TRUE(hasArrow("Group parameters"));
    driver.click("Loads", 2);
    expectPainted("a reset");
    driver.key(Qt::Key_F, Qt::ControlModifier);
    driver.type("load");
    EXPECT_FALSE(isDrawn(&table, table.rect().adjusted(9, 99, -9, -9))) << "below the two rows";
    driver.type("zzz");
    expectPainted("the filter");
    QImage expected(table.size(), QImage::Format_RGB32);
    expected.fill(table.palette().color(QPalette::Base));
    QPainter(&expected).drawText(expected.rect(), Qt::AlignCenter, "No option matches the filter.");
    EXPECT_LE(distance(table.grab().toImage(), expected), 1);
    host.echo.reset();
    driver.key(Qt::Key_Escape);
    driver.key(Qt::Key_Escape);
    EXPECT_FALSE(hasArrow("Loads")) << "it can no longer be edited";
}

// Each object is destroyed first, in each state of the inspector.
TEST(Inspector, SurvivesEveryOrderOfDestruction) {
    const struct {
        bool changes;  // the record; its observer then destroys the victim
        std::function<void(Driver&)> gesture;
    } cases[] = {
        {false, [](Driver&) {}},
        {false, [](Driver& driver) { driver.click("Loads"); }},
        {false, [](Driver& driver) { driver.key(Qt::Key_F, Qt::ControlModifier); }},
        {true, [](Driver& driver) { driver.choose("Loads", "No output"); }},
        {true, [](Driver& driver) { driver.click("Loads", 2); }},
        {true, [](Driver& driver) { driver.type("l"), driver.key(Qt::Key_Delete); }},
    };
    for (const std::string victim : {"widget", "parent", "echo"})
        for (const auto& one : cases)
            for (const bool bySignal : {false, true}) {
                SCOPED_TRACE(victim + " in case " + std::to_string(&one - cases));
                auto table = tiv::echo::data::makeInternalData(EchoData::ESK, everyElement());
                table->insertXMLData(json(R"("load":3)"));
                auto window = std::make_unique<QWidget>();
                QPointer<QWidget> widget = tiv::echo::data::makeInspector(table, window.get());
                Driver driver(widget);
                const auto model = table->model;
                const auto destroy = [&] {
                    if (victim == "widget") delete widget;
                    if (victim == "parent") window.reset();
                    if (victim == "echo") table.reset();
                };
                if (one.changes && bySignal)
                    QObject::connect(qobject_cast<QtInspectorWidget*>(widget),
                        &QtInspectorWidget::settingsChanged, destroy);
                if (one.changes && !bySignal) model->onChange([&](const auto&) { destroy(); });
                one.gesture(driver);
                if (!one.changes) destroy();
                settle();
                EXPECT_EQ(
                    model->read<tiv::echo::esk::Data>(0).prop.load != tiv::echo::FULL_OUTPUT, one.changes);
                EXPECT_EQ(widget.isNull(), victim != "echo");
                EXPECT_EQ(widget ? driver.rows().size() : 9, 9);
                window.reset(), table.reset();
                EXPECT_EQ(model.use_count(), 1) << "nothing else keeps the record";
            }
}

}  // namespace
