#include "addin/explorer_nodes.h"

#include "addin/trap.h"
#include "automation/convert.h"
#include "recipe/hierarchy.h"
#include "recipe/node_key.h"
#include "recipe/recipe_nodes.h"
#include "recipe/schema.h"

namespace hx::addin {

namespace {

namespace text {
constexpr std::int32_t recipes = 102, subRecipes = 103;
}

void publishImages(host::Clipboard& clipboard, host::ProjectExplorer& explorer, const FImageList& list) {
    for (const auto& [key, picture] : list.images()) {
        clipboard.clear();
        clipboard.setPicture(picture);
        explorer.takeClipboardImage(key);
    }
}

void addRoot(host::ProjectExplorer& explorer, const std::string& caption) {
    host::NewNode root;
    root.caption = caption;
    root.key = recipe::rootKey;
    root.tag = "0";
    root.image = recipe::KeyImage(recipe::rootKey);
    root.options = {true, true, true};
    explorer.addNode(root);
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
    if (!recipe::OpenAndMoveFirst(recipes)) return;
    recipe::RecipeNodes nodes(explorer, texts.GetResource(text::subRecipes));
    const ado::Field& id = recipes.field(recipe::schema::recipe::id);
    const ado::Field& name = recipes.field(recipe::schema::recipe::name);
    // The count is of the rows that the recordset opened with; one that somebody deletes meanwhile ends the walk early.
    for (std::int32_t left = recipes.recordCount(); left > 0 && !recipes.eof(); --left) {
        const automation::Variant text = name.value();
        nodes.add(automation::toInt32(id.value()), text.isString() ? std::string_view(text.asString()) : "");
        recipes.moveNext();
    }
}

void removeRecipeNodes(host::ProjectExplorer& explorer) {
    constexpr std::int32_t directChildren = 1;
    for (const std::string& key : explorer.childKeys(recipe::rootKey, directChildren)) explorer.removeNode(key);
}

}  // namespace hx::addin
