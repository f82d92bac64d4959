// SPDX-License-Identifier: MIT

// Every row of every table of the dialogs: what all tables promise.
#include "dialogs/fconfig_editor.h"
#include "dialogs/fmulti_select_items.h"
#include "dialogs/frecipe.h"
#include "dialogs/fsub_recipe.h"
#include "dialogs_fixture.h"
#include "support/table_walker.h"

namespace hx::dialogs {
namespace {

using support::walkTables;

constexpr int formRows = 35, dialogRows = formRows + 2;

using DialogTables = DialogsTest;

TEST_F(DialogTables, KeepTheirPromises) {
    EXPECT_EQ(walkTables(*std::make_shared<FRecipe>(host.services(), texts, help)), dialogRows);
    EXPECT_EQ(walkTables(*std::make_shared<FSubRecipe>(host.services(), texts, help)), dialogRows + 1);
    EXPECT_EQ(walkTables(*std::make_shared<FMultiSelectItems>(host.services(), help)), dialogRows);
    EXPECT_EQ(walkTables(*std::make_shared<FConfigEditor>(host.services(), help)), dialogRows + 1);
}

TEST_F(DialogTables, NameTheirClasses) {
    EXPECT_EQ(std::make_shared<FRecipe>(host.services(), texts, help)->className(), "FRecipe");
    EXPECT_EQ(std::make_shared<FSubRecipe>(host.services(), texts, help)->className(), "FSubRecipe");
    EXPECT_EQ(std::make_shared<FMultiSelectItems>(host.services(), help)->className(), "FMultiSelectItems");
    EXPECT_EQ(std::make_shared<FConfigEditor>(host.services(), help)->className(), "FConfigEditor");
}

TEST_F(DialogTables, ReachTheControlsByName) {
    const auto dialog = std::make_shared<FRecipe>(host.services(), texts, help);
    dialog->get("txtName").asObject()->set("Text", automation::Variant("Rezept 1"));
    EXPECT_EQ(dialog->txtName->text(), "Rezept 1");
    const auto option = dialog->get("optRecipeAbsrel", std::array{automation::Variant(std::int32_t{1})}).asObject();
    option->set("Value", automation::Variant(true));
    EXPECT_TRUE(dialog->optRecipeAbsrel[1]->value());
    EXPECT_TRUE(dialog->txtStandardValue->enabled());
}

}  // namespace
}  // namespace hx::dialogs
