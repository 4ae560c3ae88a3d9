// From a described record to property definitions, and from those to the record's values.
#include "properties/qt/inc/nextgen/from_bond.h"

#include <gtest/gtest.h>

#include <limits>
#include <stdexcept>

namespace sample {

enum Colour : std::int32_t { Red = 3, Blue = -1 };
constexpr bond::Enumerator colours[] = {{"Red", Red}, {"Blue", Blue}};
constexpr bond::EnumSchema colourSchema{"sample.Colour", colours};
constexpr const bond::EnumSchema& enumSchema(const Colour*) {
    return colourSchema;
}

struct Inner {
    Colour colour = Blue;
    double width = 1.5;
    std::uint64_t big = 7;
};
constexpr auto describe(const Inner*) {
    return bond::record<Inner>("sample.Inner",
        bond::field(
            "colour", &Inner::colour, {{"DisplayName", "Colour"}, {"Category", ""}, {"Editor", "swatch"}}),
        bond::field("width", &Inner::width,
            {{"DisplayName", "Width"}, {"Precision", "2"}, {"ColumnWidth", "12"},
                {"PropertyWeight", "-2147483648"}}),
        bond::field("big", &Inner::big, {{"DisplayName", "Big"}, {"Precision", "many"}}));
}

struct Outer {
    bool on = true;
    std::string name = "beam";
    std::int8_t small = 0;
    float hidden = 0;
    Inner inner;
    Colour colour = Red;
};
constexpr auto describe(const Outer*) {
    return bond::record<Outer>("sample.Outer",
        bond::field("on", &Outer::on, {{"DisplayName", "On"}, {"Tooltip", "Whether it is on"}}),
        bond::field("name", &Outer::name, {{"DisplayName", "Name"}, {"PropertyWeight", "+7"}}),
        bond::field("small", &Outer::small, {{"DisplayName", "Small"}}),
        bond::field("hidden", &Outer::hidden, {{"Category", "no label, no property"}}),
        bond::field("inner", &Outer::inner, {{"DisplayName", "a struct is entered"}}),
        bond::field("colour", &Outer::colour, {{"DisplayName", "Colour"}}));
}

struct TooHeavy {
    bool on = false;
};
constexpr auto describe(const TooHeavy*) {
    return bond::record<TooHeavy>("sample.TooHeavy",
        bond::field("on", &TooHeavy::on, {{"DisplayName", "On"}, {"PropertyWeight", "2147483648"}}));
}

}  // namespace sample

namespace {

using namespace tiv::properties;
using tiv::container::model::Key;
using tiv::container::model::Model;
using tiv::container::model::Transaction;

class OuterRecord : public testing::Test {
 protected:
    OuterRecord() {
        fromBond(recordAccess<sample::Outer>(), properties);
        Transaction transaction(model);
        recordAccess<sample::Outer>().insertDefault(transaction, key);
        transaction.end();
    }
    std::shared_ptr<const Property> find(const std::string& name) const {
        for (const auto& p : properties.list)
            if (p->key == name) return p;
        throw std::logic_error("no property " + name);
    }
    const Property& property(const std::string& name) const { return *find(name); }
    void set(const std::string& name, const QVariant& value) {
        // With another field first: all or nothing.
        const PropertyValue changes[] = {{find("name"), "other"}, {find(name), value}};
        setValues(changes, model, key);
    }

