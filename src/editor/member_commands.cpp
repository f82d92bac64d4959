// SPDX-License-Identifier: MIT
#include <algorithm>
#include <array>
#include <iterator>
#include <span>

#include "automation/convert.h"
#include "automation/restore.h"
#include "automation/text.h"
#include "dialogs/fmulti_select_items.h"
#include "dialogs/mconfigeditor.h"
#include "editor/commands.h"
#include "editor/database_work.h"
#include "editor/frmtabgrid.h"
#include "editor/guard.h"
#include "editor/recipe_names.h"
#include "forms/wait_cursor.h"
#include "project/schema.h"
#include "recipe/mrecipe_member.h"
#include "recipe/node_key.h"
#include "resources/text_ids.h"

namespace hx::editor {

using automation::Variant;
namespace member = project::schema::member;

namespace {

constexpr std::string_view procedure = "mnuRecipeMember";
constexpr std::int32_t itemFilter = 256;
constexpr std::size_t mostNames = 5;
constexpr automation::Sentence membersChanged{
    "The members of the recipe were changed by another meanwhile.\r\nAdded: %1\r\nRemoved: %2\r\nReplace them all the "
    "same?",
    "Die Elemente des Rezepts wurden inzwischen von jemand anderem geändert.\r\nHinzugekommen: %1\r\nEntfernt: "
    "%2\r\nTrotzdem durch die Auswahl ersetzen?"};

}  // namespace

void Commands::mnuRecipeMember(std::int16_t index) {
    static constexpr auto rows = std::to_array<Row>({
        {0, recipeNode, &Commands::chooseVariables},
        {1, subRecipesNode, &Commands::newSubRecipe},
        {2, membersNode, &Commands::deleteMembers},
        {3, subRecipesNode, &Commands::editSubRecipe},
    });
    run(rows, index, procedure);
}

bool Commands::mayDelete(std::int32_t question) {
    return !dialogs::asksBeforeDeleting(window_.inits()) || saysYes(addIn_.texts().GetResource(question));
}

bool Commands::saysYes(const std::string& question) {
    const Busy busy(addIn_.busy());
    constexpr std::int32_t style = forms::message::yesNo + forms::message::defaultButton2;
    return window_.screen().messageBox(question, style, forms::message::defaultTitle) == forms::message::Answer::yes;
}

namespace {

// Those of `members` that `others` has not.
std::string namesMissing(const Members& members, const Members& others,
                         const std::shared_ptr<ado::Connection>& connection) {
    const std::vector<Member> those = members.sorted(), these = others.sorted();
    std::vector<Member> missing;
    std::ranges::set_difference(those, these, std::back_inserter(missing));
    std::string names;
    for (const Member& member : std::span(missing).first(std::min(missing.size(), mostNames))) {
        const auto recipe = nameOfRecipe(connection, member.child);  // none for a variable
        names += (names.empty() ? "" : ", ") + recipe.value_or(std::string(member.variable));
    }
    return missing.empty() ? "-" : missing.size() > mostNames ? names + ", ..." : names;
}

}  // namespace

void Commands::replaceVariables(std::int32_t recipe, Members known, const std::vector<std::string>& variables,
                                const std::shared_ptr<ado::Connection>& connection) {
    for (;;) {
        std::optional<Members> now;
        {
            const forms::WaitCursor wait(window_.screen());
            now = replaceMembers(recipe, known, variables, connection, addIn_.texts());
        }
        if (!now) return;
        const std::string came = namesMissing(*now, known, connection), went = namesMissing(known, *now, connection);
        if (!saysYes(automation::say(addIn_.texts().wording(), membersChanged, {came, went}))) return;
        known = std::move(*now);
    }
}

void Commands::chooseVariables() {
    const DatabaseWork work(window_.dataEnvironment());
    if (!window_.finishEdit()) return;
    const std::int32_t recipe = recipe::KeyId(window_.nodeKey());
    window_.refreshMembers();
    const auto dialog = std::make_shared<dialogs::FMultiSelectItems>(addIn_.services(), addIn_.help());
    dialog->hxMI->setItemFilter(itemFilter);
    Members known;
    {
        const forms::WaitCursor wait(window_.screen());
        known.add(window_.memberRecordset());
        dialog->hxMI->setSelectedNames(known.variables());
        addSubRecipes(known, recipe, work.connection());
    }
    bool stored = false, refused = false;
    const auto store = [&] {
        replaceVariables(recipe, known, dialog->hxMI->selectedItems().value_or(std::vector<std::string>()),
                         work.connection());
        return true;
    };
    {
        const Busy busy(addIn_.busy());
        stored = recipe::showStoring(window_, *dialog, tellingIn(procedure, refused), store);
    }
    if (!stored && !dialog->cancelled()) showingConflicts(recipe, {}, store);
    window_.refreshMembers();
}

void Commands::newSubRecipe() {
    window_.finishOrDropEdit();
    const DatabaseWork work(window_.dataEnvironment());
    const ado::Bookmark row = window_.tdbRM->bookmark();
    bool stale = false;
    const bool done = guard(addIn_, procedure, [&] {
        showingConflicts(recipe::KeyId(window_.nodeKey()), {}, [&] {
            const automation::Restore dialog(dialogOpen_, true);
            if (recipe::AddSubRecipeMember(window_, tellingIn(procedure, stale))) stale = true;
        });
    });
    // After an error too: the recordset then stands on its last row.
    if (stale || !done) window_.refreshMembersAt(row);
}

void Commands::editSubRecipe() {
    window_.finishOrDropEdit();
    const DatabaseWork work(window_.dataEnvironment());
    bool stale = false;
    const bool done = guard(addIn_, procedure, [&] {
        const automation::Restore dialog(dialogOpen_, true);
        if (recipe::EditSubRecipeMember(window_.memberRecordset(), window_, tellingIn(procedure, stale))) stale = true;
    });
    // After an error too: another may have changed the row.
    if (stale || !done) window_.refreshMembers();
}

// The current row, or the one that takes its place when it goes: the next that is not selected, else the one before.
ado::Bookmark Commands::rowLeftByDeletion() const {
    const ado::Recordset& members = window_.memberRecordset();
    const forms::SelectedRows& selected = window_.tdbRM->selectedRows();
    const auto count = static_cast<std::size_t>(members.recordCount());
    const auto from = static_cast<std::size_t>(std::max(window_.tdbRM->row(), 0));
    const auto stays = [&](std::size_t row) { return !selected.contains(members.bookmarkAt(row)); };
    for (std::size_t row = from; row < count; ++row) {
        if (stays(row)) return members.bookmarkAt(row);
    }
    for (std::size_t behind = from; behind > 0; --behind) {
        if (stays(behind - 1)) return members.bookmarkAt(behind - 1);
    }
    return {};
}

void Commands::deleteMembers() {
    window_.finishOrDropEdit();
    const DatabaseWork work(window_.dataEnvironment());
    std::vector<ado::Key> rows;
    for (const ado::Bookmark& row : window_.tdbRM->selectedRows().bookmarks()) rows.push_back(row.key());
    if (rows.empty() || !mayDelete(resources::text_id::deleteMembers)) return;
    const ado::Bookmark row = rowLeftByDeletion();
    guard(addIn_, procedure, [&] {
        const forms::WaitCursor wait(window_.screen());
        editor::deleteMembers(window_.memberRecordset(), rows);
    });
    // After an error too: rows may have gone before it.
    window_.refreshMembersAt(row);
}

}  // namespace hx::editor
