// SPDX-License-Identifier: MIT
#pragma once

#include "automation/convert.h"
#include "dialog_window.h"
#include "recipe/mhxrcp_hirarch_func.h"
#include "recipe/mrecipe_member.h"

namespace hx::recipe {

using automation::Variant;
using dialogs::FSubRecipe;

inline constexpr std::size_t saveSubRecipes = 14;  // of the recipes

/// Two recipes, the first with a variable and with the second as sub-recipe; the members are those of the first.
struct MRecipeMember : DialogTest {
    /// The columns of the member table, by number.
    enum Column : std::size_t { ID, ParentID, VarRecipe, ChildID };

    MRecipeMember() {
        cola = plant.addRecipe("Cola");
        syrup = plant.addRecipe("Sirup");
        plant.addMember(cola, "Tank.Level");
        member = plant.addMember(cola, "File.Syrup", syrup);
        window->key = "RCPU" + std::to_string(cola);
        members.setSource("SELECT * FROM TrcpRecipeMember WHERE ParentID = " + std::to_string(cola) +
                          " And ChildID <> 0 ORDER BY ID");
    }

    [[nodiscard]] std::size_t memberCount() { return plant.database.table("TrcpRecipeMember").rows().size(); }
    [[nodiscard]] std::vector<Variant> storedRow(std::int32_t id) {
        return *plant.database.table("TrcpRecipeMember").row(id);
    }
    void storeMember(Column column, const Variant& value) {
        const std::vector<ado::ColumnValue> values = {{column, value}};
        plant.database.table("TrcpRecipeMember").update(member, values);
    }
    void letParentSave() {
        const std::vector<ado::ColumnValue> values = {{saveSubRecipes, Variant(true)}};
        plant.database.table("TrcpRecipe").update(cola, values);
    }
    static std::vector<std::string> entries(const FSubRecipe& dialog) {
        std::vector<std::string> texts;
        for (std::int32_t i = 0; i < dialog.cmbChooseRecipe->listCount(); ++i) {
            texts.push_back(dialog.cmbChooseRecipe->list(i) + "=" +
                            std::to_string(dialog.cmbChooseRecipe->itemData(i)));
        }
        return texts;
    }
    void choose(std::int32_t entry, const std::string& variable) {
        inDialog<FSubRecipe>("FSubRecipe", [=](FSubRecipe& dialog) {
            dialog.cmbChooseRecipe->setListIndex(entry);
            dialog.txtVarRecipe->setText(variable);
            dialog.cmdOk->click();
        });
    }
    void lookAt(const std::function<void(FSubRecipe&)>& look) { inDialog<FSubRecipe>("FSubRecipe", look); }
    bool edit() {
        OpenAndMoveFirst(members);
        return EditSubRecipeMember(members, *window);
    }

    ado::Recordset& members = *plant.data.rstabRecipeMembers;
    std::int32_t cola = 0, syrup = 0, member = 0;
};

}  // namespace hx::recipe
