// SPDX-License-Identifier: MIT
#include "settings/object_path.h"

#include <gtest/gtest.h>

#include "adapters/headless/host.h"
#include "automation/error.h"
#include "settings_window.h"
#include "support/error_of.h"
#include "support/memory_provider.h"

namespace hx::settings {
namespace {

using automation::Variant;

class ObjectPathTest : public ::testing::Test {
  protected:
    void set(std::string_view path, const Variant& value) { SetValueByPath(*window, path, value); }
    Variant get(std::string_view path) { return GetValueByPath(*window, path); }
    std::int32_t errorOf(std::string_view path, const Variant& value) {
        return support::errorNumber([&] { set(path, value); });
    }

    support::MemoryProvider database;
    headless::Host host{database};
    std::shared_ptr<SettingsWindow> window = std::make_shared<SettingsWindow>(host.screen);
};

TEST_F(ObjectPathTest, ReachesTheWindowItselfByMe) {
    set("Me.Width", Variant(6000.0));
    EXPECT_EQ(window->width(), 6000);
    set("mE.PosLeft", Variant(120.0));
    EXPECT_EQ(window->posLeft, 120);
    EXPECT_EQ(get("ME.PosLeft"), Variant(120.0));
    EXPECT_EQ(get("PosTop"), Variant(30.0));
}

TEST_F(ObjectPathTest, ReachesControlsAndTheirFonts) {
    set("tdbRM.Font.Name", Variant("Courier"));
    EXPECT_EQ(window->tdbRM->font().name(), "Courier");
    set("sb.Visible", Variant(false));
    EXPECT_FALSE(window->sb->visible());
    EXPECT_EQ(get("sb.Visible"), Variant(false));
}

TEST_F(ObjectPathTest, AssignsNumbersAsWholeOnesRoundingHalvesToEven) {
    set("Me.Font.Size", Variant(8.25));
    EXPECT_EQ(window->font().size(), 8);
    set("Me.Font.Size", Variant(9.5));
    EXPECT_EQ(window->font().size(), 10);
    set("Me.Font.Size", Variant(8.5));
    EXPECT_EQ(window->font().size(), 8);
    set("tdbRM.Columns(\"VarRecipe\").Width", Variant(3000.189));
    EXPECT_EQ(window->tdbRM->column(Variant("VarRecipe")).width(), 3000);
    set("Me.PosLeft", Variant(true));
    EXPECT_EQ(window->posLeft, -1);
}

TEST_F(ObjectPathTest, AssignsTextAsText) {
    set("Me.Caption", Variant("-5"));
    EXPECT_EQ(window->caption(), "-5");
    set("Me.Caption", Variant("-5,50"));
    EXPECT_EQ(window->caption(), "-5,50") << "no number on the way";
    set("Me.PosLeft", Variant("-5"));
    EXPECT_EQ(window->posLeft, -5);
    set("Me.PosLeft", Variant("-37,5"));
    EXPECT_EQ(window->posLeft, -37.5);
    set("Me.PosLeft", Variant("-12.5"));
    EXPECT_EQ(window->posLeft, -12.5);
    set("Me.Small", Variant("-2,0"));
    set("Me.Large", Variant("-40000,0"));
    EXPECT_EQ(window->small, -2);
    EXPECT_EQ(window->large, -40000);
    EXPECT_EQ(errorOf("Me.Nothing", Variant("-5")), automation::errUnknownName);
}

TEST_F(ObjectPathTest, ReadsPropertiesAsTheyAre) {
    window->font().setSize(8.25);
    EXPECT_EQ(get("Me.Font.Size"), Variant(8.25));
    EXPECT_EQ(get("Me.Font.Weight"), Variant(std::int16_t{400}));
}

TEST_F(ObjectPathTest, TakesANumberAsIndexAndAQuotedTextAsKey) {
    set("tdbRM.Columns(1).Width", Variant(500.0));
    EXPECT_EQ(window->tdbRM->column(Variant("ChildID")).width(), 500);
    EXPECT_EQ(get("tdbRM.Columns(\"ChildID\").Width"), Variant(500.0));
    set("optA(1).Caption", Variant("second"));
    EXPECT_EQ(window->opt[1]->caption(), "second");
    EXPECT_EQ(window->opt[0]->caption(), "");
}

TEST_F(ObjectPathTest, PassesErrorsOnWithoutAnArgument) {
    EXPECT_EQ(errorOf("Me.Nothing", Variant(1.0)), automation::errUnknownName);
    EXPECT_EQ(errorOf("nothing.Width", Variant(1.0)), automation::errUnknownName);
    EXPECT_EQ(errorOf("Me.Width", Variant(32768.0)), automation::errOverflow);
    EXPECT_EQ(errorOf("Me.WindowState", Variant(3.0)), automation::errOverflow);
    EXPECT_EQ(errorOf("Me.PosLeft", Variant("wide")), automation::errTypeMismatch);
    EXPECT_EQ(errorOf("Me.Caption.Size", Variant(1.0)), automation::errTypeMismatch);
    EXPECT_EQ(errorOf("Me", Variant(1.0)), automation::errUnknownName);
    EXPECT_THROW((void)get("Me.Nothing"), automation::Error);
}

TEST_F(ObjectPathTest, SaysWhichMemberOnTheWayHoldsNoObjectNow) {
    try {
        set("tdbRM.DataSource.Source", Variant("x"));
        FAIL() << "there is no recordset";
    } catch (const automation::Error& error) {
        EXPECT_EQ(error.number(), automation::errTypeMismatch);
        EXPECT_EQ(error.description(), "DataSource is no object now");
    }
}

TEST_F(ObjectPathTest, EndsSilentlyAfterAMemberWithAnArgument) {
    const double width = window->tdbRM->width();
    EXPECT_EQ(errorOf("tdbRM.Columns(\"Gone\").Width", Variant(1.0)), 0);
    EXPECT_EQ(window->tdbRM->width(), width) << "the grid's own width must not get the column's";
    EXPECT_EQ(errorOf("tdbRM.Columns(99999).Width", Variant(1.0)), 0);
    EXPECT_EQ(errorOf("tdbRM.Columns(\"VarRecipe\").Width", Variant(99999.0)), 0);
    EXPECT_EQ(errorOf("tdbRM.Columns(\"VarRecipe\").Nothing", Variant(1.0)), 0);
    EXPECT_EQ(errorOf("tdbRM.Columns(", Variant(1.0)), automation::errUnknownName) << "the property itself";
    EXPECT_EQ(errorOf("tdbRM.Columns(.Width", Variant(1.0)), 0);
    EXPECT_EQ(get("tdbRM.Columns(\"Gone\").Width"), Variant());
}

TEST_F(ObjectPathTest, StillFailsBeforeTheMemberWithAnArgument) {
    EXPECT_EQ(errorOf("nothing.Columns(\"VarRecipe\").Width", Variant(1.0)), automation::errUnknownName);
}

}  // namespace
}  // namespace hx::settings
