// SPDX-License-Identifier: MIT
#include "cinit_fixture.h"

namespace hx::settings {
namespace {

using automation::Variant;

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
    EXPECT_EQ(support::errorNumber([&] { inits.SetInitToControl("unknown"); }), 0);
    EXPECT_EQ(support::errorNumber([&] { inits.SetInitToControl("Me..Width"); }), 0);
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
    EXPECT_EQ(support::errorNumber([&] { inits.SetInitToControl("Me"); }), automation::errOverflow);
    EXPECT_EQ(window->posLeft, 15);
    EXPECT_EQ(support::errorNumber([&] { inits.GetInitFromControl("Me.Nothing"); }), automation::errBadIndex);
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
    EXPECT_EQ(support::errorNumber([&] { inits.GetInitFromControl("unknown"); }), automation::errBadIndex);
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
    EXPECT_EQ(support::errorNumber([&] { inits.SetInitToControl("Me"); }), 91);
    EXPECT_EQ(support::errorNumber([&] { inits.GetInitFromControl("Me"); }), 91);
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

}  // namespace
}  // namespace hx::settings
