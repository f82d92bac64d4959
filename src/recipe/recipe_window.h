// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "ado/recordset.h"
#include "forms/form.h"
#include "host/services.h"
#include "resources/help.h"
#include "resources/resource_table.h"

namespace hx::recipe {

/// The editor window as the operations on recipes and their members see it. The window, editor::frmtabgrid, calls these
/// operations and they call it: the interface keeps this folder from including the one above it.
class RecipeWindow {
  public:
    virtual ~RecipeWindow() = default;
    /// The window itself: the owner of the dialogs, which it outlives.
    [[nodiscard]] virtual forms::Form& editorWindow() = 0;
    [[nodiscard]] virtual ado::Recordset& memberRecordset() = 0;
    [[nodiscard]] virtual const std::string& nodeKey() const = 0;
    /// The table of the recipes; throws errFail while the window has no database.
    [[nodiscard]] virtual ado::Recordset& recipeRecordset() = 0;
    [[nodiscard]] virtual const host::Services& services() const = 0;
    [[nodiscard]] virtual const resources::ResourceTable& texts() const = 0;
    [[nodiscard]] virtual resources::Help& help() = 0;

    /// A message box with OK and the default title. The window is not refreshed meanwhile.
    virtual void tell(std::string_view text) = 0;
};

}  // namespace hx::recipe
