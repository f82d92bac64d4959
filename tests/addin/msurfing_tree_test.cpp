// SPDX-License-Identifier: MIT
#include "addin/msurfing_tree.h"

#include <gtest/gtest.h>

#include "studio.h"

namespace hx::addin {
namespace {

/// A clipboard that writes down what is done with it.
class NotingClipboard : public host::Clipboard {
  public:
    void clear() override { notes += "clear "; }
    void setPicture(const forms::Picture& picture) override {
        notes += "set ";
        picture_ = picture;
    }
    [[nodiscard]] forms::Picture picture() const override { return picture_; }

    std::string notes;

  private:
    forms::Picture picture_;
};

host::Services withClipboard(const host::Services& services, host::Clipboard& clipboard) {
    return {.screen = services.screen,
            .database = services.database,
            .registry = services.registry,
            .iniFile = services.iniFile,
            .clipboard = clipboard,
            .help = services.help,
            .windows = services.windows,
            .components = services.components,
            .items = services.items,
            .folders = services.folders,
            .paths = services.paths,
            .numberFormat = services.numberFormat,
            .moduleFile = services.moduleFile};
}

TEST(ExplorerNodes, TheClipboardIsClearedBeforeEachPicture) {
    Studio studio;
    NotingClipboard clipboard;
    headless::ProjectExplorer explorer(0, clipboard);
    FImageList images;
    images.add("second", {"<svg/>"});
    resources::ResourceTable texts;
    bool ok = false;
    InitTreeView(withClipboard(studio.host.services(), clipboard), explorer, texts, images, ok);
    EXPECT_TRUE(ok);
    EXPECT_EQ(clipboard.notes, "clear set clear set ");
    EXPECT_EQ(explorer.images().images(), images.images());
}

struct RecipeBranch : testing::Test {
    RecipeBranch() {
        for (const char* name : {"Cola", "Tee", "Limo"}) studio.addRecipe(name);
        studio.start();
        data.CnnRecipes->open("Data Source=D:\\Prj\\Plant.hxs");
    }
    Studio studio;
    recipe::DataEnvironment data{studio.provider};
};

TEST_F(RecipeBranch, ThreeRecipesGiveSevenNodes) {
    addRecipeNodes(*data.rsRecipes, studio.host.explorer, studio.connect->texts());
    EXPECT_EQ(studio.nodes(), (Texts{"RCPE0", "RCPR1", "RCPU1", "RCPR2", "RCPU2", "RCPR3", "RCPU3"}));
    EXPECT_EQ(data.rsRecipes->state(), ado::adStateClosed);
}

TEST_F(RecipeBranch, ARecipeThatSomebodyDeletesMeanwhileIsLeftOut) {
    data.rsRecipes->open();
    EXPECT_EQ(data.rsRecipes->recordCount(), 3);
    studio.database.table("TrcpRecipe").remove(2);
    addRecipeNodes(*data.rsRecipes, studio.host.explorer, studio.connect->texts());
    EXPECT_EQ(studio.nodes(), (Texts{"RCPE0", "RCPR1", "RCPU1", "RCPR3", "RCPU3"}));
}

TEST_F(RecipeBranch, AnErrorReachesTheCallerAndClosesTheRecordset) {
    studio.host.explorer.removeNode("RCPE0");
    EXPECT_THROW(addRecipeNodes(*data.rsRecipes, studio.host.explorer, studio.connect->texts()), automation::Error);
    EXPECT_EQ(data.rsRecipes->state(), ado::adStateClosed);
}

TEST_F(RecipeBranch, ARecipeWithoutANameHasAnEmptyCaption) {
    const auto id = studio.database.table("TrcpRecipe").insert(std::vector<ado::ColumnValue>{{1, automation::Null{}}});
    addRecipeNodes(*data.rsRecipes, studio.host.explorer, studio.connect->texts());
    EXPECT_EQ(studio.host.explorer.eventOf("RCPR" + std::to_string(id)).caption, "");
}

TEST_F(RecipeBranch, AnEditThatIsPendingInTheRecordsetIsStored) {
    data.rsRecipes->open();
    data.rsRecipes->field("Name").setValue("Saft");
    studio.faults.arm(1, support::FaultPlan::Kind::update);
    EXPECT_THROW(addRecipeNodes(*data.rsRecipes, studio.host.explorer, studio.connect->texts()), automation::Error);
    EXPECT_EQ((*studio.database.table("TrcpRecipe").row(1))[1], automation::Variant("Saft"));
}

TEST_F(RecipeBranch, IsRemovedBelowTheRoot) {
    addRecipeNodes(*data.rsRecipes, studio.host.explorer, studio.connect->texts());
    removeRecipeNodes(studio.host.explorer);
    EXPECT_EQ(studio.nodes(), (Texts{"RCPE0"}));
    removeRecipeNodes(studio.host.explorer);
    EXPECT_EQ(studio.nodes(), (Texts{"RCPE0"}));
}

}  // namespace
}  // namespace hx::addin
