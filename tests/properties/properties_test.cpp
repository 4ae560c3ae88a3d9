// The property definitions of a described record, and access to its values through them.
#include "properties/qt/inc/nextgen/from_bond.h"
#include "support/every_type.h"
#include "support/failure.h"

#include <QSize>

#include <boost/locale/info.hpp>

#include <gtest/gtest.h>

#include <limits>

namespace {

using namespace tiv::properties;
using test::failureOf;
using tiv::container::model::Key;
using tiv::container::model::Model;
using tiv::container::model::Transaction;

class EveryProperty : public testing::Test {
 protected:
    EveryProperty() {
        fromBond(recordAccess<test::EveryType>(), properties);
        Transaction transaction(model);
        recordAccess<test::EveryType>().insertDefault(transaction, key);
        transaction.end();
    }

    Properties properties;
    Model model;
    const Key key = 0;
};

TEST_F(EveryProperty, IsConfiguredByItsAttributes) {
    const Property &width = *properties.list[4], &level = *properties.list[6];
    EXPECT_EQ(properties.list[8]->key, "data.prop.grp");
    EXPECT_STREQ(width.columnWidth, "12");
    for (const char* path : {"validator.precision", "editor.validator.precision"}) {
        EXPECT_EQ(*width.configuration.get<int>(path), 2);
        EXPECT_FALSE(properties.list[2]->configuration.get<int>(path)) << "it is no number";
    }
    for (const char* path : {"validator.kind", "editor.validator.kind"})
        EXPECT_EQ(*level.configuration.get<QString>(path), "named_value_list");
    EXPECT_EQ(*level.configuration.get<QString>("editor.kind"), "swatch");
}

TEST_F(EveryProperty, ComparesTheValuesOfAnEnumerationAsWholeNumbers) {
    for (const char* path : {"editor.is_equal", "validator.is_equal"}) {
        const IsEqual isEqual = *properties.list[6]->configuration.get<IsEqual>(path);
        EXPECT_TRUE(isEqual(3, 3LL) && !isEqual(3, -1) && !isEqual(-3, qulonglong(-3)));
        for (const QVariant& noNumber : {QVariant(), QVariant("abc"), QVariant(0.4)})
            EXPECT_FALSE(isEqual(0, noNumber)) << noNumber.typeName();
    }
}

TEST_F(EveryProperty, KeepsAValueThatFitsAndRefusesOneThatDoesNot) {
    const struct {
        std::size_t place;
        QVariant value;
        QVariant stored;  // invalid: refused
    } rows[] = {
        {0, false, false},
        {0, 2, {}},
        {0, -0.4, {}},
        {1, "-128", -128},
        {1, 128, {}},
        {1, 1.5F, {}},
        {1, "three", {}},
        {2, std::numeric_limits<qulonglong>::max(), std::numeric_limits<qulonglong>::max()},
        {2, -1, {}},
        {2, 1.5, {}},
        {3, 0.12F, 0.12},
        {3, "3.4028235e+38", 3.4028235e+38},  // the greatest float, as it is shown
        {3, "-3.4028236e+38", {}},
        {4, "2.25", 2.25},
        {4, "wide", {}},
        {4, std::numeric_limits<double>::quiet_NaN(), {}},
        {5, QString::fromUtf8("Träger"), QString::fromUtf8("Träger")},
        {5, QSize(1, 2), {}},
        {7, 99, 99},  // any 32-bit number
        {7, 1LL << 32, {}},
        {7, std::numeric_limits<qulonglong>::max(), {}},
    };
    const auto& other = properties.list[8];
    for (const auto& row : rows) {
        const auto& edited = properties.list[row.place];
        const QVariant before = value(*edited, model, key);
        EXPECT_EQ(before, defaultValue(*edited));
        // With another field first: all or nothing.
        const PropertyValue changes[] = {{other, 5}, {edited, row.value}};
        const PropertyValue back[] = {{other, 0}, {edited, before}};
        const bool fits = row.stored.isValid();
        EXPECT_EQ(failureOf([&] { setValues(changes, model, key); }), fits ? "" : "Conversion failed.");
        EXPECT_EQ(value(*edited, model, key).toString(), (fits ? row.stored : before).toString());
        EXPECT_EQ(model.read<test::EveryType>(key).data.prop.grp, fits ? 5 : 0) << &row - rows;
        setValues(back, model, key);
    }
}

TEST(Configuration, IsATreeWhosePathsHaveNoEmptyNames) {
    Configuration configuration;
    for (const char* path : {"", ".", "a.", ".a", "a..b"})
        EXPECT_THROW(configuration.set(path, 1), std::invalid_argument);
    configuration.set("a.b.c", 1);
    configuration.set("a.b.d", 2);
    Configuration own(std::make_shared<Configuration>(configuration));
    own.set("a.b.c", 3);
    const Branch branch = own.branch("a").branch("b");
    EXPECT_TRUE(*branch.get<int>("c") == 3 && *branch.get<int>("d") == 2 && !branch.get<QString>("d"));
    EXPECT_EQ(*configuration.get<int>("a.b.c"), 1);
}

TEST_F(EveryProperty, HasItsTextsFromTheTranslator) {
    const auto xlator = std::make_shared<tiv::translation::Xlator>(
        [](const std::string& path, const char* text) { return QString("%1=%2").arg(path.c_str(), text); });
    properties.xlator = xlator;
    EXPECT_EQ(label(properties, *properties.list[0]), "Yes");
    configure_xlator(*xlator, "T");
    EXPECT_EQ(label(properties, *properties.list[0]), "T:yes=Yes");
    EXPECT_EQ(tooltip(properties, *properties.list[0]), "T:yes.tooltip=Whether it is on");
    EXPECT_EQ(tooltip(properties, *properties.list[1]), QString());
    EXPECT_EQ(category(properties, *properties.list[1]), "T:i8: category=General");
}

TEST(Xlator, GeneratesALocaleOnce) {
    tiv::translation::Xlator xlator({});
    const std::locale& german = xlator.locale("de_DE");
    EXPECT_TRUE(std::use_facet<boost::locale::info>(german).utf8());
    EXPECT_EQ(&german, &xlator.locale("de_DE"));
    EXPECT_EQ(&german, &xlator.locale("de_DE.ISO8859-1"));
    EXPECT_NE(&german, &xlator.locale("de_AT"));
}

}  // namespace
