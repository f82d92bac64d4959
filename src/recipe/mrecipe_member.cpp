// SPDX-License-Identifier: MIT
#include "recipe/mrecipe_member.h"

#include <array>

#include "ado/transaction.h"
#include "automation/text.h"
#include "project/schema.h"
#include "recipe/existing_recipe.h"
#include "recipe/field_text.h"
#include "recipe/mhxrcp_hirarch_func.h"
#include "recipe/node_key.h"
#include "recipe/stored_row.h"
#include "resources/mdialogs.h"
#include "resources/text_ids.h"

namespace hx::recipe {

namespace schema = project::schema;
namespace text = resources::text_id;

using automation::Null;
using automation::Variant;
using dialogs::FSubRecipe;

namespace {

namespace member = schema::member;

bool is(const ado::Field& field, std::string_view name) { return automation::equalIgnoreCase(field.name(), name); }

std::int32_t chosenRecipe(const FSubRecipe& dialog) {
    return dialog.cmbChooseRecipe->itemData(dialog.cmbChooseRecipe->listIndex());
}

ColumnNames namesIn(const resources::ResourceTable& texts, const FSubRecipe& dialog) {
    const auto caption = [&texts](const ado::Field& field) {
        return texts.GetResource(is(field, member::childId) ? text::subRecipe : text::fileName);
    };
    const auto value = [&](const ado::Field& field, const Variant& of) {
        const forms::ComboBox& recipes = *dialog.cmbChooseRecipe;
        for (std::int32_t i = 0; is(field, member::childId) && i < recipes.listCount(); ++i) {
            if (recipes.itemData(i) == automation::toInt32(of)) return recipes.list(i);
        }
        return valueInWords(of, texts.wording());
    };
    return {caption, value};
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

// In one transaction: nobody deletes the chosen recipe in between.
void storeMember(RowInDialog& row, const resources::ResourceTable& texts) {
    const auto& connection = row.fields().activeConnection();
    ado::Transaction transaction(*connection);
    const ado::Field& child = row.fields().field(member::childId);
    if (child.value() != child.originalValue()) requireRecipe(connection, automation::toInt32(child.value()), texts);
    row.store();
    transaction.commit();
}

// In one transaction: nobody deletes one of the two recipes in between.
void addMember(RecipeWindow& window, std::int32_t parent, const FSubRecipe& dialog) {
    ado::Recordset& members = window.memberRecordset();
    ado::Transaction transaction(*members.activeConnection());
    requireRecipe(members.activeConnection(), parent, window.texts());
    requireRecipe(members.activeConnection(), chosenRecipe(dialog), window.texts());
    OpenAndMoveLast(members);
    members.addNew(std::to_array<std::pair<std::string, Variant>>({
        {std::string(member::parentId), parent},
        {std::string(member::varRecipe), dialog.txtVarRecipe->text()},
        {std::string(member::childId), chosenRecipe(dialog)},
    }));
    transaction.commit();
    CloseRecordset(members, false);
}

}  // namespace

void FillSubRecipeList(RecipeWindow& window, FSubRecipe& dialog) {
    ado::Recordset& recipes = window.recipeRecordset();
    fillWithRecipes(recipes, *dialog.cmbChooseRecipe);
    dialog.setParentSavesSubRecipes(savesSubRecipes(recipes, KeyId(window.nodeKey())));
}

bool AddSubRecipeMember(RecipeWindow& window, const Refusal& refused) {
    const auto dialog = std::make_shared<FSubRecipe>(window.services(), window.texts(), window.help());
    FillSubRecipeList(window, *dialog);
    const std::int32_t parent = KeyId(window.nodeKey());  // the window may show another node when the dialog is closed
    const bool stored = showStoring(window, *dialog, refused, [&] {
        addMember(window, parent, *dialog);
        return true;
    });
    if (stored) return true;
    if (dialog->cancelled()) return false;
    addMember(window, parent, *dialog);
    return true;
}

bool EditSubRecipeMember(ado::Recordset& members, RecipeWindow& window, const Refusal& refused) {
    const auto dialog = std::make_shared<FSubRecipe>(window.services(), window.texts(), window.help());
    RowInDialog row(members, window.texts(), namesIn(window.texts(), *dialog));
    if (!row.begin() || !ReadMemberToDialog(row.fields(), *dialog, window)) {
        window.tell(window.texts().GetResource(text::notRead));
        return false;
    }
    const bool stored = showStoring(window, *dialog, refused, [&] {
        if (!WriteDialogToMember(row.fields(), *dialog)) return false;
        storeMember(row, window.texts());
        return true;
    });
    if (stored) return true;
    if (dialog->cancelled()) return false;
    if (WriteDialogToMember(row.fields(), *dialog)) {
        storeMember(row, window.texts());
    } else {
        window.tell(window.texts().GetResource(text::notWritten));
        row.restore();
    }
    return true;
}

bool ReadMemberToDialog(ado::Recordset& members, FSubRecipe& dialog, RecipeWindow& window) {
    try {
        FillSubRecipeList(window, dialog);
    } catch (const std::exception&) {
        return false;
    }
    return forEachField(members, [&](const ado::Field& field) {
        if (is(field, member::childId)) {
            resources::FillListWithData(*dialog.cmbChooseRecipe, field.value(), std::nullopt, {});
        } else if (is(field, member::varRecipe)) {
            dialog.txtVarRecipe->setText(FieldToText(field));
        }
    });
}

bool WriteDialogToMember(ado::Recordset& members, const FSubRecipe& dialog) {
    return forEachField(members, [&](ado::Field& field) {
        if (is(field, member::childId)) field.setValue(chosenRecipe(dialog));
        else if (is(field, member::varRecipe)) TextToField(field, dialog.txtVarRecipe->text());
    });
}

}  // namespace hx::recipe
