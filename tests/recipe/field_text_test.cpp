// SPDX-License-Identifier: MIT
#include "recipe/field_text.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

#include "plant.h"
#include "project/schema.h"

namespace hx::recipe {
namespace {

using automation::Null;
using automation::NumberFormat;
using automation::Variant;
using forms::CheckState;

const NumberFormat comma{","};

struct FieldText : testing::Test {
    FieldText() {
        plant.addRecipe("Cola");
        recipes.open();
    }
    ado::Field& field(std::string_view name) { return recipes.field(name); }

    Plant plant;
    ado::Recordset& recipes = *plant.data.rsRecipes;
};

TEST_F(FieldText, ANullFilePathGivesTheEmptyText) {
    field("FilePath").setValue(Null{});
    recipes.update();
    ASSERT_EQ(field("FilePath").value(), Variant(Null{}));
    EXPECT_EQ(FieldToText(field("FilePath")), "");
}

TEST_F(FieldText, ATextColumnIsShownAsItIs) {
    field("Comment").setValue("süß, mit Eis");
    EXPECT_EQ(FieldToText(field("Comment"), comma), "süß, mit Eis");
}

TEST_F(FieldText, ADoubleIsShownWithAPointUnderEveryLocale) {
    field("StandardValue").setValue(1.5);
    EXPECT_EQ(FieldToText(field("StandardValue")), "1.5");
    EXPECT_EQ(FieldToText(field("StandardValue"), comma), "1.5");
}

TEST_F(FieldText, ADoubleIsShownWithAllDigitsThatItTakesToReadItBack) {
    for (const double value : {1.0 / 3, 0.1 + 0.2, 1e23, 5e-324}) {
        field("StandardValue").setValue(value);
        const std::string text = FieldToText(field("StandardValue"));
        field("StandardValue").setValue(0.0);
        TextToField(field("StandardValue"), text);
        EXPECT_EQ(field("StandardValue").value(), Variant(value)) << text;
    }
}

TEST_F(FieldText, ANumberThatNoTextGivesBackStaysWhileItsTextDoes) {
    constexpr double infinity = std::numeric_limits<double>::infinity();
    for (const Variant& value : {Variant(infinity), Variant(-infinity), Variant(Null{})}) {
        field("StandardValue").setValue(value);
        TextToField(field("StandardValue"), FieldToText(field("StandardValue")));
        EXPECT_EQ(field("StandardValue").value(), value);
    }
    field("StandardValue").setValue(std::numeric_limits<double>::quiet_NaN());
    TextToField(field("StandardValue"), FieldToText(field("StandardValue")));
    EXPECT_TRUE(std::isnan(field("StandardValue").value().asDouble()));
}

TEST_F(FieldText, ANumberThatNoTextGivesBackReturnsWithItsText) {
    constexpr double infinity = std::numeric_limits<double>::infinity();
    for (const Variant& value : {Variant(infinity), Variant(-infinity), Variant(Null{})}) {
        field("StandardValue").setValue(value);
        recipes.update();
        const std::string text = FieldToText(field("StandardValue"));
        TextToField(field("StandardValue"), "2,5");
        EXPECT_EQ(field("StandardValue").value(), Variant(2.5));
        TextToField(field("StandardValue"), text);
        EXPECT_EQ(field("StandardValue").value(), value);
        recipes.cancelUpdate();
    }
}

TEST_F(FieldText, AnUnchangedNumberStartsNoEdit) {
    for (const char* name : {"StandardValue", "Options"}) TextToField(field(name), FieldToText(field(name)));
    EXPECT_EQ(recipes.editMode(), ado::adEditNone);
}

TEST_F(FieldText, AnEmptyTextIsStoredInPlaceOfNullAndAMissingYesOrNoIsUnchecked) {
    for (const char* name : {"Comment", "Enabled"}) field(name).setValue(Null{});
    TextToField(field("Comment"), "");
    EXPECT_EQ(field("Comment").value(), Variant(""));
    EXPECT_EQ(FieldToCheck(field("Enabled")), CheckState::unchecked);
}

TEST_F(FieldText, AStandardValueOfZeroIsShownAsTheDigitZero) {
    EXPECT_EQ(FieldToText(field("StandardValue"), comma), "0");
}

TEST_F(FieldText, AWholeNumberIsShownWithoutDecimals) {
    field("Options").setValue(3);
    EXPECT_EQ(FieldToText(field("Options")), "3");
}

TEST_F(FieldText, ACommaTypedIntoADoubleIsItsDecimalPoint) {
    TextToField(field("StandardValue"), "2,5");
    EXPECT_EQ(field("StandardValue").value(), Variant(2.5));
    TextToField(field("StandardValue"), "1.25");
    EXPECT_EQ(field("StandardValue").value(), Variant(1.25));
}

TEST_F(FieldText, ANumberIsTheLeadingPartOfTheText) {
    TextToField(field("StandardValue"), "12abc");
    EXPECT_EQ(field("StandardValue").value(), Variant(12.0));
    TextToField(field("StandardValue"), "abc");
    EXPECT_EQ(field("StandardValue").value(), Variant(0.0));
    TextToField(field("Options"), "7 Stück");
    EXPECT_EQ(field("Options").value(), Variant(7));
}

TEST_F(FieldText, ACommaEndsTheNumberOfAnIntegerColumn) {
    TextToField(field("Options"), "3,9");
    EXPECT_EQ(field("Options").value(), Variant(3));
}

TEST_F(FieldText, ANumberThatDoesNotFitAnIntegerColumnIsRefused) {
    EXPECT_THROW(TextToField(field("Options"), "99999999999"), automation::Error);
}

TEST_F(FieldText, ASmallIntegerColumnTakesTheLeadingNumberToo) {
    plant.database.addTable(
        {"Small", {{{"ID", ado::adInteger, 4, true, false}, 0, false}, {{"Level", ado::adSmallInt, 2}, 0, false}}});
    ado::Recordset small;
    small.open("Small", plant.data.CnnRecipes);
    small.addNew();
    TextToField(small.field("Level"), "12,5 Stück");
    EXPECT_EQ(small.field("Level").value(), Variant(12));
    EXPECT_THROW(TextToField(small.field("Level"), "40000"), automation::Error);
    small.cancelUpdate();
}

TEST_F(FieldText, AnEmptyTextIsStoredAsAnEmptyString) {
    field("Comment").setValue("süß");
    TextToField(field("Comment"), "");
    EXPECT_EQ(field("Comment").value(), Variant(""));
}

TEST_F(FieldText, AMemoColumnIsNotWritten) {
    TextToField(field("FilePath"), "C:\\Rezepte");
    EXPECT_EQ(field("FilePath").value(), Variant(""));
    EXPECT_EQ(recipes.editMode(), ado::adEditNone);
}

TEST_F(FieldText, AYesNoColumnIsNotWrittenFromAText) {
    TextToField(field("Enabled"), "1");
    EXPECT_EQ(field("Enabled").value(), Variant(false));
}

TEST_F(FieldText, ABoxIsCheckedWhenItsColumnIsTrue) {
    EXPECT_EQ(FieldToCheck(field("Enabled")), CheckState::unchecked);
    field("Enabled").setValue(true);
    EXPECT_EQ(FieldToCheck(field("Enabled")), CheckState::checked);
}

TEST_F(FieldText, AnyNumberButZeroChecksABox) {
    field("Options").setValue(2);
    EXPECT_EQ(FieldToCheck(field("Options")), CheckState::checked);
    field("Options").setValue(0);
    EXPECT_EQ(FieldToCheck(field("Options")), CheckState::unchecked);
}

TEST_F(FieldText, AColumnReceivesTheStateOfItsBox) {
    CheckToField(field("SaveChanges"), CheckState::checked);
    EXPECT_EQ(field("SaveChanges").value(), Variant(true));
    CheckToField(field("SaveChanges"), CheckState::unchecked);
    EXPECT_EQ(field("SaveChanges").value(), Variant(false));
    CheckToField(field("Options"), CheckState::checked);
    EXPECT_EQ(field("Options").value(), Variant(1));
}

struct OptionBits {
    Variant stored;
    TransferOptions options;
    std::int32_t writtenBack;
};

TEST(TransferOptions, EachBitIsOneOption) {
    const OptionBits rows[] = {
        {0, {false, false}, 0}, {1, {true, false}, 1},       {2, {false, true}, 2},
        {3, {true, true}, 3},   {Null{}, {false, false}, 0}, {7, {true, true}, 3},
    };
    for (const OptionBits& row : rows) {
        EXPECT_EQ(SplitOptions(row.stored), row.options) << automation::toText(row.stored);
        EXPECT_EQ(JoinOptions(row.options), row.writtenBack) << automation::toText(row.stored);
    }
}

TEST(TransferOptions, AnUndefinedBitSetsNothingAndIsWrittenBackAsZero) {
    EXPECT_EQ(SplitOptions(4), TransferOptions{});
    EXPECT_EQ(JoinOptions(SplitOptions(4)), 0);
}

}  // namespace
}  // namespace hx::recipe
