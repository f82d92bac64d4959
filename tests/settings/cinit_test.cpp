#include "settings/cinit.h"

#include <gtest/gtest.h>

#include "adapters/headless/host.h"
#include "automation/error.h"
#include "automation/text.h"
#include "settings_window.h"
#include "support/memory_provider.h"

namespace hx::settings {
namespace {

using automation::Variant;
using namespace std::string_literals;

constexpr const char* section = "frmtabGridRCP";
constexpr const char* path = "/plant/HXEditors.ini";

/// Default texts of the tests, by name.
std::string_view testText(std::string_view name) {
    if (name == "odd") return "a=1=2\r\n=x\r\nb=\r\n\r\nnothing\r\n key =  True\r\nc=x\n\nd\r\nee=L\xF6we";
    if (name == "merge") return "Me.Width=1\r\nnew.Entry=2\r\n";
    return defaultText(name);
}

class CInitTest : public ::testing::Test {
  protected:
    void loadDefaults() { inits.LoadDefaultInit(section); }
    Variant read(const std::string& entry) const { return inits.ReadAValueFromCInits(entry, Variant("missing")); }
    std::string stored(const std::string& key) const { return host.iniFile.read(section, key, "none", path); }
    template <class Call>
    static std::int32_t errorOf(Call call) {
        try {
            call();
            return 0;
        } catch (const automation::Error& error) {
            return error.number();
        }
    }

