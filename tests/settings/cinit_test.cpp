// SPDX-License-Identifier: MIT
#include "cinit_fixture.h"

namespace hx::settings {
namespace {

using automation::Variant;
using namespace std::string_literals;

// --- the entries

TEST_F(CInitTest, GivesTheFallbackForAMissingEntry) {
    EXPECT_EQ(inits.ReadAValueFromCInits("SaveOnExit", Variant(true)), Variant(true));
    EXPECT_EQ(inits.ReadAValueFromCInits("", Variant(7)), Variant(7));
    inits.WriteAValueToCInits("a.b", Variant(1.0));
    EXPECT_EQ(read("a.b.c"), Variant("missing"));
    EXPECT_EQ(read("a"), Variant(""));
    EXPECT_EQ(read(".a..b."), Variant(1.0)) << "empty names are left out";
    EXPECT_TRUE(inits.ParamExist(".a..b."));
    EXPECT_FALSE(inits.ParamExist(".a..c."));
}

TEST_F(CInitTest, AddressesEntriesIgnoringCase) {
    loadDefaults();
    inits.WriteAValueToCInits("ME.FONT.size", Variant(10.0));
    EXPECT_EQ(read("Me.Font.Size"), Variant(10.0));
    EXPECT_TRUE(inits.ParamExist("SAVEONEXIT"));
    EXPECT_TRUE(inits.ParamExist("me.fONT"));
    EXPECT_FALSE(inits.ParamExist("Me.Font.Colour"));
    EXPECT_TRUE(inits.ParamExist(""));
}

TEST_F(CInitTest, EmptiesTheValuesOnTheWayToAnEntry) {
    loadDefaults();
    inits.WriteAValueToCInits("Me", Variant("x"));
    inits.WriteAValueToCInits("Me.Font.Size", Variant(10));
    EXPECT_EQ(read("Me"), Variant(""));
    EXPECT_EQ(inits.root().Item(std::string_view("Me"))->itms->Item(std::string_view("Font"))->itms->Count(), 7);
}

TEST_F(CInitTest, DeletesAnEntry) {
    loadDefaults();
    inits.DeleteAValueInCInits("Me..Font.SIZE");
    EXPECT_FALSE(inits.ParamExist("Me.Font.Size"));
    EXPECT_TRUE(inits.ParamExist("Me.Font.Name"));
    inits.DeleteAValueInCInits("Me");
    EXPECT_FALSE(inits.ParamExist("Me.Font.Name"));
    EXPECT_EQ(support::errorNumber([&] { inits.DeleteAValueInCInits("gone.Font.Size"); }), 0);
    EXPECT_EQ(support::errorNumber([&] { inits.DeleteAValueInCInits("tdbRM.gone"); }), automation::errBadIndex);
}

// --- the file

TEST_F(CInitTest, OverlaysTheDefaultsWithTheFile) {
    loadDefaults();
    host.iniFile.setBytes(path,
                          "[other]\r\nSaveOnExit=True\r\n[FRMTABGRIDRCP]\r\nsaveonexit=False\r\nMe.Font.Size=10,5\r\n"
                          "Me.Font.Name=  Courier \r\nMe.Font.Italic=True \r\nMe.Font.Weight=-5\r\nextra=1\r\n");
    inits.LoadInits(path);
    EXPECT_EQ(inits.ReadAValueFromCInits("SaveOnExit", Variant(true)), Variant(false));
    EXPECT_EQ(read("Me.Font.Size"), Variant(10.5));
    EXPECT_EQ(read("Me.Font.Name"), Variant("Courier "));
    EXPECT_EQ(read("Me.Font.Italic"), Variant("True "));
    EXPECT_EQ(read("Me.Font.Weight"), Variant("-5"));
    EXPECT_EQ(read("Me.Font.Charset"), Variant(0.0));
    EXPECT_FALSE(inits.ParamExist("extra"));
}

TEST_F(CInitTest, KeepsTheDefaultsWithoutAFile) {
    loadDefaults();
    inits.LoadInits(path);
    EXPECT_EQ(read("Me.Font.Size"), Variant(8.25));
    EXPECT_EQ(read("tdbRMColOrders"), Variant(",0,1,2,3"));
    EXPECT_FALSE(host.iniFile.exists(path));
}

TEST_F(CInitTest, KeepsTheDefaultInPlaceOfANumberThatNoValueHolds) {
    loadDefaults();
    host.iniFile.setBytes(path, "[frmtabGridRCP]\r\nMe.Width=1E999\r\nMe.Height=500\r\n");
    inits.LoadInits(path);
    EXPECT_EQ(read("Me.Width"), Variant(6000.0));
    EXPECT_EQ(read("Me.Height"), Variant(500.0));
}

TEST_F(CInitTest, SavesAllLeavesInOrder) {
    inits.LoadDefaultInit("merge");
    inits.SaveInits(path);
    EXPECT_EQ(host.iniFile.bytes(path), "[merge]\r\nMe.Width=1\r\nnew.Entry=2\r\n");
}

TEST_F(CInitTest, WritesTheFileOnceForAllLeaves) {
    loadDefaults();
    inits.SaveInits(path);
    EXPECT_EQ(host.iniFile.writes(), 1);
    EXPECT_EQ(stored("LoadOnForeGround"), "True");
}

TEST_F(CInitTest, SavesAllThatCanBeSavedAndTellsWhatCannot) {
    inits.LoadDefaultInit("merge");
    inits.WriteAValueToCInits("Me.Width", Variant("6\0000"s));
    inits.WriteAValueToCInits(" ;k", Variant("lost"));
    inits.WriteAValueToCInits("last", Variant("kept"));
    try {
        inits.SaveInits(path);
        FAIL() << "nothing was told";
    } catch (const automation::Error& error) {
        EXPECT_NE(error.description().find("Me.Width"), std::string::npos) << error.description();
    }
    EXPECT_EQ(host.iniFile.bytes(path), "[merge]\r\nnew.Entry=2\r\nlast=kept\r\n");
}

TEST_F(CInitTest, WritesNumbersInTheUsersLocaleAndReadsThemBack) {
    loadDefaults();
    inits.SaveInits(path);
    EXPECT_EQ(stored("Me.Font.Size"), "8,25");
    EXPECT_EQ(stored("tdbRM.Columns(\"VarRecipe\").Width"), "3000,189");
    EXPECT_EQ(stored("tdbRMColOrders"), ",0,1,2,3");
    EXPECT_EQ(stored("Me.Font.Italic"), "False");
    EXPECT_EQ(stored("Me"), "none") << "inner entries are not written";
    CInit english(host.iniFile, {"."});
    english.LoadDefaultInit(section);
    english.LoadInits(path);
    EXPECT_EQ(english.ReadAValueFromCInits("Me.Font.Size", Variant()), Variant(8.25));
    EXPECT_EQ(english.ReadAValueFromCInits("tdbRMColOrders", Variant()), Variant(",0,1,2,3"));
    english.SaveInits("");
    EXPECT_EQ(stored("Me.Font.Size"), "8.25");
    EXPECT_EQ(stored("tdbRMColOrders"), ",0,1,2,3");
}

TEST_F(CInitTest, SavesToTheFileOfTheLastLoadWithoutAPath) {
    loadDefaults();
    inits.LoadInits(path);
    inits.SaveInits("");
    EXPECT_EQ(stored("SaveOnExit"), "True");
    inits.SaveInits("/other.ini");
    inits.WriteToIni("SaveOnExit", "False");
    EXPECT_EQ(stored("SaveOnExit"), "True");
    EXPECT_EQ(host.iniFile.read(section, "SaveOnExit", "none", "/other.ini"), "False");
    EXPECT_EQ(read("SaveOnExit"), Variant(true)) << "writing to the file leaves the entries";
}

TEST_F(CInitTest, PassesOnThatTheFileCannotBeWritten) {
    loadDefaults();
    host.iniFile.failWritesWith(automation::Error(70, "Permission denied"));
    EXPECT_EQ(support::errorNumber([&] { inits.SaveInits(path); }), 70);
    EXPECT_EQ(support::errorNumber([&] { inits.WriteToIni("SaveOnExit", "False"); }), 70);
}

// --- by name

TEST_F(CInitTest, GivesItsTreeByName) {
    const auto shared = std::make_shared<CInit>(host.iniFile, automation::NumberFormat{","});
    const Variant name(section);
    shared->get("LoadDefaultInit", automation::Args(&name, 1));
    const auto tree = shared->get("itms").asObject();
    EXPECT_EQ(tree->get("Count"), Variant(7));
    const Variant sb("sb");
    const auto below = tree->get("Item", automation::Args(&sb, 1)).asObject()->get("itms").asObject();
    const Variant visible("visible");
    EXPECT_EQ(below->get("Item", automation::Args(&visible, 1)).asObject()->get("val"), Variant(true));
}

TEST_F(CInitTest, WorksByName) {
    const auto shared = std::make_shared<CInit>(host.iniFile, automation::NumberFormat{","});
    const Variant name(section);
    shared->get("LoadDefaultInit", automation::Args(&name, 1));
    const Variant arguments[] = {Variant("saveonexit"), Variant(false)};
    EXPECT_EQ(shared->get("ReadAValueFromCInits", arguments), Variant(true));
    shared->get("WriteAValueToCInits", arguments);
    EXPECT_EQ(shared->get("ReadAValueFromCInits", arguments), Variant(false));
    const Variant unknown("unknown");
    EXPECT_EQ(shared->get("ParamExist", automation::Args(&unknown, 1)), Variant(false));
    EXPECT_EQ(shared->get("Motherobject").asObject(), nullptr);
    shared->Motherobject = window.get();
    EXPECT_EQ(shared->get("Motherobject").asObject(), window);
    EXPECT_EQ(support::errorNumber([&] { shared->get("SaveInits"); }), automation::errBadParamCount);
}

TEST_F(CInitTest, TakesSavesAndReadsEntriesHoweverLongTheirPathIs) {
    std::string entry;
    for (int i = 0; i < 200'000; ++i) entry += "a.";
    entry += "a";
    loadDefaults();
    inits.WriteAValueToCInits(entry, Variant("deep"));
    inits.SaveInits(path);
    EXPECT_EQ(stored(entry), "deep");
    inits.WriteAValueToCInits(entry, Variant("other"));
    inits.LoadInits(path);
    EXPECT_EQ(read(entry), Variant("deep"));
    EXPECT_NE(support::errorNumber([&] { inits.SetInitToControl("a"); }), 0);
}

TEST_F(CInitTest, TakesNoObjectForAValue) {
    EXPECT_EQ(support::errorNumber([&] { inits.WriteAValueToCInits("a.b", Variant(window->share())); }),
              automation::errTypeMismatch);
    EXPECT_FALSE(inits.ParamExist("a"));
}

}  // namespace
}  // namespace hx::settings