    Properties properties;
    Model model;
    const Key key{0};
};

TEST_F(OuterRecord, GivesAPropertyToEveryLabelledFieldInOrder) {
    std::string text;
    for (const auto& p : properties.list)
        text += p->key + '|' + p->displayName + '|' + p->category + '|' + (p->tooltip ? p->tooltip : "-") +
                '|' + (p->columnWidth ? p->columnWidth : "-") + '|' + std::to_string(p->weight) + '\n';
    EXPECT_EQ(text,
        "on|On|General|Whether it is on|-|0\n"
        "name|Name|General|-|-|7\n"
        "small|Small|General|-|-|0\n"
        "inner.colour|Colour||-|-|0\n"
        "inner.width|Width|General|-|12|-2147483648\n"
        "inner.big|Big|General|-|-|0\n"
        "colour|Colour|General|-|-|0\n");
}

TEST_F(OuterRecord, ConfiguresEditorAndValidatorByPaths) {
    const Configuration& swatch = property("inner.colour").configuration;
    EXPECT_EQ(*swatch.get<QString>("editor.kind"), "swatch");
    EXPECT_EQ(*swatch.get<QString>("validator.kind"), "named_value_list");
    EXPECT_EQ(*swatch.branch("editor").branch("validator").get<QString>("kind"), "named_value_list");
    EXPECT_EQ(*property("colour").configuration.get<QString>("editor.kind"), "named_value_list");
    for (const char* path : {"editor.entries", "validator.entries"}) {
        const auto& entries = **swatch.get<NamedValues>(path);
        ASSERT_EQ(entries.size(), 2u);
        EXPECT_EQ(entries[0].text, "Red");
        EXPECT_EQ(entries[1].value, -1);
    }
    EXPECT_TRUE((*swatch.get<IsEqual>("validator.is_equal"))(3, 3LL));
    EXPECT_FALSE((*swatch.get<IsEqual>("editor.is_equal"))(3, -1));

    EXPECT_EQ(*property("inner.width").configuration.get<int>("validator.precision"), 2);
    EXPECT_EQ(*property("inner.width").configuration.get<int>("editor.validator.precision"), 2);
    EXPECT_EQ(property("inner.big").configuration.get<int>("validator.precision"), nullptr);
    EXPECT_EQ(property("on").configuration.get<QString>("editor.kind"), nullptr);
}

TEST_F(OuterRecord, KeepsAValueThatFitsAndRefusesOneThatDoesNot) {
    const struct {
        const char* key;
        QVariant value;
        QVariant stored;  // invalid: refused
    } rows[] = {
        {"on", false, false},
        {"on", 2, {}},
        {"name", QString::fromUtf8("Träger"), QString::fromUtf8("Träger")},
        {"small", "-128", -128},
        {"small", 128, {}},
        {"small", 1.5, {}},
        {"small", "three", {}},
        {"inner.width", "2.25", 2.25},
        {"inner.width", "wide", {}},
        {"inner.width", std::numeric_limits<double>::infinity(), {}},
        {"inner.big", std::numeric_limits<qulonglong>::max(), std::numeric_limits<qulonglong>::max()},
        {"inner.big", -1, {}},
        {"colour", 99, 99},  // any 32-bit number
        {"colour", 1LL << 32, {}},
    };
    for (const auto& row : rows) {
        const Property& edited = property(row.key);
        const QVariant before = value(edited, model, key);
        EXPECT_EQ(before, defaultValue(edited));
        try {
            set(row.key, row.value);
            EXPECT_EQ(value(edited, model, key), row.stored) << row.key;
            set(row.key, before);
            set("name", "beam");
        } catch (const std::runtime_error& problem) {
            EXPECT_STREQ(problem.what(), "Conversion failed.");
            EXPECT_FALSE(row.stored.isValid()) << row.key;
            EXPECT_EQ(value(edited, model, key), before);
            EXPECT_EQ(value(property("name"), model, key), "beam");
        }
    }
}

TEST(FromBond, RefusesAWeightThatIsNoWhole32BitNumber) {
    Properties properties;
    EXPECT_THROW(fromBond(recordAccess<sample::TooHeavy>(), properties), std::bad_cast);
    EXPECT_TRUE(properties.list.empty());
}

TEST(Configuration, RefusesPathsWithEmptyNames) {
    Configuration configuration;
    for (const char* path : {"", ".", "a.", ".a", "a..b"})
        EXPECT_THROW(configuration.set(path, 1), std::invalid_argument);
    configuration.set("a.b", 1);
    configuration.set("a.b", 2);
    EXPECT_EQ(*configuration.get<int>("a.b"), 2);
    EXPECT_EQ(configuration.get<QString>("a.b"), nullptr);
    EXPECT_EQ(configuration.get<int>("a"), nullptr);
}

TEST(Xlator, AsksItsLookupWithTheBoundStructsKeys) {
    std::string asked;
    tiv::translation::Xlator xlator([&](const std::string& key, const char* text) {
        asked = key;
        return QString("<%1>").arg(text);
    });
    EXPECT_EQ(xlator.text("prop.full", "Full"), "Full");
    configure_xlator(xlator, "sample.Outer");
    EXPECT_EQ(xlator.text("on.tooltip", "Full"), "<Full>");
    EXPECT_EQ(asked, "sample.Outer:on.tooltip");
}

TEST(Xlator, GeneratesALocaleOnceAndWithUtf8) {
    tiv::translation::Xlator xlator({});
    const std::locale& german = xlator.locale("de_DE");
    EXPECT_EQ(&german, &xlator.locale("de_DE"));
    EXPECT_EQ(&german, &xlator.locale("de_DE.ISO8859-1"));
    EXPECT_NE(&german, &xlator.locale("en_GB"));
}

}  // namespace
