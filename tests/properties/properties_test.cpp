// From a described record to property definitions, and from those to the record's values.
#include "properties/qt/inc/nextgen/from_bond.h"
#include "support/every_type.h"
#include "support/failure.h"

#include <QSize>

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

TEST_F(EveryProperty, GivesAPropertyToEveryLabelledFieldInOrder) {
    std::string text;
    for (const auto& p : properties.list) {
        for (const char* part : {p->key.c_str(), p->displayName, p->category, p->tooltip, p->columnWidth})
            text += std::string(part ? part : "-") + '|';
        text += std::to_string(p->weight);
        for (const char* path : {"editor.kind", "validator.kind", "editor.validator.kind"})
            if (const auto* kind = p->configuration.get<QString>(path)) text += '|' + kind->toStdString();
        for (const char* path : {"validator.precision", "editor.validator.precision"})
            if (const auto* digits = p->configuration.get<int>(path)) text += '|' + std::to_string(*digits);
        text += '\n';
    }
    EXPECT_EQ(text,
        "yes|Yes|General|Whether it is on|-|0\n"
        "i8|Small|General|-|-|7\n"
        "u64|Big|General|-|-|0\n"
        "f|Factor|General|-|-|0\n"
        "d|Width|General|-|12|-2147483648|2|2\n"
        "text|Name|General|-|-|0\n"
        "level|Level||-|-|0|swatch|named_value_list|named_value_list\n"
        "data.prop.cs|Construction Stages||-|-|0|named_value_list|named_value_list|named_value_list\n"
        "data.prop.grp|Groups||-|-|0|named_value_list|named_value_list|named_value_list\n"
        "data.prop.lc|Loadcases||-|-|0|named_value_list|named_value_list|named_value_list\n");
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

TEST(FromBond, RefusesAWeightThatIsNoWhole32BitNumber) {
    for (const char* weight : {"2147483648", "1.5", "heavy", ""}) {
        const bond::Attribute attributes[] = {{"DisplayName", "On"}, {"PropertyWeight", weight}};
        const bond::Row rows[] = {{"on", bond::Type::Bool, 0, 0, attributes, nullptr, nullptr}};
        const bond::Struct schema{"sample.Weight", rows, nullptr};
        Properties properties;
        EXPECT_THROW(fromBond({schema, {}, {}, {}, {}, {}}, properties), std::bad_cast) << weight;
        EXPECT_TRUE(properties.list.empty());
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
    EXPECT_EQ(&german, &xlator.locale("de_DE"));
    EXPECT_EQ(&german, &xlator.locale("de_DE.ISO8859-1"));
    EXPECT_NE(&german, &xlator.locale("de_AT"));
}

}  // namespace
