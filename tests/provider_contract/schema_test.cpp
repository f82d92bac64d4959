// SPDX-License-Identifier: MIT

// The two recipe tables: what each column is and starts as.
#include "store.h"

namespace hx::contract {

namespace {

class Schema : public ProviderContract {};

std::string describe(const ado::Field& field) {
    return field.name() + ":" + std::to_string(field.type()) + ":" + std::to_string(field.definedSize());
}

std::string describeAll(Recordset& recordset) {
    std::string text;
    for (std::size_t i = 0; i < recordset.fieldCount(); ++i) text += describe(recordset.field(i)) + " ";
    return text;
}

TEST_P(Schema, TheRecipeTableReportsAdosTypes) {
    EXPECT_EQ(describeAll(*recipes()),
              "ID:3:4 Name:202:255 VarRecipeName:202:255 VarDescription:202:255 FilePath:203:0 FileExtension:202:255 "
              "Enabled:11:2 Comment:202:255 VarLoad:202:255 VarSave:202:255 VarRead:202:255 VarWrite:202:255 "
              "StandardValue:5:8 VarSetValue:202:255 SaveSubRecipes:11:2 SaveChanges:11:2 CryptEngine:11:2 "
              "Options:3:4 ");
}

TEST_P(Schema, TheMemberTableReportsAdosTypes) {
    EXPECT_EQ(describeAll(*members()), "ID:3:4 ParentID:3:4 VarRecipe:202:255 ChildID:3:4 ");
    EXPECT_EQ(describeAll(*open("SELECT * FROM TrcpRecipeMember WHERE ParentID = 1 And ChildID <> 0 ORDER BY ID")),
              "ID:3:4 ParentID:3:4 VarRecipe:202:255 ChildID:3:4 ");
}

TEST_P(Schema, ARecipeOfWhichOnlyTheNameIsGivenStartsWithTheDefaults) {
    addRecipes({"Neues Rezept"});
    const auto recordset = recipes();
    EXPECT_EQ(recordset->field("ID").value(), Variant(1));
    EXPECT_EQ(recordset->field("Name").value(), Variant("Neues Rezept"));
    EXPECT_EQ(recordset->field("StandardValue").value(), Variant(0.0));
    EXPECT_EQ(recordset->field("Options").value(), Variant(0));
    for (const char* name : {"VarRecipeName", "VarDescription", "FilePath", "FileExtension", "Comment", "VarLoad",
                             "VarSave", "VarRead", "VarWrite", "VarSetValue"}) {
        EXPECT_EQ(recordset->field(name).value(), Variant("")) << name;
    }
    for (const char* name : {"Enabled", "SaveSubRecipes", "SaveChanges", "CryptEngine"}) {
        EXPECT_EQ(recordset->field(name).value(), Variant(false)) << name;
    }
}

TEST_P(Schema, EveryKindOfValueComesBackAsItWasStored) {
    addRecipes({"A"});
    const auto recordset = recipes();
    recordset->field("FilePath").setValue("<ProjectDir>\\Rezepte\\Öl");
    recordset->field("StandardValue").setValue(-1.25e-3);
    recordset->field("Options").setValue(-2147483647);
    recordset->field("Enabled").setValue(std::int16_t{1});
    recordset->field("CryptEngine").setValue(true);
    recordset->field("Comment").setValue("two\nlines; 'quoted' \"twice\" \xF0\x9F\x8D\x8E");
    recordset->update();
    const auto read = open("SELECT * FROM TrcpRecipe");
    EXPECT_EQ(read->field("FilePath").value(), Variant("<ProjectDir>\\Rezepte\\Öl"));
    EXPECT_EQ(read->field("StandardValue").value(), Variant(-1.25e-3));
    EXPECT_EQ(read->field("Options").value(), Variant(-2147483647));
    EXPECT_EQ(read->field("Enabled").value(), Variant(true));
    EXPECT_EQ(read->field("CryptEngine").value(), Variant(true));
    EXPECT_EQ(read->field("SaveChanges").value(), Variant(false));
    EXPECT_EQ(read->field("Comment").value(), Variant("two\nlines; 'quoted' \"twice\" \xF0\x9F\x8D\x8E"));
}

TEST_P(Schema, AMissingFilePathCanBeSetAndTakenAway) {
    addRecipes({"A"});
    const auto recordset = recipes();
    recordset->field("FilePath").setValue("");
    recordset->update();
    EXPECT_EQ(recordset->field("FilePath").value(), Variant(""));
    recordset->field("FilePath").setValue(automation::Null{});
    recordset->update();
    EXPECT_TRUE(open("TrcpRecipe")->field("FilePath").value().isNull());
}

TEST_P(Schema, TextOfTheFullSizeFitsAndLongerTextIsRefused) {
    addRecipes({"A"});
    const auto recordset = recipes();
    std::string widest;
    for (int i = 0; i < 255; ++i) widest += "ü";
    recordset->field("Comment").setValue(widest);
    recordset->update();
    EXPECT_EQ(open("TrcpRecipe")->field("Comment").value(), Variant(widest));
    EXPECT_EQ(errorNumber([&] { recordset->field("Comment").setValue(widest + "x"); }), ado::dbErrCannotConvert);
    recordset->field("FilePath").setValue(std::string(70000, 'p'));
    recordset->update();
    EXPECT_EQ(open("TrcpRecipe")->field("FilePath").value().asString().size(), 70000U);
}

TEST_P(Schema, ValuesAreConvertedToTheColumnsType) {
    addRecipes({"A"});
    const auto recordset = recipes();
    recordset->field("Options").setValue("3");
    recordset->field("StandardValue").setValue("1.5");
    recordset->field("Enabled").setValue(-1);
    recordset->field("Comment").setValue(12);
    EXPECT_EQ(recordset->field("Options").value(), Variant(3));
    EXPECT_EQ(recordset->field("StandardValue").value(), Variant(1.5));
    EXPECT_EQ(recordset->field("Enabled").value(), Variant(true));
    EXPECT_EQ(recordset->field("Comment").value(), Variant("12"));
    recordset->field("Options").setValue(2.5);
    EXPECT_EQ(recordset->field("Options").value(), Variant(2));
}

TEST_P(Schema, AValueThatDoesNotFitIsRefusedAndNamesTheColumn) {
    addRecipes({"A"});
    const auto recordset = recipes();
    EXPECT_EQ(descriptionOf([&] { recordset->field("Options").setValue("abc"); }),
              "The value does not fit the column \"Options\": Type mismatch: \"abc\" is not a number.");
    EXPECT_EQ(errorNumber([&] { recordset->field("Options").setValue(3e9); }), ado::dbErrCannotConvert);
    EXPECT_EQ(recordset->editMode(), ado::adEditNone);
}

TEST_P(Schema, TheKeyCannotBeAssigned) {
    addRecipes({"A"});
    const auto recordset = recipes();
    EXPECT_EQ(errorNumber([&] { recordset->field("ID").setValue(7); }), ado::adErrIllegalOperation);
    EXPECT_EQ(errorNumber([&] { recordset->addNew(Values{{"ID", 7}, {"Name", "B"}}); }), ado::adErrIllegalOperation);
    EXPECT_EQ(stored("TrcpRecipe", "ID"), "1");
}

TEST_P(Schema, AnIdIsNeverGivenTwice) {
    addRecipes({"A", "B"});
    const auto recordset = recipes();
    recordset->moveLast();
    recordset->remove();
    addRecipes({"C"});
    EXPECT_EQ(stored("TrcpRecipe", "ID"), "1,3");
}

TEST_P(Schema, WhetherTwoNamesAreTheSameDoesNotDependOnWhichComesFirst) {
    addRecipes({"i", "İ", "DİE", "die", "ſ", "s", "ß", "ẞ1"});
    const auto recordset = recipes();
    for (const char* name : {"I", "İ", "dİe", "DIE", "S", "ſ", "ẞ", "ß1"}) {
        const bool young = std::string_view(name).starts_with("ß") || std::string_view(name).starts_with("ẞ");
        const bool same = !young || store_->knowsCaseOfAllLetters();
        EXPECT_EQ(errorNumber([&] {
                      recordset->addNew(Values{{"Name", name}});
                  }),
                  same ? ado::dbErrDuplicate : 0)
            << name;
        if (same) recordset->cancelUpdate();
    }
    EXPECT_EQ(recordset->recordCount(), store_->knowsCaseOfAllLetters() ? 8 : 10);
}

TEST_P(Schema, NamesAreUniqueIgnoringCaseAlsoOfUmlauts) {
    addRecipes({"Mühle", "Cola"});
    const auto recordset = recipes();
    EXPECT_EQ(errorNumber([&] { recordset->addNew(Values{{"Name", "cOLA"}}); }), ado::dbErrDuplicate);
    EXPECT_EQ(errorNumber([&] { recordset->addNew(Values{{"Name", "MÜHLE"}}); }), ado::dbErrDuplicate);
    EXPECT_NE(descriptionOf([&] {
                  recordset->addNew(Values{{"Name", "MÜHLE"}});
              }).find("\"MÜHLE\""),
              std::string::npos);
    recordset->moveLast();
    recordset->field("Name").setValue("mÜhle");
    EXPECT_EQ(errorNumber([&] { recordset->update(); }), ado::dbErrDuplicate);
    ASSERT_EQ(connection_->errors().size(), 1U);
    EXPECT_EQ(connection_->errors()[0].number(), ado::dbErrDuplicate);
    recordset->cancelUpdate();
    recordset->moveFirst();
    recordset->field("Name").setValue("MÜhle");
    recordset->update();
    EXPECT_EQ(stored("TrcpRecipe", "Name"), "MÜhle,Cola");
}

TEST_P(Schema, MembersOfTwoRecipesMayHaveEqualNames) {
    addVariables(1, 1);
    addVariables(2, 1);
    EXPECT_EQ(stored("TrcpRecipeMember", "VarRecipe"), "V1,V1");
}

INSTANTIATE_TEST_SUITE_P(Provider, Schema, testing::ValuesIn(storeKinds()),
                         [](const auto& kind) { return kind.param.name; });

}  // namespace

}  // namespace hx::contract
