// SPDX-License-Identifier: MIT

// Commands that write many rows, from the click to the grid that shows what is left.
#include <algorithm>
#include <array>
#include <memory>
#include <string>
#include <vector>

#include "adapters/sqlite/provider.h"
#include "bench/command_window.h"
#include "bench/limit_database.h"
#include "bench/require.h"
#include "bench/subjects.h"
#include "bench/work_copy.h"
#include "dialogs/fmulti_select_items.h"
#include "project/generated_names.h"

namespace hx::bench {

namespace {

using Names = std::vector<std::string>;

const std::string membersOfBig = "FROM TrcpRecipeMember WHERE ParentID = " + std::to_string(bigRecipe);

// The variables of the big recipe in another order.
Names otherOrder(const Project& project) {
    Names names;
    for (std::int64_t i = 0; i < project.big; ++i) names.push_back(project::variableName(i));
    std::ranges::rotate(names, names.begin() + project.big / 3);
    return names;
}

// In projects of any format.
void requireReplaced(const Project& project, const Names& names) {
    sqlite::Provider provider;
    const auto rows = provider.connect("Data Source=\"" + project.path + "\";Mode=Read;")
                          ->open("SELECT VarRecipe " + membersOfBig + " ORDER BY ID", ado::adCmdText);
    std::int64_t count = 0;
    rows->scan(std::array{std::size_t{0}}, [&](std::span<const ado::StoredValue> row) {
        require(count++ > 0 || row[0].text == names.front(), "the members were not replaced");
    });
    require(count == project.big, "wrong number of members");
}

void requireNoMembers(const Project& project) {
    require(LimitDatabase(project).number("SELECT COUNT(*) " + membersOfBig) == 0, "members are left");
}

void requireNoRecipe(const Project& project) {
    require(
        LimitDatabase(project).number("SELECT COUNT(*) FROM TrcpRecipe WHERE ID = " + std::to_string(bigRecipe)) == 0,
        "the recipe is left");
}

// What the user does in the dialog: all variables in another order, and OK.
void takeInDialog(CommandWindow& window, const std::shared_ptr<const Names>& names) {
    window.script().onModal["FMultiSelectItems"] = [names](forms::Form& form) {
        auto& dialog = dynamic_cast<dialogs::FMultiSelectItems&>(form);
        dialog.hxMI->setSelectedItems(*names);
        dialog.cmdOk->click();
    };
}

void replaceMembers(LimitDatabase& database, const Names& names) {
    database.execute("BEGIN IMMEDIATE");
    database.execute("DELETE " + membersOfBig);
    database.addMembers(bigRecipe, names);
    database.execute("COMMIT");
}

}  // namespace

Subject replace_variables::ours(const Project& project) {
    return [=]() -> Work {
        const auto names = std::make_shared<const Names>(otherOrder(project));
        const auto copy = std::make_shared<OnCopy<CommandWindow>>(project);
        return {[=] { takeInDialog(copy->renew(), names); },
                [=] {
                    CommandWindow& editor = copy->opened();
                    editor.click("mnuRecipeMemberNewVariable");
                    require(editor.window().tdbRM->rowCount() == project.big, "the grid shows other rows");
                },
                [=] { requireReplaced(copy->project(), *names); }};
    };
}

Subject replace_variables::limit(const Project& project) {
    return [=]() -> Work {
        const auto names = std::make_shared<const Names>(otherOrder(project));
        const auto copy = std::make_shared<OnCopy<LimitDatabase>>(project);
        return {[=] { copy->renew(); }, [=] { replaceMembers(copy->opened(), *names); },
                [=] { requireReplaced(copy->project(), *names); }};
    };
}

Subject delete_recipe::ours(const Project& project) {
    return [=]() -> Work {
        const auto copy = std::make_shared<OnCopy<CommandWindow>>(project);
        return {[=] { copy->renew(); }, [=] { copy->opened().click("mnuRecipeDelete"); },
                [=] {
                    requireNoMembers(copy->project());
                    requireNoRecipe(copy->project());
                }};
    };
}

Subject delete_recipe::limit(const Project& project) {
    return [=]() -> Work {
        const auto copy = std::make_shared<OnCopy<LimitDatabase>>(project);
        return {[=] { copy->renew(); }, [=] { copy->opened().execute("DELETE " + membersOfBig); },
                [=] { requireNoMembers(copy->project()); }};
    };
}

}  // namespace hx::bench
