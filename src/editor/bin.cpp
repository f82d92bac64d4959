// SPDX-License-Identifier: MIT
#include "editor/bin.h"

#include "editor/frmtabgrid.h"
#include "editor/menus.h"
#include "editor/tools.h"
#include "project/schema.h"
#include "resources/text_ids.h"

namespace hx::editor {

namespace member = project::schema::member;

namespace {

std::string named(const std::string& kind, const std::string& name) { return name.empty() ? kind : kind + " " + name; }

}  // namespace

Bin::Bin(frmtabgrid& window, Menus& menus, AddIn& addIn) : window_(window), menus_(menus), addIn_(addIn) {
    forms::Grid& grid = *window.tdbRM;
    subscriptions_.push_back(grid.focusEvent.subscribe([this](bool focused) {
        if (focused) meansRows_ = true;
    }));
    subscriptions_.push_back(grid.selectedRows().changed.subscribe([this] {
        if (window_.tdbRM->selectedRows().count() != 0 && !window_.readingMembers()) meansRows_ = true;
    }));
}

std::string_view Bin::tool() const {
    if (!meansRows_) return menus_.wouldEnable(tool::recipeDelete) ? tool::recipeDelete : std::string_view();
    forms::Grid& grid = *window_.tdbRM;
    const bool rows = grid.selectedRows().count() != 0 || !grid.bookmark().isNull();
    return rows && menus_.wouldEnable(tool::recipeMembers) ? tool::memberDelete : std::string_view();
}

std::string Bin::target() const {
    if (!meansRows_) return named(text(resources::text_id::recipe), window_.shownName());
    const std::int32_t selected = window_.tdbRM->selectedRows().count();
    if (selected > 1) return std::to_string(selected) + " " + text(resources::text_id::panelMembers);
    return named(text(window_.subRecipeView() ? resources::text_id::subRecipe : resources::text_id::member), rowName());
}

// Of the selected row, which need not be the current one.
std::string Bin::rowName() const {
    try {
        forms::Grid& grid = *window_.tdbRM;
        const auto& selected = grid.selectedRows().bookmarks();
        const std::ptrdiff_t row =
            window_.memberRecordset().indexOf(selected.empty() ? grid.bookmark() : selected.front());
        const auto name = automation::Variant(window_.subRecipeView() ? member::childId : member::varRecipe);
        return grid.text(static_cast<std::int32_t>(row), grid.columnNumber(name));
    } catch (const automation::Error&) {
        return {};  // nobody has asked for it: the grid tells what it cannot read
    }
}

void Bin::selectTarget() {
    forms::SelectedRows& selected = window_.tdbRM->selectedRows();
    if (!meansRows_ || selected.count() != 0) return;
    selected.add(window_.tdbRM->bookmark());
    menus_.switchAgain();
}

}  // namespace hx::editor
