// SPDX-License-Identifier: MIT
#include "editor/msurfing_grid.h"

#include <algorithm>
#include <array>

#include "automation/restore.h"
#include "editor/column_order.h"
#include "editor/frmtabgrid.h"
#include "editor/guard.h"
#include "editor/pictures.h"
#include "editor/recipe_names.h"
#include "forms/wait_cursor.h"
#include "project/schema.h"

namespace hx::editor {

using automation::Variant;
namespace member = project::schema::member;

namespace {

constexpr std::string_view columnOrderEntry = "tdbRMColOrders";

/// The columns that the user works with. Any other is there for the queries alone: hidden until the stored layout
/// shows it, and locked, since a member never moves to another recipe.
struct MemberColumn {
    std::string_view field;
    std::int32_t caption;
    bool editable;
};
constexpr std::array<MemberColumn, 2> memberColumns = {{
    {member::varRecipe, 301, true},
    {member::childId, 302, false},
}};

const MemberColumn* memberColumn(std::string_view field) {
    const auto found = std::ranges::find(memberColumns, field, &MemberColumn::field);
    return found != memberColumns.end() ? &*found : nullptr;
}

}  // namespace

MSurfingGrid::MSurfingGrid(frmtabgrid& window, AddIn& addIn) : window_(window), addIn_(addIn), grid_(*window.tdbRM) {
    grid_.setDataMember("tabRecipeMembers");
    subscriptions_.push_back(grid_.leavingRowEvent.subscribe([this](bool& stay) { leavingRow(stay); }));
    subscriptions_.push_back(grid_.errorEvent.subscribe([this](forms::GridError& error) { reportedError(error); }));
    subscriptions_.push_back(grid_.viewErrorEvent.subscribe([this](forms::GridError& error) { viewFailed(error); }));
    subscriptions_.push_back(grid_.buttonClickEvent.subscribe([this](std::int32_t column) { buttonClicked(column); }));
    subscriptions_.push_back(grid_.headClickEvent.subscribe([this](std::int32_t) { sorted(); }));
}

void MSurfingGrid::sorted() {
    guard(addIn_, "tdbRM_HeadClick", [this] {
        const forms::WaitCursor wait(window_.screen());
        window_.refreshMembers();
    });
}

void MSurfingGrid::build(const std::shared_ptr<ado::Recordset>& members) {
    if (members->state() == ado::adStateClosed) members->open();
    grid_.font().setValues(window_.font().values());
    arranged_ = false;
    grid_.clearColumns();
    for (const ado::Column& field : members->columns()) addColumn(field.name);
    for (const MemberColumn& column : memberColumns) {
        if (forms::Column* shown = grid_.findColumn(column.field)) {
            shown->setCaption(addIn_.texts().GetResource(column.caption));
        }
    }
    grid_.setDataSource(members);
    applyLayout();
    arranged_ = true;
}

void MSurfingGrid::addColumn(const std::string& field) {
    forms::Column& column = grid_.addColumn(field);
    const MemberColumn* known = memberColumn(field);
    column.setVisible(known != nullptr);
    column.setLocked(known == nullptr || !known->editable);
    if (field == member::varRecipe) {
        column.setButton(true);
        column.setButtonPicture(pictures::choose());
    }
    if (field == member::childId) {
        // The column can live on in the rows that are sorted by it.
        column.valueItems().setSource(
            [this, weak = std::weak_ptr(window_.share())](const Variant& id) -> std::optional<std::string> {
                const auto window = weak.lock();
                if (window == nullptr) return {};
                const auto& data = window_.dataEnvironment();
                if (data == nullptr || !id.isNumber()) return {};
                return nameOfRecipe(data->CnnRecipes, automation::toInt32(id));
            });
    }
}

void MSurfingGrid::applyLayout() {
    window_.applySettings(grid_.name());
    applyColumnOrder();
}

void MSurfingGrid::applyColumnOrder() {
    const Variant stored = window_.inits().ReadAValueFromCInits(std::string(columnOrderEntry), Variant(""));
    editor::applyColumnOrder(grid_, automation::toText(stored));
}

void MSurfingGrid::saveColumnOrder() {
    window_.inits().WriteAValueToCInits(std::string(columnOrderEntry), Variant(columnOrderText(grid_)));
}

void MSurfingGrid::refreshSubRecipeNames() {
    if (forms::Column* child = grid_.findColumn(member::childId)) child->valueItems().clear();
}

bool MSurfingGrid::mayRead() { return window_.dataEnvironment() && !window_.nodeKey().empty() && finishEdit(); }

void MSurfingGrid::refreshMembers() {
    if (!mayRead()) return;
    const bool again = shownKey_ == window_.nodeKey();
    const ado::Bookmark current = again ? grid_.bookmark() : ado::Bookmark();
    const std::vector<ado::Bookmark> selected = again ? grid_.selectedRows().bookmarks() : std::vector<ado::Bookmark>();
    readMembers(current, selected);
}

void MSurfingGrid::refreshMembersAt(const ado::Bookmark& row) {
    if (mayRead()) readMembers(row, {});
}

void MSurfingGrid::readMembers(const ado::Bookmark& current, const std::vector<ado::Bookmark>& selected) {
    const automation::Restore reading(reading_, true);
    const bool subRecipes = recipe::RefreshMemberView(grid_, window_.memberRecordset(), window_.nodeKey(),
                                                      window_.saveFirst(), addIn_.texts());
    window_.setSubRecipeView(subRecipes);
    shownKey_ = window_.nodeKey();
    standOn(current);
    select(selected);
}

void MSurfingGrid::clear() {
    if (const auto shown = members()) recipe::CloseRecordset(*shown, false);
    grid_.reload();
}

void MSurfingGrid::standOn(const ado::Bookmark& row) {
    const std::ptrdiff_t place = window_.memberRecordset().indexOf(row);
    if (place >= 0) grid_.setRow(static_cast<std::int32_t>(place));
}

// Through all rows once: looking each selected one up would take a walk for each in a sorted recordset.
void MSurfingGrid::select(std::vector<ado::Bookmark> rows) {
    if (rows.empty()) return;
    const ado::Recordset& members = window_.memberRecordset();
    ado::KeyMarks present;
    const auto count = static_cast<std::size_t>(members.recordCount());
    for (std::size_t i = 0; i < count; ++i) present.insert(members.bookmarkAt(i).key());
    std::erase_if(rows, [&](const ado::Bookmark& row) { return !present.contains(row.key()); });
    grid_.selectedRows().set(std::move(rows));
}

}  // namespace hx::editor
