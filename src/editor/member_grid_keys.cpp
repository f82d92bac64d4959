// SPDX-License-Identifier: MIT
#include "editor/member_grid_keys.h"

#include <algorithm>
#include <array>
#include <span>

#include "editor/frmtabgrid.h"
#include "editor/guard.h"
#include "editor/menus.h"
#include "editor/msurfing_grid.h"
#include "editor/tools.h"
#include "project/schema.h"
#include "recipe/node_key.h"

namespace hx::editor {

namespace key = forms::key;
namespace shift = forms::shift;

struct MemberGridKeys::Row {
    std::int16_t code;
    std::int16_t shift;
    Action action;
};

namespace {

// In the order of the display.
std::vector<forms::Column*> visibleColumns(const forms::Grid& grid) {
    std::vector<forms::Column*> columns = grid.columnsInDisplayOrder();
    std::erase_if(columns, [](const forms::Column* column) { return !column->visible(); });
    return columns;
}

}  // namespace

std::int32_t neighbourColumn(const forms::Grid& grid, std::int32_t column, bool toTheLeft) {
    const auto& columns = grid.columns();
    const std::int32_t from = columns[static_cast<std::size_t>(column)]->order();
    std::int32_t best = toTheLeft ? 0 : static_cast<std::int32_t>(columns.size());
    std::int32_t candidate = -1;
    for (std::size_t i = 0; i < columns.size(); ++i) {
        const std::int32_t order = columns[i]->order();
        const bool nearer = toTheLeft ? order < from && order >= best : order > from && order <= best;
        if (!columns[i]->visible() || !nearer) continue;
        best = order;
        candidate = static_cast<std::int32_t>(i);
    }
    return candidate;
}

MemberGridKeys::MemberGridKeys(frmtabgrid& window, MSurfingGrid& members, Menus& menus, AddIn& addIn)
    : window_(window), members_(members), menus_(menus), addIn_(addIn), grid_(*window.tdbRM) {
    using Keys = MemberGridKeys;
    static constexpr auto down = std::to_array<Row>({
        {key::up, shift::none, &Keys::selectOneRow},
        {key::down, shift::none, &Keys::selectOneRow},
        {key::up, shift::shift, &Keys::extendSelection},
        {key::down, shift::shift, &Keys::extendSelection},
        {key::left, shift::shift, &Keys::keepSelection},
        {key::right, shift::shift, &Keys::keepSelection},
        {key::f8, shift::none, &Keys::newMember},
        {key::f9, shift::none, &Keys::editMember},
        {key::del, shift::ctrl, &Keys::deleteMembers},
        {key::f6, shift::alt, &Keys::windowKey},
        {key::f1, shift::none, &Keys::windowKey},
        {key::left, shift::alt, &Keys::swallow},
        {key::right, shift::alt, &Keys::swallow},
        {key::pageUp, shift::ctrl, &Keys::firstColumn},
        {key::pageDown, shift::ctrl, &Keys::lastColumn},
    });
    static constexpr auto up = std::to_array<Row>({
        {key::left, shift::shift, &Keys::neighbour},
        {key::right, shift::shift, &Keys::neighbour},
    });
    subscriptions_.push_back(grid_.keyDownEvent.subscribe([this](forms::KeyEvent& event) { run(down, event); }));
    subscriptions_.push_back(grid_.keyUpEvent.subscribe([this](forms::KeyEvent& event) { run(up, event); }));
    subscriptions_.push_back(grid_.keyPressEvent.subscribe([this](forms::KeyPress& event) { keyPress(event); }));
    std::vector<forms::KeyEvent> own;
    for (const Row& row : down) own.push_back({row.code, row.shift});
    grid_.claimKeys(std::move(own));
}

void MemberGridKeys::run(std::span<const Row> rows, forms::KeyEvent& event) {
    const auto pressed = [&](const Row& row) { return row.code == event.code && row.shift == event.shift; };
    const auto row = std::ranges::find_if(rows, pressed);
    if (row != rows.end()) guard(addIn_, "tdbRM_KeyDown", [&] { (this->*row->action)(event); });
}

void MemberGridKeys::keyPress(forms::KeyPress& event) {
    const auto& columns = grid_.columns();
    const auto column = static_cast<std::size_t>(grid_.col());
    const bool variable = column < columns.size() && columns[column]->dataField() == project::schema::member::varRecipe;
    if (event.character != key::space || !variable || !grid_.caretAtEnd()) return;
    event.swallow();
    guard(addIn_, "tdbRM_KeyPress", [this] { members_.chooseVariable(); });
}

void MemberGridKeys::selectOneRow(forms::KeyEvent&) { grid_.setMultiSelect(forms::MultiSelect::simple); }

void MemberGridKeys::extendSelection(forms::KeyEvent& event) {
    if (grid_.multiSelect() == forms::MultiSelect::simple) event.swallow();
    grid_.setMultiSelect(forms::MultiSelect::extended);
    grid_.selectedRows().add(grid_.bookmark());
}

void MemberGridKeys::keepSelection(forms::KeyEvent& event) {
    if (grid_.selectedRows().count() != 0) event.swallow();
}

// A key that runs a command does nothing else: an open cell editor would take Ctrl+Delete for its own.
void MemberGridKeys::newMember(forms::KeyEvent& event) {
    const std::string_view type = recipe::KeyPrefix(window_.nodeKey());
    const bool recipe = type == recipe::prefixRecipe;
    if (!recipe && type != recipe::prefixSubRecipes) return;
    event.swallow();
    menus_.runMemberTool(recipe ? tool::memberNewVariable : tool::memberNewRecipe);
}

void MemberGridKeys::editMember(forms::KeyEvent& event) {
    const std::string_view type = recipe::KeyPrefix(window_.nodeKey());
    const bool recipe = type == recipe::prefixRecipe;
    if ((!recipe && type != recipe::prefixSubRecipes) || grid_.atBofOrEof()) return;
    event.swallow();
    if (recipe) members_.chooseVariable();
    else menus_.runMemberTool(tool::memberEditSubRecipe);
}

void MemberGridKeys::deleteMembers(forms::KeyEvent& event) {
    event.swallow();
    menus_.runMemberTool(tool::memberDelete);
}

void MemberGridKeys::windowKey(forms::KeyEvent& event) { window_.onKeyDown(event); }

void MemberGridKeys::swallow(forms::KeyEvent& event) { event.swallow(); }

void MemberGridKeys::firstColumn(forms::KeyEvent& event) {
    event.swallow();
    const std::vector<forms::Column*> visible = visibleColumns(grid_);
    if (!visible.empty()) grid_.setCol(grid_.columnNumber(automation::Variant(visible.front()->dataField())));
}

void MemberGridKeys::lastColumn(forms::KeyEvent& event) {
    event.swallow();
    const std::vector<forms::Column*> visible = visibleColumns(grid_);
    if (!visible.empty()) grid_.setCol(grid_.columnNumber(automation::Variant(visible.back()->dataField())));
}

void MemberGridKeys::neighbour(forms::KeyEvent& event) {
    if (grid_.columns().empty()) return;
    const std::int32_t column = neighbourColumn(grid_, grid_.col(), event.code == key::left);
    if (column >= 0) grid_.setCol(column);
}

}  // namespace hx::editor
