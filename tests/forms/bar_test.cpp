// SPDX-License-Identifier: MIT
#include "forms/bar.h"

#include <gtest/gtest.h>

#include "recorder.h"
#include "support/table_walker.h"

namespace hx::forms {
namespace {

using automation::errBadIndex;
using automation::Variant;
using support::errorNumber;

class BarTest : public testing::Test {
  protected:
    BarTest() {
        bar->setMainBand("mnuMain");
        menu("mnuRecipes", recipe);
        menu("mnuOptions", option);
        recipe.add("mnuRecipeDescriptor", ToolKind::title);
        recipe.add("mnuRecipeNew", ToolKind::command);
        recipe.add("mnuRecipeEdit", ToolKind::command);
        option.add("mnuOptionActualize", ToolKind::command);
        option.add("mnuOptionsSep0", ToolKind::separator);
        option.add("mnuOptionStatistik", ToolKind::command);
        helper.add("mnuShowEditorSep", ToolKind::separator);
        helper.add("mnuShowEditor", ToolKind::command);
    }

    Tool& menu(const std::string& name, const Band& opens) {
        Tool& tool = main.add(name, ToolKind::menu);
        tool.setSubBand(opens.name());
        return tool;
    }
    [[nodiscard]] static Names names(const std::vector<Tool*>& tools) {
        Names result;
        for (const Tool* tool : tools) result.push_back(tool->name());
        return result;
    }
    void showEditorEntry() {
        for (const char* name : {"mnuShowEditorSep", "mnuShowEditor"}) {
            main.insert(main.tools().size(), helper.tool(Variant(name)).copy());
        }
    }

