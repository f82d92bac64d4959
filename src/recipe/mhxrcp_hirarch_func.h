// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

#include "ado/recordset.h"
#include "forms/grid.h"
#include "forms/status_bar.h"
#include "resources/resource_table.h"

/// Shared data-access routines of the editor: the module MHXRCPHirarchFunc.
namespace hx::recipe {

/// The numbers of recipes and members that the status line shows; one for the whole add-in.
class StatusCounters {
  public:
    enum class Mode : std::int16_t { add = 0, reset = 1, set = 2, get = 3 };
    /// Adding beyond 32 bits throws errOverflow. Panels are written only when their text differs.
    void UpdateStatusCounters(forms::StatusBar& bar, const resources::ResourceTable& texts, const std::string& function,
                              Mode mode, std::int32_t& recipes, std::int32_t& members);

  private:
    std::int32_t recipes_ = 0;
    std::int32_t members_ = 0;
};

/// Shows the members of a node in the grid; `saveFirst` stores a pending edit before. Database errors reach the caller.
/// True when the members are sub-recipes.
bool RefreshMemberView(forms::Grid& grid, ado::Recordset& members, std::string_view nodeKey, bool saveFirst,
                       const resources::ResourceTable& texts);
/// "SELECT ..." for a node key without the order; empty for an unknown type.
[[nodiscard]] std::string memberQuery(std::string_view nodeKey);

bool OpenAndMoveFirst(ado::Recordset& recordset);
bool OpenAndMoveLast(ado::Recordset& recordset);
/// Stores a pending edit where that is wanted and possible, else drops it.
void FinishEdit(ado::Recordset& recordset, bool saveFirst) noexcept;
/// Never throws. True when the recordset is closed at the end.
bool CloseRecordset(ado::Recordset& recordset, bool saveFirst) noexcept;
void RenameRecipe(ado::Recordset& recipes, const std::string& oldName, const std::string& newName);

}  // namespace hx::recipe