    support::MemoryProvider database;
    headless::Host host{database};
    std::shared_ptr<SettingsWindow> window = std::make_shared<SettingsWindow>(host.screen);
    CInit inits{host.iniFile, {","}, &testText};
};

// --- the default text

TEST_F(CInitTest, StartsFromTheEditorsDefaults) {
    loadDefaults();
    EXPECT_EQ(read("Me.WindowState"), Variant(2.0));
    EXPECT_EQ(read("Me.PosLeft"), Variant(0.0));
    EXPECT_EQ(read("Me.PosTop"), Variant(0.0));
    EXPECT_EQ(read("Me.Width"), Variant(6000.0));
    EXPECT_EQ(read("Me.Height"), Variant(3000.0));
    for (const std::string owner : {"Me", "tdbRM"}) {
        EXPECT_EQ(read(owner + ".Font.Name"), Variant("Arial"));
        EXPECT_EQ(read(owner + ".Font.Size"), Variant(8.25));
        EXPECT_EQ(read(owner + ".Font.Underline"), Variant(false));
        EXPECT_EQ(read(owner + ".Font.Strikethrough"), Variant(false));
        EXPECT_EQ(read(owner + ".Font.Charset"), Variant(0.0));
        EXPECT_EQ(read(owner + ".Font.Italic"), Variant(false));
        EXPECT_EQ(read(owner + ".Font.Weight"), Variant(400.0));
    }
    EXPECT_EQ(read("tdbRM.Columns(\"VarRecipe\").Width"), Variant(3000.189));
    EXPECT_EQ(read("tdbRM.Columns(\"ChildID\").Width"), Variant(300.0));
    EXPECT_EQ(read("tdbRM.Columns(\"ChildID\").Visible"), Variant(true));
    EXPECT_EQ(read("tdbRMColOrders"), Variant(",0,1,2,3"));
    for (const char* option : {"sb.Visible", "SaveOnExit", "RequestOnDelete", "LoadOnForeGround"}) {
        EXPECT_EQ(read(option), Variant(true)) << option;
    }
}

TEST_F(CInitTest, HasItsDefaultTextAsOneResource) {
    const std::string text(defaultText("frmTabGridRcp"));
    EXPECT_EQ(text, defaultText("FRMTABGRIDRCP"));
    EXPECT_EQ(text.substr(0, 34), "Me.WindowState=2\r\nMe.PosLeft=0\r\nMe");
    EXPECT_NE(text.find("Visible=True\r\n\r\n\r\ntdbRMColOrders=,0,1,2,3\r\nsb.Visible=True\r\n"), text.npos);
    EXPECT_TRUE(text.ends_with("LoadOnForeGround=True\r\n"));
    EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 35);
    EXPECT_EQ(std::count(text.begin(), text.end(), '\r'), 35);
}

TEST_F(CInitTest, KeepsTheEntriesOfTheDefaultTextInItsOrder) {
    loadDefaults();
    inits.SaveInits(path);
    const std::string font =
        ".Font.Name=Arial\r\n@.Font.Size=8,25\r\n@.Font.Underline=False\r\n@.Font.Strikethrough=False\r\n"
        "@.Font.Charset=0\r\n@.Font.Italic=False\r\n@.Font.Weight=400\r\n";
    EXPECT_EQ(
        host.iniFile.bytes(path),
        "[frmtabGridRCP]\r\nMe.WindowState=2\r\nMe.PosLeft=0\r\nMe.PosTop=0\r\nMe.Width=6000\r\nMe.Height=3000\r\n"
        "Me" +
            automation::replaceAll(font, "@", "Me") + "tdbRM" + automation::replaceAll(font, "@", "tdbRM") +
            "tdbRM.Columns(\"VarRecipe\").Width=3000,189\r\n"
            "tdbRM.Columns(\"VarRecipe\").AllowSizing=True\r\n"
            "tdbRM.Columns(\"VarRecipe\").Visible=True\r\n"
            "tdbRM.Columns(\"ChildID\").Width=300\r\n"
            "tdbRM.Columns(\"ChildID\").AllowSizing=True\r\n"
            "tdbRM.Columns(\"ChildID\").Visible=True\r\n"
            "tdbRMColOrders=,0,1,2,3\r\n"
            "sb.Visible=True\r\nSaveOnExit=True\r\nRequestOnDelete=True\r\nLoadOnForeGround=True\r\n");
}

TEST_F(CInitTest, ShowsAndSizesBothColumnsByDefault) {
    loadDefaults();
    for (const char* column : {"VarRecipe", "ChildID"}) {
        for (const char* property : {"AllowSizing", "Visible"}) {
            const std::string entry = "tdbRM.Columns(\"" + std::string(column) + "\")." + property;
            EXPECT_EQ(read(entry), Variant(true)) << entry;
        }
    }
}

TEST_F(CInitTest, FailsWithoutADefaultText) {
    EXPECT_EQ(errorOf([&] { inits.LoadDefaultInit("other"); }), 326);
    EXPECT_EQ(inits.root().Count(), 0);
}

TEST_F(CInitTest, IgnoresMalformedDefaultLines) {
    inits.LoadDefaultInit("odd");
    EXPECT_FALSE(inits.ParamExist("a"));
    EXPECT_EQ(read("b"), Variant(""));
    EXPECT_EQ(read(" key "), Variant(true)) << "keys are taken without trimming";
    EXPECT_FALSE(inits.ParamExist("key"));
    EXPECT_EQ(read("c"), Variant("x\n\nd")) << "only CR LF ends a line";
    EXPECT_EQ(read("ee"), Variant("Löwe"));
    EXPECT_EQ(inits.root().Count(), 4);
}

TEST_F(CInitTest, NamesTheDefaultTextThatIsMissing) {
    try {
        (void)defaultText("other");
        FAIL() << "a text was given";
    } catch (const automation::Error& error) {
        EXPECT_EQ(error.description(), "There is no resource \"other\" of type INITS");
    }
}

TEST_F(CInitTest, FindsNothingBehindAMissingName) {
    loadDefaults();
    EXPECT_EQ(read("missing.SaveOnExit"), Variant("missing"));
    EXPECT_FALSE(inits.ParamExist("missing.SaveOnExit"));
}

TEST_F(CInitTest, TakesAPathWithoutANameAsThere) {
    for (const char* none : {"", ".", ".."}) EXPECT_TRUE(inits.ParamExist(none)) << none;
}

TEST_F(CInitTest, GivesEveryEntryTheIndexZero) {
    inits.WriteAValueToCInits("a.b", Variant(5));
    const CInitItem& outer = *inits.root().Item(std::string_view("a"));
    EXPECT_EQ(outer.Index, 0);
    EXPECT_EQ(outer.itms->Item(std::string_view("b"))->Index, 0);
}

TEST_F(CInitTest, AppliesTheEntriesOfEachControlOfAnArray) {
    inits.Motherobject = window.get();
    inits.WriteAValueToCInits("optA(0).Caption", Variant("first"));
    inits.WriteAValueToCInits("optA(1).Caption", Variant("second"));
    inits.SetInitToMotherObject();
    EXPECT_EQ(window->opt[0]->caption(), "first");
    EXPECT_EQ(window->opt[1]->caption(), "second");
}

TEST_F(CInitTest, SaysWhatIsMissing) {
    const auto description = [](const auto& call) -> std::string {
        try {
            call();
        } catch (const automation::Error& error) {
            return error.description();
        }
        return {};
    };
    EXPECT_EQ(description([&] { inits.GetInitFromControl("None"); }), "CInit has no item \"None\"");
    EXPECT_EQ(description([&] { inits.root().Delete(Variant("None")); }), "CInitItems has no item \"None\"");
    loadDefaults();
    EXPECT_EQ(description([&] { inits.SetInitToControl("sb"); }), "Motherobject is not set");
}

TEST_F(CInitTest, MergesASecondDefaultText) {
    loadDefaults();
    inits.LoadDefaultInit("merge");
    EXPECT_EQ(read("Me.Width"), Variant(1.0));
    EXPECT_EQ(read("Me.Height"), Variant(3000.0));
    EXPECT_EQ(read("new.Entry"), Variant(2.0));
    EXPECT_EQ(inits.root().Item(Variant(inits.root().Count()))->Name, "new");
}

TEST_F(CInitTest, KeepsTheOrderOfFirstAppearance) {
    loadDefaults();
    std::string names;
    for (const auto& item : inits.root()) names += item->Name + " ";
    EXPECT_EQ(names, "Me tdbRM tdbRMColOrders sb SaveOnExit RequestOnDelete LoadOnForeGround ");
}

// --- the entries

TEST_F(CInitTest, GivesTheFallbackForAMissingEntry) {
    EXPECT_EQ(inits.ReadAValueFromCInits("SaveOnExit", Variant(true)), Variant(true));
    EXPECT_EQ(inits.ReadAValueFromCInits("", Variant(7)), Variant(7));
    inits.WriteAValueToCInits("a.b", Variant(1.0));
    EXPECT_EQ(read("a.b.c"), Variant("missing"));
    EXPECT_EQ(read("a"), Variant(""));
    EXPECT_EQ(read(".a..b."), Variant(1.0)) << "empty names are left out";
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
    EXPECT_EQ(errorOf([&] { inits.DeleteAValueInCInits("gone.Font.Size"); }), 0);
    EXPECT_EQ(errorOf([&] { inits.DeleteAValueInCInits("tdbRM.gone"); }), automation::errBadIndex);
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
    EXPECT_EQ(errorOf([&] { inits.SaveInits(path); }), 70);
    EXPECT_EQ(errorOf([&] { inits.WriteToIni("SaveOnExit", "False"); }), 70);
}

// --- the window

TEST_F(CInitTest, AppliesTheEntriesBelowAName) {
    loadDefaults();
    inits.Motherobject = window.get();
    window->sb->setVisible(false);
    inits.SetInitToControl("Sb");
    inits.SetInitToControl("Me");
    inits.SetInitToControl("tdbRM");
    EXPECT_TRUE(window->sb->visible());
    EXPECT_EQ(window->width(), 6000);
    EXPECT_EQ(window->windowState(), forms::WindowState::maximised);
    EXPECT_EQ(window->posLeft, 0);
    EXPECT_EQ(window->font().size(), 8);
    EXPECT_EQ(window->tdbRM->column(Variant("VarRecipe")).width(), 3000);
    EXPECT_EQ(window->tdbRM->column(Variant("ChildID")).width(), 300);
}

TEST_F(CInitTest, AppliesASingleEntryAndIgnoresUnknownNames) {
    loadDefaults();
    inits.Motherobject = window.get();
    inits.SetInitToControl("Me.Width");
    EXPECT_EQ(window->width(), 6000);
    EXPECT_EQ(window->posLeft, 15) << "the others are not applied";
    EXPECT_EQ(errorOf([&] { inits.SetInitToControl("unknown"); }), 0);
    EXPECT_EQ(errorOf([&] { inits.SetInitToControl("Me..Width"); }), 0);
    EXPECT_EQ(window->posLeft, 15);
}

TEST_F(CInitTest, PassesTextToAPropertyAsText) {
    inits.WriteAValueToCInits("Me.PosLeft", Variant("-5"));
    inits.Motherobject = window.get();
    inits.SetInitToControl("Me");
    EXPECT_EQ(window->posLeft, -5);
}

TEST_F(CInitTest, StopsAtAPropertyThatCannotTakeItsValue) {
    inits.Motherobject = window.get();
    inits.WriteAValueToCInits("Me.Width", Variant(40000.0));
    inits.WriteAValueToCInits("Me.PosLeft", Variant(7.0));
    EXPECT_EQ(errorOf([&] { inits.SetInitToControl("Me"); }), automation::errOverflow);
    EXPECT_EQ(window->posLeft, 15);
    EXPECT_EQ(errorOf([&] { inits.GetInitFromControl("Me.Nothing"); }), automation::errBadIndex);
}

TEST_F(CInitTest, ReadsTheWindowBackIntoTheEntries) {
    loadDefaults();
    inits.Motherobject = window.get();
    window->setWidth(4321);
    window->posLeft = 99;
    window->font().setSize(8.25);
    window->tdbRM->column(Variant("VarRecipe")).setWidth(1234.5);
    window->tdbRM->font().setItalic(true);
    inits.GetInitFromControl("tdbRM");
    inits.GetInitFromControl("Me");
    EXPECT_EQ(read("Me.Width"), Variant(4321.0));
    EXPECT_EQ(read("Me.PosLeft"), Variant(99.0));
    EXPECT_EQ(read("Me.Font.Size"), Variant(8.25));
    EXPECT_EQ(read("tdbRM.Columns(\"VarRecipe\").Width"), Variant(1234.5));
    EXPECT_EQ(read("tdbRM.Font.Italic"), Variant(true));
    EXPECT_EQ(read("sb.Visible"), Variant(true));
}

TEST_F(CInitTest, FailsToReadBackAnUnknownName) {
    loadDefaults();
    inits.Motherobject = window.get();
    EXPECT_EQ(errorOf([&] { inits.GetInitFromControl("unknown"); }), automation::errBadIndex);
}

TEST_F(CInitTest, KeepsTheEntriesOfAColumnThatIsNotThere) {
    loadDefaults();
    inits.Motherobject = window.get();
    window->tdbRM->clearColumns();
    inits.GetInitFromControl("tdbRM");
    EXPECT_EQ(read("tdbRM.Columns(\"VarRecipe\").Width"), Variant(3000.189));
}

TEST_F(CInitTest, FailsWithoutAWindow) {
    loadDefaults();
    EXPECT_EQ(errorOf([&] { inits.SetInitToControl("Me"); }), 91);
    EXPECT_EQ(errorOf([&] { inits.GetInitFromControl("Me"); }), 91);
    EXPECT_NO_THROW(inits.SetInitToMotherObject());
}

TEST_F(CInitTest, AppliesTheEntriesOfAllControlsWithoutErrors) {
    inits.Motherobject = window.get();
    inits.WriteAValueToCInits("chkA.Nothing", Variant(1.0));
    inits.WriteAValueToCInits("chkA.Value", Variant(7.0));
    inits.WriteAValueToCInits("chkA.Caption", Variant("a"));
    inits.WriteAValueToCInits("optA(1).Caption", Variant("second"));
    inits.WriteAValueToCInits("optA.Caption", Variant("of no control"));
    inits.WriteAValueToCInits("Me.Width", Variant(1.0));
    window->setWidth(500);
    inits.SetInitToMotherObject();
    EXPECT_EQ(window->chkA->caption(), "a") << "the entries after a failing one are applied too";
    EXPECT_EQ(window->opt[0]->caption(), "");
    EXPECT_EQ(window->opt[1]->caption(), "second");
    EXPECT_EQ(window->width(), 500) << "the window itself is no control of its own";
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
    EXPECT_EQ(errorOf([&] { shared->get("SaveInits"); }), automation::errBadParamCount);
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
    EXPECT_NE(errorOf([&] { inits.SetInitToControl("a"); }), 0);
}

TEST_F(CInitTest, TakesNoObjectForAValue) {
    EXPECT_EQ(errorOf([&] { inits.WriteAValueToCInits("a.b", Variant(window->share())); }),
              automation::errTypeMismatch);
    EXPECT_FALSE(inits.ParamExist("a"));
}

}  // namespace
}  // namespace hx::settings