    std::shared_ptr<Bar> bar = std::make_shared<Bar>("abr");
    Band& main = bar->addBand("mnuMain");
    Band& recipe = bar->addBand("mnuRecipe");
    Band& option = bar->addBand("mnuOption");
    Band& helper = bar->addBand("mnuShowEditorHelper");
};

TEST_F(BarTest, FindsBandsByNameOrByNumberFromZero) {
    EXPECT_EQ(&bar->band(Variant("MNURECIPE")), &recipe);
    EXPECT_EQ(&bar->band(Variant(2)), &option);
    EXPECT_EQ(&bar->mainBand(), &main);
    for (const Variant& index : {Variant("SysCustomize"), Variant(-1), Variant(4)}) {
        EXPECT_EQ(errorNumber([&] { (void)bar->band(index); }), errBadIndex);
    }
}

TEST_F(BarTest, ABandReachesTheToolsOfTheBandsThatItsMenusOpen) {
    EXPECT_EQ(main.find("mnurecipenew"), recipe.find("mnuRecipeNew"));
    EXPECT_NE(main.find("mnuRecipeNew"), nullptr);
    EXPECT_EQ(main.find("mnuShowEditor"), nullptr);
    EXPECT_EQ(recipe.find("mnuOptionStatistik"), nullptr);
    EXPECT_EQ(&main.tool(Variant("mnuOptionStatistik")), &option.tool(Variant(2)));
    EXPECT_EQ(errorNumber([&] { (void)main.tool(Variant("mnuShowEditor")); }), errBadIndex);
    EXPECT_EQ(errorNumber([&] { (void)main.tool(Variant(2)); }), errBadIndex);
    EXPECT_EQ(errorNumber([&] { (void)main.tool(Variant(-1)); }), errBadIndex);
}

TEST_F(BarTest, ABandsOwnToolGoesBeforeThatOfABandItOpens) {
    Tool& own = main.add("mnuRecipeNew", ToolKind::command);
    EXPECT_EQ(main.find("mnuRecipeNew"), &own);
}

TEST_F(BarTest, BandsThatOpenEachOtherAreSearchedOnce) {
    recipe.add("back", ToolKind::menu).setSubBand("mnuMain");
    EXPECT_EQ(main.find("nowhere"), nullptr);
    EXPECT_NE(recipe.find("mnuOptionStatistik"), nullptr);
}

TEST_F(BarTest, ChangingTheToolsOfABandIsReported) {
    Counter<> changes(main.toolsChanged);
    showEditorEntry();
    EXPECT_EQ(changes.take(), 2);
    EXPECT_EQ(main.tools().back()->name(), "mnuShowEditor");
    main.remove("MNUSHOWEDITOR");
    main.remove("mnuShowEditorSep");
    EXPECT_EQ(changes.take(), 2);
    EXPECT_EQ(main.tools().size(), 2U);
    EXPECT_EQ(errorNumber([&] { main.remove("mnuShowEditor"); }), errBadIndex);
    EXPECT_EQ(errorNumber([&] { main.remove("mnuRecipeNew"); }), errBadIndex);
    EXPECT_EQ(errorNumber([&] { main.insert(3, std::make_shared<Tool>("x", ToolKind::command)); }), errBadIndex);
    EXPECT_EQ(changes.take(), 0);
}

TEST_F(BarTest, EveryChangeOfAToolIsReported) {
    Tool& tool = recipe.tool(Variant("mnuRecipeNew"));
    Counter<> changes(tool.changed);
    tool.setCaption("&Neu");
    tool.setResourceId(204);
    tool.setCategory("New");
    tool.setEnabled(false);
    tool.setVisible(false);
    tool.setShortcut("F8");
    tool.setSubBand("mnuMain");
    tool.setPicture({"<svg/>"});
    EXPECT_EQ(changes.take(), 8);
    tool.setCaption("&Neu");
    tool.setEnabled(false);
    EXPECT_EQ(changes.take(), 0);
}

TEST_F(BarTest, ACopyIsAToolOfItsOwn) {
    Tool& original = helper.tool(Variant("mnuShowEditor"));
    original.setCaption("Editor anzeigen");
    original.setEnabled(false);
    original.setResourceId(226);
    const auto copy = original.copy();
    EXPECT_EQ(copy->name(), "mnuShowEditor");
    EXPECT_EQ(copy->kind(), ToolKind::command);
    EXPECT_EQ(copy->caption(), "Editor anzeigen");
    EXPECT_EQ(copy->resourceId(), 226);
    EXPECT_FALSE(copy->enabled());
    copy->setCaption("Show Editor");
    EXPECT_EQ(original.caption(), "Editor anzeigen");
}

TEST_F(BarTest, TheMenuBarShowsTheVisibleMenus) {
    showEditorEntry();
    EXPECT_EQ(names(bar->menuTools()), (Names{"mnuRecipes", "mnuOptions"}));
    main.tool(Variant("mnuRecipes")).setVisible(false);
    EXPECT_EQ(names(bar->menuTools()), Names{"mnuOptions"});
}

TEST_F(BarTest, APopUpMenuShowsTheVisibleToolsOfItsBand) {
    recipe.tool(Variant("mnuRecipeEdit")).setVisible(false);
    recipe.tool(Variant("mnuRecipeNew")).setEnabled(false);
    EXPECT_EQ(names(bar->popUpTools(recipe)), (Names{"mnuRecipeDescriptor", "mnuRecipeNew"}));
}

TEST_F(BarTest, APopUpMenuIsClosedByTheCommandsOfTheMainBand) {
    showEditorEntry();
    EXPECT_EQ(names(bar->popUpTools(recipe)),
              (Names{"mnuRecipeDescriptor", "mnuRecipeNew", "mnuRecipeEdit", "mnuShowEditorSep", "mnuShowEditor"}));
    for (const auto& tool : recipe.tools()) tool->setVisible(false);
    EXPECT_EQ(names(bar->popUpTools(recipe)), Names{"mnuShowEditor"});
}

TEST_F(BarTest, APopUpMenuShowsACommandOnceThatStandsInTheMainBandToo) {
    showEditorEntry();
    EXPECT_EQ(names(bar->popUpTools(helper)), Names{"mnuShowEditor"});
}

TEST_F(BarTest, TheMainBandAsPopUpMenuShowsEachToolOnce) {
    showEditorEntry();
    EXPECT_EQ(names(bar->popUpTools(main)), (Names{"mnuRecipes", "mnuOptions", "mnuShowEditorSep", "mnuShowEditor"}));
}

TEST_F(BarTest, APopUpMenuHasSeparatorsOnlyBetweenTools) {
    option.insert(0, std::make_shared<Tool>("first", ToolKind::separator));
    option.insert(2, std::make_shared<Tool>("doubled", ToolKind::separator));
    option.add("last", ToolKind::separator);
    EXPECT_EQ(names(bar->popUpTools(option)), (Names{"mnuOptionActualize", "doubled", "mnuOptionStatistik"}));
    option.tool(Variant("mnuOptionStatistik")).setVisible(false);
    EXPECT_EQ(names(bar->popUpTools(option)), Names{"mnuOptionActualize"});
}

TEST_F(BarTest, ASubMenuShowsTheVisibleToolsOfItsBandAlone) {
    showEditorEntry();
    option.insert(0, std::make_shared<Tool>("first", ToolKind::separator));
    EXPECT_EQ(names(Bar::subMenuTools(option)), (Names{"mnuOptionActualize", "mnuOptionsSep0", "mnuOptionStatistik"}));
    option.tool(Variant("mnuOptionStatistik")).setVisible(false);
    EXPECT_EQ(names(Bar::subMenuTools(option)), Names{"mnuOptionActualize"});
}

TEST_F(BarTest, AHandlerCanKeepABandFromOpening) {
    EXPECT_TRUE(bar->openBand(recipe));
    bar->bandOpenEvent.connect([&](Band& band, bool& cancel) { cancel = &band == &option; });
    EXPECT_TRUE(bar->openBand(recipe));
    EXPECT_FALSE(bar->openBand(option));
}

TEST_F(BarTest, ReportsAMenuThatIsAboutToOpen) {
    std::string opening;
    bar->menuOpeningEvent.connect([&](Tool& tool) { opening += tool.name(); });
    bar->menuOpening(main.tool(Variant(0)));
    EXPECT_EQ(opening, "mnuRecipes");
}

TEST_F(BarTest, ClicksDisabledToolsToo) {
    std::string clicked;
    bar->toolClickEvent.connect([&](Tool& tool) { clicked += tool.name() + (tool.enabled() ? ";" : "(off);"); });
    recipe.tool(Variant("mnuRecipeEdit")).setEnabled(false);
    bar->click("mnuRecipeEdit");
    const std::vector<Variant> name{"mnuRecipeNew"};
    bar->get("Click", name);
    EXPECT_EQ(clicked, "mnuRecipeEdit(off);mnuRecipeNew;");
    EXPECT_EQ(errorNumber([&] { bar->click("mnuNothing"); }), errBadIndex);
}

TEST_F(BarTest, ClicksTheToolInTheMenuBeforeItsTemplate) {
    Tool* clicked = nullptr;
    bar->toolClickEvent.connect([&](Tool& tool) { clicked = &tool; });
    bar->click("mnuShowEditor");
    EXPECT_EQ(clicked, &helper.tool(Variant(1)));
    showEditorEntry();
    bar->click("mnuShowEditor");
    EXPECT_EQ(clicked, main.tools().back().get());
}

TEST_F(BarTest, SpellsShortcutsWithTheUsersNamesOfTheModifierKeys) {
    Tool& tool = recipe.tool(Variant("mnuRecipeNew"));
    const auto spelled = [&](const char* shortcut) {
        tool.setShortcut(shortcut);
        return bar->shortcutText(tool);
    };
    EXPECT_EQ(spelled("Control+Delete"), "Control+Delete");
    bar->setLocalisation(43, "Strg+");
    bar->setLocalisation(44, "Umsch+");
    bar->setLocalisation(42, "Alt+");
    EXPECT_EQ(spelled("Control+Delete"), "Strg+Delete");
    EXPECT_EQ(spelled("Control+Shift+C"), "Strg+Umsch+C");
    EXPECT_EQ(spelled("F9"), "F9");
    EXPECT_EQ(spelled(""), "");
    bar->setLocalisation(43, "Ctrl+");
    EXPECT_EQ(spelled("Control+C"), "Ctrl+C");
    EXPECT_EQ(bar->localisation(99), "");
    const std::vector<Variant> entry{43};
    bar->set("Localisation", Variant("^"), entry);
    EXPECT_EQ(bar->get("Localisation", entry), Variant("^"));
    EXPECT_EQ(spelled("Control+C"), "^C");
}

TEST_F(BarTest, ReportsTheAreaThatItsBandsLeaveFree) {
    Counter<> resizes(bar->resizeEvent);
    bar->clientAreaReported(9000, 6000);
    EXPECT_EQ(resizes.take(), 1);
    EXPECT_EQ(bar->get("ClientAreaWidth"), Variant(9000.0));
    EXPECT_EQ(bar->get("ClientAreaHeight"), Variant(6000.0));
}

TEST_F(BarTest, ReachesItsToolsByName) {
    const auto item = [](automation::Dispatch& object, const char* name, const Variant& index) {
        const std::vector<Variant> args{index};
        return object.get(name, args).asObject();
    };
    const auto band = item(*bar, "Bands", "mnuMain");
    item(*band, "Tools", "mnuRecipeNew")->set("Enabled", Variant(false));
    EXPECT_FALSE(recipe.tool(Variant("mnuRecipeNew")).enabled());
    EXPECT_EQ(item(*item(*bar, "Bands", 2), "Tools", 0)->get("Name"), Variant("mnuOptionActualize"));
    EXPECT_EQ(band->get("ToolCount"), Variant(2));
    bar.reset();
    EXPECT_EQ(item(*band, "Tools", "mnuRecipeNew")->get("Enabled"), Variant(false)) << "a band keeps its bar alive";
}

}  // namespace
}  // namespace hx::forms
