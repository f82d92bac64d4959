#include <algorithm>
#include <array>

#include "automation/convert.h"
#include "automation/text.h"
#include "dialogs/fmulti_select_items.h"
#include "dialogs/mconfigeditor.h"
#include "editor/commands.h"
#include "editor/database_work.h"
#include "editor/frmtabgrid.h"
#include "editor/guard.h"
#include "editor/recipe_rows.h"
#include "recipe/mrecipe_member.h"
#include "recipe/node_key.h"
#include "recipe/schema.h"

namespace hx::editor {

using automation::Variant;
namespace member = recipe::schema::member;

namespace {

constexpr std::int32_t deleteMembersText = 411;
constexpr std::string_view procedure = "mnuRecipeMember";
constexpr std::int32_t itemFilter = 256;

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
    if (!dialogs::asksBeforeDeleting(window_.inits())) return true;
    const Busy busy(addIn_.busy());
    constexpr std::int32_t style = forms::message::yesNo + forms::message::defaultButton2;
    return window_.screen().messageBox(addIn_.texts().GetResource(question), style, forms::message::defaultTitle) ==
           forms::message::Answer::yes;
}

// On a clone: the current row stays.
std::vector<std::string> Commands::shownVariables() const {
    ado::Recordset& members = window_.memberRecordset();
    std::vector<std::string> names;
    const auto shown = members.clone();
    if (shown->recordCount() == 0) return names;
    names.reserve(static_cast<std::size_t>(shown->recordCount()));
    const ado::Field& name = shown->field(member::varRecipe);
    for (shown->moveFirst(); !shown->eof(); shown->moveNext()) names.push_back(automation::toText(name.value()));
    return names;
}

void Commands::chooseVariables() {
    const DatabaseWork work(window_.dataEnvironment());
    if (!window_.finishEdit()) return;
    window_.refreshMembers();  // what the recipe has now is what the user starts from
    const std::int32_t recipe = recipe::KeyId(window_.nodeKey());
    const auto dialog = std::make_shared<dialogs::FMultiSelectItems>(addIn_.services(), addIn_.help());
    dialog->hxMI->setItemFilter(itemFilter);
    {
        const recipe::WaitCursor wait(window_.screen());
        dialog->hxMI->setSelectedItems(shownVariables());
    }
    {
        const Busy busy(addIn_.busy());
        dialog->setOwner(window_.share());
        dialog->showModal(window_.handle());
    }
    if (!dialog->cancelled()) {
        const recipe::WaitCursor wait(window_.screen());
        replaceMembers(recipe, dialog->hxMI->selectedItems().value_or(std::vector<std::string>()), work.connection());
    }
    window_.refreshMembers();
}

void Commands::newSubRecipe() {
    window_.finishOrDropEdit();
    const DatabaseWork work(window_.dataEnvironment());
    const ado::Bookmark row = window_.tdbRM->bookmark();
    bool added = false;
    const bool done = guard(addIn_, procedure, [&] {
        const Dialog dialog(dialogOpen_);
        added = recipe::AddSubRecipeMember(window_);
    });
    // After an error too: the recordset then stands on its last row.
    if (added || !done) window_.refreshMembersAt(row);
}

void Commands::editSubRecipe() {
    window_.finishOrDropEdit();
    const DatabaseWork work(window_.dataEnvironment());
    bool edited = false;
    {
        const Dialog dialog(dialogOpen_);
        edited = recipe::EditSubRecipeMember(window_.memberRecordset(), window_);
    }
    if (edited) window_.refreshMembers();
}

// A bookmark of a row whose ID is its key says it already; else the row is asked.
std::vector<std::int32_t> Commands::selectedMembers() const {
    const auto rows = window_.memberRecordset().clone();
    const auto isKey = [](const ado::Column& column) {
        return column.isKey && automation::equalIgnoreCase(column.name, member::id);
    };
    const bool known = std::ranges::any_of(rows->columns(), isKey);
    const ado::Field& id = rows->field(member::id);
    std::vector<std::int32_t> ids;
    for (const ado::Bookmark& row : window_.tdbRM->selectedRows().bookmarks()) {
        if (!known && rows->indexOf(row) < 0) continue;
        if (!known) rows->setBookmark(row);
        ids.push_back(known ? static_cast<std::int32_t>(row.key()) : automation::toInt32(id.value()));
    }
    return ids;
}

// The current row, or the one that takes its place when it goes: the next that is not selected, else the one before.
ado::Bookmark Commands::rowLeftByDeletion() const {
    const ado::Recordset& members = window_.memberRecordset();
    const forms::SelectedRows& selected = window_.tdbRM->selectedRows();
    const auto count = static_cast<std::size_t>(members.recordCount());
    const std::int32_t current = window_.tdbRM->row();
    if (current < 0) return {};
    const auto from = static_cast<std::size_t>(current);
    for (std::size_t row = from; row < count; ++row) {
        if (const ado::Bookmark at = members.bookmarkAt(row); !selected.contains(at)) return at;
    }
    for (std::size_t row = from; row > 0; --row) {
        if (const ado::Bookmark at = members.bookmarkAt(row - 1); !selected.contains(at)) return at;
    }
    return {};
}

void Commands::deleteMembers() {
    window_.finishOrDropEdit();
    const std::vector<std::int32_t> ids = selectedMembers();
    if (ids.empty() || !mayDelete(deleteMembersText)) return;
    const DatabaseWork work(window_.dataEnvironment());
    const ado::Bookmark row = rowLeftByDeletion();
    guard(addIn_, procedure, [&] {
        const recipe::WaitCursor wait(window_.screen());
        deleteMembersOf(window_.nodeKey(), ids, work.connection());
    });
    // After an error too: rows may have gone before it.
    window_.refreshMembersAt(row);
}

}  // namespace hx::editor
