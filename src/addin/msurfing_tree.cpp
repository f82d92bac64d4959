// SPDX-License-Identifier: MIT
#include "addin/msurfing_tree.h"

#include <array>

#include "addin/trap.h"
#include "automation/convert.h"
#include "project/schema.h"
#include "recipe/mhxrcp_hirarch_func.h"
#include "recipe/node_key.h"
#include "recipe/recipe_nodes.h"
#include "resources/text_ids.h"

namespace hx::addin {

namespace text = resources::text_id;

namespace {

void publishImages(host::Clipboard& clipboard, host::ProjectExplorer& explorer, const FImageList& list) {
    for (const auto& [key, picture] : list.images()) {
        clipboard.clear();
        clipboard.setPicture(picture);
        explorer.takeClipboardImage(key);
    }
}

void addRoot(host::ProjectExplorer& explorer, const std::string& caption) {
    explorer.addNode({.caption = caption,
                      .key = recipe::rootKey,
                      .tag = "0",
                      .image = recipe::KeyImage(recipe::rootKey),
                      .options = {true, true, true}});
}

/// Closes the recordset of the walk, also when the walk ends with an error.
class Closing {
  public:
    explicit Closing(ado::Recordset& recordset) : recordset_(recordset) {}
    ~Closing() { recipe::CloseRecordset(recordset_, true); }
    Closing(const Closing&) = delete;
    Closing& operator=(const Closing&) = delete;

  private:
    ado::Recordset& recordset_;
};

}  // namespace

void InitTreeView(const host::Services& services, host::ProjectExplorer& explorer,
                  const resources::ResourceTable& texts, const FImageList& images, bool& ok) {
    ok = trap(services.screen, "Connect: InitTreeView", [&] {
        publishImages(services.clipboard, explorer, images);
        addRoot(explorer, texts.GetResource(text::recipes));
    });
}

void addRecipeNodes(ado::Recordset& recipes, host::ProjectExplorer& explorer, const resources::ResourceTable& texts) {
    const Closing closing(recipes);
    if (recipes.state() == ado::adStateClosed) recipes.open();
    recipes.setFilter("");
    recipe::RecipeNodes nodes(explorer, texts.GetResource(text::subRecipes));
    constexpr std::array fields = {project::schema::recipe::id, project::schema::recipe::name};
    std::string room;
    recipes.scan(fields, [&](std::span<const ado::StoredValue> row) {
        nodes.add(automation::toInt32(row[0].real), ado::shownText(row[1], room));
    });
}

void removeRecipeNodes(host::ProjectExplorer& explorer) {
    constexpr std::int32_t directChildren = 1;
    for (const std::string& key : explorer.childKeys(recipe::rootKey, directChildren)) explorer.removeNode(key);
}

}  // namespace hx::addin
