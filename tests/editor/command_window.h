// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>

#include "dialogs/dialog.h"
#include "editor_window.h"
#include "recipe/node_key.h"
#include "recipe/recipe_nodes.h"

namespace hx::editor {

/// "ParentID VarRecipe ChildID" of the members that every window starts with.
inline const Texts allMembers = {"1 Tank.Level 0", "1 Tank.Temp 0",  "1 Pump.Speed 0",
                                 "1 File.Syrup 2", "1 File.Water 3", "2 Sugar.Mass 0"};

/// An open editor window with the explorer's nodes of its three recipes.
class CommandWindow : public EditorWindow {
  protected:
    CommandWindow() {
        host.explorer.addNode({.caption = "Rezepte", .key = recipe::rootKey});
        recipe::RecipeNodes nodes(host.explorer, "Unterrezepte");
        nodes.add(mix, "Mix");
        nodes.add(syrup, "Sirup");
        nodes.add(water, "Wasser");
        open();
    }

    /// Clicks the tool as the user does who opens the menu.
    void click(const std::string& name) {
        window->MenuSwitcher(window->nodeKey(), false);
        window->abr->click(name);
    }
    /// What the user does in the dialog; afterwards it is closed by its frame when it is still open.
    template <class D>
    void inDialog(const std::string& name, std::function<void(D&)> action) {
        host.script.onModal[name] = [action = std::move(action)](forms::Form& form) { action(dynamic_cast<D&>(form)); };
    }
    void answer(forms::message::Answer answer) {
        host.script.onMessage = [answer](const forms::ShownMessage&) { return answer; };
    }
    void turnQuestionsOff() { window->inits().WriteAValueToCInits("RequestOnDelete", automation::Variant(false)); }

    /// "ID Name" of all recipes in the database.
    [[nodiscard]] Texts storedRecipes() { return storedRows("TrcpRecipe", {0, 1}); }
    /// "ParentID VarRecipe ChildID" of all members in the database, in their order.
    [[nodiscard]] Texts storedMembers() { return storedRows("TrcpRecipeMember", {1, 2, 3}); }
    [[nodiscard]] Texts storedRows(std::string_view table, const std::vector<std::size_t>& columns) {
        Texts rows;
        for (const auto& [key, row] : database.table(table).rows()) {
            std::string text;
            for (const std::size_t column : columns) {
                text += (text.empty() ? "" : " ") + automation::toText(row[column]);
            }
            rows.push_back(text);
        }
        return rows;
    }
    /// "key caption" of the nodes below the root.
    [[nodiscard]] Texts shownNodes() const {
        Texts nodes;
        for (const std::string& key : host.explorer.childKeys(recipe::rootKey, 2)) {
            nodes.push_back(key + " " + host.explorer.eventOf(key).caption);
        }
        return nodes;
    }
    /// The nodes that the recipes in the database should have.
    [[nodiscard]] Texts nodesOfStoredRecipes() {
        Texts nodes;
        for (const auto& [key, row] : database.table("TrcpRecipe").rows()) {
            nodes.push_back("RCPR" + std::to_string(key) + " " + automation::toText(row[1]));
            nodes.push_back("RCPU" + std::to_string(key) + " Unterrezepte");
        }
        return nodes;
    }
    /// Nothing of a command is left behind.
    void expectAtRest() {
        EXPECT_EQ(host.screen.pointer(), forms::Pointer::standard);
        EXPECT_FALSE(addIn.busyFlag);
        EXPECT_FALSE(data->CnnRecipes->inTransaction());
        EXPECT_EQ(data->rsRecipes->state(), ado::adStateClosed);
        EXPECT_TRUE(data->CnnRecipes->errors().empty());
        EXPECT_EQ(members().editMode(), ado::adEditNone);
    }
    /// An error of the grid itself is not taken for a duplicate that a command met.
    void expectNoOldDuplicate() {
        host.record.messages.clear();
        grid().reportError({forms::gridErrBadValue, "Not a number"});
        EXPECT_EQ(messages(), Texts{});
    }
    /// Runs the action with the first operation of the database failing, then the second, ... until none fails, each
    /// time over a new window and the database as it was, after `prepare`; and then `check`.
    void withEachFault(const std::function<void()>& prepare, const std::function<void()>& action,
                       const std::function<void()>& check) {
        const support::MemoryDatabase before = database;
        for (int nth = 1;; ++nth) {
            SCOPED_TRACE("operation " + std::to_string(nth));
            database = before;
            renewNodes();
            host.record.messages.clear();
            make();
            open();
            prepare();
            faults.arm(nth);
            action();
            const bool fired = faults.fired();
            faults.disarm();
            check();
            expectAtRest();
            if (!fired) return;
            EXPECT_FALSE(host.record.messages.empty()) << "nobody was told";
            ASSERT_LT(nth, 200);
        }
    }

  private:
    void renewNodes() {
        for (const std::string& key : host.explorer.childKeys(recipe::rootKey, 1)) host.explorer.removeNode(key);
        recipe::RecipeNodes nodes(host.explorer, "Unterrezepte");
        for (const auto& [key, row] : database.table("TrcpRecipe").rows()) {
            nodes.add(static_cast<std::int32_t>(key), automation::toText(row[1]));
        }
    }
};

}  // namespace hx::editor
