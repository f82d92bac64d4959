#include "recipe/mrecipe_member.h"

#include <array>

#include "automation/text.h"
#include "recipe/field_text.h"
#include "recipe/node_key.h"
#include "recipe/schema.h"
#include "recipe/stored_row.h"
#include "resources/mdialogs.h"

namespace hx::recipe {

using automation::Null;
using automation::Variant;
using dialogs::FSubRecipe;

namespace {

namespace column = schema::member;

namespace text {
constexpr std::int32_t notRead = 550, notWritten = 551;
}

bool is(const ado::Field& field, std::string_view name) { return automation::equalIgnoreCase(field.name(), name); }

std::int32_t chosenRecipe(const FSubRecipe& dialog) {
    return dialog.cmbChooseRecipe->itemData(dialog.cmbChooseRecipe->listIndex());
}

void fillWithRecipes(ado::Recordset& recipes, forms::ComboBox& list) {
    std::vector<std::string> names;
    std::vector<std::int32_t> ids;
    if (OpenAndMoveFirst(recipes)) {
        const ado::Field& name = recipes.field(schema::recipe::name);
        const ado::Field& id = recipes.field(schema::recipe::id);
        for (; !recipes.eof(); recipes.moveNext()) {
            names.push_back(FieldToText(name));
            ids.push_back(automation::toInt32(id.value()));
        }
    }
    resources::FillListWithData(list, Null{}, names, ids);
    if (list.listCount() > 0) list.setListIndex(0);
}

bool savesSubRecipes(ado::Recordset& recipes, std::int32_t recipe) {
    if (!OpenAndMoveFirst(recipes)) return false;
    recipes.find("ID=" + std::to_string(recipe));
    return !recipes.eof() &&
           FieldToCheck(recipes.field(schema::recipe::saveSubRecipes)) != forms::CheckState::unchecked;
}

}  // namespace

void FillSubRecipeList(RecipeWindow& window, FSubRecipe& dialog) {
    ado::Recordset& recipes = window.recipeRecordset();
    fillWithRecipes(recipes, *dialog.cmbChooseRecipe);
    dialog.setParentSavesSubRecipes(savesSubRecipes(recipes, KeyId(window.nodeKey())));
}

bool AddSubRecipeMember(RecipeWindow& window) {
    const auto dialog = std::make_shared<FSubRecipe>(window.services(), window.texts(), window.help());
    FillSubRecipeList(window, *dialog);
    const std::int32_t parent = KeyId(window.nodeKey());  // the window may show another node when the dialog is closed
    showOver(window, *dialog);
    if (dialog->cancelled()) return false;
    ado::Recordset& members = window.memberRecordset();
    OpenAndMoveLast(members);
    members.addNew(std::to_array<std::pair<std::string, Variant>>({
        {std::string(column::parentId), parent},
        {std::string(column::varRecipe), dialog->txtVarRecipe->text()},
        {std::string(column::childId), chosenRecipe(*dialog)},
    }));
    CloseRecordset(members, false);
    return true;
}

bool EditSubRecipeMember(ado::Recordset& members, RecipeWindow& window) {
    const auto dialog = std::make_shared<FSubRecipe>(window.services(), window.texts(), window.help());
    if (!readAgain(members) || !ReadMemberToDialog(members, *dialog, window)) {
        window.tell(window.texts().GetResource(text::notRead));
        return false;
    }
    const ado::Bookmark row = members.bookmark();
    showOver(window, *dialog);
    if (dialog->cancelled()) return false;
    members.setBookmark(row);  // the window may have read its members anew meanwhile
    storeOrRestore(members, WriteDialogToMember(members, *dialog),
                   [&] { window.tell(window.texts().GetResource(text::notWritten)); });
    return true;
}

bool ReadMemberToDialog(ado::Recordset& members, FSubRecipe& dialog, RecipeWindow& window) {
    try {
        FillSubRecipeList(window, dialog);
    } catch (const std::exception&) {
        return false;
    }
    return forEachField(members, [&](const ado::Field& field) {
        if (is(field, column::childId)) {
            resources::FillListWithData(*dialog.cmbChooseRecipe, field.value(), std::nullopt, {});
        } else if (is(field, column::varRecipe)) {
            dialog.txtVarRecipe->setText(FieldToText(field));
        }
    });
}

bool WriteDialogToMember(ado::Recordset& members, const FSubRecipe& dialog) {
    return forEachField(members, [&](ado::Field& field) {
        if (is(field, column::childId)) field.setValue(chosenRecipe(dialog));
        else if (is(field, column::varRecipe)) TextToField(field, dialog.txtVarRecipe->text());
    });
}

}  // namespace hx::recipe
