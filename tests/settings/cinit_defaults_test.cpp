// SPDX-License-Identifier: MIT
#include "automation/text.h"
#include "cinit_fixture.h"

namespace hx::settings {
namespace {

using automation::Variant;

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
    EXPECT_EQ(support::errorNumber([&] { inits.LoadDefaultInit("other"); }), 326);
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

}  // namespace
}  // namespace hx::settings
